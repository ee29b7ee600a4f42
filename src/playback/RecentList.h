// The stations played last, most recent first, kept in "\recent.snr". Owned by Application.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace sonaro {

class DataFolder;

class RecentList {
 public:
  static constexpr std::size_t kSlots = 21;
  // The last slot is never written: the file holds one entry less than memory.
  static constexpr std::size_t kSavedSlots = kSlots - 1;

  explicit RecentList(DataFolder& data) : data_(data) {}

  // Reads the file back.
  void Load();

  // Puts a station's token ("1204", "P3") in front, moving it there when it is in the list already, and
  // saves. A token that the file could not hold (empty, with blanks or control characters) is ignored.
  void AddRecent(const std::string& token);
  // Errors are ignored.
  void SaveRecent();
  // Called after every play that was noted, whoever played.
  void SetChanged(std::function<void()> changed) { changed_ = std::move(changed); }

  // Most recent first, at most kSlots.
  const std::vector<std::string>& Tokens() const { return tokens_; }
  // The tokens as a text of identifiers, each followed by one blank.
  std::string AsText() const;

 private:
  DataFolder& data_;
  std::vector<std::string> tokens_;
  std::function<void()> changed_;
};

}  // namespace sonaro
