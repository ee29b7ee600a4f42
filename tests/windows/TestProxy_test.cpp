// The test of a proxy, with the real words, by way of a server that plays the proxy.
#include <gtest/gtest.h>

#include "contract/HttpListener.h"
#include "forms/ControlIds.h"
#include "forms/WideText.h"
#include "loopback/LoopbackServer.h"
#include "net/NetTexts.h"
#include "net/frmTestProxy.h"
#include "platform/win/HttpControlWin.h"
#include "platform/win/PlatformWin.h"
#include "settings/SettingNames.h"
#include "windows/FormContextForTests.h"
#include "windows/Pump.h"

namespace sonaro {
namespace {

constexpr const char* kRuns = "Checking Proxy Setup Now";
const std::string kFails =
    "This Proxy setting does not seem to work. Please check your setting and try again.";

std::string TextOf(const Form& form, int id) { return Narrow(TextOfWindow(ControlOf(form, id))); }

class TestProxyTest : public testing::Test {
 protected:
  TestProxyTest() { Settings().CheckKeyIsThere(kSettingsKey); }

  CReg& Settings() { return outside_.settings; }
  std::unique_ptr<frmTestProxy> Show(const std::string& port) {
    auto form = std::make_unique<frmTestProxy>(forms_, Settings(), http_, clock_, "127.0.0.1", port);
    form->Show();
    return form;
  }
  // What the test comes to: the status, with the last step that was begun.
  static std::string Result(frmTestProxy& form) {
    EXPECT_EQ(TextOf(form, lblStatusInfo), kRuns);
    EXPECT_FALSE(IsWindowEnabled(ControlOf(form, butTestAgainIt)));
    PumpUntil([&] { return TextOf(form, lblStatusInfo) != kRuns; });
    EXPECT_TRUE(IsWindowEnabled(ControlOf(form, butTestAgainIt)));
    std::string last;
    for (int step = 0; step < 3; ++step) {
      const std::string text = TextOf(form, lblProxyStep + step);
      if (!text.empty()) last = text;
    }
    return TextOf(form, lblStatusInfo) + "|" + last;
  }

  FormContextForTests outside_;
  StringTable words_;
  FormContext forms_{words_, outside_.faceplate, outside_.shape};
  HttpControlFactoryWin http_{"Test/1.0", 500};
  ClockWin clock_;
  LoopbackServer proxy_;
};

TEST_F(TestProxyTest, ShowsHowFarItCameAndTriesAgain) {
  const auto form = Show(std::to_string(UnusedPort()));
  const std::string why = HttpFaultText(HttpFault::Refused, words_);
  EXPECT_EQ(Result(*form), kFails + "|" + why);
  EXPECT_EQ(TextOf(*form, lblProxyStep), "Proxy server found");
  EXPECT_TRUE(TextOf(*form, lblProxyStepTime).ends_with(" ms"));
  EXPECT_EQ(TextOf(*form, lblProxyStep + 1), why);
  EXPECT_EQ(TextOf(*form, lblProxyStep + 2), "");
  SendMessageA(ControlOf(*form, butTestAgainIt), BM_CLICK, 0, 0);
  EXPECT_EQ(TextOf(*form, lblProxyStep + 1), "");
  EXPECT_EQ(Result(*form), kFails + "|" + why);
}

TEST_F(TestProxyTest, ClosingItHangsUp) {
  proxy_.Answer("/", script::Silent());
  auto form = Show(std::to_string(proxy_.Port()));
  PumpUntil([&] { return proxy_.Open() == 1; });
  SendMessageA(form->Window(), WM_CLOSE, 0, 0);
  EXPECT_FALSE(form->IsOpen());
  PumpUntil([&] { return proxy_.Open() == 0; });
  EXPECT_EQ(proxy_.Open(), 0);
  form.reset();
}

}  // namespace
}  // namespace sonaro
