// A published site of one directory and an installation of an older one, made once for all tests.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "exchange/Installation.h"
#include "exchange/Servers.h"
#include "tool/ToolTest.h"

namespace sonaro {

class ExchangeTest : public testing::Test {
 protected:
  static constexpr const char* kDate = "11/23/2026 8:04";
  static constexpr const char* kOldDate = "8/14/2000";
  static constexpr const char* kScript = "/sonaroapp/sonaro4vf/asp/appupdate/update.asp";

  static void SetUpTestSuite() {
    made_ = new ScratchFolder;
    MakeData({kBundledList}, Made("new"));
    MakeData({kBundledList}, Made("old"), {"--limit", "40"});
    ASSERT_EQ(RunDirectoryTool({"keygen", Made("key")}).status, 0);
    WriteBytes(Made("old") + "/favs.snr", kUsersGroups);
    std::filesystem::copy(Made("key") + "/publish.key", Made("old") + "/publish.key");
    port_ = FreePort();
    ASSERT_EQ(
        RunDirectoryTool({"publish", Made("new"), "--out", Made("site"), "--date", kDate, "--key",
                          Made("key") + "/secret.key", "--listen", "127.0.0.1:" + std::to_string(port_)})
            .status,
        0);
  }
  static void TearDownTestSuite() { delete made_; }

  ExchangeTest() {
    CopyFolder(Made("site"), Site());
    CopyFolder(Made("old"), Folder());
    Installed().reg.SetSetting(setting::kLastUpdate.name, kOldDate);
  }

  static std::string Made(const std::string& name) { return made_->Path() + "/" + name; }
  static void CopyFolder(const std::string& from, const std::string& to) {
    std::filesystem::copy(from, to, std::filesystem::copy_options::recursive);
  }
  std::string Site() const { return place_.Path() + "/site"; }
  std::string Folder() const { return place_.Path() + "/data"; }

  Installation& Installed() {
    if (!installed_) {
      installed_ = std::make_unique<Installation>(Folder(), registry_);
      installed_->http.port80 = port_;
    }
    return *installed_;
  }

  std::string UpdateName() const {
    for (const auto& entry :
         std::filesystem::directory_iterator(Site() + "/public/sonaroapp/sonaro4vf/asp/appupdate")) {
      if (entry.path().filename().string().starts_with("update-")) return entry.path().filename();
    }
    return {};
  }
  std::string UpdatePath() const {
    return Site() + "/public/sonaroapp/sonaro4vf/asp/appupdate/" + UpdateName();
  }

  // The directory, the groups and the settings are as they were, and the table opens.
  void ExpectNothingChanged() {
    EXPECT_EQ(Installed().Bytes("Station.snr"), FileBytes(Made("old") + "/Station.snr"));
    EXPECT_EQ(Installed().Bytes("favs.snr"), kUsersGroups);
    EXPECT_EQ(Installed().reg.Setting(setting::kLastUpdate.name), kOldDate);
    EXPECT_EQ(Installed().reg.Setting(setting::kUpdateHold.name), "");
    EXPECT_EQ(Installed().stations.StationCount(), 40u);
  }
  void ExpectUpdated() {
    EXPECT_EQ(Installed().Bytes("Station.snr"), FileBytes(Made("new") + "/Station.snr"));
    EXPECT_EQ(Installed().Bytes("cat.snr"), FileBytes(Made("new") + "/cat.snr"));
    EXPECT_EQ(Installed().Bytes("favs.snr"), kUsersGroups);
    EXPECT_EQ(Installed().reg.Setting(setting::kLastUpdate.name), kDate);
    EXPECT_EQ(Installed().stations.StationCount(), 127u);
  }

  static ScratchFolder* made_;
  static std::uint16_t port_;  // of the site
  ScratchFolder place_;
  FakeRegistry registry_;
  std::unique_ptr<Installation> installed_;
};

inline ScratchFolder* ExchangeTest::made_ = nullptr;
inline std::uint16_t ExchangeTest::port_ = 0;

}  // namespace sonaro
