// What must hold for every window of the program, with its real words: FormCheck on each of them.
#include <gtest/gtest.h>
#include <shlobj.h>

#include <functional>
#include <memory>
#include <set>

#include "app/MsgboxFrm.h"
#include "app/frmSplash.h"
#include "directory/EvList.h"
#include "directory/Scrambling.h"
#include "directory/StatList.h"
#include "fakes/FakeClock.h"
#include "fakes/FakeCommands.h"
#include "fakes/FakeHttpControl.h"
#include "fakes/FakeMessageBox.h"
#include "fakes/FakeShell.h"
#include "fakes/FakeUndo.h"
#include "forms/WideText.h"
#include "mainwindow/MainModels.h"
#include "mainwindow/SonaroFrm.h"
#include "mainwindow/frmExtraLink.h"
#include "mainwindow/frmNewFavorite.h"
#include "mainwindow/frmPersonalStation.h"
#include "mainwindow/frmPickGroup.h"
#include "net/UpdateInstall.h"
#include "net/frmInetUpdate.h"
#include "net/frmTestProxy.h"
#include "net/frmUpdateDialog.h"
#include "playback/PlayerLaunch.h"
#include "playback/PlayerReport.h"
#include "playback/PlayerSetup.h"
#include "playback/Players.h"
#include "playback/StationScan.h"
#include "playback/WebPages.h"
#include "playback/frmScan.h"
#include "playback/frmScanTime.h"
#include "resources/texts/app.h"
#include "schedule/ComingEvents.h"
#include "schedule/PersonalShows.h"
#include "schedule/ScheduleCalendar.h"
#include "schedule/ScheduleChanges.h"
#include "schedule/ScheduleServices.h"
#include "schedule/ScheduleStore.h"
#include "schedule/StationPicker.h"
#include "schedule/frmAboutEventTime.h"
#include "schedule/frmDateFinder.h"
#include "schedule/frmNotify.h"
#include "schedule/frmSched.h"
#include "schedule/frmSchedChange.h"
#include "schedule/frmSelectStation.h"
#include "settings/HelpPages.h"
#include "stations/RecentList.h"
#include "tray/Backup.h"
#include "tray/frmOptions.h"
#include "tray/frmStartUpInfo.h"
#include "windows/FormCheck.h"
#include "windows/FormContextForTests.h"
#include "windows/Pump.h"

namespace sonaro {
namespace {

struct NoNotify final : NotifyCommands {
  bool Play(const PlayChoice&) override { return true; }
  bool Snooze(const ScheduleItem&, int) override { return true; }
  void OpenPage(const std::string&) override {}
  void PlaySound() override {}
  void ShowHelp() override { ++helps; }
  int helps = 0;
};

struct NoScheduleListener final : ScheduleListener {
  void ActDone(const std::string&) override {}
  void ItemsChanged() override {}
};

// Updates that are never begun.
class NoUpdates final : public UpdateDialogCommands {
 public:
  NoUpdates(FormContext& forms, const UpdateDependencies& update) : forms_(forms), update_(update) {}
  std::unique_ptr<frmInetUpdate> MakeWatchedUpdate(UpdateListener& dialog) override {
    return std::make_unique<frmInetUpdate>(forms_, update_, dialog, CallerCode::UpdateDialog,
                                           InstallMode::InstallAndRebuild);
  }
  void Installed() override {}
  std::string Report() override { return {}; }
  bool CanUndoUpdate() override { return false; }
  UndoStatus UndoUpdate() override { return UndoStatus::Impossible; }
  void OpenUpdateHelp() override { ++helps; }
  int helps = 0;

 private:
  FormContext& forms_;
  const UpdateDependencies& update_;
};

// A program without data: enough for its windows to open.
struct EmptyProgram {
  FormContextForTests outside;
  StringTable words;
  FormContext forms{words, outside.faceplate, outside.shape};
  FakeShell shell;
  FakeClock clock;
  FakeMessageBox messages;
  FakeHttp http;
  AppState state;
  DataFolder& folder = outside.folder;
  CReg& settings = outside.settings;
  StatList stations{folder};
  PersonalStations personal{folder};
  ExtraLinks extra{folder};
  RecentList recent{folder};
  FavoriteGroups favorites{folder};
  StationSource source{stations, personal, BuiltInAlphabets(), words};
  Players players{settings, folder, shell};
  InstalledPlayers installed{settings, folder, players};
  PlayerSetup playerSetup{settings, outside.files, players, installed};
  PlayerReporter reporter{players, installed, folder, source, words, state};
  WebPages pages{source, folder, shell, words};
  HelpPages help{settings, pages, folder, shell};
  PlayerLaunch player{source, recent, players, installed, pages, words};
  StationScan scan{settings, clock, player, source, words};
  ScheduleStore store{folder, "M/d/yyyy"};
  ScheduleCalendar calendar{store};
  PersonalShows shows{folder, messages, words};
  StationPicker picker{stations, source, favorites, recent, settings, words};
  EvList events{folder};
  EventDiary diary{events};
  ScheduleTexts scheduleTexts{words, ClockStyle::Hours24};
  ComingEvents coming{{diary, store, shows, source, clock, scheduleTexts}};
  NoScheduleListener scheduleListener;
  FakeUndoListener undoListener;
  UndoList undo{undoListener};
  ScheduleChanges changes{{store, shows, settings, undo, messages, words, scheduleTexts, scheduleListener}};
  ScheduleServices schedule{store,  calendar,         shows,         picker,   source,
                            clock,  outside.files,    shell,         messages, help,
                            coming, scheduleListener, scheduleTexts, changes,  undo};
  OptionsModel options{settings, outside.faceplate, "C:\\Guide\\Sonaro.exe"};
  Backup backup{folder, settings, clock};
  UpdateInstall install{folder, settings, stations};
  UpdateDependencies update{settings, folder, words, install, http};
  NoUpdates updateDialog{forms, update};
  FakeCommands commands;
  NoNotify notify;
  GuideData guide{folder, settings, words, state, stations, personal, extra, recent, favorites, source};
};

struct NamedForm {
  const char* name;
  std::function<std::unique_ptr<Form>(EmptyProgram&)> make;
};

template <class T, class... Args>
std::unique_ptr<Form> Make(Args&&... args) {
  return std::make_unique<T>(std::forward<Args>(args)...);
}

const NamedForm kForms[] = {
    {"MsgboxFrm",
     [](EmptyProgram& p) {
       return Make<MsgboxFrm>(p.forms, p.help,
                              Message{.key = "QuickStart",
                                      .caption = "Files Missing",
                                      .text = "Get the missing files now?",
                                      .firstButton = "Get Files",
                                      .secondButton = "Cancel",
                                      .dontAskText = "Don't ask again"});
     }},
    {"MsgboxFrmOfThreeButtons",
     [](EmptyProgram& p) {
       return Make<MsgboxFrm>(p.forms, p.help,
                              Message{.key = "CloseOrTray",
                                      .caption = p.words.Load(IDS_CLOSE_CAPTION),
                                      .text = p.words.Load(IDS_CLOSE_TEXT),
                                      .firstButton = p.words.Load(IDS_CLOSE_KEEP),
                                      .secondButton = p.words.Load(IDS_CLOSE_EXIT),
                                      .cancelButton = p.words.Load(IDS_APP_CANCEL),
                                      .dontAskText = p.words.Load(IDS_DONT_ASK_AGAIN)});
     }},
    {"MsgboxFrmOfLongButtons",
     [](EmptyProgram& p) {
       return Make<MsgboxFrm>(p.forms, p.help,
                              Message{.key = "QuickStart",
                                      .caption = p.words.Load(IDS_QUICK_START_CAPTION),
                                      .text = p.words.Load(IDS_QUICK_START_TEXT),
                                      .firstButton = p.words.Load(IDS_QUICK_START_VIEW),
                                      .secondButton = p.words.Load(IDS_QUICK_START_SKIP)});
     }},
    {"frmSplash", [](EmptyProgram& p) { return Make<frmSplash>(p.forms); }},
    {"SonaroFrm",
     [](EmptyProgram& p) {
       return Make<SonaroFrm>(p.forms, p.guide,
                              MainServices{p.player, p.scan, p.pages, p.help, p.messages, p.commands,
                                           p.commands, p.commands, p.undo});
     }},
    {"frmExtraLink",
     [](EmptyProgram& p) {
       return Make<frmExtraLink>(p.forms, p.extra, p.messages, 1, std::string("Jazz"));
     }},
    {"frmNewFavorite", [](EmptyProgram& p) { return Make<frmNewFavorite>(p.forms, p.help); }},
    {"frmPersonalStation",
     [](EmptyProgram& p) {
       return Make<frmPersonalStation>(p.forms, p.personal, p.messages, p.help, PersonalStation{});
     }},
    {"frmPickGroup",
     [](EmptyProgram& p) {
       return Make<frmPickGroup>(p.forms, std::string("Jazz"), std::vector<std::string>{}, std::string());
     }},
    {"frmTestProxy",
     [](EmptyProgram& p) {
       return Make<frmTestProxy>(p.forms, p.settings, p.http, p.clock, std::string("proxy.example.net"),
                                 std::string("8080"));
     }},
    {"frmUpdateDialog",
     [](EmptyProgram& p) { return Make<frmUpdateDialog>(p.forms, p.updateDialog, UpdateOpening::Begin); }},
    {"frmScan",
     [](EmptyProgram& p) { return Make<frmScan>(p.forms, p.scan, p.help, p.favorites, p.commands, p.undo); }},
    {"frmScanTime", [](EmptyProgram& p) { return Make<frmScanTime>(p.forms, 30); }},
    {"frmAboutEventTime",
     [](EmptyProgram& p) { return Make<frmAboutEventTime>(p.forms, p.clock, p.shell, p.help); }},
    {"frmDateFinder",
     [](EmptyProgram& p) {
       return Make<frmDateFinder>(p.forms, p.help, Date{2026, 11, 26}, Date{2026, 12, 24});
     }},
    {"frmNotify",
     [](EmptyProgram& p) {
       return Make<frmNotify>(p.forms, p.notify, Notification{.eventName = "Long Wave Theatre"});
     }},
    {"frmSched", [](EmptyProgram& p) { return Make<frmSched>(p.forms, p.schedule); }},
    {"frmSchedChange",
     [](EmptyProgram& p) { return Make<frmSchedChange>(p.forms, p.schedule, ScheduleDraft{}); }},
    {"frmSelectStation", [](EmptyProgram& p) { return Make<frmSelectStation>(p.forms, p.picker, p.help); }},
    {"frmOptions",
     [](EmptyProgram& p) {
       return Make<frmOptions>(p.forms, p.options,
                               OptionsServices{p.commands, p.commands, p.commands, p.help, p.playerSetup,
                                               p.reporter, p.backup, p.messages, p.words});
     }},
    {"frmStartUpInfo",
     [](EmptyProgram& p) {
       return Make<frmStartUpInfo>(p.forms,
                                   StartUpInfoDependencies{p.settings, p.help, p.playerSetup, p.reporter},
                                   StartUpInfoPage::NoPlayer, std::string());
     }},
};

class EveryForm : public testing::TestWithParam<NamedForm> {};

// What other programs look for by its number is there soon after the form is, shown or not.
bool ComesWhole(const Form& form) {
  const auto made = [&](unsigned char pane) { return form.HasPane(pane); };
  for (int tries = 0; tries < 100; ++tries) {
    Pump();
    const auto& late = form.Description().latePanes;
    if (std::all_of(late.begin(), late.end(), made)) return true;
    MsgWaitForMultipleObjects(0, nullptr, FALSE, 50, QS_ALLINPUT);
  }
  return false;
}

TEST_P(EveryForm, HoldsWhatHoldsForEveryForm) {
  EmptyProgram program;
  const std::unique_ptr<Form> form = GetParam().make(program);
  ASSERT_TRUE(form->Create());
  ASSERT_TRUE(ComesWhole(*form));
  for (const std::string& problem : ProblemsOf(*form)) ADD_FAILURE() << problem;
}

// Types into every edit, ticks what can be ticked, and chooses another row in every list that opens.
void ChangeEverything(Form& form) {
  for (const ControlRow& row : form.Description().controls) {
    const HWND control = ControlOf(form, row.id);
    if (!control || !IsWindowVisible(control) || !IsWindowEnabled(control)) continue;
    if (row.kind == ControlKind::Edit || row.kind == ControlKind::MultiEdit) SetWindowTextW(control, L"17");
    if (row.kind == ControlKind::CheckBox || row.kind == ControlKind::RadioButton ||
        row.kind == ControlKind::ToggleButton)
      SendMessageW(control, BM_CLICK, 0, 0);
    if (row.kind == ControlKind::Combo && SendMessageW(control, CB_GETCOUNT, 0, 0) > 1) {
      SendMessageW(control, CB_SETCURSEL, SendMessageW(control, CB_GETCURSEL, 0, 0) == 0 ? 1 : 0, 0);
      SendMessageW(form.Window(), WM_COMMAND, MAKEWPARAM(row.id, CBN_SELCHANGE),
                   reinterpret_cast<LPARAM>(control));
    }
  }
  Pump();
}

TEST_P(EveryForm, EscapeClosesADialogAndKeepsNothingOfIt) {
  EmptyProgram program;
  program.outside.registry.CreateKey(RootKey::LocalMachine, kSettingsKey);
  program.outside.files.MakeFolder("/d");
  const std::unique_ptr<Form> form = GetParam().make(program);
  form->Show();
  Pump();
  const bool isMain = std::string_view(GetParam().name) == "SonaroFrm";
  if (!isMain) ChangeEverything(*form);
  program.outside.files.ClearLog();
  program.outside.registry.writes.clear();
  PressKey(VK_ESCAPE);
  EXPECT_EQ(form->IsOpen(), isMain);
  EXPECT_TRUE(program.outside.registry.writes.empty()) << program.outside.registry.writes[0].name;
  EXPECT_TRUE(program.outside.files.Log().empty()) << program.outside.files.Log()[0];
  EXPECT_TRUE(program.shell.opened.empty());
}

// A dialog without a help button has that of the window that it was opened from.
TEST_P(EveryForm, F1OpensTheHelp) {
  EmptyProgram program;
  frmNewFavorite opener(program.forms, program.help);
  opener.Show();
  const std::unique_ptr<Form> form = GetParam().make(program);
  form->Show(opener.Window());
  Pump();
  PressKey(VK_F1);
  const auto helps =
      static_cast<int>(program.shell.runMinimised.size()) + program.notify.helps + program.updateDialog.helps;
  const bool isFilesMissing = std::string_view(GetParam().name) == "MsgboxFrm";  // all that helps is offered
  EXPECT_EQ(helps, isFilesMissing ? 0 : 1);
}

// As Explorer hands over what is dropped: a list of wide paths behind a head, ended by an empty one.
HGLOBAL Dropped(const std::wstring& path) {
  const HGLOBAL memory = GlobalAlloc(GHND, sizeof(DROPFILES) + (path.size() + 2) * sizeof(wchar_t));
  auto* const head = static_cast<DROPFILES*>(GlobalLock(memory));
  head->pFiles = sizeof(DROPFILES);
  head->fWide = TRUE;
  path.copy(reinterpret_cast<wchar_t*>(head + 1), path.size());
  GlobalUnlock(memory);
  return memory;
}

TEST(MainWindow, TakesADroppedPlaylistIntoTheGroupOnShowOrYourStations) {
  EmptyProgram p;
  p.outside.files.MakeFolder("/d");
  p.outside.files.Put("/d/a.m3u", "#EXTM3U\n#EXTINF:-1,Mine\nhttp://127.0.0.1:9/mine\n");
  p.outside.files.Put("/d/b.m3u", "#EXTM3U\n#EXTINF:-1,Other\nhttp://127.0.0.1:9/other\n");
  ASSERT_EQ(p.favorites.Add("Jazz"), FavoriteChange::Saved);
  const auto made = std::find_if(std::begin(kForms), std::end(kForms),
                                 [](const NamedForm& form) { return form.name == std::string("SonaroFrm"); });
  const std::unique_ptr<Form> form = made->make(p);
  form->Show();
  SendMessageW(form->Window(), WM_DROPFILES, reinterpret_cast<WPARAM>(Dropped(L"/d/a.m3u")), 0);
  ASSERT_EQ(p.personal.All().size(), 1u);
  EXPECT_TRUE(p.favorites.Keys(0).empty());
  SendMessageW(ControlOf(*form, butFavs), BM_CLICK, 0, 0);
  SendMessageW(form->Window(), WM_DROPFILES, reinterpret_cast<WPARAM>(Dropped(L"/d/b.m3u")), 0);
  EXPECT_EQ(p.favorites.Keys(0).size(), 1u);
  EXPECT_EQ(p.messages.asked.size(), 2u) << "each says what came of it";
}

void ExpectEachAccessKeyOnce(const MenuEntries& menu) {
  std::set<int> taken;
  for (const MenuEntry& entry : menu) {
    ExpectEachAccessKeyOnce(entry.children);
    for (std::size_t at = 0; at + 1 < entry.text.size(); ++at) {
      if (entry.text[at] != '&') continue;
      const int key = std::tolower(static_cast<unsigned char>(entry.text[++at]));
      EXPECT_TRUE(key == '&' || taken.insert(key).second) << entry.text;
    }
  }
}

TEST(EveryMenu, GivesEachAccessKeyOnce) {
  EmptyProgram p;
  p.outside.files.MakeFolder("/d");
  ASSERT_EQ(p.favorites.Add("Jazz"), FavoriteChange::Saved);
  MainModels models(p.guide, p.commands);
  models.listing.ShowFavoriteGroup(0);
  const StationActions& actions = models.actions;
  for (const StationKey::Kind kind : {StationKey::Kind::Directory, StationKey::Kind::Personal}) {
    StationDetail station;
    station.station = {kind, 1};
    ExpectEachAccessKeyOnce(actions.ActionMenu(station));
    ExpectEachAccessKeyOnce(actions.EventMenu({}, station));
  }
  for (const MenuEntries& menu :
       {actions.SortMenu(), actions.GroupMenu(0), actions.ProgramMenu(), actions.PersonalMenu()})
    ExpectEachAccessKeyOnce(menu);
}

INSTANTIATE_TEST_SUITE_P(Program, EveryForm, testing::ValuesIn(kForms),
                         [](const auto& form) { return std::string(form.param.name); });

}  // namespace
}  // namespace sonaro
