// One opening of an indexed table: its files, a position in key order, and the changes made since it was
// opened, which every read sees. Owned by Vmx, which gives it a handle. Not for use from outside.
#pragma once

#include <cstdint>
#include <functional>
#include <limits>
#include <map>
#include <memory>
#include <optional>
#include <span>
#include <string>

#include "base/Files.h"
#include "directory/TableImage.h"
#include "directory/TableStatus.h"

namespace sonaro {

class OpenTable {
 public:
  // Opens the table at `path`. `image` is what is in memory of it from before, or null; it is replaced when
  // the files are of another generation. Null with a `status` that says why, else positioned before the first
  // record.
  static std::unique_ptr<OpenTable> Open(Files& files, const std::string& path, bool forWriting,
                                         std::shared_ptr<TableImage>& image, TableStatus& status);

  const std::string& Path() const { return path_; }
  bool ForWriting() const { return forWriting_; }

  void GoBeforeFirst();
  void GoBehindLast();
  // Success, NotFound or Damaged; only a success moves the position. The text is valid until the next
  // operation.
  TableStatus Read(std::int32_t key, TableImage::Record& record);
  TableStatus ReadNext(TableImage::Record& record);
  // Calls `visit` with the record of each key that is there.
  TableStatus Visit(std::span<const std::int32_t> keys,
                    const std::function<void(const TableImage::Record&)>& visit);

  // Whether the key is there, in the changes or else on disk; reads no text.
  TableStatus Contains(std::int32_t key, bool& contains);

  // Success or ReplacedExisting.
  TableStatus Put(std::int32_t key, std::string text);
  // Success or NotFound.
  TableStatus Delete(std::int32_t key);

  // Writes the changes as a new generation and closes the files. Without changes nothing is written.
  TableStatus Close();

  // The records on disk, ready to be searched, or null when they are damaged.
  TableImage* SearchImage();
  std::uint32_t RecordCount() const { return image_->RecordCount(); }
  std::uint32_t FieldCount() const { return image_->Header().fieldCount; }

 private:
  OpenTable() = default;
  TableStatus ReadAt(const TableImage::Place& place, std::int32_t key, TableImage::Record& record);
  TableStatus ReadNextOnDisk(TableImage::Record& record);
  TableStatus WriteChanges();

  static constexpr std::int64_t kBeforeFirst = std::int64_t{std::numeric_limits<std::int32_t>::min()} - 1;
  static constexpr std::int64_t kBehindLast = std::int64_t{std::numeric_limits<std::int32_t>::max()} + 1;

  Files* system_ = nullptr;
  std::string path_;
  bool forWriting_ = false;
  TableFiles files_;
  std::shared_ptr<TableImage> image_;
  std::map<std::int64_t, std::optional<std::string>> changes_;  // by key: the new text; nothing when deleted
  std::int64_t position_ = kBeforeFirst;                        // the last key read, or one of the ends
  std::uint32_t next_ = 0;  // the first record on disk behind the position
};

}  // namespace sonaro
