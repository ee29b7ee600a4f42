#include <gtest/gtest.h>
#include <sys/socket.h>
#include <unistd.h>

#include "base/Text.h"
#include "exchange/ExchangeTest.h"
#include "net/UpdateFormat.h"

namespace sonaro {
namespace {

using Kind = UpdateOutcome::Kind;

enum class Way { Direct, NginxAsProxy, Tinyproxy };
constexpr Way kWays[] = {Way::Direct, Way::NginxAsProxy, Way::Tinyproxy};

// The site behind nginx, reached in one of three ways.
class RealServersTest : public ExchangeTest {
 protected:
  void Serve() {
    nginx_ = std::make_unique<ServerProcess>(NginxCommand(Site()), port_);
    ASSERT_TRUE(nginx_->Answers()) << "nginx does not answer: " << FileBytes(Site() + "/error.log");
  }

  void Take(Way way) {
    Installed().reg.SetSetting(setting::kProxyUse.name, way == Way::Direct ? "" : "Yes");
    Installed().reg.SetSetting(setting::kProxyAddress.name, "127.0.0.1");
    if (way == Way::NginxAsProxy) Installed().reg.SetSetting(setting::kProxyPort.name, std::to_string(port_));
    if (way != Way::Tinyproxy) return;
    if (!tinyproxy_) {
      const std::uint16_t port = FreePort();
      proxyPort_ = std::to_string(port);
      const std::string file = place_.Path() + "/tinyproxy.conf";
      WriteBytes(file, "Port " + proxyPort_ +
                           "\nListen 127.0.0.1\nTimeout 10\nAllow 127.0.0.1\nUpstream http 127.0.0.1:" +
                           std::to_string(port_) + "\n");
      tinyproxy_ =
          std::make_unique<ServerProcess>(std::vector<std::string>{"tinyproxy", "-d", "-c", file}, port);
      ASSERT_TRUE(tinyproxy_->Answers());
    }
    Installed().reg.SetSetting(setting::kProxyPort.name, proxyPort_);
  }

  void SetBack() {
    installed_.reset();
    std::filesystem::remove_all(Folder());
    CopyFolder(Made("old"), Folder());
    Installed().reg.SetSetting(setting::kLastUpdate.name, kOldDate);
  }

  void ChangeConfiguration(const std::string& from, const std::string& to) {
    const std::string path = Site() + "/nginx.conf";
    const std::string before = FileBytes(path);
    const std::string after = ReplaceFirst(before, from, to);
    ASSERT_NE(before, after) << from;
    WriteBytes(path, after);
  }

  std::unique_ptr<ServerProcess> nginx_;
  std::unique_ptr<ServerProcess> tinyproxy_;
  std::string proxyPort_;
};

TEST_F(RealServersTest, UpdatesOnceAndThenFindsNothingNew) {
  Serve();
  for (const Way way : kWays) {
    SCOPED_TRACE(static_cast<int>(way));
    SetBack();
    Take(way);
    const UpdateOutcome updated = Installed().Update();
    EXPECT_EQ(updated.kind, Kind::Updated) << updated.reason;
    ExpectUpdated();
    EXPECT_GT(Installed().progress, 0);
    Installed().http.transfers = 0;
    EXPECT_EQ(Installed().Update().kind, Kind::UpToDate);
    EXPECT_EQ(Installed().http.transfers, 1);
    ExpectUpdated();
  }
}

// Both guides were published here, so the server knows what has changed between them.
TEST_F(RealServersTest, GivesAnEarlierGuideWhatChangedSince) {
  std::filesystem::remove_all(Site());
  for (const auto& [guide, date] : {std::pair("old", kOldDate), std::pair("new", kDate)}) {
    ASSERT_EQ(
        RunDirectoryTool({"publish", Made(guide), "--out", Site(), "--date", date, "--key",
                          Made("key") + "/secret.key", "--listen", "127.0.0.1:" + std::to_string(port_)})
            .status,
        0);
  }
  Serve();
  const UpdateOutcome outcome = Installed().Update();
  EXPECT_EQ(outcome.kind, Kind::Updated) << outcome.reason;
  ExpectUpdated();
  EXPECT_NE(Installed().Bytes("update.txt").find("file::changes.snr"), std::string::npos);
}

struct Trouble {
  const char* what;
  const char* from;  // in the server's configuration; "" to leave it
  const char* to;
  std::string (*change)(std::string update);
  Kind outcome;
};

std::string Unchanged(std::string update) { return update; }
std::string WithoutLastByte(std::string update) { return update.substr(0, update.size() - 1); }
std::string Half(std::string update) { return update.substr(0, update.size() / 2); }
std::string WithAnotherDigit(std::string update) {
  update[update.find("\t") - 1] ^= 1;
  return update;
}
std::string Unsigned(std::string update) {
  return update.substr(0, update.rfind(update::kSigned)).append(update::kSentinel);
}

const Trouble kTroubles[] = {
    {"out of service", "return 302", "return 503; #", Unchanged, Kind::CantConnect},
    {"a page in place of the redirect", "return 302", "return 200 hello; #", Unchanged, Kind::CantConnect},
    {"redirects to itself", "http://$host$sonaro_answer", "http://$host$uri", Unchanged, Kind::NotComplete},
    {"redirects to a secure address", "http://$host$sonaro_answer", "https://$host$sonaro_answer", Unchanged,
     Kind::NotComplete},
    {"redirects to a file", "http://$host$sonaro_answer", "file:///etc/passwd", Unchanged, Kind::NotComplete},
    {"redirects to what is not there", "$sonaro_answer;", "/none;", Unchanged, Kind::NotComplete},
    {"the update lacks a byte", "", "", WithoutLastByte, Kind::NotComplete},
    {"the update lacks half", "", "", Half, Kind::NotComplete},
    {"the update was changed", "", "", WithAnotherDigit, Kind::Refused},
    {"the update is not signed", "", "", Unsigned, Kind::Refused},
};

TEST_F(RealServersTest, TroubleLeavesEverythingAsItWas) {
  for (const Trouble& trouble : kTroubles) {
    SCOPED_TRACE(trouble.what);
    nginx_.reset();
    std::filesystem::remove_all(Site());
    CopyFolder(Made("site"), Site());
    if (*trouble.from != '\0') ChangeConfiguration(trouble.from, trouble.to);
    WriteBytes(UpdatePath(), trouble.change(FileBytes(UpdatePath())));
    Serve();
    for (const Way way : kWays) {
      Take(way);
      Installed().http.transfers = 0;
      const UpdateOutcome outcome = Installed().Update();
      EXPECT_EQ(outcome.kind, trouble.outcome) << static_cast<int>(way) << " " << outcome.reason;
      EXPECT_LE(Installed().http.transfers, 2);
      ExpectNothingChanged();
    }
  }
}

TEST_F(RealServersTest, AProxyThatReachesNobodyIsAFailure) {
  Serve();
  Take(Way::Tinyproxy);
  nginx_.reset();
  EXPECT_EQ(Installed().Update().kind, Kind::CantConnect);
  tinyproxy_.reset();
  EXPECT_EQ(Installed().Update().kind, Kind::CantConnect);
  ExpectNothingChanged();
}

TEST_F(RealServersTest, TheHelpPagesAndTheProxysTestAreServed) {
  Serve();
  for (const char* page : {"/sonaroapp/sonaro4vf/apphelp/2/9070.html", "/privacy.html",
                           "/sonaroapp/sonaro3/asp/proxy/test.asp"}) {
    const int connection = ConnectTo(port_);
    SendAll(connection, std::string("GET ") + page + " HTTP/1.0\r\n\r\n");
    std::string answer(12, ' ');
    EXPECT_EQ(recv(connection, answer.data(), answer.size(), MSG_WAITALL), 12);
    EXPECT_EQ(answer, "HTTP/1.1 200") << page;
    close(connection);
  }
}

}  // namespace
}  // namespace sonaro
