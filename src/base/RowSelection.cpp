#include "base/RowSelection.h"

#include <algorithm>

namespace sonaro {

std::optional<std::size_t> SelectionAfter(const RowsChange& change, std::size_t selected, std::size_t count) {
  if (count == 0) return std::nullopt;
  if (selected >= change.at + change.removed) {
    selected += change.inserted;
    selected -= change.removed;
  } else if (selected >= change.at) {
    selected = change.at + change.inserted;  // it went: the row that followed it
  }
  return std::min(selected, count - 1);
}

}  // namespace sonaro
