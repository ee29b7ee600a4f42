// A program whose service is a server of the test's own: its answers, an update to what the data folder
// holds, and what must be true of the folder before and after it.
#pragma once

#include <string>
#include <vector>

#include "DesktopTest.h"
#include "Guide.h"
#include "forms/ControlIds.h"
#include "loopback/LoopbackServer.h"
#include "net/UpdateFormat.h"

namespace sonaro::desktop {

inline constexpr const char* kService = "http://service.test/update.asp";
inline constexpr const char* kFileAt = "http://files.test/u/update7.txt";
inline constexpr const char* kFavorites =
    "Jazz\t18230211 6044347\r\n";  // of the small directory: stays, goes

inline std::string UpdateSection(const std::string& name, const std::string& lines) {
  return "file::" + name + "\r\n" + name + std::string(update::kSectionStart) + "\r\n" + lines + name +
         std::string(update::kSectionEnd) + "\r\n";
}

inline std::string CompleteUpdate(const std::string& lines) { return lines + std::string(update::kSentinel); }

class UpdateTest : public DesktopTest {
 public:
  explicit UpdateTest(Directory directory = Directory::Small) : DesktopTest(directory) {}

 protected:
  void SetUp() override {
    DesktopTest::SetUp();
    if (HasFatalFailure()) return;
    before_ = ReadFile("Station.snr");
    categories_ = ReadFile("cat.snr");
    rankings_ = ReadFile("fun.snr");
    WriteFile("favs.snr", kFavorites);
    UseServer(server_.Port());
    server_.Answer("/update.asp", script::Redirect(kFileAt));
    server_.Answer("/u/update7.txt", script::Body(Update()));
  }
  // By way of a proxy, since without one the service is always on port 80.
  void UseServer(std::uint16_t port, const std::string& toDo = "") {
    ResetToSettled({{"CloseToTray", "No"},
                    {"LastUpdate", "1/2/2026"},
                    {"InstallId", "id 1"},
                    {"UpdateURL", kService},
                    {"ProxyUse", "yes "},
                    {"ProxyAddress", " 127.0.0.1 "},
                    {"ProxyPort", std::to_string(port)},
                    {"DoWhat", toDo}});
  }

  // The directory with a station gone, one changed and two more, with another category and other rankings.
  std::string Update() const {
    std::string list = before_.substr(before_.find('\n') + 1);
    const auto renamed = list.find("Jazz Radio Classic Jazz");
    list.replace(renamed, 10, "Renamed");
    list += StationLine(7, "New Seven", "http://127.0.0.1:9/7") +
            StationLine(8, "New Eight", "http://127.0.0.1:9/8");
    return CompleteUpdate("version::7 \r\n::HelpURL::http://127.0.0.1:9/help::\r\n" +
                          UpdateSection("Station.snr", list) +
                          UpdateSection("cat.snr", categories_ + "n\tNew Genre\tgenre-new\tGn-\r\n") +
                          UpdateSection("genre-new.snr", "New\t7 \r\n") +
                          UpdateSection("fun.snr", "Most Pop\t7 8 18230211 \r\n") + "date::3/4/2026::\r\n");
  }

  HWND UpdateDialog() { return Dialog("MsgboxFrm", "Update"); }
  bool Says(HWND dialog, const std::string& text) {
    return WaitUntil([&] { return TextOf(Control(dialog, lblStuff)).find(text) != std::string::npos; });
  }
  // The dialog once it says that; null when it never does. It may take the place of an older one meanwhile.
  HWND DialogSaying(const std::string& text) {
    HWND dialog = nullptr;
    const bool says = WaitUntil([&] {
      dialog = Sonaro().Window("MsgboxFrm", "Update");
      return IsShown(dialog) && TextOf(Control(dialog, lblStuff)).find(text) != std::string::npos;
    });
    return says ? dialog : nullptr;
  }
  bool WaitForRequests(std::size_t count) {
    return WaitUntil([&] { return server_.Requests().size() == count; });
  }
  std::string RequestLine(std::size_t index) {
    const auto requests = server_.Requests();
    return index < requests.size() ? requests[index].substr(0, requests[index].find("\r\n")) : "(none)";
  }
  // The stations of the user's group, as the window lists them.
  bool GroupLists(HWND main, const std::vector<std::string>& names) {
    Click(Control(main, butFavs));
    return WaitUntil([&] { return ColumnTexts(Control(main, lstFavs)) == names; });
  }
  void ExpectTheOldDirectory() {
    EXPECT_EQ(ReadFile("Station.snr"), before_);
    EXPECT_EQ(ReadFile("cat.snr"), categories_);
    EXPECT_EQ(ReadFile("fun.snr"), rankings_);
    EXPECT_EQ(ReadFile("genre-new.snr"), "");
    EXPECT_NE(ReadSetting("HelpURL"), "http://127.0.0.1:9/help");
    EXPECT_EQ(ReadSetting("UpdateVersion"), "");
    EXPECT_EQ(ReadSetting("LastUpdate"), "1/2/2026");
    EXPECT_EQ(ReadSetting("UpdateHold"), "");
    EXPECT_EQ(ReadFile("favs.snr"), kFavorites);
    EXPECT_EQ(StationIn(Folder(), "6044347")[StationField::Name], "B5 aktuell");
  }
  void ExpectTheNewDirectory() {
    EXPECT_EQ(ReadSetting("LastUpdate"), "3/4/2026");
    EXPECT_EQ(ReadSetting("UpdateVersion"), "7");
    EXPECT_EQ(ReadSetting("HelpURL"), "http://127.0.0.1:9/help");
    EXPECT_EQ(ReadSetting("UpdateHold"), "");
    EXPECT_EQ(ReadFile("favs.snr"), kFavorites);
    EXPECT_NE(ReadFile("cat.snr"), categories_);
    EXPECT_EQ(StationIn(Folder(), "7")[StationField::Name], "New Seven");
    EXPECT_EQ(StationIn(Folder(), "6044347").StationId, 0);
  }

  LoopbackServer server_;
  std::string before_;  // of the station list, the categories and the rankings
  std::string categories_;
  std::string rankings_;
};

}  // namespace sonaro::desktop
