// The rows behind one station list view: what it holds, in which order it shows them, and which one is
// selected. The list view keeps no texts of its own and asks here for what it paints. Owned by whoever owns
// the list.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/Text.h"
#include "stations/StationSource.h"

namespace sonaro {

// The eight sub-items of a row, behind its name. 1 to 3 have a visible column; 4 to 8 are there to be sorted
// by.
enum class SubItem : int { Location = 1, MediaType, Format, Overall, Sound, Speed, WebSite, Reliability };
inline constexpr int kSubItems = 8;

// The name (0) or a sub-item of a row.
const std::string& CellOf(const StationInfo& row, int subItem);
// A row that says something and stands for no station.
StationInfo RowOfNoStation(std::string text);

enum class SortOrder { Ascending, Descending };

struct SortState {
  bool on = false;  // off: the order of the fill
  int key = 0;      // 0 = name, 1 to 8 = sub-item
  SortOrder order = SortOrder::Ascending;
  bool operator==(const SortState&) const = default;
};

class StationRows {
 public:
  static constexpr int kColumns = 4;  // name, location, media type, station format

  // `sortKey` is asked once for each row of a sort.
  explicit StationRows(SortKeyOf sortKey = FoldCase) : sortKey_(std::move(sortKey)) {}

  // Replaces all rows. A sort chosen earlier stays in force. The first shown row becomes the selected one,
  // unless it stands for no station; an empty list has no selection.
  void Fill(std::vector<StationInfo> rows);
  void Clear() { Fill({}); }

  // Text sort of a sub-item by its sort key; rows with equal keys keep the order of the fill, in both orders.
  // The selected row stays selected. A key outside 0 to 8 changes nothing.
  void SortBy(int key, SortOrder order);
  const SortState& Sort() const { return sort_; }

  std::size_t Count() const { return rows_.size(); }
  // Stations among the rows: all but those without a key.
  std::size_t StationCount() const;
  // By position in the shown order, which must be below Count().
  const StationInfo& At(std::size_t position) const { return rows_[order_[position]]; }
  // The text of a visible column (0 to 3).
  std::string_view Cell(std::size_t position, int column) const;
  std::optional<std::size_t> Find(const StationKey& key) const;
  // The first row after `from`, wrapping round, whose name begins with `start`, letter case ignored: what
  // typing letters in the list looks for.
  std::optional<std::size_t> FindByName(std::string_view start, std::size_t from) const;

  std::optional<std::size_t> Selected() const;
  const StationInfo* SelectedRow() const;
  // None without one.
  StationKey SelectedKey() const { return selected_ ? rows_[*selected_].key : StationKey(); }
  // Selecting a row that stands for no station, or nothing, leaves no selection.
  void Select(std::optional<std::size_t> position);

  // The keys of all rows in the shown order.
  std::vector<StationKey> Keys() const;

 private:
  void ApplySort();

  SortKeyOf sortKey_;
  std::vector<StationInfo> rows_;     // in the order of the fill
  std::vector<std::uint32_t> order_;  // shown position -> index in rows_
  SortState sort_;
  std::optional<std::uint32_t> selected_;  // index in rows_
};

}  // namespace sonaro
