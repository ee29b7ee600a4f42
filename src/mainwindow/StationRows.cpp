#include "mainwindow/StationRows.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace sonaro {
namespace {

// The sort key of a text and the row it belongs to. The first eight bytes decide most comparisons without
// touching the text itself.
struct SortKey {
  std::uint64_t prefix = 0;
  std::uint32_t offset = 0;
  std::uint32_t length = 0;
  std::uint32_t row = 0;
};

std::uint64_t PrefixOf(std::string_view key) {
  std::uint64_t prefix = 0;
  for (std::size_t i = 0; i < 8; ++i) {
    prefix = prefix << 8 | (i < key.size() ? static_cast<unsigned char>(key[i]) : 0U);
  }
  return prefix;
}

// All sort keys of one sort, end to end in one buffer.
class SortKeys {
 public:
  void Add(std::string_view key, std::uint32_t row) {
    keys_.push_back({PrefixOf(key), static_cast<std::uint32_t>(bytes_.size()),
                     static_cast<std::uint32_t>(key.size()), row});
    bytes_ += key;
  }

  void SortStably(SortOrder order) {
    if (order == SortOrder::Ascending) {
      std::stable_sort(keys_.begin(), keys_.end(),
                       [this](const SortKey& a, const SortKey& b) { return Compare(a, b) < 0; });
    } else {
      std::stable_sort(keys_.begin(), keys_.end(),
                       [this](const SortKey& a, const SortKey& b) { return Compare(a, b) > 0; });
    }
  }

  const std::vector<SortKey>& Keys() const { return keys_; }

 private:
  int Compare(const SortKey& a, const SortKey& b) const {
    if (a.prefix != b.prefix) return a.prefix < b.prefix ? -1 : 1;
    return BytesOf(a).compare(BytesOf(b));
  }
  std::string_view BytesOf(const SortKey& key) const {
    return std::string_view(bytes_).substr(key.offset, key.length);
  }

  std::vector<SortKey> keys_;
  std::string bytes_;
};

}  // namespace

void StationRows::Fill(std::vector<StationRow> rows) {
  rows_ = std::move(rows);
  order_.resize(rows_.size());
  std::iota(order_.begin(), order_.end(), 0U);
  selected_.reset();
  ApplySort();
  if (!rows_.empty()) Select(0);
}

void StationRows::SortBy(int key, SortOrder order) {
  if (key < 0 || key > static_cast<int>(StationRow::kSubItemCount)) return;
  sort_ = {true, key, order};
  ApplySort();
}

void StationRows::ApplySort() {
  if (!sort_.on) return;
  SortKeys keys;
  for (std::uint32_t row = 0; row < rows_.size(); ++row) keys.Add(sortKey_(SortText(rows_[row])), row);
  keys.SortStably(sort_.order);
  std::transform(keys.Keys().begin(), keys.Keys().end(), order_.begin(),
                 [](const SortKey& key) { return key.row; });
}

const std::string& StationRows::SortText(const StationRow& row) const {
  return sort_.key == 0 ? row.text : row.subItems[static_cast<std::size_t>(sort_.key) - 1];
}

std::size_t StationRows::StationCount() const {
  return static_cast<std::size_t>(std::count_if(
      rows_.begin(), rows_.end(), [](const StationRow& row) { return row.IsStation() || row.IsPersonal(); }));
}

std::string_view StationRows::Cell(std::size_t position, int column) const {
  const StationRow& row = At(position);
  if (column < 0 || column >= kColumns) return {};
  return column == 0 ? row.text : row.subItems[static_cast<std::size_t>(column) - 1];
}

std::optional<std::size_t> StationRows::Find(std::string_view key) const {
  for (std::size_t position = 0; position < order_.size(); ++position) {
    if (At(position).key == key) return position;
  }
  return std::nullopt;
}

std::optional<std::size_t> StationRows::FindByName(std::string_view start, std::size_t from) const {
  for (std::size_t step = 0; step < Count(); ++step) {
    const std::size_t position = (from + step) % Count();
    if (StartsWithIgnoringCase(At(position).text, start)) return position;
  }
  return std::nullopt;
}

std::optional<std::size_t> StationRows::Selected() const {
  if (!selected_) return std::nullopt;
  const auto found = std::find(order_.begin(), order_.end(), *selected_);
  return static_cast<std::size_t>(found - order_.begin());
}

const StationRow* StationRows::SelectedRow() const { return selected_ ? &rows_[*selected_] : nullptr; }

void StationRows::Select(std::optional<std::size_t> position) {
  selected_.reset();
  if (!position || *position >= Count()) return;
  const StationRow& row = At(*position);
  if (row.IsStation() || row.IsPersonal()) selected_ = order_[*position];
}

std::vector<std::string> StationRows::Keys() const {
  std::vector<std::string> keys;
  keys.reserve(Count());
  for (std::size_t position = 0; position < Count(); ++position) keys.push_back(At(position).key);
  return keys;
}

std::vector<std::string> StationRows::Tokens() const {
  std::vector<std::string> tokens;
  tokens.reserve(Count());
  for (std::size_t position = 0; position < Count(); ++position) {
    std::string token = At(position).Token();
    if (!token.empty()) tokens.push_back(std::move(token));
  }
  return tokens;
}

}  // namespace sonaro
