#include "model/SkipLog.h"

#include <algorithm>
#include <ostream>
#include <utility>
#include <vector>

#include "base/Text.h"
#include "text/CleanText.h"

namespace sonaro {

void SkipLog::Skip(std::string_view place, std::string_view what, std::string_view reason) {
  ++counts_[std::string(reason)];
  if (!explain_) return;
  // What is shown comes from a stranger's file: nothing of it may steer a terminal.
  *explain_ << place << ": left out \"" << TruncateUtf8(CleanText(what), 120) << "\": " << reason << '\n';
}

std::size_t SkipLog::Total() const {
  std::size_t total = 0;
  for (const auto& [reason, count] : counts_) total += count;
  return total;
}

std::size_t SkipLog::Count(std::string_view reason) const {
  const auto found = counts_.find(reason);
  return found == counts_.end() ? 0 : found->second;
}

std::string SkipLog::Summary() const {
  // Most frequent reason first; equally frequent ones in alphabetical order, because the map is walked in it
  // and the sort is stable. The summary of a run thus never depends on the order of its sources.
  std::vector<std::pair<std::size_t, std::string_view>> byCount;
  for (const auto& [reason, count] : counts_) byCount.emplace_back(count, reason);
  std::stable_sort(byCount.begin(), byCount.end(),
                   [](const auto& a, const auto& b) { return a.first > b.first; });
  std::string text;
  for (const auto& [count, reason] : byCount) {
    if (!text.empty()) text += ", ";
    text += std::to_string(count) + " " + std::string(reason);
  }
  return text;
}

}  // namespace sonaro
