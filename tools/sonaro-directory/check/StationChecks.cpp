// The station list, the station table and the event tables. The list is checked as text, column by column,
// and not through the reader that builds the table: that one takes whatever it finds, since a program that
// starts is worth more than a complaint, and here every oddity is to be named.
#include <algorithm>
#include <array>
#include <map>

#include "base/Dates.h"
#include "base/Numbers.h"
#include "base/OwnFiles.h"
#include "base/Text.h"
#include "base/Utf8.h"
#include "base/http/HttpRequest.h"
#include "check/Checks.h"
#include "directory/EvList.h"
#include "directory/StatList.h"
#include "directory/StationListFile.h"
#include "stations/PlayLink.h"

namespace sonaro {
namespace {

constexpr std::string_view kListName = guide_file::kStations;
constexpr std::size_t kColumns = StationRecord::kFieldCount + 1;

// A tab or a line end inside a field would shift the fields behind it; others garble what is shown.
// A tab or line end in a field would make other fields of it when the list is read again; the others have no
// picture.
bool HasControlCharacter(std::string_view text) {
  return std::any_of(text.begin(), text.end(),
                     [](char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7F; });
}

bool IsUtf8(std::string_view text) {
  for (std::size_t position = 0; position < text.size();) {
    const std::size_t length = DecodeUtf8(text, position).length;
    if (length == 0) return false;
    position += length;
  }
  return true;
}

// Empty is "not known", which every figure of a station may be.
// An empty field is allowed: nobody has rated the station.
bool IsDigitUpTo(std::string_view text, char highest) {
  return text.empty() || (text.size() == 1 && text[0] >= '0' && text[0] <= highest);
}

// One record that could be read, field by field. It says what is wrong and goes on, so that one run names
// all.
// What holds for one station by itself. Every fault is told, not the first only: a list is mended in one go.
class RecordCheck {
 public:
  RecordCheck(CheckContext& context, std::size_t line, const StationRecord& record)
      : context_(context), line_(line), record_(record) {}

  void Run() {
    CheckTexts();
    CheckLinks();
    CheckNumbers();
  }

 private:
  void Add(const std::string& problem) { context_.Add(kListName, line_, problem); }

  void CheckTexts() {
    for (std::size_t i = 0; i < record_.fields.size(); ++i) {
      const std::string field = "field " + std::to_string(i + 1);
      if (HasControlCharacter(record_.fields[i])) Add(field + " holds a control character");
      if (!IsUtf8(record_.fields[i])) Add(field + " is not valid UTF-8");
    }
    if (TrimBlanks(record_[StationField::Name]).empty()) Add("the station has no name");
  }

  // With the alphabets of the folder, which may be others than the built-in ones.
  // Links and addresses are scrambled in the list; they are judged as the program will see them.
  std::string Plain(StationField field) const {
    std::string text = record_[field];
    return UnscrambleText(text, context_.alphabets);
  }

  void CheckLinks() {
    for (const StationField field : {StationField::LinkOne, StationField::LinkTwo, StationField::LinkThree,
                                     StationField::AlternateLink}) {
      const std::string text = Plain(field);
      if (text.empty()) continue;
      const PlayLink link = PlayLink::FromText(text);
      if (!IsPlayerAddress(link.address) || link.address.find("://") == std::string::npos) {
        Add("the link in field " + std::to_string(static_cast<int>(field)) + " cannot be opened");
      }
    }
    if (record_[StationField::LinkOne].empty() && record_[StationField::WebSite].empty()) {
      Add("the station has neither a link nor a web site");
    }
    const std::string webSite = Plain(StationField::WebSite);
    // A web site without a scheme is allowed, since the program puts "http://" in front.
    if (!webSite.empty() && !IsWebAddress(webSite.starts_with("http") ? webSite : "http://" + webSite)) {
      Add("the web site cannot be opened");
    }
  }

  void CheckNumbers() {
    const std::string& bitRate = record_[StationField::BitRate];
    if (bitRate.find_first_not_of("0123456789") != std::string::npos) Add("the bit rate is no number");
    // A list compares ratings as texts when it is sorted, so a second digit would put 10 before 2.
    for (const StationField field : {StationField::OverallRating, StationField::SpeedRating,
                                     StationField::SoundRating, StationField::WebSiteRating}) {
      if (!IsDigitUpTo(record_[field], '9')) {
        Add("the rating in field " + std::to_string(static_cast<int>(field)) + " is not one digit");
      }
    }
    if (!IsDigitUpTo(record_[StationField::Reliability], '4')) Add("the reliability is not 0 to 4");
  }

  CheckContext& context_;
  std::size_t line_;
  const StationRecord& record_;
};

// The stations by identifier, of several lines with the same one the last.
using StationsById = std::map<std::int32_t, StationRecord>;

void CheckStationLine(CheckContext& context, std::size_t number, std::string_view line,
                      StationsById& stations) {
  // Reported, and the line read all the same: the program fills up what is missing.
  // A wrong number of columns does not end the look at the line: the program reads it all the same, with
  // fields empty or run together, and so its other faults count.
  const std::vector<std::string_view> columns = Split(line, '\t');
  if (columns.size() != kColumns) {
    context.Add(
        kListName, number,
        "the line has " + std::to_string(columns.size()) + " columns, not " + std::to_string(kColumns));
  }
  StationLine station;
  if (!ParseStationLine(line, station)) {
    context.Add(kListName, number,
                "\"" + std::string(TruncateUtf8(columns[0], 40)) + "\" is no station identifier");
    return;
  }
  StationRecord record;
  record.StationId = station.id;
  const auto fields = SplitAtMost(station.text, '\t', StationRecord::kFieldCount);
  std::copy(fields.begin(), fields.end(), record.fields.begin());
  if (stations.count(station.id) > 0) {
    context.Add(kListName, number,
                "station " + std::to_string(station.id) + " stands there twice; this line counts");
  }
  RecordCheck(context, number, record).Run();
  stations[station.id] = std::move(record);
}

// "YYYYMMDDhhmm" of a day and a time that there are.
bool IsGmtStamp(const std::string& text) {
  if (text.size() != 12 || text.find_first_not_of("0123456789") != std::string::npos) return false;
  const auto part = [&](std::size_t start, std::size_t length) {
    return static_cast<int>(NumberValue(text.substr(start, length)));
  };
  return IsValid(Date{part(0, 4), part(4, 2), part(6, 2)}) && part(8, 2) < 24 && part(10, 2) < 60;
}

// Events have no line in a text file; they are named by their number in the table.
void CheckEvent(CheckContext& context, std::string_view table, const EventRecord& event) {
  const std::string name = "event " + std::to_string(event.EventId);
  std::int32_t station = 0;
  if (event[EventField::Name].empty()) context.Add(table, 0, name + " has no name");
  if (!ParseStationId(event[EventField::StationId], station) || context.ids.count(station) == 0) {
    context.Add(table, 0, name + " is of a station that is not in the station list");
  }
  if (!IsGmtStamp(event[EventField::StartGmt])) context.Add(table, 0, name + " has no start");
}

}  // namespace

// Goes first of all checks: what it finds out, the identifiers and the records, is what the others compare
// with.
void CheckStationList(CheckContext& context) {
  const std::optional<std::string> text = context.Read(kListName, CheckContext::Need::Required);
  if (!text) return;
  StationsById stations;
  std::size_t number = 0;
  // A byte order mark, which editors add on saving, is not part of the first identifier.
  const bool marked = text->starts_with(kMarkOfUtf8);
  for (const std::string_view line :
       SplitLines(std::string_view(*text).substr(marked ? kMarkOfUtf8.size() : 0))) {
    ++number;
    if (!line.empty()) CheckStationLine(context, number, line, stations);
  }
  if (stations.empty()) context.Add(kListName, 0, "holds no station");
  // Other checks ask which stations there are.
  for (auto& [id, record] : stations) {
    context.ids.insert(id);
    context.stations.push_back(std::move(record));
  }
}

void CheckStationTable(CheckContext& context) {
  constexpr std::string_view kTable = guide_file::kTable;
  for (const std::string_view name : {kTable, guide_file::kTableIndex}) {
    if (!context.data.Exists(name)) context.Add(name, 0, "is missing");
  }
  // Verify would report the missing file a second time, as damage.
  if (!context.data.Exists(kTable) || !context.data.Exists(guide_file::kTableIndex)) return;
  StatList table(context.data);
  if (!table.Verify()) {
    context.Add(kTable, 0, "the station table is damaged");
    return;
  }
  if (table.StationCount() != context.stations.size()) {
    context.Add(kTable, 0,
                "holds " + std::to_string(table.StationCount()) + " stations, the station list " +
                    std::to_string(context.stations.size()));
  }
  std::vector<std::int32_t> ids;
  for (const StationRecord& record : context.stations) ids.push_back(record.StationId);
  // Verify has found the table whole in itself; this finds one that was made of another list.
  const std::vector<StationRecord> stored = table.GetStations(ids);
  // Both are in ascending order and the table leaves out what it does not hold, so one walk compares them.
  auto next = stored.begin();
  for (const StationRecord& record : context.stations) {
    if (next == stored.end() || next->StationId != record.StationId) {
      context.Add(kTable, 0,
                  "station " + std::to_string(record.StationId) + " of the station list is not in it");
      continue;
    }
    if (*next != record) {
      context.Add(kTable, 0,
                  "station " + std::to_string(record.StationId) + " differs from the station list");
    }
    ++next;
  }
}

void CheckEventTables(CheckContext& context) {
  constexpr std::array<std::pair<EventSet, std::string_view>, 2> kTables = {
      {{EventSet::Current, "\\Eventorg.isd"}, {EventSet::Coming, "\\Eventorg2.isd"}}};
  EvList table(context.data);
  for (const auto& [set, name] : kTables) {
    if (!context.data.Exists(name)) continue;  // a folder without events is whole
    const std::vector<EventRecord> events = table.AllEvents(set);
    if (table.LastStatus() != TableStatus::Success) {
      context.Add(name, 0, "the event table is damaged");
      continue;
    }
    for (const EventRecord& event : events) CheckEvent(context, name, event);
  }
}

}  // namespace sonaro
