// The machine dies at any moment of a start that brings an update in.
#include <gtest/gtest.h>

#include "app/Startup.h"
#include "app/StartupJournal.h"
#include "base/DataFolder.h"
#include "directory/StatList.h"
#include "fakes/FakeClock.h"
#include "fakes/FakeFiles.h"
#include "fakes/FakeShell.h"
#include "fakes/FakeStrings.h"
#include "playback/Players.h"
#include "settings/AppState.h"
#include "settings/CReg.h"
#include "settings/HelpPages.h"
#include "tray/Backup.h"

namespace sonaro {
namespace {

// The machine dies at any moment of a start: the next one finishes what it began, list and table belong
// together, the date is that of the list, and nothing is asked.
void DieAtEveryMoment(bool updateWaits) {
  Journal journal;
  std::optional<FakeRegistry> registry;
  const auto start = [&](FakeFiles& files) {
    DataFolder data(files, "/d", '/');
    CReg reg(*registry);
    FakeMessagePost messages;
    FakeSystemInfo system;
    FakeShell shell;
    FakeStrings strings;
    StatList stations(data);
    Players players(reg, data, shell);
    JournalView view(journal);
    HelpPages help(reg, view, data, shell);
    FakeClock clock;
    Backup backup(data, reg, clock);
    AppState state;
    state.commandLine = "WinStart=Yes";
    Startup({messages, system, reg, data, stations, players, help, strings, view, view, backup}, state, view)
        .Main();
    (void)CareForStationTable(stations, TableCheck::Whole, strings, view);  // once the window is painted
  };
  const int operations = ForEachCrashPoint(
      [&](FakeFiles& files) {
        files.Put("/d/fun.snr", "");
        files.Put("/d/cat.snr", "");
        registry.emplace(files.Journal());
        files.Put("/d/Station.snr", updateWaits ? "1\tOld\r\n" : "1\tNew\r\n");
        if (!updateWaits) return;
        DataFolder data(files, "/d", '/');
        StatList(data).RebuildStationTable();
        files.Put("/d/tStation.snr", "1\tNew\r\n");
        registry->Put(RootKey::LocalMachine, kSettingsKey, "UpdateHold", "Station.snr\t");
        registry->Put(RootKey::LocalMachine, kSettingsKey, "UpdateHoldDate", "9/1/2000");
      },
      start,
      [&](FakeFiles& files, const CrashPoint& point) {
        DataFolder data(files, "/d", '/');
        journal.clear();
        start(files);
        EXPECT_TRUE(std::none_of(journal.begin(), journal.end(),
                                 [](const auto& happening) { return happening.starts_with("ask"); }));
        EXPECT_EQ(CReg(*registry).Setting("LastUpdate"), updateWaits ? "9/1/2000" : "") << point.operation;
        EXPECT_EQ(CReg(*registry).Setting("InstallId").size(), 32u) << point.operation;
        const std::string name = StatList(data).FindStation(1)[StationField::Name];
        EXPECT_EQ(files.Get("/d/Station.snr"), "1\tNew\r\n") << point.operation;
        EXPECT_EQ(name, "New") << point.operation;
        EXPECT_TRUE(StatList(data).Verify()) << point.operation;
      });
  EXPECT_GT(operations, 5);
}

TEST(StartupCrash, AWaitingUpdateIsFinished) { DieAtEveryMoment(true); }
TEST(StartupCrash, TheFirstTableIsMade) { DieAtEveryMoment(false); }

}  // namespace
}  // namespace sonaro
