#include "schedule/frmNotify.h"

#include <algorithm>

#include "forms/DialogRows.h"
#include "resources/texts/schedule.h"

namespace sonaro {

namespace {

constexpr unsigned kSoundDelay = 50;  // milliseconds: the window has been painted
constexpr unsigned char kNoticePane = 1;
constexpr unsigned char kMissedPane = 2;
constexpr int kGap = 12;

// The top-left corner of place `number`: upwards from the lower right corner, then column by column to the
// left.
POINT CornerOf(std::size_t number, const RECT& area, const RECT& window) {
  const int width = window.right - window.left + kGap;
  const int height = window.bottom - window.top + kGap;
  const int inColumn = std::max(1, static_cast<int>(area.bottom - area.top - kGap) / height);
  const int column = static_cast<int>(number) / inColumn;
  const int row = static_cast<int>(number) % inColumn;
  return {std::max(area.left, area.right - (column + 1) * width),
          std::max(area.top, area.bottom - (row + 1) * height)};
}

}  // namespace

const FormDesign& frmNotify::Design() {
  static constexpr ControlRow kControls[] = {
      {.id = lblTitle, .kind = ControlKind::TitleBar, .text = IDS_SCHED_NOTIFY_TITLE, .at = {40, 4, 200, 26}},
      {.kind = ControlKind::Glass, .at = {14, 46, 412, 94}, .pane = kNoticePane, .cut = 12},
      {.kind = ControlKind::Glass, .at = {14, 46, 412, 150}, .pane = kMissedPane, .cut = 12},
      {.kind = ControlKind::Label,
       .at = {34, 56, 24, 24},
       .icon = Icon::Bell,
       .flags = kOnGlass,
       .color = TextColor::Accent},
      {.id = lblNoticeInfo,
       .kind = ControlKind::StateLabel,
       .at = {70, 52, 344, 22},
       .flags = kOnGlass | kNoPrefix,
       .color = TextColor::GlassMuted},
      {.id = lblEventName,
       .kind = ControlKind::StateLabel,
       .at = {70, 72, 344, 30},
       .flags = kOnGlass | kNoPrefix,
       .style = TextStyle::Heading,
       .pane = kNoticePane},
      {.id = lblNote,
       .kind = ControlKind::StateLabel,
       .at = {70, 104, 344, 34},
       .flags = kOnGlass | kNoPrefix | kWrap,
       .pane = kNoticePane},
      {.id = txtMissed,
       .kind = ControlKind::ReadOnlyText,
       .at = {70, 74, 344, 118},
       .flags = kOnGlass | kTabStop,
       .pane = kMissedPane},
      {.id = butPlay1It,
       .kind = ControlKind::PlayButton,
       .at = {14, 150, 134, 40},
       .flags = kHidden | kNoPrefix},
      {.id = butPlay2It,
       .kind = ControlKind::PlayButton,
       .at = {153, 150, 134, 40},
       .flags = kHidden | kNoPrefix | kSecondary},
      {.id = butPlay3It,
       .kind = ControlKind::PlayButton,
       .at = {292, 150, 134, 40},
       .flags = kHidden | kNoPrefix | kSecondary},
      {.id = butGoWebSiteIt,
       .kind = ControlKind::PushButton,
       .text = IDS_SCHED_NOTIFY_WEB,
       .at = {14, 206, 150, 30},
       .icon = Icon::Web,
       .flags = kHidden},
      {.id = butCloselIt,
       .kind = ControlKind::PushButton,
       .text = IDS_SCHED_NOTIFY_CLOSE,
       .at = {330, 206, 96, 30}},
      HelpButton(368),
      CloseButton(400),
  };
  static constexpr FormDesign kDesign = {.name = "frmNotify",
                                         .caption = IDS_SCHED_NOTIFY_TITLE,
                                         .size = {440, 254},
                                         .outline = "fdf01",
                                         .controls = kControls,
                                         .outlineSize = {420, 248}};
  return kDesign;
}

std::span<const EventRow> frmNotify::Events() const {
  static const EventRow kRows[] = {
      {butPlay1It, Click, &frmNotify::butPlay_Click, static_cast<int>(Notification::kPlayButtons)},
      {butGoWebSiteIt, Click, &frmNotify::butGoWebSiteIt_Click},
      {butCloselIt, Click, &frmNotify::butCloselIt_Click},
      {butCloseIt, Click, &frmNotify::butCloselIt_Click},
      {butHelp, Click, &frmNotify::butHelp_Click},
  };
  return kRows;
}

std::span<const TimerRow> frmNotify::Timers() const {
  static const TimerRow kRows[] = {{Timer1, &frmNotify::Timer1_Timer}};
  return kRows;
}

frmNotify::frmNotify(FormContext& context, NotifyCommands& commands, Notification notification)
    : Form(context, Design()), commands_(commands), notification_(std::move(notification)) {}

frmNotify::frmNotify(FormContext& context, NotifyCommands& commands, std::vector<std::string> missed)
    : Form(context, Design()), commands_(commands), missed_(std::move(missed)) {}

void frmNotify::OnLoad() {
  const bool away = !missed_.empty();
  ShowPane(kNoticePane, !away);
  ShowPane(kMissedPane, away);
  if (away) {
    lblTitle_.SetText(LoadText(IDS_SCHED_AWAY_TITLE));
    lblNoticeInfo_.SetText(LoadText(IDS_SCHED_AWAY_TEXT));
    std::string lines;
    for (const std::string& line : missed_) lines += (lines.empty() ? "" : "\r\n") + line;
    txtMissed_.SetText(lines);
  } else {
    lblNoticeInfo_.SetText(notification_.notice);
    lblEventName_.SetText(notification_.eventName);
    lblNote_.SetText(notification_.note);
    ShowPlayButtons();
  }
  StartTimer(Timer1, kSoundDelay);
}

void frmNotify::ShowPlayButtons() {
  for (std::size_t i = 0; i < notification_.plays.size(); ++i) {
    const TwoLineButton button = butPlay_[static_cast<int>(i)];
    button.SetText(notification_.plays[i].caption);
    button.SetDetail(notification_.plays[i].detail);
    button.Show();
  }
  butGoWebSiteIt_.Show(!notification_.webSite.empty());
}

void frmNotify::butPlay_Click(int index) {
  const auto choice = static_cast<std::size_t>(index);
  if (choice < notification_.plays.size()) commands_.Play(notification_.plays[choice]);
}

void frmNotify::Timer1_Timer() {
  StopTimer(Timer1);
  commands_.PlaySound();
  if (notification_.opensWebSite) butGoWebSiteIt_Click();
}

void frmNotifyStack::ShowNotification(Notification notification) {
  Put(std::make_unique<frmNotify>(context_, commands_, std::move(notification)));
}

void frmNotifyStack::ShowMissed(std::vector<std::string> missed) {
  Put(std::make_unique<frmNotify>(context_, commands_, std::move(missed)));
}

void frmNotifyStack::Put(std::unique_ptr<frmNotify> window) {
  auto place =
      std::find_if(windows_.begin(), windows_.end(), [](const auto& shown) { return !shown->IsOpen(); });
  if (place == windows_.end()) place = windows_.insert(place, nullptr);
  *place = std::move(window);
  frmNotify& shown = **place;
  if (!shown.Create()) return;
  RECT area{};
  RECT box{};
  SystemParametersInfoW(SPI_GETWORKAREA, 0, &area, 0);
  GetWindowRect(shown.Window(), &box);
  const POINT corner = CornerOf(static_cast<std::size_t>(place - windows_.begin()), area, box);
  shown.MoveToPixels(corner.x, corner.y);
  shown.ShowInactive();
  // Above the window that the user works in, which keeps the focus.
  SetWindowPos(shown.Window(), HWND_TOPMOST, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
}

}  // namespace sonaro
