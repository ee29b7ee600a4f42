// Writes one generation of an indexed table from records in ascending key order: first as temporary files of
// the table's files, then in their place. Until PutInPlace the old table is untouched; a crash at any moment
// leaves a table that opens, the old one or the new. Owned by the one operation that writes; not used for
// reading.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/Files.h"
#include "directory/BlockWriter.h"
#include "directory/VmxFormat.h"

namespace sonaro {

class TableWriter {
 public:
  // `path` is the table's path without an extension. Begins to write at once; a failure shows in Finish.
  TableWriter(Files& files, std::string path, const TableDefinition& definition);
  // Removes the temporary files unless they were put in place.
  ~TableWriter();
  TableWriter(const TableWriter&) = delete;
  TableWriter& operator=(const TableWriter&) = delete;

  // `text` is the record's fields with a tab between them; the last one may hold tabs. Keys must ascend.
  // False when the table grows beyond what its files can hold (4 GiB of text).
  bool Append(std::int32_t key, std::string_view text);
  // What the records come from; without it the table is one of no list.
  void SetSource(const TableSource& source) { source_ = source; }
  // Completes the temporary files. False when anything could not be written.
  bool Finish();
  // Replaces the table by the finished temporary files; no file of the table may be open. False when the
  // table is still the old one.
  bool PutInPlace();

 private:
  void AppendToColumn(std::string_view fields);
  std::uint64_t WritePages(const IndexHeader& header);

  Files& files_;
  std::string path_;
  TableDefinition definition_;
  std::optional<BlockWriter> data_;
  std::optional<BlockWriter> index_;
  std::vector<Entry> entries_;
  std::string folded_;  // kept for its memory
  std::uint64_t generation_ = 0;
  TableSource source_{};
  bool tooLarge_ = false;
  bool putInPlace_ = false;
};

}  // namespace sonaro
