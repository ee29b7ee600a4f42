// The dialog copies its controls into the draft at every change and asks the draft what to show. Nothing is
// written before OK; a slot of the table is taken then, not when the dialog opens.
#include "schedule/frmSchedChange.h"

#include "resources/texts/app.h"
#include "resources/texts/schedule.h"
#include "schedule/ScheduleCalendar.h"
#include "schedule/ScheduleStore.h"
#include "schedule/frmDateFinder.h"
#include "schedule/frmSelectStation.h"
#include "settings/HelpPages.h"
#include "settings/Message.h"
#include "settings/Strings.h"
#include "stations/StationSource.h"

namespace sonaro {

namespace {

constexpr ScheduleKind kKinds[] = {ScheduleKind::Once, ScheduleKind::Daily, ScheduleKind::Weekly};
constexpr int kKindCount = 3;
constexpr int kDays = 7;
constexpr int kNoteBytes = 4000;

// -1 for a live item, which has no button: none of them is active then.
int IndexOf(ScheduleKind kind) {
  for (int i = 0; i < kKindCount; ++i) {
    if (kKinds[i] == kind) return i;
  }
  return -1;
}

}  // namespace

frmSchedChange::frmSchedChange(FormContext& context, ScheduleServices& services, ScheduleDraft draft,
                               std::optional<std::size_t> slot)
    : Form(context, Design()),
      context_(context),
      services_(services),
      draft_(std::move(draft)),
      slot_(slot) {}

void frmSchedChange::OnLoad() {
  txtNote_.Limit(kNoteBytes);
  FillChoices();
  lblStationToSched_.SetText(draft_.StationShown(services_.texts));
  txtOneDate_.SetText(draft_.dateText);
  txtNote_.SetText(draft_.note);
  chkWebSite_.Check(draft_.openWebSite);
  for (int day = 0; day < kDays; ++day) chkDay_[day].SetActive(draft_.days[static_cast<std::size_t>(day)]);
  ShowKind();
}

// In the order in which the choices of ScheduleDraft count: PM stands before AM.
void frmSchedChange::FillChoices() {
  for (const std::string& hour : HourChoices(services_.texts.Style())) cmbTimeHour_.AddItem(hour);
  for (const std::string& minute : MinuteChoices()) cmbTimeMinute_.AddItem(minute);
  cmbTimeAMPM_.AddItem(LoadText(IDS_SCHED_CHANGE_PM));
  cmbTimeAMPM_.AddItem(LoadText(IDS_SCHED_CHANGE_AM));
  for (int day = 0; day < kDays; ++day) cmbThreeDay_.AddItem(EnglishDayName(day));
  const TimeChoice choice = ChoiceOf(draft_.time, services_.texts.Style());
  cmbTimeHour_.SelectItem(choice.hour);
  cmbTimeMinute_.SelectItem(choice.minute);
  cmbTimeAMPM_.SelectItem(choice.half);
  ShowPane(kHours12Pane, services_.texts.Style() == ClockStyle::Hours12);
  ShowPane(kHours24Pane, services_.texts.Style() == ClockStyle::Hours24);
  cmbThreeDay_.SelectItem(draft_.weekday);
}

void frmSchedChange::ShowKind() {
  const int shown = IndexOf(draft_.kind);
  cmdHowOften_.SetOnly(shown);
  for (int kind = 0; kind < kKindCount; ++kind) ShowPane(kOncePane + kind, kind == shown);
  ShowSummary();
}

// Told while the user types, so that OK has nothing new to say: what the item means, and when it comes next.
void frmSchedChange::ShowSummary() {
  lblSummary_.SetText(draft_.Summary(services_.texts, services_.shortDatePattern));
  std::string next;
  TextColor color = TextColor::GlassMuted;
  const DraftFault fault = Fault();
  if (fault == DraftFault::Passed) {
    next = LoadText(IDS_SCHED_CHANGE_PASSED);
    color = TextColor::Alert;
  } else if (fault == DraftFault::None) {
    const DateTime now = services_.clock.LocalNow();
    const ScheduleItem item(draft_.ToFields(services_.texts.Style(), services_.shortDatePattern),
                            services_.shortDatePattern);
    // Nothing for a live item, which comes when its event does.
    if (const auto at = ScheduleCalendar::NextOf(item, now)) {
      next = FormatText(LoadText(IDS_SCHED_CHANGE_NEXT), {services_.texts.Next(*at, now)});
    }
  }
  lblNextTime_.SetColor(color);
  lblNextTime_.SetText(next);
}

void frmSchedChange::ReadControls() {
  draft_.time =
      TimeOfChoice({cmbTimeHour_.SelectedItem(), cmbTimeMinute_.SelectedItem(), cmbTimeAMPM_.SelectedItem()},
                   services_.texts.Style());
  draft_.weekday = cmbThreeDay_.SelectedItem();
  draft_.dateText = txtOneDate_.Text();
  draft_.note = txtNote_.Text();
  draft_.openWebSite = chkWebSite_.IsChecked();
  for (int day = 0; day < kDays; ++day) draft_.days[static_cast<std::size_t>(day)] = chkDay_[day].IsActive();
}

void frmSchedChange::cmdHowOften_Click(int index) {
  ReadControls();
  draft_.kind = kKinds[index];
  ShowKind();
}

// A toggle shows what it is told to; pressing it only asks.
void frmSchedChange::chkDay_Click(int day) {
  chkDay_[day].SetActive(!chkDay_[day].IsActive());
  Any_Change();
}

void frmSchedChange::Any_Change() {
  ReadControls();
  ShowSummary();
}

// What the item was called before, an event perhaps, and its web site go with the old station.
void frmSchedChange::butSchedIt_Click() {
  frmSelectStation picker(context_, services_.stations, services_.help);
  const std::optional<StationInfo> picked = picker.Choose(Window());
  if (!picked) return;
  draft_.name = {picked->name, {}, {}};
  draft_.station = picked->key;
  lblStationToSched_.SetText(draft_.StationShown(services_.texts));
  ShowSummary();
}

// The calendar begins with the date that was typed, if it is one.
void frmSchedChange::butPickDateIt_Click() {
  const Date today = services_.clock.LocalNow().date;
  const auto typed = ParseTypedDate(txtOneDate_.Text(), services_.shortDatePattern);
  frmDateFinder finder(context_, services_.help, today, typed ? typed->date : today);
  if (const std::optional<Date> date = finder.Choose(Window())) txtOneDate_.SetText(FormatLongDate(*date));
  Any_Change();
}

// The control at fault has the focus after the message. The keys are those that a message box looks its help
// up by.
bool frmSchedChange::ShowError(DraftFault fault) {
  struct Complaint {
    DraftFault fault;
    const char* key;
    int text;
    ControlHandle control;
  };
  const Complaint kComplaints[] = {
      {DraftFault::NoStation, "ScheduleStationYourNeedToSelectAStation", IDS_SCHED_NEED_STATION, butSchedIt_},
      {DraftFault::NoDate, "ScheduleStationYourNeedToSelectADate", IDS_SCHED_NEED_DATE, txtOneDate_},
      {DraftFault::NoDay, "ScheduleStationYourNeedToSelectADay", IDS_SCHED_NEED_DAY, chkDay_[0]},
      {DraftFault::Passed, "ScheduleStationTimeHasPassed", IDS_SCHED_CHANGE_PASSED, cmbTimeHour_},
  };
  for (const Complaint& complaint : kComplaints) {
    if (complaint.fault != fault) continue;
    services_.messages.Ask({.key = complaint.key,
                            .caption = LoadText(IDS_SCHED_CHANGE_MESSAGE_CAPTION),
                            .text = LoadText(complaint.text),
                            .firstButton = LoadText(IDS_APP_OK)});
    complaint.control.Focus();
    return true;
  }
  return false;
}

void frmSchedChange::butOKIt_Click() {
  ReadControls();
  if (ShowError(Fault())) return;
  // The notice opens what the item carries; a station's own site is taken when it is to be opened.
  if (draft_.openWebSite && draft_.name.webSite.empty())
    draft_.name.webSite = services_.source.WebSiteOf(draft_.station);
  const bool saved =
      services_.store.SetItem(slot_ ? *slot_ : services_.store.FirstFreeSlot(),
                              draft_.ToFields(services_.texts.Style(), services_.shortDatePattern));
  services_.listener.ItemsChanged();
  // What was entered stays on the screen until it is saved.
  if (!SavedOrSaid(saved, LoadText(IDS_FILE_SCHEDULE), services_.messages, context_.strings)) return;
  services_.listener.ActDone(
      FormatText(LoadText(IDS_SCHED_SAVED), {services_.texts.Name(draft_.name), lblSummary_.Text()}));
  Close(1);
}

void frmSchedChange::butHelp_Click() { services_.help.OpenHelpPage("9020.html"); }

}  // namespace sonaro
