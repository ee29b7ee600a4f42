// What every user of an indexed table knows: where it lies, and the status that each operation on it leaves
// behind.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace sonaro {

class DataFolder;

enum class TableStatus : std::int16_t {
  Success = 0,
  BadCall = 1,           // no such handle, not a key, not a definition, or the table is not open for writing
  ReplacedExisting = 2,  // stored over a record with the same key
  NotWritten = 3,        // a new generation could not be written; the table is as it was
  NotFound = 4,          // no such key, or no further record
  NoMemory = 7,
  NoTable = 9,  // the table's files are missing or could not be opened
  Damaged = 11  // the files do not fit together or fail their checks
};

// Whether a put with this status stored its record.
constexpr bool Stored(TableStatus status) {
  return status == TableStatus::Success || status == TableStatus::ReplacedExisting;
}

// The path without an extension of the table `name` ("\statorg"), in the letter case of its data file if
// there is one.
std::string TablePath(const DataFolder& data, std::string_view name);

}  // namespace sonaro
