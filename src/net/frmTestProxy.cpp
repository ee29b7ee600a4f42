#include "net/frmTestProxy.h"

#include "forms/DialogRows.h"
#include "forms/controls/ProgressScale.h"
#include "resources/texts/net.h"

namespace sonaro {

namespace {

// The result line of a step.
// Each step is a row of three arrays: picture, text and time. The picture is hidden until the step begins.
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

// Three lines, one for each step of ProxyTest, in the order in which they are done.
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
       // Enabled once the test is over: two at a time would share the lines.
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
                           const std::string& address, const std::string& port)
    : Form(context, Design()),
      test_(reg, http, clock, context.strings, address, port),
      address_(address),
      port_(port) {}

void frmTestProxy::OnLoad() {
  lblCheckAddress_.SetText(address_);
  lblCheckPort_.SetText(port_);
  test_.Begin(*this);
}

void frmTestProxy::StartTimer(int milliseconds) {
  Form::StartTimer(tmrSock, static_cast<unsigned>(milliseconds));
}

void frmTestProxy::StopTimer() { Form::StopTimer(tmrSock); }

void frmTestProxy::ShowStep(int step, const ProxyTestStep& shown) {
  struct Mark {
    Icon icon;
    TextColor color;
  };
  static constexpr Mark kMarks[] = {{Icon::Scan, TextColor::Accent},  // Waiting: not seen
                                    {Icon::Scan, TextColor::Accent},
                                    {Icon::Check, TextColor::Signal},
                                    {Icon::Warn, TextColor::Alert}};
  const Mark& mark = kMarks[static_cast<std::size_t>(shown.state)];
  if (shown.state != ProxyTestState::Waiting) {
    imgProxyStep_[step].SetIcon(mark.icon);
    imgProxyStep_[step].SetColor(mark.color);
  }
  imgProxyStep_[step].Show(shown.state != ProxyTestState::Waiting);
  lblProxyStep_[step].SetText(shown.text);
  lblProxyStepTime_[step].SetText(shown.time);
  // A step that failed leaves the bar where it is: that far the proxy was good.
  if (shown.state == ProxyTestState::Running) prgProxyTest_->SetProgress(step, ProxyTest::kStepCount);
  if (shown.state == ProxyTestState::Done) prgProxyTest_->SetProgress(step + 1, ProxyTest::kStepCount);
}

void frmTestProxy::ShowResult(ProxyTestState state, const std::string& text) {
  const bool runs = state == ProxyTestState::Running;
  lblStatusInfo_.SetText(text);
  lblStatusInfo_.SetColor(runs                            ? TextColor::Default
                          : state == ProxyTestState::Done ? TextColor::Signal
                                                          : TextColor::Alert);
  // A disabled button must not keep the focus: keys would then reach nothing.
  if (runs && butTestAgainIt_.HasFocus()) butOKIt_.Focus();
  butTestAgainIt_.Enable(!runs);
}

}  // namespace sonaro
