#include "Guide.h"

#include "base/DataFolder.h"
#include "base/Numbers.h"
#include "directory/Scrambling.h"
#include "directory/StatList.h"
#include "platform/win/FilesWin.h"

namespace sonaro::desktop {

namespace {

constexpr StationField kScrambled[] = {StationField::LinkOne, StationField::LinkTwo, StationField::LinkThree,
                                       StationField::AlternateLink, StationField::WebSite};

}  // namespace

StationRecord StationIn(const std::string& folder, const std::string& identifier) {
  FilesWin files;
  DataFolder data(files, folder.substr(0, folder.size() - 1), '\\');
  StatList stations(data);
  std::int32_t id = 0;
  if (!ParseStationId(identifier, id)) return {};
  StationRecord record = stations.FindStation(id);
  for (StationField field : kScrambled) UnscrambleText(record[field], BuiltInAlphabets());
  return record;
}

std::string StationLine(int identifier, const std::string& name, const std::string& linkText) {
  StationRecord record;
  record[StationField::Name] = name;
  record[StationField::LinkOne] = linkText;
  ScrambleText(record[StationField::LinkOne], BuiltInAlphabets());
  std::string line = std::to_string(identifier);
  for (const std::string& field : record.fields) line += "\t" + field;
  return line + "\r\n";
}

}  // namespace sonaro::desktop
