#include "tray/frmStartUpInfo.h"

#include <algorithm>

#include "forms/DialogRows.h"
#include "forms/FileDialog.h"
#include "forms/WideText.h"
#include "playback/PlayerSetup.h"
#include "resources/texts/playback.h"
#include "resources/texts/tray.h"
#include "settings/CReg.h"
#include "settings/HelpPages.h"
#include "settings/ServiceHosts.h"
#include "settings/SettingNames.h"
#include "settings/Strings.h"
#include "tray/ProxyChoice.h"

namespace sonaro {

namespace {

// The two halves of the window: only one of them is shown, by the page that it is opened for.
constexpr unsigned char kPlayerPane = 1;
constexpr unsigned char kProxyPane = 2;
constexpr const char* kPlayerHelp = "9036.html";
constexpr const char* kProxyHelp = "index.html";

// Whether the page comes at the start; nullptr for a page that never does.
const setting::Switch* CheckOf(StartUpInfoPage page) {
  if (page == StartUpInfoPage::Player) return &setting::kStartPlayer;
  return page == StartUpInfoPage::Proxy ? &setting::kStartProxy : nullptr;
}

constexpr ControlRow ReportLine(int line) {
  return {.id = lblFound + line,
          .kind = ControlKind::StateLabel,
          .at = {30, 203 + 17 * line, 540, 17},
          .flags = kOnGlass | kNoPrefix,
          .pane = kPlayerPane};
}

}  // namespace

// Both panes stand in the same place. Texts that depend on the page are empty here; OnLoad and ShowReport
// fill them.
const FormDesign& frmStartUpInfo::Design() {
  static constexpr ControlRow kControls[] = {
      {.id = lblTitle, .kind = ControlKind::TitleBar, .text = IDS_STARTUP_TITLE, .at = {40, 4, 216, 26}},
      {.id = lblHead, .kind = ControlKind::StateLabel, .at = {14, 48, 560, 28}, .style = TextStyle::Heading},
      {.id = lblText, .kind = ControlKind::StateLabel, .at = {14, 80, 572, 56}, .flags = kWrap},
      {.kind = ControlKind::Glass, .at = {14, 142, 572, 164}, .cut = 12},
      {.kind = ControlKind::Label,
       .text = IDS_STARTUP_PLAY_WITH,
       .at = {30, 148, 400, 22},
       .flags = kOnGlass,
       .style = TextStyle::BodyStrong,
       .pane = kPlayerPane},
      {.id = cmbPlayWith,
       .kind = ControlKind::Combo,
       .text = IDS_STARTUP_PLAY_WITH,
       .at = {30, 172, 436, 28},
       .flags = kOnGlass,
       .pane = kPlayerPane},
      {.id = butBrowseIt,
       .kind = ControlKind::PushButton,
       .text = IDS_NOPLAYER_BROWSE,
       .at = {474, 172, 98, 28},
       .flags = kOnGlass,
       .pane = kPlayerPane},
      ReportLine(0),
      ReportLine(1),
      ReportLine(2),
      ReportLine(3),
      {.id = butFindIt,
       .kind = ControlKind::PushButton,
       .text = IDS_NOPLAYER_FIND_IT,
       .at = {30, 274, 104, 26},
       .flags = kOnGlass,
       .pane = kPlayerPane},
      {.id = butTestProgramIt,
       .kind = ControlKind::PushButton,
       .text = IDS_NOPLAYER_TEST_PROGRAM,
       .at = {142, 274, 124, 26},
       .flags = kOnGlass,
       .pane = kPlayerPane},
      {.kind = ControlKind::Label,
       .text = IDS_STARTUP_PROXY_SERVER,
       .at = {30, 156, 120, 24},
       .flags = kOnGlass,
       .style = TextStyle::BodyStrong,
       .pane = kProxyPane},
      {.id = lblProxyFound,
       .kind = ControlKind::StateLabel,
       .at = {160, 156, 400, 24},
       .flags = kOnGlass | kNoPrefix,
       .pane = kProxyPane},
      {.id = optUseProxy,
       .kind = ControlKind::RadioButton,
       .text = IDS_STARTUP_USE_PROXY,
       .at = {30, 196, 300, 24},
       .flags = kOnGlass | kGroup,
       .pane = kProxyPane},
      {.id = optUseProxy + 1,
       .kind = ControlKind::RadioButton,
       .text = IDS_STARTUP_NO_PROXY,
       .at = {30, 222, 300, 24},
       .flags = kOnGlass,
       .pane = kProxyPane},
      {.id = chkDontShow,
       .kind = ControlKind::CheckBox,
       .text = IDS_STARTUP_DONT_SHOW,
       .at = {16, 312, 300, 28},
       .flags = kGroup},
      {.id = butPlayerWebSiteIt,
       .kind = ControlKind::PushButton,
       .text = IDS_NOPLAYER_PLAYER_WEBSITE,
       .at = {14, 352, 140, 30},
       .icon = Icon::Web,
       .pane = kPlayerPane},
      {.id = butOKIt, .kind = ControlKind::PrimaryButton, .text = IDS_NOPLAYER_OK, .at = {380, 352, 96, 30}},
      {.id = butDoneIt,
       .kind = ControlKind::PushButton,
       .text = IDS_NOPLAYER_CLOSE,
       .at = {484, 352, 102, 30}},
      HelpButton(528),
      CloseButton(560),
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
      {cmbPlayWith, SelChange, &frmStartUpInfo::cmbPlayWith_SelChange},
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

frmStartUpInfo::frmStartUpInfo(FormContext& context, const StartUpInfoDependencies& dependencies,
                               StartUpInfoPage page, std::string proxy)
    : Form(context, Design()), dependencies_(dependencies), page_(page), proxy_(std::move(proxy)) {}

void frmStartUpInfo::OnLoad() {
  const bool proxyPage = page_ == StartUpInfoPage::Proxy;
  ShowPane(kPlayerPane, !proxyPage);
  ShowPane(kProxyPane, proxyPage);
  chkDontShow_.Show(CheckOf(page_) != nullptr);
  if (proxyPage) {
    ShowTexts(IDS_STARTUP_PROXY_TITLE, IDS_STARTUP_PROXY_HEAD, IDS_STARTUP_PROXY_TEXT);
    lblProxyFound_.SetText(proxy_);
    optUseProxy_.Check();
  } else {
    // Counted once: going over the whole directory takes too long to be done with every choice.
    counts_ = dependencies_.reporter.CountLinks();
    OfferPrograms(dependencies_.player.Chosen());
  }
}

// The caption of the window is set besides the title on it: it is what a screen reader and the task bar tell.
void frmStartUpInfo::ShowTexts(int title, int head, int text) {
  SetWindowTextW(Window(), Widen(LoadText(title)).c_str());
  lblTitle_.SetText(LoadText(title));
  lblHead_.SetText(LoadText(head));
  lblText_.SetText(LoadText(text));
}

// The first row stands for no program: each kind of link goes to the one that the system has for it. So row n
// is paths_[n - 1] everywhere below.
void frmStartUpInfo::OfferPrograms(const std::string& selected) {
  paths_.clear();
  cmbPlayWith_.ClearItems();
  cmbPlayWith_.AddItem(LoadText(IDS_STARTUP_BY_KIND));
  cmbPlayWith_.SelectItem(0);
  for (const PlayerProgram& program : dependencies_.player.Programs()) OfferProgram(program);
  const auto at = std::find(paths_.begin(), paths_.end(), selected);
  if (at != paths_.end()) cmbPlayWith_.SelectItem(static_cast<int>(at - paths_.begin()) + 1);
  ShowReport();
}

void frmStartUpInfo::OfferProgram(const PlayerProgram& program) {
  cmbPlayWith_.AddItem(program.name);
  paths_.push_back(program.path);
}

std::string frmStartUpInfo::Selected() const {
  const int row = cmbPlayWith_.SelectedItem();
  return row > 0 ? paths_[static_cast<std::size_t>(row) - 1] : std::string();
}

// Says for each kind of link who plays it, with the program that is selected. At the start and when chosen by
// the user the heading tells how much plays; when a station has just failed it speaks of that one.
void frmStartUpInfo::ShowReport() {
  using Plays = PlayerReport::Plays;
  const PlayerReport report = dependencies_.reporter.Report(counts_, Selected());
  for (std::size_t line = 0; line < PlayerReport::kMaxLines; ++line) {
    const PlayerReport::Line told = line < report.lines.size() ? report.lines[line] : PlayerReport::Line();
    const Label label = lblFound_[static_cast<int>(line)];
    label.SetColor(told.missing ? TextColor::Alert : TextColor::Signal);
    label.SetText(told.text);
  }
  const bool none = report.plays == Plays::Nothing;
  const int head = none                          ? IDS_STARTUP_PLAYER_HEAD
                   : report.plays == Plays::Some ? IDS_STARTUP_SOME_HEAD
                                                 : IDS_STARTUP_WELL_HEAD;
  const int title = page_ == StartUpInfoPage::Player ? IDS_STARTUP_TITLE : IDS_STARTUP_CHOOSE_TITLE;
  if (page_ == StartUpInfoPage::NoPlayer) {
    ShowTexts(title, none ? head : IDS_STARTUP_THIS_HEAD, IDS_NOPLAYER_TEXT);
  } else {
    ShowTexts(title, head, none ? IDS_STARTUP_PLAYER_TEXT : IDS_STARTUP_CHOOSE_TEXT);
  }
}

// In place of the first line of the report, which is shown again with the next choice.
void frmStartUpInfo::ShowSentence(const std::string& sentence, TextColor color) {
  lblFound_[0].SetColor(color);
  lblFound_[0].SetText(sentence);
}

// A program that is offered already is only selected, so that no path stands in the list twice.
void frmStartUpInfo::butBrowseIt_Click() {
  const std::string path = AskOpenPath(Window(), LoadText(IDS_NOPLAYER_FILE_FILTER));
  if (path.empty()) return;
  if (std::find(paths_.begin(), paths_.end(), path) == paths_.end())
    OfferProgram({path.substr(path.rfind('\\') + 1), path});
  cmbPlayWith_.SelectItem(static_cast<int>(std::find(paths_.begin(), paths_.end(), path) - paths_.begin()) +
                          1);
  ShowReport();
}

// What was found is selected only where nothing would play without it.
void frmStartUpInfo::butFindIt_Click() {
  OfferPrograms(Selected());
  if (paths_.empty()) return ShowError(LoadText(IDS_STARTUP_NONE));
  if (dependencies_.reporter.Report(counts_, Selected()).plays != PlayerReport::Plays::Nothing) return;
  cmbPlayWith_.SelectItem(1);
  ShowReport();
}

// A link that the service has given for this; at the built-in address nothing needs to lie, so that until
// then a station of the guide is played.
void frmStartUpInfo::butTestProgramIt_Click() {
  const std::string builtIn = ServiceAddress(ServiceHost::Web, "/sonaroapp/sonaro3/testrealurl.ram");
  std::string link = dependencies_.reg.Get(setting::kTestRealUrl);
  std::string name = LoadText(IDS_STARTUP_TEST_LINK);
  if (link.empty()) link = builtIn;
  if (link == builtIn && !counts_.link.empty()) {
    link = counts_.link;
    name = counts_.name;
  }
  const std::string path = Selected();
  if (const std::string program = dependencies_.player.Test(path, link); !program.empty()) {
    return ShowSentence(FormatText(LoadText(IDS_STARTUP_TESTED), {name, program}), TextColor::Signal);
  }
  ShowError(path.empty() ? LoadText(IDS_STARTUP_NONE) : LoadText(IDS_NOPLAYER_CANT_FIND) + path);
}

void frmStartUpInfo::butPlayerWebSiteIt_Click() { dependencies_.help.OpenHelpPage(kPlayerHelp); }

bool frmStartUpInfo::StorePlayer() {
  const std::string path = Selected();
  switch (dependencies_.player.Choose(path)) {
    case PlayerChoiceOutcome::Stored:
      return true;
    case PlayerChoiceOutcome::NoSuchFile:
      ShowError(LoadText(IDS_NOPLAYER_CANT_FIND) + path);
      break;
    case PlayerChoiceOutcome::NotStored:
      ShowError(LoadText(IDS_STARTUP_NOT_SAVED));
      break;
  }
  return false;
}

void frmStartUpInfo::butOKIt_Click() {
  if (page_ == StartUpInfoPage::Proxy) {
    StoreProxy(dependencies_.reg, optUseProxy_.IsChecked(), SplitProxy(proxy_));
    dependencies_.reg.Set(setting::kStartProxy, false);  // it is decided
    return Done(0);
  }
  // The result says whether a player was chosen, so that a caller tries the station once more.
  if (StorePlayer()) Done(Selected().empty() ? 0 : 1);
}

// The box that ends these questions counts on every way out that decides something, and not when the window
// is closed.
void frmStartUpInfo::Done(int result) {
  const setting::Switch* const check = CheckOf(page_);
  if (check != nullptr && chkDontShow_.IsChecked()) dependencies_.reg.Set(*check, false);
  Close(result);
}

void frmStartUpInfo::butHelp_Click() {
  dependencies_.help.OpenHelpPage(page_ == StartUpInfoPage::Proxy ? kProxyHelp : kPlayerHelp);
}

}  // namespace sonaro
