// What is kept in memory of a table, part by part as it is needed. Opening reads the page directory only, 16
// bytes for every 512 records. Looking a key up reads one page more. The search column, some megabytes, comes
// with the first search. Each part is checked when it comes: nothing that lies in memory needs to be checked
// again.
#include "directory/TableImage.h"

#include <algorithm>
#include <utility>

#include "directory/BlockWriter.h"

namespace sonaro {
namespace {

constexpr std::size_t kPageSlots = kPageEntries + 1;  // an entry more, that of the next page

bool KeyIsLess(std::int32_t key, const PageItem& item) { return key < item.firstKey; }

}  // namespace

TableImage::TableImage(const IndexHeader& header)
    : header_(header),
      layout_(LayoutOf(header)),
      // Room for all pages in their places on disk, left uninitialised: pages that are never loaded are never
      // touched, and the system gives no memory to them.
      entries_(std::make_unique_for_overwrite<Entry[]>(std::size_t{header.recordCount} + layout_.pageCount)),
      checkedPages_(layout_.pageCount),
      texts_(sizeof(DataHeader), static_cast<std::size_t>(header.dataFileSize - sizeof(DataHeader))) {}

TableStatus TableImage::LoadDirectory(TableFiles& files) {
  directory_.resize(layout_.pageCount);
  char* const bytes = reinterpret_cast<char*>(directory_.data());
  const std::size_t size = directory_.size() * sizeof(PageItem);
  if (!files.index->ReadAt(layout_.directory, bytes, size)) return TableStatus::Damaged;
  return Checksum({bytes, size}) == header_.directoryCheck ? TableStatus::Success : TableStatus::Damaged;
}

std::uint32_t TableImage::EntriesIn(std::uint32_t page) const {
  return std::min(kPageEntries, header_.recordCount - page * kPageEntries);
}

// Of a record whose page is loaded.
const Entry& TableImage::EntryAt(std::uint32_t index) const {
  return entries_[index / kPageEntries * kPageSlots + index % kPageEntries];
}

TableStatus TableImage::LoadPage(TableFiles& files, std::uint32_t page) {
  const std::size_t first = page * kPageSlots;
  char* const bytes = reinterpret_cast<char*>(&entries_[first]);
  const std::size_t size = (EntriesIn(page) + 1) * sizeof(Entry);
  // The checksum says that the page is as it was written; the order of keys is checked besides, because the
  // binary search relies on it.
  const bool sound = files.index->ReadAt(layout_.pages + first * sizeof(Entry), bytes, size) &&
                     Checksum({bytes, size}) == directory_[page].check &&
                     entries_[first].key == directory_[page].firstKey && KeysAscend(page);
  checkedPages_[page] = sound;
  return sound ? TableStatus::Success : TableStatus::Damaged;
}

// Up to the first one of the next page. Out of their order records would be looked for in the wrong place,
// and a change of the table would lose some.
bool TableImage::KeysAscend(std::uint32_t page) const {
  const Entry* const first = &EntryAt(page * kPageEntries);
  const Entry* const end = first + EntriesIn(page);
  const auto notLess = [](const Entry& a, const Entry& b) { return a.key >= b.key; };
  if (std::adjacent_find(first, end, notLess) != end) return false;
  return page + 1 == directory_.size() || end[-1].key < directory_[page + 1].firstKey;
}

TableStatus TableImage::Locate(TableFiles& files, std::int32_t key, Place& place) {
  place = {};
  const auto above = std::upper_bound(directory_.begin(), directory_.end(), key, KeyIsLess);
  // The key is below all others. It counts as found nowhere, with the place before the first record.
  if (above == directory_.begin()) return TableStatus::Success;
  const auto page = static_cast<std::uint32_t>(above - directory_.begin() - 1);
  if (NeedPage(files, page) != TableStatus::Success) return TableStatus::Damaged;
  const Entry* const first = &EntryAt(page * kPageEntries);
  const Entry* const end = first + EntriesIn(page);
  // Halving without a branch that the machine would guess wrong every second time. The page's first key is
  // not above `key`.
  const Entry* at = first;
  for (std::size_t left = EntriesIn(page); left > 1;) {
    const std::size_t half = left / 2;
    at += at[half].key <= key ? half : 0;
    left -= half;
  }
  if (at->key < key) ++at;
  place.index = page * kPageEntries + static_cast<std::uint32_t>(at - first);
  place.found = at != end && at->key == key;
  return TableStatus::Success;
}

TableStatus TableImage::Get(TableFiles& files, std::uint32_t index, Record& record) {
  std::uint64_t digest;
  return Get(files, index, record, digest);
}

TableStatus TableImage::Get(TableFiles& files, std::uint32_t index, Record& record, std::uint64_t& digest) {
  if (NeedPage(files, index / kPageEntries) != TableStatus::Success) return TableStatus::Damaged;
  const Entry* const entry = &EntryAt(index);
  // Every page ends with the entry after it, so entry[1] is there for the last record of a page too.
  const std::uint32_t length = entry[1].dataOffset - entry[0].dataOffset;  // far too long if it is not sound
  const char* const text = texts_.Get(*files.data, entry->dataOffset, length);
  if (!text) return TableStatus::Damaged;
  record = {entry->key, {text, length}};
  digest = RecordDigest(record.key, record.text);
  return RecordCheck(digest) == entry->check ? TableStatus::Success : TableStatus::Damaged;
}

TableStatus TableImage::LoadColumn(TableFiles& files) {
  if (!columnStarts_.empty()) return TableStatus::Success;
  std::vector<std::uint32_t> starts;
  starts.reserve(std::size_t{RecordCount()} + 1);
  for (std::uint32_t i = 0; i < RecordCount(); ++i) {
    if (i % kPageEntries == 0 && NeedPage(files, i / kPageEntries) != TableStatus::Success)
      return TableStatus::Damaged;
    starts.push_back(EntryAt(i).columnOffset);
  }
  starts.push_back(static_cast<std::uint32_t>(header_.columnSize));
  // Positions are used as bounds without further tests while searching.
  if (starts.front() != 0 || !std::is_sorted(starts.begin(), starts.end())) return TableStatus::Damaged;

  const auto size = static_cast<std::size_t>(header_.columnSize) + kColumnPadding;
  auto column = std::make_unique_for_overwrite<char[]>(size);
  const bool sound = files.index->ReadAt(layout_.column, column.get(), size) &&
                     ChainedChecksum({column.get(), size}) == header_.columnCheck;
  if (!sound) return TableStatus::Damaged;
  column_ = std::move(column);
  columnStarts_ = std::move(starts);
  return TableStatus::Success;
}

const SearchIndex& TableImage::Index() {
  if (!searchIndex_) searchIndex_ = std::make_unique<SearchIndex>(Column());
  return *searchIndex_;
}

const PlainTexts& TableImage::Plain() {
  if (!plain_) plain_ = std::make_unique<PlainTexts>(Column());
  return *plain_;
}

// Lists are mostly in the order of the table: steps that double lead from the last record to the next one,
// and a binary search within the last step finds it. What stands before is looked for in the whole table.
std::uint32_t TableImage::IndexOf(std::int32_t key, std::uint32_t near) const {
  const std::uint32_t count = RecordCount();
  std::uint32_t first = near < count && KeyAt(near) <= key ? near : 0;
  std::uint32_t behind = count;
  if (first == near) {
    std::uint32_t step = 1;
    while (step < count - first && KeyAt(first + step) <= key) {
      first += step;
      step *= 2;
    }
    behind = first + std::min(step, count - first);
  }
  while (first < behind) {
    const std::uint32_t middle = first + (behind - first) / 2;
    if (KeyAt(middle) < key) {
      first = middle + 1;
    } else {
      behind = middle;
    }
  }
  return first < count && KeyAt(first) == key ? first : count;
}

TableStatus TableImage::Verify(TableFiles& files) {
  // A fresh image: what is in memory already was checked when it came and says nothing of the disk today.
  TableImage image(files.indexHeader);
  if (image.LoadDirectory(files) != TableStatus::Success || image.LoadColumn(files) != TableStatus::Success) {
    return TableStatus::Damaged;
  }
  std::uint64_t generation = files.indexHeader.fieldCount;
  for (std::uint32_t i = 0; i < image.RecordCount(); ++i) {
    Record record;
    std::uint64_t digest;
    if (image.Get(files, i, record, digest) != TableStatus::Success) return TableStatus::Damaged;
    // Computed from all records in key order, so one that is missing or doubled shows as well.
    generation = GenerationOf(generation, digest);
  }
  return generation == files.indexHeader.generation ? TableStatus::Success : TableStatus::Damaged;
}

}  // namespace sonaro
