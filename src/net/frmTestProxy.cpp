#include "net/frmTestProxy.h"

#include "app/CReg.h"
#include "app/SettingNames.h"
#include "base/Text.h"
#include "forms/ControlIds.h"
#include "forms/DialogRows.h"
#include "net/ServiceRequest.h"
#include "net/ServiceUrlTable.h"
#include "resources/ids.h"

namespace sonaro {

namespace {

constexpr unsigned kSoon = 100;  // milliseconds until the test begins

// The setting; its default is stored when it is empty.
std::string SettingOrDefault(CReg& reg, const char* setting) {
  if (reg.Setting(setting).empty()) reg.SetSetting(setting, ServiceDefault(setting));
  return reg.Setting(setting);
}

}  // namespace

const FormDesign& frmTestProxy::Design() {
  static constexpr ControlRow kControls[] = {
      {.id = lblTitle, .kind = Kind::TitleBar, .text = IDS_NET_TEST_TITLE, .at = {40, 4, 156, 26}},
      {.kind = Kind::Label, .text = IDS_NET_TEST_ADDRESS, .at = {14, 46, 90, 24}, .type = Type::BodyStrong},
      {.id = lblCheckAddress, .kind = Kind::Label, .at = {110, 46, 290, 24}, .flags = kNoPrefix},
      {.kind = Kind::Label, .text = IDS_NET_TEST_PORT, .at = {14, 70, 90, 24}, .type = Type::BodyStrong},
      {.id = lblCheckPort, .kind = Kind::Label, .at = {110, 70, 290, 24}, .flags = kNoPrefix},
      {.id = lblStatusInfo,
       .kind = Kind::StateLabel,
       .at = {14, 102, 392, 44},
       .flags = kWrap,
       .type = Type::Message},
      {.id = lblProxyStuff,
       .kind = Kind::Label,
       .text = IDS_NET_TEST_NOTE,
       .at = {14, 152, 392, 34},
       .flags = kWrap,
       .ink = Ink::Muted},
      {.kind = Kind::Groove, .at = {14, 190, 392, 2}},
      OkKey({308, 202, 98, 28}),
      CloseKey(380),
  };
  static constexpr FormDesign kDesign = {.name = "frmTestProxy",
                                         .caption = IDS_NET_TEST_CAPTION,
                                         .size = {420, 248},
                                         .outline = "fdf01",
                                         .controls = kControls,
                                         .firstFocus = butOKIt};
  return kDesign;
}

std::span<const EventRow> frmTestProxy::Events() const {
  static const EventRow kRows[] = {
      {butOKIt, Click, &frmTestProxy::butOKIt_Click},
      {butCloseIt, Click, &frmTestProxy::butOKIt_Click},
  };
  return kRows;
}

std::span<const TimerRow> frmTestProxy::Timers() const {
  static const TimerRow kRows[] = {{tmrSock, &frmTestProxy::tmrSock_Timer}};
  return kRows;
}

frmTestProxy::frmTestProxy(FormContext& context, CReg& reg, HttpControlMaker& http, std::string address,
                           std::string port)
    : Form(context, Design()),
      reg_(reg),
      http_(http.Make()),
      address_(std::move(address)),
      port_(std::move(port)) {}

void frmTestProxy::OnLoad() {
  SetText(lblCheckAddress, address_);
  SetText(lblCheckPort, port_);
  SetText(lblStatusInfo, LoadText(IDS_NET_TEST_RUNS));
  expected_ = SettingOrDefault(reg_, setting::kProxyTestText);
  StartTimer(tmrSock, kSoon);
}

void frmTestProxy::tmrSock_Timer() {
  StopTimer(tmrSock);
  Send(BuildProxyTest(address_, port_, SettingOrDefault(reg_, setting::kProxyTest)), *http_, *this);
}

void frmTestProxy::HTTPDataReceived(std::string_view body) {
  found_ = body.find(expected_) != std::string_view::npos;
}

void frmTestProxy::HTTPObjectError(const std::string&) {
  failed_ = true;
  ShowResult();
}

void frmTestProxy::ShowResult() {
  const bool works = found_ && !failed_;
  SetText(lblStatusInfo, LoadText(works ? IDS_NET_TEST_WORKS : IDS_NET_TEST_FAILED));
  SetInk(lblStatusInfo, works ? Ink::Signal : Ink::Alert);
}

}  // namespace sonaro
