// A data folder in memory with the station table that its list makes.
#pragma once

#include <string>
#include <vector>

#include "base/DataFolder.h"
#include "directory/StatList.h"
#include "fakes/FakeFiles.h"

namespace sonaro {

struct StationFolder {
  FakeFiles files;
  DataFolder data{files, "/data", '/'};
  StatList stations{data};

  StationFolder() { files.MakeFolder("/data"); }
  bool Rebuild(const std::string& list) {
    files.Put("/data/Station.snr", list);
    return stations.RebuildStationTable();
  }
};

// The records as the lines of "Station.snr".
inline std::string ListOf(const std::vector<StationRecord>& records) {
  std::string list;
  for (const StationRecord& record : records) {
    list += std::to_string(record.StationId);
    for (const std::string& field : record.fields) list += '\t' + field;
    list += '\n';
  }
  return list;
}

}  // namespace sonaro
