// The two files of an indexed table, byte by byte. Numbers are little-endian; positions count from the start
// of the file. Used by the writer and the reader of tables only.
//
//   X.isd  DataHeader, then the text of every record in key order: its fields with a tab between them.
//   X.ism  IndexHeader;
//          search column: for every record in key order its searched fields, folded, each followed by a tab,
//            then kColumnPadding zero bytes, so that 16 bytes can be read at any position of the column;
//          entry pages: kPageEntries entries each (the last page what is left), followed by the entry after
//            them, so that the end of a record never needs a second page. The entry after the last record
//            holds the ends of both texts;
//          page directory: one PageItem a page.
//
// Every byte is checked before it is used: the headers by their own checksum, the column and the directory by
// the index header's, a page by the directory's, a record's text by its entry's. Positions are not trusted
// even so: what would lie outside its section counts as damage. The generation, a digest of all keys and
// records, stands in both headers and tells whether the files belong together; equal generations mean equal
// records.
#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <string_view>

#include "base/Text.h"
#include "directory/Checksum.h"

namespace sonaro {

static_assert(std::endian::native == std::endian::little, "table files are little-endian");

inline constexpr std::string_view kDataExtension = ".isd";
inline constexpr std::string_view kIndexExtension = ".ism";

inline constexpr std::uint32_t kFormatVersion = 2;
inline constexpr std::uint32_t kByteOrderMark = 0x01020304;
inline constexpr char kFieldSeparator = '\t';
inline constexpr std::size_t kColumnPadding = 64;
inline constexpr std::uint32_t kPageEntries = 512;
inline constexpr std::uint64_t kMaxTextSize = std::numeric_limits<std::uint32_t>::max();

// The list that a table was made of: its length and its checksum (ChainedChecksum). Two zeros for a table
// that was made of none, or changed since.
struct TableSource {
  std::uint64_t size;
  std::uint64_t check;
  bool operator==(const TableSource&) const = default;
};

struct Entry {
  std::int32_t key;
  std::uint32_t dataOffset;    // of the record's text, from the end of the data header
  std::uint32_t columnOffset;  // of its part of the search column
  std::uint32_t check;         // RecordCheck of the record
};

struct PageItem {
  std::int32_t firstKey;
  std::uint32_t unused;  // 0
  std::uint64_t check;   // of the page's bytes
};

struct DataHeader {
  std::array<char, 8> magic;
  std::uint32_t byteOrder;
  std::uint32_t version;
  std::uint64_t generation;
  std::uint64_t fileSize;
  std::uint32_t recordCount;
  std::uint32_t fieldCount;
  std::uint64_t check;  // of the bytes before it
};

struct IndexHeader {
  std::array<char, 8> magic;
  std::uint32_t byteOrder;
  std::uint32_t version;
  std::uint64_t generation;
  std::uint64_t fileSize;
  std::uint32_t recordCount;
  std::uint32_t fieldCount;
  std::uint32_t searchedFields;  // the first fields of a record that stand in the search column
  std::uint32_t foldVersion;     // kFoldCaseVersion of the program that wrote the column
  std::uint64_t dataFileSize;
  std::uint64_t columnSize;  // without the padding
  std::uint64_t columnCheck;
  std::uint64_t directoryCheck;
  TableSource source;
  std::uint64_t check;  // of the bytes before it
};

static_assert(sizeof(Entry) == 16 && sizeof(PageItem) == 16);
static_assert(sizeof(DataHeader) == 48 && sizeof(IndexHeader) == 104);

// Where the sections of an index file lie.
struct IndexLayout {
  std::uint64_t column;
  std::uint64_t pages;
  std::uint64_t directory;
  std::uint64_t fileSize;
  std::uint32_t pageCount;
};
IndexLayout LayoutOf(const IndexHeader& header);

// A header's bytes with magic, byte order, version and checksum filled in.
std::string Seal(DataHeader header);
std::string Seal(IndexHeader header);

// The header that the bytes hold; nothing when any check fails. `fileSize` is the real one.
std::optional<DataHeader> ParseDataHeader(std::string_view bytes, std::uint64_t fileSize);
std::optional<IndexHeader> ParseIndexHeader(std::string_view bytes, std::uint64_t fileSize);

// True when the two headers belong to the same generation.
bool SameGeneration(const DataHeader& data, const IndexHeader& index);

std::uint64_t RecordDigest(std::int32_t key, std::string_view text);
constexpr std::uint32_t RecordCheck(std::uint64_t digest) { return static_cast<std::uint32_t>(digest >> 32); }

// The digest of a table in the making: starts with its number of fields and takes every record in key order.
constexpr std::uint64_t GenerationOf(std::uint64_t soFar, std::uint64_t recordDigest) {
  return MixChecksum(soFar, recordDigest);
}

// What a table is created with: "&,R16$" is a 32-bit key and sixteen texts.
struct TableDefinition {
  std::uint32_t fieldCount = 0;
  std::uint32_t searchedFields = 0;  // the first so many fields can be searched
};
std::optional<TableDefinition> ParseDefinition(std::string_view text, std::uint32_t searchedFields);

}  // namespace sonaro
