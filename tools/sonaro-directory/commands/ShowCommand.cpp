// Shows a station as it stands in the table, not in the list: that is what the program reads.
#include <array>
#include <iomanip>
#include <ostream>
#include <utility>

#include "base/Numbers.h"
#include "commands/Commands.h"
#include "commands/LocalFolder.h"
#include "directory/StatList.h"
#include "text/CleanText.h"

namespace sonaro {
namespace {

struct FieldLine {
  StationField field;
  std::string_view caption;
  bool scrambled;
};

// In the order of the record's columns. Which fields are scrambled is a property of the format and must agree
// with RecordOf, which writes them.
constexpr std::array<FieldLine, StationRecord::kFieldCount> kFields = {
    {{StationField::Name, "Name", false},
     {StationField::MediaType, "Media type", false},
     {StationField::Location, "Location", false},
     {StationField::Format, "Format", false},
     {StationField::Description, "Description", false},
     {StationField::LinkOne, "Link one", true},
     {StationField::LinkTwo, "Link two", true},
     {StationField::LinkThree, "Link three", true},
     {StationField::AlternateLink, "Alternate link", true},
     {StationField::WebSite, "Web site", true},
     {StationField::BitRate, "Bit rate", false},
     {StationField::OverallRating, "Overall rating", false},
     {StationField::SpeedRating, "Speed rating", false},
     {StationField::SoundRating, "Sound rating", false},
     {StationField::WebSiteRating, "Web site rating", false},
     {StationField::Reliability, "Reliability", false}}};

constexpr int kCaptionWidth = 18;

}  // namespace

int RunShow(Arguments arguments, Console& console) {
  std::int32_t id = 0;
  if (arguments.size() != 2 || !ParseStationId(arguments[1], id)) {
    console.err << "show needs a data folder and a station identifier; see sonaro-directory --help.\n";
    return kWrongUse;
  }
  LocalFolder folder(arguments[0]);
  StatList stations(folder.Data());
  // An empty record has two reasons, which the status tells apart.
  const StationRecord record = stations.FindStation(id);
  if (stations.LastStatus() == TableStatus::NoTable || stations.LastStatus() == TableStatus::Damaged) {
    console.err << "There is no readable station table in \"" << arguments[0] << "\".\n";
    return kFailed;
  }
  if (record.Empty()) {
    console.err << "There is no station " << id << " in \"" << arguments[0] << "\".\n";
    return kFailed;
  }
  const ScramblingAlphabets alphabets = AlphabetsOf(folder.Data());
  console.out << std::left << std::setw(kCaptionWidth) << "Identifier" << record.StationId << '\n';
  for (const FieldLine& line : kFields) {
    std::string text = record[line.field];
    if (line.scrambled) UnscrambleText(text, alphabets);
    // The record may come from a stranger's list: CleanText keeps escape sequences off the terminal.
    console.out << std::left << std::setw(kCaptionWidth) << line.caption << CleanText(text) << '\n';
  }
  return kDone;
}

}  // namespace sonaro
