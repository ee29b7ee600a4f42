// The machine dies at any moment of a start that brings an update in.
#include <gtest/gtest.h>

#include "app/AppState.h"
#include "app/CReg.h"
#include "app/HelpPages.h"
#include "app/Startup.h"
#include "app/StartupJournal.h"
#include "base/DataFolder.h"
#include "directory/StatList.h"
#include "fakes/FakeFiles.h"
#include "fakes/FakeShell.h"
#include "fakes/FakeStrings.h"
#include "playback/Players.h"

namespace sonaro {
namespace {

// An update waits, and the machine dies at any moment of the start: the next start finishes it, and list and
// table belong together, even if the settings are those of after the update because the disk kept them.
void CrashDuringTheSwap(bool holdIsKept) {
  Journal journal;
  JournalRegistry registry(journal);
  CReg reg(registry);
  registry.CreateKey(RootKey::LocalMachine, kSettingsKey);
  const auto start = [&](FakeFiles& files) {
    DataFolder data(files, "/d", '/');
    FakeMessagePost messages;
    JournalSystem system(journal);
    FakeShell shell;
    FakeStrings strings;
    StatList stations(data);
    Players players(reg, data, shell);
    JournalView view(journal);
    HelpPages help(reg, view);
    AppState state;
    state.commandLine = "WinStart=Yes";
    Startup({messages, system, reg, data, stations, players, help, strings, view, nullptr, nullptr}, state,
            view)
        .Main();
  };
  const int operations = ForEachCrashPoint(
      [&](FakeFiles& files) {
        files.Put("/d/fun.snr", "");
        files.Put("/d/cat.snr", "");
        files.Put("/d/Station.snr", "1\tOld\r\n");
        DataFolder data(files, "/d", '/');
        StatList(data).RebuildStationTable();
        files.Put("/d/tStation.snr", "1\tNew\r\n");
        reg.SetSetting("UpdateHold", "Station.snr\t");
      },
      [&](FakeFiles& files) {
        start(files);
        if (files.Crashed()) reg.SetSetting("UpdateHold", holdIsKept ? "Station.snr\t" : "");
      },
      [&](FakeFiles& files, const CrashPoint& point) {
        DataFolder data(files, "/d", '/');
        start(files);
        const std::string name = StatList(data).FindStation(1)[StationField::Name];
        EXPECT_EQ(files.Get("/d/Station.snr"), "1\t" + name + "\r\n") << point.operation;
        EXPECT_TRUE(name == "New" || !holdIsKept) << point.operation;
        EXPECT_TRUE(StatList(data).Verify()) << point.operation;
      });
  EXPECT_GT(operations, 5);
}

TEST(StartupCrash, TheNextStartFinishesTheUpdate) { CrashDuringTheSwap(true); }
TEST(StartupCrash, ListAndTableAgreeWhenTheSettingsAreAhead) { CrashDuringTheSwap(false); }

}  // namespace
}  // namespace sonaro
