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
  TakeOver(unsaved_ ? keys_ : std::vector<StationKey>{});
  return true;
}

// The list becomes `first` and then what the file holds.
void RecentList::TakeOver(std::vector<StationKey> first) {
  keys_ = std::move(first);
  std::string_view text = file_.Text();
  std::string_view line = NextField(text, '\n');
  if (line.ends_with('\r')) line.remove_suffix(1);
  for (const std::string_view token : Split(line, ' ')) {
    if (keys_.size() == kSlots) break;
    const StationKey key = StationKey::FromToken(token);
    if (key && std::find(keys_.begin(), keys_.end(), key) == keys_.end()) keys_.push_back(key);
  }
}

void RecentList::AddRecent(const StationKey& station) {
  if (!station) return;
  if (file_.Look() == UserFile::Seen::Changed) TakeOver(unsaved_ ? keys_ : std::vector<StationKey>{});
  const StationKey played = station;  // may be one of the list's own
  std::erase(keys_, played);
  keys_.insert(keys_.begin(), played);
  if (keys_.size() > kSlots) keys_.resize(kSlots);
  SaveRecent();
  if (listener_) listener_->RecentChanged();
}

// One line, latest first. When it cannot be saved the list stays in memory and goes before what the file
// holds when that is read again.
void RecentList::SaveRecent() {
  std::string line;
  for (std::size_t slot = 0; slot < std::min(keys_.size(), kSavedSlots); ++slot) {
    line += keys_[slot].Token() + ' ';
  }
  unsaved_ = !file_.Save(std::string(TrimBlanks(line)) + "\r\n");
}

}  // namespace sonaro
