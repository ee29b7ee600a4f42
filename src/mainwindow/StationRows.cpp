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

const std::string& CellOf(const StationInfo& row, int subItem) {
  switch (static_cast<SubItem>(subItem)) {
    case SubItem::Location:
      return row.location;
    case SubItem::MediaType:
      return row.mediaType;
    case SubItem::Format:
      return row.format;
    case SubItem::Overall:
      return row.overall;
    case SubItem::Sound:
      return row.sound;
    case SubItem::Speed:
      return row.speed;
    case SubItem::WebSite:
      return row.webSiteRating;
    case SubItem::Reliability:
      return row.reliability;
  }
  return row.name;
}

StationInfo RowOfNoStation(std::string text) {
  StationInfo row;
  row.name = std::move(text);
  return row;
}

void StationRows::Fill(std::vector<StationInfo> rows) {
  rows_ = std::move(rows);
  order_.resize(rows_.size());
  std::iota(order_.begin(), order_.end(), 0U);
  selected_.reset();
  ApplySort();
  if (!rows_.empty()) Select(0);
}

void StationRows::SortBy(int key, SortOrder order) {
  if (key < 0 || key > kSubItems) return;
  sort_ = {true, key, order};
  ApplySort();
}

void StationRows::ApplySort() {
  if (!sort_.on) return;
  SortKeys keys;
  for (std::uint32_t row = 0; row < rows_.size(); ++row)
    keys.Add(sortKey_(CellOf(rows_[row], sort_.key)), row);
  keys.SortStably(sort_.order);
  std::transform(keys.Keys().begin(), keys.Keys().end(), order_.begin(),
                 [](const SortKey& key) { return key.row; });
}

std::size_t StationRows::StationCount() const {
  return static_cast<std::size_t>(
      std::count_if(rows_.begin(), rows_.end(), [](const StationInfo& row) { return bool(row.key); }));
}

std::string_view StationRows::Cell(std::size_t position, int column) const {
  return column >= 0 && column < kColumns ? std::string_view(CellOf(At(position), column))
                                          : std::string_view();
}

std::optional<std::size_t> StationRows::Find(const StationKey& key) const {
  for (std::size_t position = 0; position < order_.size(); ++position) {
    if (At(position).key == key) return position;
  }
  return std::nullopt;
}

std::optional<std::size_t> StationRows::FindByName(std::string_view start, std::size_t from) const {
  for (std::size_t step = 0; step < Count(); ++step) {
    const std::size_t position = (from + step) % Count();
    if (StartsWithIgnoringCase(At(position).name, start)) return position;
  }
  return std::nullopt;
}

std::optional<std::size_t> StationRows::Selected() const {
  if (!selected_) return std::nullopt;
  const auto found = std::find(order_.begin(), order_.end(), *selected_);
  return static_cast<std::size_t>(found - order_.begin());
}

const StationInfo* StationRows::SelectedRow() const { return selected_ ? &rows_[*selected_] : nullptr; }

void StationRows::Select(std::optional<std::size_t> position) {
  selected_.reset();
  if (!position || *position >= Count()) return;
  if (At(*position).key) selected_ = order_[*position];
}

std::vector<StationKey> StationRows::Keys() const {
  std::vector<StationKey> keys;
  keys.reserve(Count());
  for (std::size_t position = 0; position < Count(); ++position) keys.push_back(At(position).key);
  return keys;
}

}  // namespace sonaro
