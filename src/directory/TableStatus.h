// The status that every operation on an indexed table leaves behind.
#pragma once

#include <cstdint>

namespace sonaro {

enum class TableStatus : std::int16_t {
  Success = 0,
  ReplacedExisting = 2,  // stored over a record with the same key
  NotFound = 4,          // no such key, or no further record
  NoTable = 9,           // the table's files are missing or could not be opened
  Damaged = 11           // the files do not fit together or fail their checks
};

}  // namespace sonaro
