#include "stations/RecentList.h"

#include <algorithm>
#include <utility>

#include "base/Text.h"

namespace sonaro {

void RecentList::Load() {
  if (file_.Look() != UserFile::Seen::Unreadable) TakeOver({});
}

bool RecentList::LoadUnread() {
  if (!file_.Unread() || file_.Look() == UserFile::Seen::Unreadable) return false;
  TakeOver(unsaved_ ? tokens_ : std::vector<std::string>{});
  return true;
}

// The list becomes `first` and then what the file holds.
void RecentList::TakeOver(std::vector<std::string> first) {
  tokens_ = std::move(first);
  std::string_view text = file_.Text();
  std::string_view line = NextField(text, '\n');
  if (line.ends_with('\r')) line.remove_suffix(1);
  for (const std::string_view token : Split(line, ' ')) {
    if (tokens_.size() == kSlots) break;
    if (!token.empty() && std::find(tokens_.begin(), tokens_.end(), token) == tokens_.end())
      tokens_.emplace_back(token);
  }
}

void RecentList::AddRecent(const std::string& token) {
  if (token.empty() || std::any_of(token.begin(), token.end(), [](unsigned char c) { return c <= 0x20; }))
    return;
  if (file_.Look() == UserFile::Seen::Changed) TakeOver(unsaved_ ? tokens_ : std::vector<std::string>{});
  std::erase(tokens_, token);
  tokens_.insert(tokens_.begin(), token);
  if (tokens_.size() > kSlots) tokens_.resize(kSlots);
  SaveRecent();
  if (changed_) changed_();
}

void RecentList::SaveRecent() {
  std::string line;
  for (std::size_t slot = 0; slot < std::min(tokens_.size(), kSavedSlots); ++slot)
    line += tokens_[slot] + ' ';
  unsaved_ = !file_.Save(std::string(TrimBlanks(line)) + "\r\n");
}

std::string RecentList::AsText() const {
  std::string text;
  for (const std::string& token : tokens_) text += token + ' ';
  return text;
}

}  // namespace sonaro
