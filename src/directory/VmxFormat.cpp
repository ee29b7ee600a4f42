#include "directory/VmxFormat.h"

#include <cstring>

#include "base/Numbers.h"

namespace sonaro {
namespace {

constexpr std::array<char, 8> kDataMagic = {'S', 'o', 'n', 'a', 'r', 'o', 'I', 'D'};
constexpr std::array<char, 8> kIndexMagic = {'S', 'o', 'n', 'a', 'r', 'o', 'I', 'M'};
constexpr std::uint32_t kMaxFields = 64;

template <typename Header>
// The checksum stands last in its header and covers what is before it.
std::uint64_t CheckOf(const Header& header) {
  return Checksum({reinterpret_cast<const char*>(&header), offsetof(Header, check)});
}

template <typename Header>
std::string SealAs(Header header, const std::array<char, 8>& magic) {
  header.magic = magic;
  header.byteOrder = kByteOrderMark;
  header.version = kFormatVersion;
  header.check = CheckOf(header);
  return {reinterpret_cast<const char*>(&header), sizeof header};
}

template <typename Header>
std::optional<Header> ParseAs(std::string_view bytes, std::uint64_t fileSize,
                              const std::array<char, 8>& magic) {
  Header header;
  if (bytes.size() < sizeof header) return {};
  std::memcpy(&header, bytes.data(), sizeof header);
  const bool known =
      header.magic == magic && header.byteOrder == kByteOrderMark && header.version == kFormatVersion;
  const bool sound = known && header.check == CheckOf(header) && header.fileSize == fileSize &&
                     header.fieldCount > 0 && header.fieldCount <= kMaxFields;
  return sound ? std::optional(header) : std::nullopt;
}

}  // namespace

IndexLayout LayoutOf(const IndexHeader& header) {
  IndexLayout layout{};
  layout.pageCount = header.recordCount / kPageEntries + (header.recordCount % kPageEntries != 0 ? 1 : 0);
  layout.column = sizeof header;
  layout.pages = layout.column + header.columnSize + kColumnPadding;
  layout.directory = layout.pages + (std::uint64_t{header.recordCount} + layout.pageCount) * sizeof(Entry);
  layout.fileSize = layout.directory + layout.pageCount * sizeof(PageItem);
  return layout;
}

std::string Seal(DataHeader header) { return SealAs(header, kDataMagic); }

std::string Seal(IndexHeader header) { return SealAs(header, kIndexMagic); }

std::optional<DataHeader> ParseDataHeader(std::string_view bytes, std::uint64_t fileSize) {
  const auto header = ParseAs<DataHeader>(bytes, fileSize, kDataMagic);
  const bool sound = header && fileSize >= sizeof *header && fileSize - sizeof *header <= kMaxTextSize;
  return sound ? header : std::nullopt;
}

std::optional<IndexHeader> ParseIndexHeader(std::string_view bytes, std::uint64_t fileSize) {
  const auto header = ParseAs<IndexHeader>(bytes, fileSize, kIndexMagic);
  const bool sound = header && header->columnSize <= kMaxTextSize && LayoutOf(*header).fileSize == fileSize &&
                     header->searchedFields <= header->fieldCount && header->foldVersion == kFoldCaseVersion;
  return sound ? header : std::nullopt;
}

// Sizes and counts are compared as well, so that an equal generation by chance never joins files that do not
// fit.
bool SameGeneration(const DataHeader& data, const IndexHeader& index) {
  return data.generation == index.generation && data.fileSize == index.dataFileSize &&
         data.recordCount == index.recordCount && data.fieldCount == index.fieldCount;
}

std::uint64_t RecordDigest(std::int32_t key, std::string_view text) {
  return Checksum(text, static_cast<std::uint32_t>(key));
}

std::optional<TableDefinition> ParseDefinition(std::string_view text, std::uint32_t searchedFields) {
  // The only form there is: "&,R", the number of texts, "$".
  if (!text.starts_with("&,R") || !text.ends_with('$')) return {};
  text.remove_prefix(3);
  text.remove_suffix(1);
  std::int32_t count = 0;
  if (!ParseStationId(text, count) || count <= 0 || static_cast<std::uint32_t>(count) > kMaxFields) return {};
  const TableDefinition definition{static_cast<std::uint32_t>(count), searchedFields};
  return searchedFields <= definition.fieldCount ? std::optional(definition) : std::nullopt;
}

}  // namespace sonaro
