#include "net/frmTestProxy.h"

#include <iterator>

#include "forms/ControlIds.h"
#include "forms/DialogRows.h"
#include "forms/controls/ProgressScale.h"
#include "net/ServiceRequest.h"
#include "net/ServiceUrlTable.h"
#include "platform/Clock.h"
#include "resources/texts/net.h"
#include "settings/CReg.h"
#include "settings/SettingNames.h"
#include "settings/Strings.h"

namespace sonaro {

namespace {

constexpr unsigned kSoon = 100;  // milliseconds until the test begins

// What the test does, one after the other, and how that reads while it lasts and once it is done.
constexpr struct {
  int running;
  int done;
} kSteps[] = {
    {IDS_NET_TEST_FIND, IDS_NET_TEST_FOUND},
    {IDS_NET_TEST_CONNECT, IDS_NET_TEST_CONNECTED},
    {IDS_NET_TEST_READ, IDS_NET_TEST_PAGE},
};
constexpr int kStepCount = static_cast<int>(std::size(kSteps));

// The result line of a step.
constexpr ControlRow StepIcon(int step) {
  return {.id = imgProxyStep + step,
          .kind = ControlKind::Label,
          .at = {26, 84 + 24 * step, 16, 16},
          .icon = Icon::Check,
          .flags = kOnGlass | kHidden};
}
constexpr ControlRow StepText(int step) {
  return {.id = lblProxyStep + step,
          .kind = ControlKind::StateLabel,
          .at = {50, 80 + 24 * step, 270, 24},
          .flags = kOnGlass};
}
constexpr ControlRow StepTime(int step) {
  return {.id = lblProxyStepTime + step,
          .kind = ControlKind::Label,
          .at = {324, 80 + 24 * step, 70, 24},
          .flags = kOnGlass | kRightAligned,
          .color = TextColor::GlassMuted};
}

}  // namespace

const FormDesign& frmTestProxy::Design() {
  static constexpr ControlRow kControls[] = {
      {.id = lblTitle, .kind = ControlKind::TitleBar, .text = IDS_NET_TEST_TITLE, .at = {40, 4, 156, 26}},
      Caption(IDS_NET_TEST_ADDRESS, {14, 46, 90, 24}),
      {.id = lblCheckAddress, .kind = ControlKind::Label, .at = {110, 46, 196, 24}, .flags = kNoPrefix},
      Caption(IDS_NET_TEST_PORT, {314, 46, 34, 24}),
      {.id = lblCheckPort, .kind = ControlKind::Label, .at = {350, 46, 56, 24}, .flags = kNoPrefix},
      {.kind = ControlKind::Glass, .at = {14, 74, 392, 108}},
      StepIcon(0),
      StepText(0),
      StepTime(0),
      StepIcon(1),
      StepText(1),
      StepTime(1),
      StepIcon(2),
      StepText(2),
      StepTime(2),
      {.id = prgProxyTest, .kind = ControlKind::Progress, .at = {26, 156, 368, 16}, .flags = kOnGlass},
      {.id = lblStatusInfo,
       .kind = ControlKind::StateLabel,
       .at = {14, 190, 392, 40},
       .flags = kWrap,
       .style = TextStyle::Message},
      {.id = lblProxyStuff,
       .kind = ControlKind::Label,
       .text = IDS_NET_TEST_NOTE,
       .at = {14, 230, 392, 20},
       .color = TextColor::Muted},
      {.kind = ControlKind::Groove, .at = {14, 256, 392, 2}},
      {.id = butTestAgainIt,
       .kind = ControlKind::PushButton,
       .text = IDS_NET_TEST_AGAIN,
       .at = {196, 268, 104, 28},
       .flags = kDisabled},
      OkButton({308, 268, 98, 28}),
      CloseButton(380),
  };
  static constexpr FormDesign kDesign = {.name = "frmTestProxy",
                                         .caption = IDS_NET_TEST_CAPTION,
                                         .size = {420, 314},
                                         .outline = "fdf01",
                                         .controls = kControls,
                                         .outlineSize = {420, 248},
                                         .firstFocus = butOKIt};
  return kDesign;
}

std::span<const EventRow> frmTestProxy::Events() const {
  static const EventRow kRows[] = {
      {butTestAgainIt, Click, &frmTestProxy::butTestAgainIt_Click},
      {butOKIt, Click, &frmTestProxy::butOKIt_Click},
      {butCloseIt, Click, &frmTestProxy::butOKIt_Click},
  };
  return kRows;
}

std::span<const TimerRow> frmTestProxy::Timers() const {
  static const TimerRow kRows[] = {{tmrSock, &frmTestProxy::tmrSock_Timer}};
  return kRows;
}

frmTestProxy::frmTestProxy(FormContext& context, CReg& reg, HttpControlFactory& http, Clock& clock,
                           std::string address, std::string port)
    : Form(context, Design()),
      reg_(reg),
      http_(http.Make()),
      clock_(clock),
      address_(std::move(address)),
      port_(std::move(port)) {}

void frmTestProxy::OnLoad() {
  SetText(lblCheckAddress, address_);
  SetText(lblCheckPort, port_);
  expected_ = StoredServiceSetting(reg_, setting::kProxyTestText);
  Begin();
}

void frmTestProxy::Begin() {
  works_ = false;
  SetText(lblStatusInfo, LoadText(IDS_NET_TEST_RUNS));
  SetTextColor(lblStatusInfo, TextColor::Default);
  for (int step = 0; step < kStepCount; ++step) {
    ShowControl(imgProxyStep + step, false);
    SetText(lblProxyStep + step, "");
    SetText(lblProxyStepTime + step, "");
  }
  if (FocusedControl() == butTestAgainIt) Focus(butOKIt);
  Enable(butTestAgainIt, false);
  BeginStep(0);
  StartTimer(tmrSock, kSoon);
}

void frmTestProxy::tmrSock_Timer() {
  StopTimer(tmrSock);
  stepBegan_ = clock_.Ticks();
  Send(BuildProxyTest(address_, port_, StoredServiceSetting(reg_, setting::kProxyTest)), *http_, *this);
}

void frmTestProxy::BeginStep(int step) {
  step_ = step;
  stepBegan_ = clock_.Ticks();
  Progress(prgProxyTest).SetProgress(step, kStepCount);
  if (step < kStepCount) ShowStep(Icon::Scan, TextColor::Accent, LoadText(kSteps[step].running));
}

void frmTestProxy::StepDone() {
  ShowStep(Icon::Check, TextColor::Signal, LoadText(kSteps[step_].done));
  SetText(lblProxyStepTime + step_,
          FormatText(LoadText(IDS_NET_TEST_TIME), {std::to_string(clock_.Ticks() - stepBegan_)}));
  BeginStep(step_ + 1);
}

void frmTestProxy::StepFailed(const std::string& reason) { ShowStep(Icon::Warn, TextColor::Alert, reason); }

void frmTestProxy::ShowStep(Icon icon, TextColor color, const std::string& text) {
  SetIcon(imgProxyStep + step_, icon);
  SetTextColor(imgProxyStep + step_, color);
  ShowControl(imgProxyStep + step_);
  SetText(lblProxyStep + step_, text);
}

void frmTestProxy::HTTPDataReceived(std::string_view body) {
  works_ = body.find(expected_) != std::string_view::npos;
  if (works_) {
    StepDone();
  } else {
    StepFailed(LoadText(IDS_NET_TEST_OTHER_PAGE));
  }
}

void frmTestProxy::HTTPError(const std::string& statusCode, const std::string&) {
  StepFailed(FormatText(LoadText(IDS_NET_WRONG_STATUS), {statusCode}));
}

void frmTestProxy::HTTPObjectError(const std::string& reason) {
  StepFailed(reason);
  ShowResult();
}

void frmTestProxy::ShowResult() {
  SetText(lblStatusInfo, LoadText(works_ ? IDS_NET_TEST_WORKS : IDS_NET_TEST_FAILED));
  SetTextColor(lblStatusInfo, works_ ? TextColor::Signal : TextColor::Alert);
  Enable(butTestAgainIt);
}

}  // namespace sonaro
