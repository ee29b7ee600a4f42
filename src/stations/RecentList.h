// The stations played last, most recent first, kept in "\recent.snr". Owned by Application. A play that could
// not be written down is kept in memory and written with the next one; nobody is told.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/OwnFiles.h"
#include "base/UserFile.h"

namespace sonaro {

class DataFolder;

class RecentList {
 public:
  static constexpr std::size_t kSlots = 21;
  // The last slot is never written: the file holds one entry less than memory.
  static constexpr std::size_t kSavedSlots = kSlots - 1;

  explicit RecentList(DataFolder& data) : file_(data, user_file::kRecent) {}

  // Reads the file back; what was in memory is forgotten.
  void Load();
  // True when a file that could not be read before has been read now.
  bool LoadUnread();

  // Puts a station's token ("1204", "P3") in front, moving it there when it is in the list already, and
  // saves. A token that the file could not hold (empty, with blanks or control characters) is ignored.
  void AddRecent(const std::string& token);
  void SaveRecent();
  // Called after every play that was noted, whoever played.
  void SetChanged(std::function<void()> changed) { changed_ = std::move(changed); }

  // Most recent first, at most kSlots.
  const std::vector<std::string>& Tokens() const { return tokens_; }
  // The tokens as a text of identifiers, each followed by one blank.
  std::string AsText() const;

 private:
  void TakeOver(std::vector<std::string> first);

  UserFile file_;
  bool unsaved_ = false;  // memory holds plays that the file does not
  std::vector<std::string> tokens_;
  std::function<void()> changed_;
};

}  // namespace sonaro
