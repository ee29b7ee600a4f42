// The questions and the dialogs that the main window and the tray ask for.
#include "app/Application.h"
#include "app/ApplicationService.h"
#include "forms/FileDialog.h"
#include "mainwindow/SonaroFrm.h"
#include "mainwindow/frmExtraLink.h"
#include "mainwindow/frmNewFavorite.h"
#include "mainwindow/frmPersonalStation.h"
#include "mainwindow/frmPickGroup.h"
#include "playback/frmScan.h"
#include "resources/texts/app.h"
#include "resources/texts/mainwindow.h"
#include "schedule/frmAboutEventTime.h"
#include "settings/FileWords.h"
#include "settings/SettingNames.h"
#include "settings/Strings.h"
#include "tray/frmOptions.h"
#include "tray/frmStartUpInfo.h"

namespace sonaro {

void Application::AddQuestions(MainWindowCalls& calls) {
  calls.ask = [this](const Message& message) { return messages_.Ask(message); };
  calls.askNewGroupName = [this] { return frmNewFavorite(context_, help_).AskName(main_->Window()); };
  calls.askGroupName = [this](const std::string& present) {
    return frmRenameFav(context_, help_, present).AskName(main_->Window());
  };
  calls.askGroupForStation = [this](const std::string& station) {
    return frmPickGroup(context_, station, GroupNames()).AskGroup(main_->Window());
  };
  calls.askPlaylistToOpen = [this] {
    return AskOpenPath(main_->Window(), strings_.Load(IDS_DLG_PLAYLIST_FILTER));
  };
  calls.askPlaylistToSave = [this](const std::string& name) {
    return AskSavePath(main_->Window(), strings_.Load(IDS_DLG_PLAYLIST_FILTER), name);
  };
}

// True when the user has chosen a player.
bool Application::ChoosePlayer(StartUpInfoPage page, HWND owner) {
  LoadAlphabets(data_, alphabets_);  // the page counts links, perhaps before the data is read
  return frmStartUpInfo(context_, StartUpInfoDependencies{reg_, help_, playerSetup_, playerReporter_}, page,
                        "")
             .ShowModal(owner) == 1;
}

void Application::ShowStartUpInfo(StartUpInfoPage page) {
  if (page != StartUpInfoPage::Proxy) {
    ChoosePlayer(page, GetActiveWindow());
    return;
  }
  frmStartUpInfo(context_, StartUpInfoDependencies{reg_, help_, playerSetup_, playerReporter_}, page,
                 service_->DetectProxy())
      .ShowModal(GetActiveWindow());
}

bool Application::OfferPlayers(const std::string& sentence) {
  const MessageResult result = messages_.Ask({.key = "CantFindProgram",
                                              .caption = strings_.Load(IDS_WHYNOT_CAPTION),
                                              .text = sentence,
                                              .firstButton = strings_.Load(IDS_APP_OK),
                                              .secondButton = strings_.Load(IDS_WHYNOT_CHOOSE_PLAYER),
                                              .isTrouble = true});
  return result.answer == MessageAnswer::Second &&
         ChoosePlayer(StartUpInfoPage::ChoosePlayer, GetActiveWindow());
}

void Application::ShowScan() {
  if (!scanWindow_) {
    scanWindow_ =
        std::make_unique<frmScan>(context_, scan_, help_,
                                  frmScan::Groups{[this] { return GroupNames(); },
                                                  [this](const std::string& name, const std::string& token) {
                                                    main_->AddStationToGroup(name, token);
                                                  }});
  }
  scanWindow_->Show();
}

void Application::ShowOptions(HWND owner) {
  if (optionsWindow_ && optionsWindow_->IsOpen()) {
    optionsWindow_->Show();
    return;
  }
  OptionsCalls calls;
  calls.playNoticeSound = [this] { PlaySoundFile(kNotifySound); };
  calls.findProxy = [this] { return service_->BrowserProxy(); };
  calls.testProxy = [this](HWND window, const ProxyServer& server) {
    service_->TestProxy(window, server.address, server.port);
  };
  calls.choosePlayer = [this](HWND window) { ChoosePlayer(StartUpInfoPage::ChoosePlayer, window); };
  calls.aboutTimes = [this](HWND window) {
    frmAboutEventTime(context_, platform_.clock, platform_.shell, help_).ShowModal(window);
  };
  calls.help = [this] { help_.OpenHelpPage("index.html"); };
  optionsWindow_ = std::make_unique<frmOptions>(context_, options_, std::move(calls));
  optionsWindow_->ShowModal(owner);
}

void Application::AddStationDialogs(MainWindowCalls& calls) {
  calls.editPersonalStation = [this](int index) { EditPersonalStation(index); };
  calls.deletePersonalStation = [this](int index) { DeletePersonalStation(index); };
  calls.editExtraLinks = [this](std::int32_t stationId) { EditExtraLinks(stationId); };
}

void Application::EditPersonalStation(int index) {
  const PersonalStation* known = personal_.Find(index);
  frmPersonalStation dialog(context_, personal_, messages_, help_,
                            known != nullptr ? *known : PersonalStation{});
  if (dialog.ShowModal(main_->Window()) == 1) main_->PersonalStationsChanged();
}

void Application::DeletePersonalStation(int index) {
  const PersonalStation* known = personal_.Find(index);
  if (known == nullptr) return;
  if (!reg_.Get(setting::kNoShowDeletePersonalStation)) {
    const MessageResult result =
        messages_.Ask({.key = "DeletePersonalStation",
                       .caption = strings_.Load(IDS_DLG_OWN_DELETE_CAPTION),
                       .text = FormatText(strings_.Load(IDS_DLG_OWN_DELETE_TEXT), {known->name}),
                       .firstButton = strings_.Load(IDS_DLG_OWN_DELETE),
                       .secondButton = strings_.Load(IDS_APP_CANCEL),
                       .dontAskText = strings_.Load(IDS_DONT_ASK_AGAIN)});
    if (result.answer != MessageAnswer::First) return;
    if (result.dontAskAgain) reg_.Set(setting::kNoShowDeletePersonalStation, true);
  }
  SavedOrSaid(personal_.Delete(index), strings_.Load(IDS_FILE_STATIONS), messages_, strings_);
  main_->PersonalStationsChanged();
}

void Application::EditExtraLinks(std::int32_t stationId) {
  const StationKey key{StationKey::Kind::Directory, stationId};
  frmExtraLink dialog(context_, extra_, messages_, stationId, source_.NameOf(key));
  if (dialog.ShowModal(main_->Window()) == 1) main_->PersonalStationsChanged();
}

}  // namespace sonaro
