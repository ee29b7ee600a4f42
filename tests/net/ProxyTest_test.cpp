#include "net/ProxyTest.h"

#include <gtest/gtest.h>

#include "fakes/FakeClock.h"
#include "fakes/FakeHttpControl.h"
#include "fakes/FakeRegistry.h"
#include "fakes/FakeStrings.h"
#include "resources/texts/net.h"
#include "settings/CReg.h"

namespace sonaro {
namespace {

class ProxyTesting : public testing::Test, protected ProxyTestView {
 protected:
  ProxyTesting() { reg_.CheckKeyIsThere(kSettingsKey); }

  void StartTimer(int milliseconds) override { timer_ = milliseconds; }
  void StopTimer() override { timer_ = 0; }
  void ShowStep(int step, const ProxyTestStep& shown) override {
    steps_[static_cast<std::size_t>(step)] = shown;
  }
  void ShowResult(ProxyTestState state, const std::string& text) override {
    result_ = state;
    status_ = text;
  }
  // The states of the steps and of the whole, one letter each, and the text of the last step that was begun.
  std::string Run(ProxyTest& test) {
    test.Begin(*this);
    EXPECT_EQ(Shown(), "rww r " + std::to_string(IDS_NET_TEST_FIND));
    EXPECT_GT(timer_, 0);
    test.Timer();
    EXPECT_EQ(timer_, 0);
    http_.DeliverAll();
    return Shown();
  }
  std::string Shown() const {
    std::string letters;
    std::string last;
    for (const ProxyTestStep& step : steps_) {
      letters += "wrdf"[static_cast<std::size_t>(step.state)];
      if (step.state != ProxyTestState::Waiting) last = step.text;
      EXPECT_EQ(step.time.empty(), step.state != ProxyTestState::Done);
    }
    return letters + " " + "wrdf"[static_cast<std::size_t>(result_)] + " " + last;
  }

  FakeRegistry registry_;
  CReg reg_{registry_};
  FakeHttp http_;
  FakeClock clock_;
  FakeStrings strings_;
  std::array<ProxyTestStep, ProxyTest::kStepCount> steps_;
  ProxyTestState result_ = ProxyTestState::Waiting;
  std::string status_;
  int timer_ = 0;
};

TEST_F(ProxyTesting, TellsHowFarItCameAndBeginsAnewEachTime) {
  reg_.SetSetting("ProxyTestText", "it works");
  ProxyTest test(reg_, http_, clock_, strings_, " proxy.example ", "8080");
  const struct {
    FakeAnswer answer;
    std::string shown;
  } cases[] = {
      {FakeAnswer::Body("so it works."), "ddd d " + std::to_string(IDS_NET_TEST_PAGE)},
      {FakeAnswer::Body("It works"), "ddf f " + std::to_string(IDS_NET_TEST_OTHER_PAGE)},
      {FakeAnswer::Body(""), "ddf f " + std::to_string(IDS_NET_TEST_OTHER_PAGE)},
      {FakeAnswer::Status("407"), "ddf f " + std::to_string(IDS_NET_WRONG_STATUS)},
      {FakeAnswer::ObjectError(HttpFault::Refused), "fww f " + std::to_string(IDS_NET_FAULT_REFUSED)},
      {FakeAnswer::Body("it works"), "ddd d " + std::to_string(IDS_NET_TEST_PAGE)},
  };
  for (const auto& each : cases) {
    http_.Answer("GET http://", each.answer);
    EXPECT_EQ(Run(test), each.shown);
    EXPECT_EQ(status_,
              std::to_string(result_ == ProxyTestState::Done ? IDS_NET_TEST_WORKS : IDS_NET_TEST_FAILED));
  }
  EXPECT_EQ(http_.Requests()[0]->host, "proxy.example");
  EXPECT_EQ(http_.Requests()[0]->port, 8080);
  EXPECT_EQ(http_.Requests()[0]->requestText, "GET " + reg_.Setting("ProxyTest"));
  EXPECT_EQ(reg_.Setting("ProxyUse"), "");
}

TEST_F(ProxyTesting, HearsNothingMoreAfterItHangsUp) {
  ProxyTest test(reg_, http_, clock_, strings_, "proxy.example", "");
  test.Begin(*this);
  test.Timer();
  EXPECT_EQ(http_.Requests()[0]->port, 80);
  test.Cancel();
  http_.DeliverAll();
  EXPECT_EQ(result_, ProxyTestState::Running);
}

}  // namespace
}  // namespace sonaro
