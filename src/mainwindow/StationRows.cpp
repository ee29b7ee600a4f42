#include "mainwindow/StationRows.h"

#include <algorithm>
#include <limits>
#include <numeric>
#include <random>
#include <utility>

#include "mainwindow/StationFilter.h"

namespace sonaro {
namespace {

// Puts the rows in the order of their ranks; equal ones stay as they are. Two steps of counting, or one when
// the ranks are small: linear, however many rows there are.
void OrderByRanks(std::vector<std::uint32_t>& rows, std::vector<std::uint32_t>& ranks) {
  constexpr unsigned kDigitBits = 16;
  constexpr std::uint32_t kDigit = (1U << kDigitBits) - 1;
  const std::uint32_t most = ranks.empty() ? 0 : *std::max_element(ranks.begin(), ranks.end());
  std::vector<std::uint32_t> sortedRows(rows.size());
  std::vector<std::uint32_t> sortedRanks(rows.size());
  for (unsigned shift = 0; shift < 32 && (most >> shift) != 0; shift += kDigitBits) {
    std::vector<std::uint32_t> starts(kDigit + 2);
    for (const std::uint32_t rank : ranks) ++starts[(rank >> shift & kDigit) + 1];
    std::partial_sum(starts.begin(), starts.end(), starts.begin());
    for (std::size_t i = 0; i < rows.size(); ++i) {
      const std::uint32_t to = starts[ranks[i] >> shift & kDigit]++;
      sortedRows[to] = rows[i];
      sortedRanks[to] = ranks[i];
    }
    rows.swap(sortedRows);
    ranks.swap(sortedRanks);
  }
}

}  // namespace

// Nothing is read but what a sort or filter in force needs: rows are keys until they are shown. Both are
// applied at once, so that the list never shows the other order first.
void StationRows::Fill(std::vector<StationKey> keys) {
  notice_.reset();
  narrowedTo_.reset();
  keys_ = std::move(keys);
  selected_.reset();
  several_.clear();
  Arrange();
  Select(0);
}

// One row with no key, which can be read but neither selected nor played.
// The notice is a row without a key, so that everything that asks for a station finds none.
void StationRows::FillNotice(std::string text) {
  Fill({StationKey()});
  notice_.emplace().name = std::move(text);
}

void StationRows::SortBy(int key, SortOrder order) {
  if (key < 0 || key > kSubItems) return;
  sort_ = {true, key, order};
  Arrange();
}

// The key and the order stay in memory, but mean nothing until the next sort.
void StationRows::EndSort() {
  sort_.on = false;
  Arrange();
}

void StationRows::FilterChanged() {
  Arrange();
  if (!selected_) Select(0);
}

void StationRows::NarrowTo(std::optional<std::vector<StationKey> > keys) {
  if (IsNotice() || (!keys && !narrowedTo_)) return;
  narrowedTo_ = std::move(keys);
  Arrange();
  if (!selected_) Select(0);
}

// Everything that goes by shown positions is void afterwards, but the selected row stays selected while it is
// shown.
void StationRows::Arrange() {
  const std::uint32_t selected = selected_ ? order_[*selected_] : 0;
  order_.resize(keys_.size());
  std::iota(order_.begin(), order_.end(), 0U);
  // Both stand in the order of the fill, so one walk finds what they share, repeats included.
  if (narrowedTo_) {
    std::size_t count = 0;
    for (std::uint32_t row = 0; row < keys_.size() && count < narrowedTo_->size(); ++row) {
      if (keys_[row] == (*narrowedTo_)[count]) order_[count++] = row;
    }
    order_.resize(count);
  }
  if (filter_ != nullptr && !IsNotice()) filter_->Narrow(keys_, order_);
  if (sort_.on && !IsNotice()) SortShown();
  pages_ = {};
  if (!selected_) return;
  const auto at = std::find(order_.begin(), order_.end(), selected);
  selected_.reset();
  if (at != order_.end()) selected_ = static_cast<std::size_t>(at - order_.begin());
}

// Turning the ranks round, not the rows, keeps equal rows in the order of the fill in both directions.
void StationRows::SortShown() {
  std::vector<std::uint32_t> ranks = source_.RanksOf(Keys(), sort_.key, sortKey_);
  if (sort_.order == SortOrder::Descending) {
    for (std::uint32_t& rank : ranks) rank = std::numeric_limits<std::uint32_t>::max() - rank;
  }
  OrderByRanks(order_, ranks);
}

// A page begins at a multiple of its length, so a screen of a usual height touches two at most, and the
// table is opened once for each.
StationRows::Page StationRows::ReadPage(std::size_t number) const {
  const std::size_t first = number * kPageRows;
  std::vector<StationKey> keys;
  for (std::size_t position = first; position < std::min(first + kPageRows, Count()); ++position)
    keys.push_back(KeyAt(position));
  Page page{number, std::vector<StationInfo>(keys.size())};
  source_.VisitInfos(keys, [&](std::size_t row, StationInfo info) { page.rows[row] = std::move(info); });
  // A station that went since the fill is a blank row until the list is filled again.
  for (std::size_t row = 0; row < keys.size(); ++row) page.rows[row].key = keys[row];
  return page;
}

// The page read first gives way: a list is looked at from place to place, and what was left long ago is not
// asked for again soon.
const StationInfo& StationRows::At(std::size_t position) const {
  if (notice_) return *notice_;
  const std::size_t number = position / kPageRows;
  for (const Page& page : pages_) {
    if (page.number == number) return page.rows[position % kPageRows];
  }
  Page& page = pages_[oldestPage_];
  oldestPage_ = (oldestPage_ + 1) % kKeptPages;
  page = ReadPage(number);
  return page.rows[position % kPageRows];
}

std::string_view StationRows::Cell(std::size_t position, int column) const {
  return column >= 0 && column < kColumns ? std::string_view(CellOf(At(position), column))
                                          : std::string_view();
}

std::optional<std::size_t> StationRows::Find(const StationKey& key) const {
  for (std::size_t position = 0; position < Count(); ++position) {
    if (KeyAt(position) == key) return position;
  }
  return std::nullopt;
}

// Among the rows at `positions`, the first one.
std::optional<std::size_t> StationRows::FirstNamed(const std::vector<std::size_t>& positions,
                                                   std::string_view start) const {
  std::vector<StationKey> keys;
  for (const std::size_t position : positions) keys.push_back(KeyAt(position));
  std::size_t first = keys.size();
  source_.VisitInfos(keys, [&](std::size_t place, const StationInfo& info) {
    if (place < first && StartsWithIgnoringCase(info.name, start)) first = place;
  });
  return first < keys.size() ? std::optional(positions[first]) : std::nullopt;
}

// A name that begins with the text holds its words, so the guide's search leaves few rows to be read. They
// are read in steps that grow: most often the first few are enough, and each step opens the table once.
std::optional<std::size_t> StationRows::FindByName(std::string_view start, std::size_t from) const {
  const std::vector<std::int32_t> holding = source_.IdsHolding(start);
  std::vector<std::size_t> positions;
  std::size_t enough = kPageRows;
  for (std::size_t step = 0; step < StationCount(); ++step) {
    const std::size_t position = (from + step) % Count();
    const StationKey key = KeyAt(position);
    if (key.IsOfUser() || std::binary_search(holding.begin(), holding.end(), key.number))
      positions.push_back(position);
    if (positions.size() < enough) continue;
    if (const auto found = FirstNamed(positions, start)) return found;
    positions.clear();
    enough *= 2;
  }
  return FirstNamed(positions, start);
}

// Numbers that follow each other, as those of a clock do, give rows far from each other.
std::optional<std::size_t> StationRows::AnyOther(std::uint32_t chance) const {
  if (StationCount() == 0) return std::nullopt;
  const std::size_t others = std::max<std::size_t>(Count() - (selected_ ? 1 : 0), 1);
  const std::size_t position = std::minstd_rand(chance)() % others;
  return selected_ && position >= *selected_ && Count() > 1 ? position + 1 : position;
}

void StationRows::Select(std::optional<std::size_t> position) {
  selected_.reset();
  several_.clear();
  if (position && *position < Count() && KeyAt(*position)) selected_ = position;
}

// `several_` goes by rows of the fill, so a sort does not change which stations are selected.
// By place in the fill, since the shown places change with every sort.
void StationRows::SelectSeveral(std::size_t position, std::span<const std::size_t> all) {
  Select(position);
  if (!selected_ || all.size() < 2) return;
  several_.resize(keys_.size());
  for (const std::size_t row : all) several_[order_[row]] = true;
}

std::vector<std::size_t> StationRows::SelectedRows() const {
  if (!selected_) return {};
  if (several_.empty()) return {*selected_};
  std::vector<std::size_t> rows;
  for (std::size_t position = 0; position < Count(); ++position) {
    if (several_[order_[position]]) rows.push_back(position);
  }
  return rows;
}

std::vector<StationKey> StationRows::SelectedKeys() const {
  std::vector<StationKey> keys;
  for (const std::size_t row : SelectedRows()) keys.push_back(KeyAt(row));
  return keys;
}

std::vector<StationKey> StationRows::Keys() const {
  std::vector<StationKey> keys;
  keys.reserve(Count());
  for (const std::uint32_t row : order_) keys.push_back(keys_[row]);
  return keys;
}

}  // namespace sonaro
