// A table as somebody would make it who knows the format: the numbers and texts are what a test wrote over
// them, and every checksum is right.
#pragma once

#include <algorithm>
#include <cstring>
#include <string>
#include <string_view>

#include "directory/BlockWriter.h"
#include "directory/VmxFormat.h"

namespace sonaro {

template <typename Part>
Part PartAt(std::string_view bytes, std::uint64_t place) {
  Part part{};
  if (place <= bytes.size() && bytes.size() - place >= sizeof part)
    std::memcpy(&part, bytes.data() + place, sizeof part);
  return part;
}

template <typename Part>
void PutPart(std::string& bytes, std::uint64_t place, const Part& part) {
  if (place > bytes.size() || bytes.size() - place < sizeof part) return;
  std::memcpy(bytes.data() + place, &part, sizeof part);
}

// The place in the index of the entry with this number.
inline std::uint64_t PlaceOfEntry(const IndexLayout& layout, std::uint32_t number) {
  return layout.pages + (number + std::uint64_t{number / kPageEntries}) * sizeof(Entry);
}

// The checksums of records, pages, directory and column; gives the generation of the records. Only for an
// index whose sections fill the file.
inline std::uint64_t ResealSections(std::string_view data, std::string& index, IndexHeader& header) {
  const IndexLayout layout = LayoutOf(header);
  const std::string_view texts = data.substr(std::min(data.size(), sizeof(DataHeader)));
  std::uint64_t generation = header.fieldCount;
  for (std::uint32_t i = 0; i < header.recordCount; ++i) {
    const std::uint64_t place = PlaceOfEntry(layout, i);
    Entry entry = PartAt<Entry>(index, place);
    const std::uint32_t end = PartAt<Entry>(index, place + sizeof entry).dataOffset;
    if (entry.dataOffset > end || end > texts.size()) continue;
    const std::uint64_t digest =
        RecordDigest(entry.key, texts.substr(entry.dataOffset, end - entry.dataOffset));
    generation = GenerationOf(generation, digest);
    entry.check = RecordCheck(digest);
    PutPart(index, place, entry);
  }
  for (std::uint32_t page = 0; page < layout.pageCount; ++page) {
    const std::uint64_t place = layout.directory + page * sizeof(PageItem);
    const std::uint64_t first = PlaceOfEntry(layout, page * kPageEntries);
    const std::uint32_t count = std::min(kPageEntries, header.recordCount - page * kPageEntries) + 1;
    PageItem item = PartAt<PageItem>(index, place);
    item.check = Checksum(std::string_view(index).substr(first, count * sizeof(Entry)));
    PutPart(index, place, item);
  }
  header.directoryCheck = Checksum(std::string_view(index).substr(layout.directory));
  header.columnCheck =
      ChainedChecksum(std::string_view(index).substr(layout.column, layout.pages - layout.column));
  return generation;
}

// Makes every checksum of the two files right; sizes and generations are made to fit as well, other numbers
// stay.
inline void ResealTable(std::string& data, std::string& index) {
  if (data.size() < sizeof(DataHeader) || index.size() < sizeof(IndexHeader)) return;
  auto dataHeader = PartAt<DataHeader>(data, 0);
  auto header = PartAt<IndexHeader>(index, 0);
  header.fileSize = index.size();
  header.dataFileSize = data.size();
  const bool laidOut = header.columnSize <= kMaxTextSize && LayoutOf(header).fileSize == index.size();
  header.generation = laidOut ? ResealSections(data, index, header) : 0;
  dataHeader.fileSize = data.size();
  dataHeader.generation = header.generation;
  dataHeader.recordCount = header.recordCount;
  dataHeader.fieldCount = header.fieldCount;
  header.foldVersion = kFoldCaseVersion;
  data.replace(0, sizeof dataHeader, Seal(dataHeader));
  index.replace(0, sizeof header, Seal(header));
}

}  // namespace sonaro
