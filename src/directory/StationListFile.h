// The text list "\Station.snr" and the station table that is built from it. One station a line: identifier,
// tab, sixteen fields with a tab between them. Used by StatList; does not know where the files lie.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "base/Files.h"
#include "directory/TableStatus.h"
#include "directory/VmxFormat.h"

namespace sonaro {

inline constexpr std::string_view kStationTableDefinition = "&,R16$";
// Name, media type, location, format and description.
inline constexpr std::uint32_t kSearchedStationFields = 5;

struct StationLine {
  std::int32_t id = 0;
  std::string_view text;  // the fields, as the table stores them
};

// Reads a line without its line feed. False for a line that holds no station: without an identifier that is a
// number of 32 bits, or with the identifier 0. Fields that are missing are empty, what there is too much
// belongs to the last one.
bool ParseStationLine(std::string_view line, StationLine& station);

// What a table of this list would carry. Reads the whole list; nothing when that fails.
std::optional<TableSource> SourceOf(InputFile& list);
// True when a line of the list holds a station. Reads no further than to the first one.
bool HoldsStation(InputFile& list);

// Puts a table of all stations of the list in the place of the one at `tablePath` (without an extension). Of
// two lines with one identifier the later one counts. Success or NotWritten; the old table stays then. A list
// in ascending order is read once and never held whole in memory.
TableStatus BuildStationTable(Files& files, const std::string& listPath, const std::string& tablePath);

}  // namespace sonaro
