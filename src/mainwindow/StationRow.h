// One row of a station list, as every list of the program shows it. A value; knows no list and no window.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

#include "directory/StationRecord.h"

namespace sonaro {

// The eight sub-items of a row. 1 to 3 have a visible column; 4 to 8 are there to be sorted by.
enum class SubItem : int { Location = 1, MediaType, Format, Overall, Sound, Speed, WebSite, Reliability };

struct StationRow {
  static constexpr std::size_t kSubItemCount = 8;
  static constexpr int kFirstReliabilityIcon = 7;

  // "S" + identifier for a station of the directory, "P" + index for a personal station, "X" for a row that
  // stands for no station.
  std::string key;
  std::string text;  // the name
  std::array<std::string, kSubItemCount> subItems;
  int icon = kFirstReliabilityIcon;  // reliability + 7

  std::string& operator[](SubItem item) { return subItems[static_cast<std::size_t>(item) - 1]; }
  const std::string& operator[](SubItem item) const { return subItems[static_cast<std::size_t>(item) - 1]; }

  bool IsStation() const { return !key.empty() && key[0] == 'S'; }
  bool IsPersonal() const { return !key.empty() && key[0] == 'P'; }
  // What groups and the recent list hold of the row: the identifier of a station, the whole key of a personal
  // station, "" for a row that stands for no station.
  std::string Token() const;
};

// The row of a directory station.
StationRow RowOfStation(const StationRecord& record);
// The row of a personal station: `media` is its second field.
StationRow RowOfPersonalStation(std::int32_t index, std::string name, std::string media);
// A row that says something and stands for no station.
StationRow RowOfNoStation(std::string text);

}  // namespace sonaro
