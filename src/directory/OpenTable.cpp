// An open table is two layers: the records on disk, in key order, and the changes since it was opened, in a
// map by key in which an empty value means "deleted". Reading merges the two. Closing writes the merge as a
// new table; nothing on disk is ever changed in place.
#include "directory/OpenTable.h"

#include <array>
#include <cstring>
#include <utility>

#include "directory/TableWriter.h"

namespace sonaro {
namespace {

// Headers hold the generation, sizes and checksums, so equal headers mean equal tables. They have no padding
// bytes (VmxFormat.h), which a comparison of memory would trip over.
bool SameTable(const IndexHeader& a, const IndexHeader& b) { return std::memcmp(&a, &b, sizeof a) == 0; }

}  // namespace

std::unique_ptr<OpenTable> OpenTable::Open(Files& files, const std::string& path, bool forWriting,
                                           std::shared_ptr<TableImage>& image, TableStatus& status) {
  std::unique_ptr<OpenTable> table(new OpenTable);
  status = OpenTableFiles(files, path, table->files_);
  if (status != TableStatus::Success) return nullptr;
  if (!image || !SameTable(image->Header(), table->files_.indexHeader)) {
    auto fresh = std::make_shared<TableImage>(table->files_.indexHeader);
    status = fresh->LoadDirectory(table->files_);
    if (status != TableStatus::Success) return nullptr;
    image = std::move(fresh);
  }
  table->system_ = &files;
  table->path_ = path;
  table->forWriting_ = forWriting;
  table->image_ = image;
  return table;
}

void OpenTable::GoBeforeFirst() {
  position_ = kBeforeFirst;
  next_ = 0;
}

void OpenTable::GoBehindLast() {
  position_ = kBehindLast;
  next_ = image_->RecordCount();
}

TableStatus OpenTable::Read(std::int32_t key, TableImage::Record& record) {
  TableImage::Place place;
  const TableStatus status = image_->Locate(files_, key, place);
  return status == TableStatus::Success ? ReadAt(place, key, record) : status;
}

TableStatus OpenTable::ReadAt(const TableImage::Place& place, std::int32_t key, TableImage::Record& record) {
  const auto change = changes_.find(key);
  if (change != changes_.end()) {
    if (!change->second) return TableStatus::NotFound;
    record = {key, *change->second};
  } else {
    if (!place.found) return TableStatus::NotFound;
    const TableStatus status = image_->Get(files_, place.index, record);
    if (status != TableStatus::Success) return status;
  }
  // Reading in order goes on behind this key.
  position_ = key;
  next_ = place.index + (place.found ? 1 : 0);
  return TableStatus::Success;
}

// Records in no order lie all over the memory. Each is located some turns before it is read, and asked for,
// so that nothing waits for it.
TableStatus OpenTable::Visit(std::span<const std::int32_t> keys,
                             const std::function<void(const TableImage::Record&)>& visit) {
  constexpr std::size_t kAhead = 8;
  std::array<TableImage::Place, kAhead> places;
  image_->Expect(keys.size());
  for (std::size_t turn = 0; turn < keys.size() + kAhead; ++turn) {
    TableImage::Place& place = places[turn % kAhead];
    if (turn >= kAhead) {
      TableImage::Record record;
      const TableStatus status = ReadAt(place, keys[turn - kAhead], record);
      if (status == TableStatus::Success) {
        visit(record);
      } else if (status != TableStatus::NotFound) {
        return status;
      }
    }
    if (turn >= keys.size()) continue;
    if (image_->Locate(files_, keys[turn], place) != TableStatus::Success) return TableStatus::Damaged;
    image_->Bring(place);
  }
  return TableStatus::Success;
}

// Nearly every table is open for reading only, and a scan of it need not merge anything.
TableStatus OpenTable::ReadNextOnDisk(TableImage::Record& record) {
  if (next_ >= image_->RecordCount()) return TableStatus::NotFound;
  const TableStatus status = image_->Get(files_, next_, record);
  if (status != TableStatus::Success) return status;
  position_ = record.key;
  ++next_;
  return status;
}

// One step of a merge. `next` walks over the records on disk and `change` over the changes; the smaller key
// is the next record. With equal keys the change hides the record, and if it is a deletion the step is
// repeated. The position is taken over only at the end, so that a failure leaves it where it was.
TableStatus OpenTable::ReadNext(TableImage::Record& record) {
  if (changes_.empty()) return ReadNextOnDisk(record);
  std::uint32_t next = next_;
  for (auto change = changes_.upper_bound(position_);; ++change) {
    TableImage::Record stored;
    const bool onDisk = next < image_->RecordCount();
    if (onDisk) {
      const TableStatus status = image_->Get(files_, next, stored);
      if (status != TableStatus::Success) return status;
    }
    const bool changed = change != changes_.end() && (!onDisk || change->first <= stored.key);
    if (!changed && !onDisk) return TableStatus::NotFound;
    if (!changed || change->first == stored.key) ++next;
    if (changed && !change->second) continue;
    if (changed) stored = {static_cast<std::int32_t>(change->first), *change->second};
    record = stored;
    position_ = record.key;
    next_ = next;
    return TableStatus::Success;
  }
}

TableStatus OpenTable::Contains(std::int32_t key, bool& contains) {
  TableImage::Place place;
  const TableStatus status = image_->Locate(files_, key, place);
  const auto change = changes_.find(key);
  contains = change != changes_.end() ? change->second.has_value() : place.found;
  return status;
}

TableStatus OpenTable::Put(std::int32_t key, std::string text) {
  bool replaces = false;
  const TableStatus status = Contains(key, replaces);
  if (status != TableStatus::Success) return status;
  changes_[key] = std::move(text);
  return replaces ? TableStatus::ReplacedExisting : TableStatus::Success;
}

TableStatus OpenTable::Delete(std::int32_t key) {
  bool there = false;
  const TableStatus status = Contains(key, there);
  if (status != TableStatus::Success) return status;
  if (!there) return TableStatus::NotFound;
  changes_[key] = std::nullopt;
  return TableStatus::Success;
}

TableStatus OpenTable::Close() {
  const TableStatus status = changes_.empty() ? TableStatus::Success : WriteChanges();
  files_ = {};
  changes_.clear();
  return status;
}

TableStatus OpenTable::WriteChanges() {
  const IndexHeader& header = image_->Header();
  TableWriter writer(*system_, path_, {header.fieldCount, header.searchedFields});
  TableImage::Record record;
  // The merge of both layers, just as a caller would read it.
  GoBeforeFirst();
  TableStatus status = ReadNext(record);
  for (; status == TableStatus::Success; status = ReadNext(record)) {
    if (!writer.Append(record.key, record.text)) return TableStatus::NotWritten;
  }
  if (status != TableStatus::NotFound) return status;
  const bool complete = writer.Finish();
  files_ = {};  // an open file cannot be replaced everywhere
  return complete && writer.PutInPlace() ? TableStatus::Success : TableStatus::NotWritten;
}

TableImage* OpenTable::SearchImage() {
  return image_->LoadColumn(files_) == TableStatus::Success ? image_.get() : nullptr;
}

}  // namespace sonaro
