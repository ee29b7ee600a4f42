// A table is written in one pass over its records in key order. The data file grows by each record's text;
// the index file begins with the search column, which grows alongside; entries are kept in memory, 16 bytes a
// record, and follow as pages when all are known. Both headers are written last (BlockWriter::Commit).
#include "directory/TableWriter.h"

#include <algorithm>
#include <cstring>
#include <utility>

#include "directory/ByteScan.h"
#include "directory/TableFiles.h"

namespace sonaro {
namespace {

template <typename Item>
std::string_view BytesOf(const Item* items, std::size_t count) {
  return {reinterpret_cast<const char*>(items), count * sizeof(Item)};
}

}  // namespace

TableWriter::TableWriter(Files& files, std::string path, const TableDefinition& definition)
    : files_(files), path_(std::move(path)), definition_(definition), generation_(definition.fieldCount) {
  TableFiles old;  // opening it completes an interrupted swap, whose temporary file would be overwritten now
  OpenTableFiles(files_, path_, old);
  old = {};
  const TablePaths temporaries = TablePaths::TemporariesOf(path_);
  data_.emplace(files_.Create(temporaries.data), BlockWriter::Checking::None);
  index_.emplace(files_.Create(temporaries.index), BlockWriter::Checking::Chained);
  data_->WriteHeader(std::string(sizeof(DataHeader), '\0'));
  index_->WriteHeader(std::string(sizeof(IndexHeader), '\0'));
}

TableWriter::~TableWriter() {
  if (putInPlace_) return;
  data_.reset();
  index_.reset();
  const TablePaths temporaries = TablePaths::TemporariesOf(path_);
  files_.Remove(temporaries.data);
  files_.Remove(temporaries.index);
}

bool TableWriter::Append(std::int32_t key, std::string_view text) {
  // Positions have 32 bits. The comparison is this way round so that nothing overflows.
  if (text.size() > kMaxTextSize - data_->Size()) tooLarge_ = true;
  if (tooLarge_) return false;
  const std::uint64_t digest = RecordDigest(key, text);
  generation_ = GenerationOf(generation_, digest);
  entries_.push_back({key, static_cast<std::uint32_t>(data_->Size()),
                      static_cast<std::uint32_t>(index_->Size()), RecordCheck(digest)});
  data_->Append(text);
  if (definition_.searchedFields != 0) {
    AppendToColumn(text.substr(0, FindTab(text, definition_.searchedFields)));
  }
  if (index_->Size() > kMaxTextSize) tooLarge_ = true;  // folding can make a text longer
  return !tooLarge_;
}

void TableWriter::AppendToColumn(std::string_view fields) {
  char* const room = index_->Room(fields.size() + 1);
  // Most texts are ASCII and are folded straight into the output buffer. Only from the first other character
  // on is the general folding used, whose result may be longer.
  const std::size_t ascii = CopyFoldedAscii(fields, room);
  if (ascii == fields.size()) {
    room[ascii] = kFieldSeparator;
    index_->Take(ascii + 1);
    return;
  }
  folded_.assign(room, ascii);
  AppendFoldCase(folded_, fields.substr(ascii));
  folded_ += kFieldSeparator;
  index_->Append(folded_);
}

bool TableWriter::Finish() {
  if (tooLarge_) return false;
  DataHeader data{};
  data.generation = generation_;
  data.fileSize = sizeof data + data_->Size();
  data.recordCount = static_cast<std::uint32_t>(entries_.size());
  data.fieldCount = definition_.fieldCount;

  IndexHeader index{};
  index.generation = data.generation;
  index.recordCount = data.recordCount;
  index.fieldCount = data.fieldCount;
  index.searchedFields = definition_.searchedFields;
  index.foldVersion = kFoldCaseVersion;
  index.dataFileSize = data.fileSize;
  index.source = source_;
  index.columnSize = index_->Size();
  // The word finder reads beyond the text that it searches.
  index_->Append(std::string(kColumnPadding, '\0'));
  index.columnCheck = index_->Flush();
  index.directoryCheck = WritePages(index);
  index.fileSize = LayoutOf(index).fileSize;
  // The index last: without it the data file counts for nothing.
  return data_->Commit(Seal(data)) && index_->Commit(Seal(index));
}

// Writes the entry pages and their directory; gives the directory's checksum.
std::uint64_t TableWriter::WritePages(const IndexHeader& header) {
  entries_.push_back(
      {0, static_cast<std::uint32_t>(data_->Size()), static_cast<std::uint32_t>(header.columnSize), 0});
  std::vector<PageItem> directory;
  for (std::size_t first = 0; first < header.recordCount; first += kPageEntries) {
    // Each page is written with the entry behind it, which the next page repeats as its first.
    const std::size_t count = std::min<std::size_t>(kPageEntries, header.recordCount - first);
    const std::string_view page = BytesOf(&entries_[first], count + 1);
    directory.push_back({entries_[first].key, 0, Checksum(page)});
    index_->Append(page);
  }
  const std::string_view items = BytesOf(directory.data(), directory.size());
  index_->Append(items);
  return Checksum(items);
}

bool TableWriter::PutInPlace() {
  putInPlace_ = SwapInTemporaries(files_, path_);
  return putInPlace_;
}

}  // namespace sonaro
