// The program is killed at random moments of an update. The next start finds a whole directory, the old one
// or the new one, and everything of the user's.
#include <random>

#include "UpdateTest.h"

namespace sonaro::desktop {
namespace {

class UpdateKillTest : public UpdateTest {
 public:
  UpdateKillTest() : UpdateTest(Directory::Whole) {}

 protected:
  std::string NamedIn(int round) const { return "Round " + std::to_string(round); }
  std::string DateOf(int round) const { return "3/" + std::to_string(round) + "/2026"; }
  std::string UpdateOf(int round) const {
    std::string list = before_;
    list.replace(list.find(kOldName), std::string(kOldName).size(), NamedIn(round));
    return CompleteUpdate(UpdateSection("Station.snr", list) + "date::" + DateOf(round) + "::\r\n");
  }
  // Lets the update run that is on the to-do list and kills the program after it has been asked for.
  void RunAndKillAfter(int milliseconds, std::size_t requests) {
    WriteText(HKEY_LOCAL_MACHINE, "SOFTWARE\\zumo\\Sonaro", "DoWhat", "/SL/");
    {
      SonaroProcess sonaro(PathOf("Sonaro.exe"), "WinStart=Yes");
      ASSERT_TRUE(WaitForRequests(requests));
      Sleep(static_cast<DWORD>(milliseconds));
    }
    WriteText(HKEY_LOCAL_MACHINE, "SOFTWARE\\zumo\\Sonaro", "DoWhat", "");
  }
  // The name of the station that every round renames, once the program has started again.
  std::string NameAfterTheNextStart() {
    SonaroProcess sonaro(PathOf("Sonaro.exe"), "");
    HWND main = sonaro.WaitForShownWindow("SonaroFrm");
    if (!main) return "(no window)";
    Click(Control(main, butFavs));
    WaitUntil([&] { return RowCount(Control(main, lstFavs)) == 2; });
    std::string name = CellText(Control(main, lstFavs), 0);
    EXPECT_EQ(CellText(Control(main, lstFavs), 1), "B5 aktuell");
    CloseWindowOf(main);
    EXPECT_EQ(sonaro.WaitForEnd(), 0u);
    return name;
  }

  static constexpr const char* kOldName = "Jazz Radio Classic Jazz";
};

TEST_F(UpdateKillTest, TheNextStartFindsTheOldDirectoryOrTheNewOne) {
  constexpr int kRounds = 4;
  constexpr int kLatest = 1000;  // milliseconds; the update is over then
  std::mt19937 random(20261123);
  std::string name = kOldName;
  for (int round = 1; round <= kRounds; ++round) {
    const int moment = std::uniform_int_distribution<int>(0, kLatest)(random);
    SCOPED_TRACE("killed after " + std::to_string(moment) + " ms");
    server_.Answer("/u/update7.txt", script::Body(UpdateOf(round)));
    RunAndKillAfter(moment, 2 * static_cast<std::size_t>(round));
    const std::string now = NameAfterTheNextStart();
    EXPECT_TRUE(now == name || now == NamedIn(round)) << now;
    if (ReadSetting("LastUpdate") == DateOf(round)) {
      EXPECT_EQ(now, NamedIn(round));
    }
    name = now;
    EXPECT_EQ(StationIn(Folder(), "18230211")[StationField::Name], name);
    EXPECT_NE(ReadFile("Station.snr").find(name), std::string::npos);
    EXPECT_EQ(ReadFile("favs.snr"), kFavorites);
    EXPECT_EQ(ReadSetting("UpdateHold"), "");
  }
}

}  // namespace
}  // namespace sonaro::desktop
