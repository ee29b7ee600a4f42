#include "tray/frmStartUpInfo.h"

#include "app/CReg.h"
#include "app/HelpPages.h"
#include "app/ServiceHosts.h"
#include "app/SettingNames.h"
#include "app/Strings.h"
#include "forms/ControlIds.h"
#include "forms/DialogRows.h"
#include "forms/FileDialog.h"
#include "playback/PlayerSetup.h"
#include "resources/texts/playback.h"
#include "resources/texts/tray.h"
#include "tray/ProxyChoice.h"

namespace sonaro {

namespace {

constexpr unsigned char kPlayerPane = 1;
constexpr unsigned char kProxyPane = 2;
constexpr const char* kPlayerHelp = "9036.html";
constexpr const char* kProxyHelp = "index.html";

struct PageTexts {
  int title;
  int head;
  int text;
};

PageTexts TextsOf(StartUpInfoPage page) {
  switch (page) {
    case StartUpInfoPage::Proxy:
      return {IDS_STARTUP_TITLE, IDS_STARTUP_PROXY_HEAD, IDS_STARTUP_PROXY_TEXT};
    case StartUpInfoPage::NoPlayer:
      return {IDS_STARTUP_TITLE, IDS_STARTUP_PLAYER_HEAD, IDS_NOPLAYER_TEXT};
    case StartUpInfoPage::ChoosePlayer:
      return {IDS_STARTUP_CHOOSE_TITLE, IDS_STARTUP_CHOOSE_HEAD, IDS_STARTUP_CHOOSE_TEXT};
    case StartUpInfoPage::Player:
      break;
  }
  return {IDS_STARTUP_TITLE, IDS_STARTUP_PLAYER_HEAD, IDS_STARTUP_PLAYER_TEXT};
}

// The setting that keeps the page from coming again at the start; nullptr for a page that does not.
const char* CheckOf(StartUpInfoPage page) {
  if (page == StartUpInfoPage::Player) return setting::kStartPlayer;
  return page == StartUpInfoPage::Proxy ? setting::kStartProxy : nullptr;
}

}  // namespace

const FormDesign& frmStartUpInfo::Design() {
  static constexpr ControlRow kControls[] = {
      {.id = lblTitle, .kind = Kind::TitleBar, .text = IDS_STARTUP_TITLE, .at = {40, 4, 216, 26}},
      {.id = lblHead, .kind = Kind::StateLabel, .at = {14, 48, 560, 28}, .type = Type::Heading},
      {.id = lblText, .kind = Kind::StateLabel, .at = {14, 80, 572, 56}, .flags = kWrap},
      {.kind = Kind::Glass, .at = {14, 142, 572, 160}, .cut = 12},
      {.kind = Kind::Label,
       .text = IDS_STARTUP_PROGRAM,
       .at = {30, 150, 400, 22},
       .flags = kOnGlass,
       .type = Type::BodyStrong,
       .pane = kPlayerPane},
      {.id = txtProgram,
       .kind = Kind::Edit,
       .at = {30, 174, 436, 28},
       .flags = kOnGlass,
       .pane = kPlayerPane},
      {.id = butBrowseIt,
       .kind = Kind::PushKey,
       .text = IDS_NOPLAYER_BROWSE,
       .at = {474, 174, 98, 28},
       .flags = kOnGlass,
       .pane = kPlayerPane},
      {.id = lblFound,
       .kind = Kind::StateLabel,
       .at = {30, 206, 540, 22},
       .flags = kOnGlass | kNoPrefix,
       .pane = kPlayerPane},
      {.id = lblAsxFound,
       .kind = Kind::StateLabel,
       .at = {30, 228, 540, 22},
       .flags = kOnGlass | kNoPrefix,
       .ink = Ink::GlassMuted,
       .pane = kPlayerPane},
      {.id = butFindIt,
       .kind = Kind::PushKey,
       .text = IDS_NOPLAYER_FIND_IT,
       .at = {30, 260, 104, 30},
       .flags = kOnGlass,
       .pane = kPlayerPane},
      {.id = butTestProgramIt,
       .kind = Kind::PushKey,
       .text = IDS_NOPLAYER_TEST_PROGRAM,
       .at = {142, 260, 124, 30},
       .flags = kOnGlass,
       .pane = kPlayerPane},
      {.kind = Kind::Label,
       .text = IDS_STARTUP_PROXY_SERVER,
       .at = {30, 156, 120, 24},
       .flags = kOnGlass,
       .type = Type::BodyStrong,
       .pane = kProxyPane},
      {.id = lblProxyFound,
       .kind = Kind::StateLabel,
       .at = {160, 156, 400, 24},
       .flags = kOnGlass | kNoPrefix,
       .pane = kProxyPane},
      {.id = optUseProxy,
       .kind = Kind::RadioButton,
       .text = IDS_STARTUP_USE_PROXY,
       .at = {30, 196, 300, 24},
       .flags = kOnGlass | kGroup,
       .pane = kProxyPane},
      {.id = optUseProxy + 1,
       .kind = Kind::RadioButton,
       .text = IDS_STARTUP_NO_PROXY,
       .at = {30, 222, 300, 24},
       .flags = kOnGlass,
       .pane = kProxyPane},
      {.id = chkDontShow,
       .kind = Kind::CheckBox,
       .text = IDS_STARTUP_DONT_SHOW,
       .at = {16, 312, 300, 28},
       .flags = kGroup},
      {.id = butPlayerWebSiteIt,
       .kind = Kind::PushKey,
       .text = IDS_NOPLAYER_PLAYER_WEBSITE,
       .at = {14, 352, 140, 30},
       .icon = Icon::Web,
       .pane = kPlayerPane},
      {.id = butOKIt, .kind = Kind::PrimaryKey, .text = IDS_NOPLAYER_OK, .at = {380, 352, 96, 30}},
      {.id = butDoneIt, .kind = Kind::PushKey, .text = IDS_NOPLAYER_CLOSE, .at = {484, 352, 102, 30}},
      HelpKey(528),
      CloseKey(560),
  };
  static constexpr FormDesign kDesign = {.name = "frmStartUpInfo",
                                         .caption = IDS_STARTUP_TITLE,
                                         .size = {600, 400},
                                         .outline = "sif60",
                                         .controls = kControls};
  return kDesign;
}

std::span<const EventRow> frmStartUpInfo::Events() const {
  static const EventRow kRows[] = {
      {butBrowseIt, Click, &frmStartUpInfo::butBrowseIt_Click},
      {butFindIt, Click, &frmStartUpInfo::butFindIt_Click},
      {butTestProgramIt, Click, &frmStartUpInfo::butTestProgramIt_Click},
      {butPlayerWebSiteIt, Click, &frmStartUpInfo::butPlayerWebSiteIt_Click},
      {butOKIt, Click, &frmStartUpInfo::butOKIt_Click},
      {butDoneIt, Click, &frmStartUpInfo::butCloseIt_Click},
      {butCloseIt, Click, &frmStartUpInfo::butCloseIt_Click},
      {butHelp, Click, &frmStartUpInfo::butHelp_Click},
  };
  return kRows;
}

frmStartUpInfo::frmStartUpInfo(FormContext& context, CReg& reg, HelpPages& help, PlayerSetup& player,
                               StartUpInfoPage page, std::string proxy)
    : Form(context, Design()),
      reg_(reg),
      help_(help),
      player_(player),
      page_(page),
      proxy_(std::move(proxy)) {}

void frmStartUpInfo::OnLoad() {
  const bool proxyPage = page_ == StartUpInfoPage::Proxy;
  ShowPane(kPlayerPane, !proxyPage);
  ShowPane(kProxyPane, proxyPage);
  SetText(lblTitle, LoadText(TextsOf(page_).title));
  SetText(lblHead, LoadText(TextsOf(page_).head));
  SetText(lblText, LoadText(TextsOf(page_).text));
  ShowControl(chkDontShow, CheckOf(page_) != nullptr);
  Check(chkDontShow);
  if (proxyPage) {
    SetText(lblProxyFound, proxy_);
    Check(optUseProxy);
  } else {
    ShowPlayers(player_.Find());
  }
}

void frmStartUpInfo::ShowPlayers(const std::string& path) {
  SetText(txtProgram, path);
  SetText(lblFound, path.empty() ? LoadText(IDS_STARTUP_NONE) : FillIn(LoadText(IDS_STARTUP_READY), {path}));
  SetInk(lblFound, path.empty() ? Ink::Alert : Ink::Signal);
  const std::string asx = player_.FindAsxProgram();
  SetText(lblAsxFound,
          asx.empty() ? LoadText(IDS_STARTUP_ASX_NONE) : FillIn(LoadText(IDS_STARTUP_ASX_READY), {asx}));
}

void frmStartUpInfo::butBrowseIt_Click() {
  const std::string path = AskOpenPath(Window(), LoadText(IDS_NOPLAYER_FILE_FILTER));
  if (path.empty()) return;
  SetText(txtProgram, path);
  StorePlayer();
}

void frmStartUpInfo::butFindIt_Click() { ShowPlayers(player_.Find()); }

void frmStartUpInfo::butTestProgramIt_Click() {
  const std::string path = Text(txtProgram);
  std::string link = reg_.Setting(setting::kTestRealUrl);
  if (link.empty()) link = ServiceAddress(ServiceHost::Web, "/sonaroapp/sonaro3/testrealurl.ram");
  if (player_.Test(path, link)) return;
  SetText(lblFound, LoadText(IDS_NOPLAYER_CANT_FIND) + path);
  SetInk(lblFound, Ink::Alert);
}

void frmStartUpInfo::butPlayerWebSiteIt_Click() { help_.OpenHelpPage(kPlayerHelp); }

bool frmStartUpInfo::StorePlayer() {
  const std::string path = Text(txtProgram);
  if (path.empty()) return true;  // none was chosen: the guide works without one
  std::string problem;
  switch (player_.Choose(path)) {
    case PlayerChoiceOutcome::Stored:
      break;
    case PlayerChoiceOutcome::NoSuchFile:
      problem = LoadText(IDS_NOPLAYER_CANT_FIND) + path;
      break;
    case PlayerChoiceOutcome::NotCompatible:
      problem = LoadText(IDS_STARTUP_INCOMPATIBLE);
      break;
    case PlayerChoiceOutcome::NotStored:
      problem = LoadText(IDS_STARTUP_NOT_SAVED);
      break;
  }
  SetText(lblFound, problem.empty() ? FillIn(LoadText(IDS_STARTUP_READY), {path}) : problem);
  SetInk(lblFound, problem.empty() ? Ink::Signal : Ink::Alert);
  return problem.empty();
}

void frmStartUpInfo::butOKIt_Click() {
  if (page_ == StartUpInfoPage::Proxy) {
    StoreProxy(reg_, IsChecked(optUseProxy), SplitProxy(proxy_));
  } else if (!StorePlayer()) {
    return;
  }
  Done();
}

void frmStartUpInfo::Done() {
  const char* check = CheckOf(page_);
  if (check != nullptr && IsChecked(chkDontShow)) reg_.SetSetting(check, "No");
  Close();
}

void frmStartUpInfo::butHelp_Click() {
  help_.OpenHelpPage(page_ == StartUpInfoPage::Proxy ? kProxyHelp : kPlayerHelp);
}

}  // namespace sonaro
