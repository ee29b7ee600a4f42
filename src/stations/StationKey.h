// The identity of a station: one of the guide, or one of the user's own. A value, passed as it is from list
// to list, through menus, drags and dialogs, to the player. Texts stand for it only where something outside
// keeps it: a token ("1204", "P3") in the files of the user, a row key ("S1204", "P3") in the schedule and in
// what windows are sent. They are made and read here.
#pragma once

#include <compare>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

namespace sonaro {

struct StationKey {
  enum class Kind { None, Directory, Personal };

  Kind kind = Kind::None;
  std::int32_t number = 0;  // station identifier or index of the personal station

  static constexpr StationKey OfGuide(std::int32_t stationId) {
    return {stationId != 0 ? Kind::Directory : Kind::None, stationId};
  }
  static constexpr StationKey OfUser(std::int32_t index) { return {Kind::Personal, index}; }

  // "X" and whatever else is no station gives None.
  static StationKey FromRowKey(std::string_view rowKey);
  static StationKey FromToken(std::string_view token);
  std::string RowKey() const;  // "" for None
  std::string Token() const;   // "" for None
  explicit operator bool() const { return kind != Kind::None; }
  bool IsOfGuide() const { return kind == Kind::Directory; }
  bool IsOfUser() const { return kind == Kind::Personal; }
  auto operator<=>(const StationKey&) const = default;
};

}  // namespace sonaro

template <>
struct std::hash<sonaro::StationKey> {
  std::size_t operator()(const sonaro::StationKey& key) const noexcept {
    const auto kind = static_cast<std::uint64_t>(key.kind);
    return std::hash<std::uint64_t>()(kind << 32 | static_cast<std::uint32_t>(key.number));
  }
};
