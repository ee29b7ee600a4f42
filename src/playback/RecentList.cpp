#include "playback/RecentList.h"

#include <algorithm>

#include "base/DataFolder.h"
#include "base/Text.h"

namespace sonaro {

namespace {

constexpr std::string_view kRecentFile = "\\recent.snr";

}  // namespace

void RecentList::Load() {
  tokens_.clear();
  const ReadResult file = data_.Read(kRecentFile);
  std::string_view text = file.bytes;
  std::string_view line = TakeUntil(text, '\n');
  if (line.ends_with('\r')) line.remove_suffix(1);
  for (const std::string_view token : Split(line, ' ')) {
    if (tokens_.size() == kSlots) break;
    if (!token.empty()) tokens_.emplace_back(token);
  }
}

void RecentList::AddRecent(const std::string& token) {
  if (token.empty() || std::any_of(token.begin(), token.end(), [](unsigned char c) { return c <= 0x20; }))
    return;
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
  data_.Save(kRecentFile, std::string(TrimBlanks(line)) + "\r\n");
}

std::string RecentList::AsText() const {
  std::string text;
  for (const std::string& token : tokens_) text += token + ' ';
  return text;
}

}  // namespace sonaro
