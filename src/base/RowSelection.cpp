#include "base/RowSelection.h"

#include <algorithm>
#include <string_view>
#include <unordered_map>

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

std::optional<std::size_t> SelectionAfterFill(std::span<const std::string> before, std::size_t selected,
                                              std::span<const std::string> after) {
  if (after.empty()) return std::nullopt;
  if (selected >= before.size()) return after.size() - 1;
  if (selected < after.size() && after[selected] == before[selected]) return selected;
  std::unordered_map<std::string_view, std::size_t> places;
  for (std::size_t row = 0; row < after.size(); ++row) places.emplace(after[row], row);
  for (std::size_t row = selected; row < before.size(); ++row) {
    if (const auto found = places.find(before[row]); found != places.end()) return found->second;
  }
  return after.size() - 1;
}

}  // namespace sonaro
