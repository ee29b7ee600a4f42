#include "net/ProxyTest.h"

#include "net/NetTexts.h"
#include "net/ServiceRequest.h"
#include "net/ServiceUrlTable.h"
#include "platform/Clock.h"
#include "resources/texts/net.h"
#include "settings/CReg.h"
#include "settings/SettingNames.h"
#include "settings/Strings.h"

namespace sonaro {

namespace {

// What the test does, one after the other, and how that reads while it lasts and once it is done.
constexpr struct {
  int running;
  int done;
} kSteps[ProxyTest::kStepCount] = {
    {IDS_NET_TEST_FIND, IDS_NET_TEST_FOUND},
    {IDS_NET_TEST_CONNECT, IDS_NET_TEST_CONNECTED},
    {IDS_NET_TEST_READ, IDS_NET_TEST_PAGE},
};

}  // namespace

ProxyTest::ProxyTest(CReg& reg, HttpControlFactory& http, Clock& clock, const Strings& strings,
                     std::string address, std::string port)
    : reg_(reg),
      http_(http.Make()),
      clock_(clock),
      strings_(strings),
      address_(std::move(address)),
      port_(std::move(port)) {}

void ProxyTest::Begin(ProxyTestView& view) {
  view_ = &view;
  works_ = false;
  // The page is known by a text on it: a proxy that wants a password, or a hotel's welcome page, answers as
  // well.
  expected_ = StoredServiceSetting(reg_, setting::kProxyTestText);
  view.ShowResult(ProxyTestState::Running, strings_.Load(IDS_NET_TEST_RUNS));
  for (int step = 0; step < kStepCount; ++step) view.ShowStep(step, {});
  BeginStep(0);
  view.StartTimer(kSoon);
}

// The wait for the window is no part of the first step.
void ProxyTest::Timer() {
  view_->StopTimer();
  stepBegan_ = clock_.Ticks();
  Send(BuildProxyTest(address_, port_, StoredServiceSetting(reg_, setting::kProxyTest)), *http_, *this);
}

void ProxyTest::BeginStep(int step) {
  step_ = step;
  stepBegan_ = clock_.Ticks();
  if (step < kStepCount)
    view_->ShowStep(step, {ProxyTestState::Running, strings_.Load(kSteps[step].running), ""});
}

void ProxyTest::StepDone() {
  view_->ShowStep(
      step_, {ProxyTestState::Done, strings_.Load(kSteps[step_].done),
              FormatText(strings_.Load(IDS_NET_TEST_TIME), {std::to_string(clock_.Ticks() - stepBegan_)})});
  BeginStep(step_ + 1);
}

void ProxyTest::StepFailed(const std::string& reason) {
  view_->ShowStep(step_, {ProxyTestState::Failed, reason, ""});
}

void ProxyTest::HTTPDataReceived(std::string_view body) {
  works_ = body.find(expected_) != std::string_view::npos;
  if (works_) {
    StepDone();
  } else {
    StepFailed(strings_.Load(IDS_NET_TEST_OTHER_PAGE));
  }
}

void ProxyTest::HTTPError(const std::string& statusCode, const std::string&) {
  StepFailed(FormatText(strings_.Load(IDS_NET_WRONG_STATUS), {statusCode}));
}

// The transfer ends with this; after an answer the result comes with its own event.
void ProxyTest::HTTPObjectError(HttpFault fault) {
  StepFailed(HttpFaultText(fault, strings_));
  ShowResult();
}

void ProxyTest::ShowResult() {
  view_->ShowResult(works_ ? ProxyTestState::Done : ProxyTestState::Failed,
                    strings_.Load(works_ ? IDS_NET_TEST_WORKS : IDS_NET_TEST_FAILED));
}

}  // namespace sonaro
