// One broadcast event of the directory: its identifier and eight text fields, as they stand in the event
// tables.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

namespace sonaro {

enum class EventField : int {
  Name = 1,
  StationId,  // decimal text
  StationName,
  StartGmt,  // GMT stamp, 12 digits: yyyymmddhhmm
  Minutes,   // length as decimal text
  Category,
  WebAddress,  // plain, not scrambled
  Description
};

struct EventRecord {
  static constexpr std::size_t kFieldCount = 8;

  std::int32_t EventId = 0;  // 0: no event
  std::array<std::string, kFieldCount> fields;

  std::string& operator[](EventField field) { return fields[static_cast<std::size_t>(field) - 1]; }
  const std::string& operator[](EventField field) const {
    return fields[static_cast<std::size_t>(field) - 1];
  }
  bool Empty() const { return EventId == 0; }
  bool operator==(const EventRecord&) const = default;
};

}  // namespace sonaro
