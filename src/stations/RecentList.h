// The stations played last, most recent first, kept in "\recent.snr". Owned by Application. A play that could
// not be written down is kept in memory and written with the next one; nobody is told.
#pragma once

#include <functional>
#include <utility>
#include <vector>

#include "base/OwnFiles.h"
#include "base/UserFile.h"
#include "stations/StationKey.h"

namespace sonaro {

class DataFolder;

class RecentList {
 public:
  static constexpr std::size_t kSlots = 21;
  // The last slot is never written: the file holds one entry less than memory.
  static constexpr std::size_t kSavedSlots = kSlots - 1;

  explicit RecentList(DataFolder& data) : file_(data, user_file::kRecent) {}

  // Reads the file back; what was in memory is forgotten. What names no station there is left out.
  void Load();
  // True when a file that could not be read before has been read now.
  bool LoadUnread();

  // Puts a station in front, moving it there when it is in the list already, and saves. None is ignored.
  void AddRecent(const StationKey& station);
  void SaveRecent();
  // Called after every play that was noted, whoever played.
  void SetChanged(std::function<void()> changed) { changed_ = std::move(changed); }

  // Most recent first, at most kSlots.
  const std::vector<StationKey>& Keys() const { return keys_; }

 private:
  void TakeOver(std::vector<StationKey> first);

  UserFile file_;
  bool unsaved_ = false;  // memory holds plays that the file does not
  std::vector<StationKey> keys_;
  std::function<void()> changed_;
};

}  // namespace sonaro
