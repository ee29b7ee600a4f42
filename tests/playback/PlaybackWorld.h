// A data folder with a small station table, a registry and a shell that only records: what the tests of
// playing have in common.
#pragma once

#include <string>
#include <vector>

#include "base/DataFolder.h"
#include "directory/Scrambling.h"
#include "directory/StatList.h"
#include "fakes/FakeFiles.h"
#include "fakes/FakeRegistry.h"
#include "fakes/FakeShell.h"
#include "fakes/FakeStrings.h"
#include "playback/InstalledPlayers.h"
#include "playback/PlayerLaunch.h"
#include "playback/Players.h"
#include "playback/WebPages.h"
#include "settings/CReg.h"
#include "stations/PersonalStations.h"
#include "stations/RecentList.h"
#include "stations/StationSource.h"

namespace sonaro {

inline constexpr const char* kRealPlayerKey = "SOFTWARE\\Classes\\Software\\RealNetworks\\RealPlayer\\";

struct PlaybackWorld {
  PlaybackWorld() {
    files.MakeFolder("/d");
    registry.CreateKey(RootKey::LocalMachine, kSettingsKey);
    shell.files = &files;
    shell.programs[".ASX"] = "C:\\Media\\Player.EXE";
  }

  // A line of the station list with plain links, which the line holds scrambled.
  void AddStation(std::int32_t id, const std::string& name, const std::vector<std::string>& links,
                  const std::string& alternate = "", const std::string& webSite = "") {
    std::string line = std::to_string(id) + "\t" + name + "\tMP3\tOslo\tJazz\tabout";
    for (std::size_t i = 0; i < 3; ++i) line += "\t" + Scrambled(i < links.size() ? links[i] : "");
    line += "\t" + Scrambled(alternate) + "\t" + Scrambled(webSite) + "\t128\t9\t8\t7\t6\t3\r\n";
    list += line;
    files.Put("/d/Station.snr", list);
    stations.RebuildStationTable();
  }
  std::string Scrambled(std::string text) { return ScrambleText(text, BuiltInAlphabets()); }

  // A RealPlayer-compatible player, registered by its own installation.
  void InstallRealPlayer(const std::string& path = "C:\\Real\\RealPlay.exe") {
    registry.Put(RootKey::LocalMachine, std::string(kRealPlayerKey) + "CurrentVersion", "", "6.0");
    registry.Put(RootKey::LocalMachine, std::string(kRealPlayerKey) + "6.0\\Preferences\\MainApp", "", path);
    files.Put(path, "program");
  }

  FakeFiles files;
  DataFolder data{files, "/d", '/'};
  FakeRegistry registry;
  CReg reg{registry};
  FakeShell shell;
  FakeStrings strings;
  StatList stations{data};
  PersonalStations personal{data};
  StationSource source{stations, personal, BuiltInAlphabets(), strings};
  RecentList recent{data};
  Players players{reg, data, shell};
  WebPages pages{source, data, shell, strings};
  InstalledPlayers installed{reg, data, players};
  PlayerLaunch launch{source, recent, players, installed, pages, strings};
  std::string list;  // "\Station.snr"
};

}  // namespace sonaro
