#include "Guide.h"

#include "base/DataFolder.h"
#include "base/Numbers.h"
#include "directory/EvList.h"
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

std::string StationLine(int identifier, const std::string& name, const std::string& linkText,
                        const std::string& webSite) {
  StationRecord record;
  record[StationField::Name] = name;
  record[StationField::LinkOne] = linkText;
  record[StationField::WebSite] = webSite;
  for (const StationField field : {StationField::LinkOne, StationField::WebSite})
    ScrambleText(record[field], BuiltInAlphabets());
  std::string line = std::to_string(identifier);
  for (const std::string& field : record.fields) line += "\t" + field;
  return line + "\r\n";
}

EventRecord Event(int id, const std::string& name, const std::string& station, const std::string& startGmt,
                  const std::string& webSite) {
  EventRecord event;
  event.EventId = id;
  event[EventField::Name] = name;
  event[EventField::StationId] = "1";
  event[EventField::StationName] = station;
  event[EventField::StartGmt] = startGmt;
  event[EventField::WebAddress] = webSite;
  return event;
}

bool PutEvents(const std::string& folder, const std::vector<EventRecord>& events) {
  FilesWin files;
  DataFolder data(files, folder.substr(0, folder.size() - 1), '\\');
  EvList table(data);
  bool written = table.CreateEventTable(EventSet::Current);
  const EvList::Handle handle = table.OpenEventTable(EventSet::Current, EvList::OpenMode::Write);
  for (const EventRecord& event : events) written = table.PutEvent(handle, event) && written;
  table.CloseEventTable(handle);
  return written;
}

}  // namespace sonaro::desktop
