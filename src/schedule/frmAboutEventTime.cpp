// Everything of an event is shown in this computer's time, so a wrong clock or zone makes every time wrong:
// the window says what the computer believes, and leads to where that is changed.
#include "schedule/frmAboutEventTime.h"

#include "forms/DialogRows.h"
#include "platform/Clock.h"
#include "platform/Shell.h"
#include "resources/texts/app.h"
#include "resources/texts/schedule.h"
#include "schedule/TimeZone.h"
#include "settings/HelpPages.h"
#include "settings/Strings.h"

namespace sonaro {

namespace {

// The control panel's page of date and time, by the way that works on every Windows.
constexpr const char* kTimeSettings = "rundll32.exe shell32.dll,Control_RunDLL timedate.cpl";

}  // namespace

const FormDesign& frmAboutEventTime::Design() {
  static constexpr ControlRow kControls[] = {
      {.id = lblTitle, .kind = ControlKind::TitleBar, .text = IDS_SCHED_TIME_TITLE, .at = {40, 4, 156, 26}},
      {.id = lblName,
       .kind = ControlKind::Label,
       .text = IDS_SCHED_TIME_NAME,
       .at = {14, 44, 392, 20},
       .style = TextStyle::BodyStrong},
      {.id = lblTimeInfo1,
       .kind = ControlKind::Label,
       .text = IDS_SCHED_TIME_INFO1,
       .at = {14, 64, 392, 38},
       .flags = kWrap},
      {.kind = ControlKind::Glass, .at = {14, 106, 392, 92}, .cut = 10},
      {.id = lblTimeInfo2,
       .kind = ControlKind::Label,
       .text = IDS_SCHED_TIME_INFO2,
       .at = {28, 110, 364, 20},
       .flags = kOnGlass,
       .color = TextColor::GlassMuted},
      {.id = lblTimeInfo3, .kind = ControlKind::StateLabel, .at = {28, 130, 364, 20}, .flags = kOnGlass},
      {.id = lblTimeInfo4,
       .kind = ControlKind::StateLabel,
       .at = {28, 150, 364, 20},
       .flags = kOnGlass,
       .style = TextStyle::BodyStrong,
       .color = TextColor::TabText},
      {.id = lblTimeInfo5,
       .kind = ControlKind::StateLabel,
       .at = {28, 170, 364, 20},
       .flags = kOnGlass | kNoPrefix},
      {.id = lblChange,
       .kind = ControlKind::Label,
       .text = IDS_SCHED_TIME_WRONG,
       .at = {14, 201, 130, 32},
       .flags = kWrap,
       .style = TextStyle::Small},
      {.id = lblChangeIt,
       .kind = ControlKind::PushButton,
       .text = IDS_SCHED_TIME_CHANGE,
       .at = {148, 202, 150, 28}},
      {.id = lblCloseIt, .kind = ControlKind::PrimaryButton, .text = IDS_APP_OK, .at = {308, 202, 98, 28}},
      HelpButton(348),
      CloseButton(380),
  };
  static constexpr FormDesign kDesign = {.name = "frmAboutEventTime",
                                         .caption = IDS_SCHED_TIME_TITLE,
                                         .size = {420, 248},
                                         .outline = "fdf01",
                                         .controls = kControls};
  return kDesign;
}

std::span<const EventRow> frmAboutEventTime::Events() const {
  static const EventRow kRows[] = {
      {lblChangeIt, Click, &frmAboutEventTime::lblChangeIt_Click},
      {lblCloseIt, Click, &frmAboutEventTime::lblCloseIt_Click},
      {butCloseIt, Click, &frmAboutEventTime::lblCloseIt_Click},
      {butHelp, Click, &frmAboutEventTime::butHelp_Click},
  };
  return kRows;
}

// The three lines are those of the moment at which the window opens; they do not run on, so that they can be
// read out in peace.
void frmAboutEventTime::OnLoad() {
  const DateTime now = clock_.LocalNow();
  std::string zone;
  std::string daylight;
  GetZoneOffset(clock_, zone, daylight);
  lblTimeInfo3_.SetText(FormatText(LoadText(IDS_SCHED_TIME_DATE), {FormatLongDate(now.date)}));
  lblTimeInfo4_.SetText(FormatText(LoadText(IDS_SCHED_TIME_TIME), {FormatTimeWithSeconds(now.time)}));
  lblTimeInfo5_.SetText(FormatText(LoadText(IDS_SCHED_TIME_ZONE), {zone}));
}

// Minimised, since the runner of the control panel has a window of its own to no purpose.
void frmAboutEventTime::lblChangeIt_Click() { shell_.RunMinimised(kTimeSettings); }

void frmAboutEventTime::butHelp_Click() { help_.OpenHelpPage("9003.html"); }

}  // namespace sonaro
