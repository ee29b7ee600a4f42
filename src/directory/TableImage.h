// What is in memory of one generation of an indexed table. Parts come from the files as they are used and are
// checked once, when they come; a record's text is checked each time. Owned by Vmx, which keeps it between
// the openings of the table and hands in the open files; an image belongs to every pair of files with its
// headers, since equal generations hold equal records.
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <string_view>
#include <vector>

#include "directory/FieldRanks.h"
#include "directory/RecordTexts.h"
#include "directory/SearchIndex.h"
#include "directory/TableFiles.h"
#include "directory/TableStatus.h"
#include "directory/TypedSearch.h"
#include "directory/VmxFormat.h"

namespace sonaro {

class TableImage {
 public:
  explicit TableImage(const IndexHeader& header);
  const IndexHeader& Header() const { return header_; }
  std::uint32_t RecordCount() const { return header_.recordCount; }

  // Every operation below gives Success or Damaged, which a file that cannot be read counts as.

  // Reads the page directory; to be called before any other operation.
  TableStatus LoadDirectory(TableFiles& files);

  struct Place {
    std::uint32_t index = 0;  // of the first record whose key is not less; RecordCount when there is none
    bool found = false;       // its key is equal
  };
  TableStatus Locate(TableFiles& files, std::int32_t key, Place& place);

  struct Record {
    std::int32_t key = 0;
    std::string_view text;  // fields with tabs between them; valid until the next Get
  };
  // `index` is less than RecordCount.
  TableStatus Get(TableFiles& files, std::uint32_t index, Record& record);
  // So many records are going to be asked for, in any order.
  void Expect(std::size_t records) { texts_.Expect(records); }
  // A place that was located is going to be asked for soon.
  void Bring(const Place& place) const {
    if (place.found) texts_.Bring(EntryAt(place.index).dataOffset);
  }

  // Reads the search column and all entries. The functions below may be called after a success.
  TableStatus LoadColumn(TableFiles& files);
  SearchColumn Column() const { return {{column_.get(), columnStarts_.back()}, columnStarts_}; }
  std::int32_t KeyAt(std::uint32_t index) const { return EntryAt(index).key; }
  // The index of the record with the key; RecordCount when there is none. Quick when it lies near `near`, the
  // index of another record or RecordCount.
  std::uint32_t IndexOf(std::int32_t key, std::uint32_t near) const;
  // These two are made at the first call.
  const SearchIndex& Index();
  const PlainTexts& Plain();
  // The places of all records by the `field`th field, from 1 on, as far as they were made; whoever needs them
  // makes them.
  FieldRanks& Ranks(std::size_t field) { return ranks_[field]; }

  // Reads and checks everything that the files hold, whatever is in memory already.
  static TableStatus Verify(TableFiles& files);

 private:
  TableStatus NeedPage(TableFiles& files, std::uint32_t page) {
    return checkedPages_[page] ? TableStatus::Success : LoadPage(files, page);
  }
  TableStatus LoadPage(TableFiles& files, std::uint32_t page);
  TableStatus Get(TableFiles& files, std::uint32_t index, Record& record, std::uint64_t& digest);
  bool KeysAscend(std::uint32_t page) const;
  const Entry& EntryAt(std::uint32_t index) const;
  std::uint32_t EntriesIn(std::uint32_t page) const;

  IndexHeader header_;
  IndexLayout layout_;
  std::vector<PageItem> directory_;
  std::unique_ptr<Entry[]> entries_;  // all pages; those that were checked are filled in
  std::vector<bool> checkedPages_;
  RecordTexts texts_;
  std::unique_ptr<char[]> column_;
  std::vector<std::uint32_t> columnStarts_;
  std::unique_ptr<SearchIndex> searchIndex_;
  std::unique_ptr<PlainTexts> plain_;
  std::map<std::size_t, FieldRanks> ranks_;  // by field
};

}  // namespace sonaro
