// Which row of a list is selected after its rows changed. One rule for every list of the program: the
// selection stays with its row, wherever that stands now; when the row is gone, the one that followed it is
// selected, and when none did, the last one. An empty list has no selection. Rows count from 0.
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>

namespace sonaro {

// One change of a list: from row `at` on, `removed` rows gave way to `inserted` ones.
struct RowsChange {
  std::size_t at = 0;
  std::size_t removed = 0;
  std::size_t inserted = 0;
};

// Where the selected row stands after the change, which leaves `count` rows. For lists that can hold the same
// thing twice.
std::optional<std::size_t> SelectionAfter(const RowsChange& change, std::size_t selected, std::size_t count);

// The same for a list that was filled anew: rows are known by their keys. `before` and `after` are all keys
// in the order of the lists; `selected` is a row of `before`. Of rows with the same key that in the same
// place counts, else the first.
std::optional<std::size_t> SelectionAfterFill(std::span<const std::string> before, std::size_t selected,
                                              std::span<const std::string> after);

}  // namespace sonaro
