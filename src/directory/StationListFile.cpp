// Building the station table. Lists are normally in ascending order, and those are copied to the table line
// by line in a small buffer. A list in another order is noticed at the first line that is out of order; the
// table begun is dropped and made again from the whole list in memory, sorted. Of several lines with one
// identifier the last one counts, which only the second way can know, so equal identifiers count as out of
// order.
#include "directory/StationListFile.h"

#include <algorithm>
#include <array>
#include <limits>
#include <memory>
#include <optional>
#include <vector>

#include "base/DataFolder.h"
#include "base/Numbers.h"
#include "base/Utf8.h"
#include "directory/BlockWriter.h"
#include "directory/ByteScan.h"
#include "directory/LineReader.h"
#include "directory/TableWriter.h"

namespace sonaro {
namespace {

enum class Pass { Complete, OutOfOrder, Failed };

// Copies the list to the table line by line, as long as its identifiers ascend.
Pass AppendInOrder(InputFile& list, TableWriter& writer) {
  LineReader lines(list);
  std::string_view line;
  StationLine station;
  std::int64_t last = std::numeric_limits<std::int64_t>::min();
  while (lines.Next(line)) {
    if (!ParseStationLine(line, station)) continue;
    if (station.id <= last) return Pass::OutOfOrder;
    if (!writer.Append(station.id, station.text)) return Pass::Failed;
    last = station.id;
  }
  writer.SetSource({list.Size(), lines.Check()});
  return lines.Failed() ? Pass::Failed : Pass::Complete;
}

// A station's place in the list: the identifier in the upper half, so that larger numbers stand for larger
// identifiers, and the position of its line in the lower.
using Place = std::uint64_t;

// Flipping the sign bit makes the order of signed identifiers that of unsigned numbers.
constexpr std::uint32_t kSignBit = 0x80000000u;

Place PlaceOf(std::int32_t id, std::uint32_t position) {
  return Place{static_cast<std::uint32_t>(id) ^ kSignBit} << 32 | position;
}
std::uint32_t KeyBits(Place place) { return static_cast<std::uint32_t>(place >> 32); }
std::uint32_t PositionOf(Place place) { return static_cast<std::uint32_t>(place); }

// Sorts by the identifier and keeps the order of places with the same one.
// A radix sort of the upper half by 11 bits at a time, three passes. Each pass is stable, so lines with one
// identifier stay in the order in which they stand in the list.
void SortById(std::vector<Place>& places) {
  constexpr unsigned kBits = 11;
  constexpr std::size_t kBuckets = std::size_t{1} << kBits;
  std::vector<Place> sorted(places.size());
  for (unsigned shift = 0; shift < 32; shift += kBits) {
    const auto bucketOf = [shift](Place place) { return (KeyBits(place) >> shift) % kBuckets; };
    std::array<std::size_t, kBuckets + 1> starts{};
    for (const Place place : places) ++starts[bucketOf(place) + 1];
    for (std::size_t bucket = 0; bucket < kBuckets; ++bucket) starts[bucket + 1] += starts[bucket];
    for (const Place place : places) sorted[starts[bucketOf(place)]++] = place;
    places.swap(sorted);
  }
}

std::string_view LineAt(std::string_view list, std::size_t position) {
  const std::string_view rest = list.substr(position);
  return rest.substr(0, FindByte(rest, '\n'));
}

std::vector<Place> PlacesIn(std::string_view list) {
  std::vector<Place> places;
  StationLine station;
  std::size_t position = list.starts_with(kMarkOfUtf8) ? kMarkOfUtf8.size() : 0;
  while (position < list.size()) {
    const std::string_view line = LineAt(list, position);
    if (ParseStationLine(line, station)) {
      places.push_back(PlaceOf(station.id, static_cast<std::uint32_t>(position)));
    }
    position += line.size() + 1;
  }
  return places;
}

// Copies a list in any order to the table, which takes the whole list in memory.
Pass AppendSorted(std::string_view list, TableWriter& writer) {
  // A position has to fit the lower half of a Place.
  if (list.size() > kMaxTextSize) return Pass::Failed;
  writer.SetSource({list.size(), ChainedChecksum(list)});
  std::vector<Place> places = PlacesIn(list);
  SortById(places);
  // In sorted order the lines lie all over the list, and every one would have to be waited for.
  constexpr std::size_t kAhead = 16;  // lines whose bytes are asked for before they are needed
  StationLine station;
  for (std::size_t i = 0; i < places.size(); ++i) {
    if (i + kAhead < places.size()) Prefetch(list.data() + PositionOf(places[i + kAhead]));
    if (i + 1 < places.size() && KeyBits(places[i]) == KeyBits(places[i + 1]))
      continue;  // a later line counts
    ParseStationLine(LineAt(list, PositionOf(places[i])), station);
    if (!writer.Append(station.id, station.text)) return Pass::Failed;
  }
  return Pass::Complete;
}

Pass AppendStations(Files& files, const std::string& listPath, std::optional<TableWriter>& writer,
                    const std::string& tablePath) {
  const TableDefinition definition = *ParseDefinition(kStationTableDefinition, kSearchedStationFields);
  {
    const std::unique_ptr<InputFile> list = files.Open(listPath);
    if (!list) return Pass::Failed;
    writer.emplace(files, tablePath, definition);
    const Pass pass = AppendInOrder(*list, *writer);
    // The end of this block closes the list, which is read anew below.
    if (pass != Pass::OutOfOrder) return pass;
  }
  writer.emplace(files, tablePath, definition);
  const ReadResult list = ReadWholeFile(files, listPath);
  return list.status == ReadStatus::Ok ? AppendSorted(list.bytes, *writer) : Pass::Failed;
}

}  // namespace

bool ParseStationLine(std::string_view line, StationLine& station) {
  if (line.ends_with('\r')) line.remove_suffix(1);
  // Most identifiers are a few digits and nothing else; the general rule decides about the others.
  constexpr std::size_t kDigitsThatFit = 9;
  std::size_t end = 0;
  std::int32_t id = 0;
  for (; end < line.size() && end < kDigitsThatFit && line[end] >= '0' && line[end] <= '9'; ++end) {
    id = id * 10 + (line[end] - '0');
  }
  // No digits, more than nine, or something behind them: signs, blanks, or no number at all.
  if (end == 0 || (end < line.size() && line[end] != kFieldSeparator)) {
    end = FindByte(line, kFieldSeparator);
    if (!ParseStationId(line.substr(0, end), id)) return false;
  }
  station = {id, line.substr(std::min(end + 1, line.size()))};
  // 0 means "no station" throughout the program.
  return id != 0;
}

std::optional<TableSource> SourceOf(InputFile& list) {
  LineReader lines(list);
  std::string_view line;
  while (lines.Next(line)) {
  }
  if (lines.Failed()) return {};
  return TableSource{list.Size(), lines.Check()};
}

bool HoldsStation(InputFile& list) {
  LineReader lines(list);
  std::string_view line;
  StationLine station;
  while (lines.Next(line)) {
    if (ParseStationLine(line, station)) return true;
  }
  return false;
}

TableStatus BuildStationTable(Files& files, const std::string& listPath, const std::string& tablePath) {
  std::optional<TableWriter> writer;
  const bool written = AppendStations(files, listPath, writer, tablePath) == Pass::Complete &&
                       writer->Finish() && writer->PutInPlace();
  return written ? TableStatus::Success : TableStatus::NotWritten;
}

}  // namespace sonaro
