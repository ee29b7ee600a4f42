// A notice comes while the user does something else. It takes neither focus nor time: it is done with by one
// press (Play, Snooze, Close), and several stand side by side until that.
#include "schedule/frmNotify.h"

#include <algorithm>

#include "forms/DialogRows.h"
#include "resources/texts/schedule.h"

namespace sonaro {

namespace {

// A moment later than the window, so that the sound does not come before the eye can find its reason. The web
// site of an item that opens one waits for the same moment: the browser takes the focus.
constexpr unsigned kSoundDelay = 50;  // milliseconds: the window has been painted
constexpr unsigned char kNoticePane = 1;
constexpr unsigned char kMissedPane = 2;

struct SnoozeLength {
  int minutes = 0;
  int text = 0;
};
constexpr SnoozeLength kSnoozes[] = {
    {5, IDS_SCHED_SNOOZE_5}, {15, IDS_SCHED_SNOOZE_15}, {60, IDS_SCHED_SNOOZE_60}};

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
      {.id = lstMissed,
       .kind = ControlKind::ListView,
       .text = IDS_SCHED_AWAY_TEXT,
       .at = {14, 46, 412, 94},
       .pane = kMissedPane},
      {.kind = ControlKind::Label,
       .at = {34, 56, 24, 24},
       .icon = Icon::Bell,
       .flags = kOnGlass,
       .color = TextColor::Accent,
       .pane = kNoticePane},
      {.id = lblNoticeInfo,
       .kind = ControlKind::StateLabel,
       .at = {70, 52, 344, 22},
       .flags = kOnGlass | kNoPrefix,
       .color = TextColor::GlassMuted,
       .pane = kNoticePane},
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
      {.id = butSnoozeIt,
       .kind = ControlKind::PushButton,
       .text = IDS_SCHED_SNOOZE,
       .at = {226, 206, 96, 30},
       .icon = Icon::Bell},
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
      {lstMissed, ItemSelected, &frmNotify::lstMissed_ItemSelected},
      {butGoWebSiteIt, Click, &frmNotify::butGoWebSiteIt_Click},
      {butSnoozeIt, Click, &frmNotify::butSnoozeIt_Click},
      {mnuSnooze, Click, &frmNotify::mnuSnooze_Click, static_cast<int>(std::size(kSnoozes))},
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
    : Form(context, Design()), commands_(commands) {
  notices_.push_back(std::move(notification));
}

frmNotify::frmNotify(FormContext& context, NotifyCommands& commands, std::vector<Notification> missed)
    : Form(context, Design()), commands_(commands), notices_(std::move(missed)), missed_(true) {}

std::string frmNotify::Rows::Cell(int row, int column) const {
  const Notification& notice = notices_[static_cast<std::size_t>(row)];
  return column == 0 ? notice.when : notice.eventName;
}

void frmNotify::OnLoad() {
  ShowPane(kNoticePane, !missed_);
  ShowPane(kMissedPane, missed_);
  if (missed_) {
    ShowMissed();
  } else {
    lblNoticeInfo_.SetText(Shown().notice);
    lblEventName_.SetText(Shown().eventName);
    lblNote_.SetText(Shown().note);
  }
  butSnoozeIt_.Show(!missed_);  // what was missed is over, or may be heard now
  ShowButtons();
  StartTimer(Timer1, kSoundDelay);
}

// The latest one is selected: it may still be on.
void frmNotify::ShowMissed() {
  shown_ = notices_.size() - 1;
  lblTitle_.SetText(LoadText(IDS_SCHED_AWAY_TITLE));
  lstMissed_->SetColumns({{LoadText(IDS_SCHED_AWAY_WHEN), 150}, {LoadText(IDS_SCHED_AWAY_WHAT), 0}});
  lstMissed_->SetModel(&rows_, false);
  lstMissed_->RowsChanged();
  lstMissed_->Select(static_cast<int>(shown_));
}

void frmNotify::ShowButtons() {
  const std::vector<PlayChoice>& plays = Shown().plays;
  for (std::size_t i = 0; i < Notification::kPlayButtons; ++i) {
    const TwoLineButton button = butPlay_[static_cast<int>(i)];
    const bool used = i < plays.size();
    if (used) {
      button.SetText(plays[i].caption);
      button.SetDetail(plays[i].detail);
    }
    button.Show(used);
  }
  butGoWebSiteIt_.Show(!Shown().webSite.empty());
}

// No row, as after a click below the last one: the buttons stay.
void frmNotify::lstMissed_ItemSelected(int row) {
  if (row < 0 || row >= rows_.RowCount()) return;
  shown_ = static_cast<std::size_t>(row);
  ShowButtons();
}

// A notice has done its work when it plays; one of several that were missed has others to tell of.
void frmNotify::butPlay_Click(int index) {
  const auto choice = static_cast<std::size_t>(index);
  if (choice < Shown().plays.size() && commands_.Play(Shown().plays[choice]) && notices_.size() == 1) Close();
}

// A menu and no third row of buttons: the window lies over what the user works on.
void frmNotify::butSnoozeIt_Click() {
  std::vector<MenuEntry> entries;
  for (const SnoozeLength& length : kSnoozes) {
    entries.push_back(
        {.command = mnuSnooze + static_cast<int>(entries.size()), .text = LoadText(length.text)});
  }
  butSnoozeIt_.PopUpMenu(entries);
}

// One that could not be saved stays on the screen, or it would be lost.
void frmNotify::mnuSnooze_Click(int length) {
  if (commands_.Snooze(Shown().item, kSnoozes[length].minutes)) Close();
}

// What was missed opens nothing by itself: it may be many pages, of hours ago.
void frmNotify::Timer1_Timer() {
  StopTimer(Timer1);
  commands_.PlaySound();
  if (!missed_ && Shown().opensWebSite) butGoWebSiteIt_Click();
}

void frmNotifyStack::ShowNotification(Notification notification) {
  Put(std::make_unique<frmNotify>(context_, commands_, std::move(notification)));
}

void frmNotifyStack::ShowMissed(std::vector<Notification> missed) {
  if (missed.empty()) return;  // all of it was deleted meanwhile
  Put(std::make_unique<frmNotify>(context_, commands_, std::move(missed)));
}

// A window is destroyed when its place is taken again, not when it closes: it may be closing from one of its
// own handlers.
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
