#include "stations/SearchHistory.h"

#include "base/Text.h"

namespace sonaro {

SearchHistory::SearchHistory(std::string_view setting) {
  for (const std::string_view entry : Split(setting, '\t')) {
    if (!entry.empty()) entries_.emplace_back(entry);
  }
}

void SearchHistory::Add(std::string_view text) {
  const std::size_t moved =
      std::erase_if(entries_, [text](const std::string& entry) { return EqualIgnoringCase(entry, text); });
  while (moved == 0 && entries_.size() >= kMaxCount) entries_.erase(entries_.begin());
  entries_.emplace_back(text);
}

std::string SearchHistory::ToSetting() const {
  std::string setting = "\t";
  for (const std::string& entry : entries_) setting += entry + '\t';
  return setting;
}

}  // namespace sonaro
