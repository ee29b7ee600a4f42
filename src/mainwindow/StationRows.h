// The rows behind one station list view: which stations it holds, in which order it shows them, and which one
// is selected. Rows are keys, eight bytes each; what a row says is read from the guide when it is asked for,
// a page at a time, and the last pages are kept, so that filling a list costs what its keys cost. Owned by
// whoever owns the list.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/Text.h"
#include "stations/StationSource.h"

namespace sonaro {

class StationFilter;

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
  static constexpr std::size_t kPageRows = 32;
  static constexpr std::size_t kKeptPages = 8;

  // `sortKey` is asked once for each row of a sort. `filter` may be nullptr; otherwise only what it lets
  // through is shown.
  explicit StationRows(const StationSource& source, SortKeyOf sortKey = FoldCase,
                       const StationFilter* filter = nullptr)
      : source_(source), sortKey_(std::move(sortKey)), filter_(filter) {}

  // Replaces all rows, and forgets what was read of the old ones: to be called again when stations changed.
  // A sort chosen earlier stays in force. The first shown row becomes the selected one; an empty list has no
  // selection.
  void Fill(std::vector<StationKey> keys);
  // One row that says something and stands for no station.
  void FillNotice(std::string text);
  void Clear() { Fill({}); }
  bool IsNotice() const { return notice_.has_value(); }

  // Text sort of a sub-item by its sort key; rows with equal keys keep the order of the fill, in both orders.
  // The selected row stays selected. A key outside 0 to 8 changes nothing.
  void SortBy(int key, SortOrder order);
  // Back to the order of the fill, in this list and the next ones.
  void EndSort();
  const SortState& Sort() const { return sort_; }
  // The filter lets others through. The selected row stays selected if it is still shown.
  void FilterChanged();

  // Shows only the rows with these keys, which stand in the order of the fill; nothing: all rows, as every
  // fill does. The selected row stays selected; when it is not shown, the first one is.
  void NarrowTo(std::optional<std::vector<StationKey>> keys);
  // Every row is shown, in the order of the fill.
  bool InOwnOrder() const { return !sort_.on && order_.size() == keys_.size(); }

  std::size_t Count() const { return order_.size(); }
  // What the fill brought, shown or not.
  std::size_t FilledCount() const { return IsNotice() ? 0 : keys_.size(); }
  const std::vector<StationKey>& FilledKeys() const { return keys_; }
  // Stations among the rows: all but a notice.
  std::size_t StationCount() const { return IsNotice() ? 0 : Count(); }
  // By position in the shown order, which must be below Count(). None for a notice.
  StationKey KeyAt(std::size_t position) const { return keys_[order_[position]]; }
  // What the row says. Valid until the next call of a function of this list.
  const StationInfo& At(std::size_t position) const;
  // The text of a visible column (0 to 3).
  std::string_view Cell(std::size_t position, int column) const;
  std::optional<std::size_t> Find(const StationKey& key) const;
  // The first row from `from` on, wrapping round, whose name begins with `start`, letter case ignored: what
  // typing letters in the list looks for. Reads the names only of rows in which the words stand somewhere.
  std::optional<std::size_t> FindByName(std::string_view start, std::size_t from) const;

  const std::optional<std::size_t>& Selected() const { return selected_; }
  // None without one.
  StationKey SelectedKey() const { return selected_ ? KeyAt(*selected_) : StationKey(); }
  // The position of a station other than the selected one, or the only one; nothing without a station.
  // `chance` is any number, and decides.
  std::optional<std::size_t> AnyOther(std::uint32_t chance) const;
  // Selecting a row that stands for no station, or nothing, leaves no selection. The row is the only one.
  void Select(std::optional<std::size_t> position);
  // The selected row and others with it. They stay selected while the list is sorted or narrowed; a fill
  // leaves one.
  void SelectSeveral(std::size_t position, std::span<const std::size_t> all);
  // In the shown order; empty without a selection.
  std::vector<std::size_t> SelectedRows() const;
  std::vector<StationKey> SelectedKeys() const;

  // The keys of all rows in the shown order.
  std::vector<StationKey> Keys() const;

 private:
  struct Page {
    std::optional<std::size_t> number;
    std::vector<StationInfo> rows;
  };

  void Arrange();
  void SortShown();
  Page ReadPage(std::size_t number) const;
  std::optional<std::size_t> FirstNamed(const std::vector<std::size_t>& positions,
                                        std::string_view start) const;

  const StationSource& source_;
  SortKeyOf sortKey_;
  const StationFilter* filter_;
  std::vector<StationKey> keys_;      // in the order of the fill
  std::vector<std::uint32_t> order_;  // shown position -> index in keys_
  std::optional<StationInfo> notice_;
  std::optional<std::vector<StationKey>> narrowedTo_;
  SortState sort_;
  std::optional<std::size_t> selected_;  // a shown position
  std::vector<bool> several_;            // by index in keys_, while more than one is selected
  mutable std::array<Page, kKeptPages> pages_;
  mutable std::size_t oldestPage_ = 0;
};

}  // namespace sonaro
