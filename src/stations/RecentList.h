// The stations played last, most recent first, kept in "\recent.snr". Owned by Application. A play that could
// not be written down is kept in memory and written with the next one; nobody is told.
#pragma once

#include <utility>
#include <vector>

#include "base/OwnFiles.h"
#include "base/UserFile.h"
#include "stations/StationKey.h"

namespace sonaro {

class DataFolder;

class RecentListener {
 public:
  virtual ~RecentListener() = default;
  virtual void RecentChanged() = 0;  // after every play that was noted, whoever played
};

class RecentList {
 public:
  static constexpr std::size_t kSlots = 21;
  // The last slot is never written: the file holds one entry less than memory.
  static constexpr std::size_t kSavedSlots = kSlots - 1;

  // `listener` may be nullptr.
  explicit RecentList(DataFolder& data, RecentListener* listener = nullptr)
      : file_(data, user_file::kRecent), listener_(listener) {}

  // Reads the file back; what was in memory is forgotten. What names no station there is left out.
  void Load();
  // True when a file that could not be read before has been read now.
  bool LoadUnread();

  // Puts a station in front, moving it there when it is in the list already, and saves. None is ignored.
  void AddRecent(const StationKey& station);
  void SaveRecent();

  // Most recent first, at most kSlots.
  const std::vector<StationKey>& Keys() const { return keys_; }

 private:
  void TakeOver(std::vector<StationKey> first);

  UserFile file_;
  bool unsaved_ = false;  // memory holds plays that the file does not
  std::vector<StationKey> keys_;
  RecentListener* listener_;
};

}  // namespace sonaro
