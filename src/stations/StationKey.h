// The name of a station wherever the program keeps one: in lists ("S1204", "P3"), and as a token in favourite
// groups, the recent list and the scan ("1204", "P3").
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace sonaro {

struct StationKey {
  enum class Kind { None, Directory, Personal };

  Kind kind = Kind::None;
  std::int32_t number = 0;  // station identifier or index of the personal station

  // From a list's key. "X" and whatever else is no station gives None.
  static StationKey FromRowKey(std::string_view rowKey);
  static StationKey FromToken(std::string_view token);
  std::string RowKey() const;  // "" for None
  std::string Token() const;   // "" for None
  explicit operator bool() const { return kind != Kind::None; }
  bool operator==(const StationKey&) const = default;
};

}  // namespace sonaro
