// Which row of a list is selected after its rows changed. One rule for every list of the program: the
// selection stays with its row, wherever that stands now; when the row is gone, the one that followed it is
// selected, and when none did, the last one. An empty list has no selection. Rows count from 0.
#pragma once

#include <algorithm>
#include <cstddef>
#include <optional>
#include <unordered_map>
#include <vector>

namespace sonaro {

// One change of a list: from row `at` on, `removed` rows gave way to `inserted` ones.
struct RowsChange {
  std::size_t at = 0;
  std::size_t removed = 0;
  std::size_t inserted = 0;
};

// Where the selected row stands after the change, which leaves `count` rows. For lists that can hold the same
// thing twice.
inline std::optional<std::size_t> SelectionAfter(const RowsChange& change, std::size_t selected,
                                                 std::size_t count) {
  if (count == 0) return std::nullopt;
  if (selected >= change.at + change.removed) {
    selected += change.inserted;
    selected -= change.removed;
  } else if (selected >= change.at) {
    selected = change.at + change.inserted;  // it went: the row that followed it
  }
  return std::min(selected, count - 1);
}

// The same for a list that was filled anew: rows are known by their keys. `before` and `after` are all keys
// in the order of the lists; `selected` is a row of `before`. Of rows with the same key that in the same
// place counts, else the first.
template <typename Key>
std::optional<std::size_t> SelectionAfterFill(const std::vector<Key>& before, std::size_t selected,
                                              const std::vector<Key>& after) {
  if (after.empty()) return std::nullopt;
  if (selected >= before.size()) return after.size() - 1;
  if (selected < after.size() && after[selected] == before[selected]) return selected;
  std::unordered_map<Key, std::size_t> places;
  for (std::size_t row = 0; row < after.size(); ++row) places.emplace(after[row], row);
  for (std::size_t row = selected; row < before.size(); ++row) {
    if (const auto found = places.find(before[row]); found != places.end()) return found->second;
  }
  return after.size() - 1;
}

}  // namespace sonaro
