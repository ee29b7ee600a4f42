// A list of searches, oldest first, as it is kept in a setting: a tab, and each search followed by a tab. The
// past ones stand in "SearchList", at most eleven; those that the user pinned in "PinnedSearches", so that
// whoever reads the history finds what it has always held. A value; whoever holds one stores its text.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace sonaro {

class SearchHistory {
 public:
  static constexpr std::size_t kMaxCount = 11;
  static constexpr std::size_t kMaxPinned = 100;

  SearchHistory() = default;
  // Out of the setting's text; a text that does not begin or end with a tab is read all the same.
  explicit SearchHistory(std::string_view setting, std::size_t maxCount = kMaxCount);

  // Makes `text` the newest entry: moved when it is there already, letter case ignored; otherwise the oldest
  // goes first when the history is full.
  void Add(std::string_view text);
  // Letter case ignored, as in Contains.
  void Remove(std::string_view text);
  bool Contains(std::string_view text) const;

  const std::vector<std::string>& Entries() const { return entries_; }
  std::string ToSetting() const;

 private:
  std::size_t maxCount_ = kMaxCount;
  std::vector<std::string> entries_;
};

}  // namespace sonaro
