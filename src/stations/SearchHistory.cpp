#include "stations/SearchHistory.h"

#include <algorithm>

#include "base/Text.h"

namespace sonaro {

SearchHistory::SearchHistory(std::string_view setting, std::size_t maxCount) : maxCount_(maxCount) {
  // Empty pieces come of the tabs at both ends, and of a text that somebody has edited.
  for (const std::string_view entry : Split(setting, '\t')) {
    if (!entry.empty()) entries_.emplace_back(entry);
  }
}

void SearchHistory::Add(std::string_view text) {
  const bool moved = Contains(text);
  Remove(text);
  while (!moved && entries_.size() >= maxCount_) entries_.erase(entries_.begin());
  entries_.emplace_back(text);
}

void SearchHistory::Remove(std::string_view text) {
  std::erase_if(entries_, [text](const std::string& entry) { return EqualIgnoringCase(entry, text); });
}

bool SearchHistory::Contains(std::string_view text) const {
  return std::any_of(entries_.begin(), entries_.end(),
                     [text](const std::string& entry) { return EqualIgnoringCase(entry, text); });
}

std::string SearchHistory::ToSetting() const {
  std::string setting = "\t";
  for (const std::string& entry : entries_) setting += entry + '\t';
  return setting;
}

}  // namespace sonaro
