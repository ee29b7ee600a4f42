// The searches of the past, oldest first, as they are kept in the setting "SearchList": a tab, and each
// search followed by a tab. At most eleven. A value; whoever holds one stores its text.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace sonaro {

class SearchHistory {
 public:
  static constexpr std::size_t kMaxCount = 11;

  SearchHistory() = default;
  // Out of the setting's text; a text that does not begin or end with a tab is read all the same.
  explicit SearchHistory(std::string_view setting);

  // Makes `text` the newest entry: moved when it is there already, letter case ignored; otherwise the oldest
  // goes first when the history is full.
  void Add(std::string_view text);

  const std::vector<std::string>& Entries() const { return entries_; }
  std::string ToSetting() const;

 private:
  std::vector<std::string> entries_;
};

}  // namespace sonaro
