// A data folder with a station directory, settings and a network of canned answers, for the tests of the
// exchange with the service.
#pragma once

#include <string>
#include <string_view>

#include "base/DataFolder.h"
#include "directory/StatList.h"
#include "fakes/FakeFiles.h"
#include "fakes/FakeHttpControl.h"
#include "fakes/FakeRegistry.h"
#include "fakes/FakeStrings.h"
#include "net/UpdateFormat.h"
#include "net/UpdateInstall.h"
#include "settings/CReg.h"
#include "settings/SettingNames.h"

namespace sonaro {

inline std::string StationListLine(int id, std::string_view name) {
  return std::to_string(id) + "\t" + std::string(name) + "\tmusic\tNorway\tJazz\tgood";
}

inline const std::string kOldList =
    StationListLine(1, "Old One") + "\r\n" + StationListLine(2, "Two") + "\r\n";
inline const std::string kNewList = StationListLine(1, "New One") + "\r\n" + StationListLine(3, "Three") +
                                    "\r\n" + StationListLine(4, "Four") + "\r\n";
inline const std::string kFavorites = "Jazz|1|2\r\n";

inline std::string Section(const std::string& name, std::string_view lines) {
  return "file::" + name + "\r\n" + name + std::string(update::kSectionStart) + "\r\n" + std::string(lines) +
         name + std::string(update::kSectionEnd) + "\r\n";
}

inline std::string Complete(std::string_view lines) { return std::string(lines).append(update::kSentinel); }

inline const std::string kUpdate =
    Complete("version::7 \r\n::HelpURL::http://help.example/new::\r\n" + Section("Station.snr", kNewList) +
             Section("fun.snr", "a new line\r\n") + "date::9/1/2000::\r\n");

inline void PrepareDirectory(FakeFiles& files) {
  files.Put("/d/Station.snr", kOldList);
  files.Put("/d/fun.snr", "an old line\r\n");
  files.Put("/d/favs.snr", kFavorites);
  DataFolder data(files, "/d", '/');
  StatList(data).RebuildStationTable();
}

// The program's parts over files that a test brings.
struct Machine {
  explicit Machine(FakeFiles& onDisk) : files(onDisk), registry(files.Journal()) {
    reg.CheckKeyIsThere(kSettingsKey);
    reg.SetSetting(setting::kInstallId.name, "id 1");
    reg.SetSetting(setting::kLastUpdate.name, "8/1/2000");
  }

  FakeFiles& files;
  FakeRegistry registry;
  CReg reg{registry};
  DataFolder data{files, "/d", '/'};
  StatList stations{data};
  FakeStrings strings;
  FakeHttp http;
  UpdateInstall install{data, reg, stations};
};

}  // namespace sonaro
