// One station of the directory: its identifier and sixteen text fields, as they stand on a line of
// "\Station.snr" and in the station table. Fields 6 to 10 are held scrambled (directory/Scrambling.h).
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace sonaro {

enum class StationField : int {
  Name = 1,
  MediaType,
  Location,
  Format,
  Description,
  LinkOne,        // scrambled
  LinkTwo,        // scrambled
  LinkThree,      // scrambled
  AlternateLink,  // scrambled
  WebSite,        // scrambled
  BitRate,        // kbit/s as text
  OverallRating,  // the ratings are one digit, 0 (none) to 9
  SpeedRating,
  SoundRating,
  WebSiteRating,
  Reliability  // 0 (not known) to 4; the list's picture index is this plus 7
};

struct StationRecord {
  static constexpr std::size_t kFieldCount = 16;

  std::int32_t StationId = 0;  // 0: no station
  std::array<std::string, kFieldCount> fields;

  std::string& operator[](StationField field) { return fields[static_cast<std::size_t>(field) - 1]; }
  const std::string& operator[](StationField field) const {
    return fields[static_cast<std::size_t>(field) - 1];
  }
  bool Empty() const { return StationId == 0; }
  bool operator==(const StationRecord&) const = default;
};

// The same while it stands in the directory's memory, without a copy of its texts: for whoever looks at many.
struct StationView {
  std::int32_t StationId = 0;
  std::span<const std::string_view> fields;  // fewer than a record has, or more, in a table made by others

  std::string_view operator[](StationField field) const {
    const std::size_t place = static_cast<std::size_t>(field) - 1;
    return place < fields.size() ? fields[place] : std::string_view();
  }
  StationRecord Copy() const {
    StationRecord record{StationId, {}};
    std::copy_n(fields.begin(), std::min(fields.size(), record.fields.size()), record.fields.begin());
    return record;
  }
};

}  // namespace sonaro
