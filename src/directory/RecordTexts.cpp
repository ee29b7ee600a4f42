// Three ways of reading a data file, chosen by how the table is used: the detail of one station needs one
// short read; reading one record after the other takes large steps ahead; and a search with many hits touches
// so many records all over the file that the whole of it is cheaper. The choice is made by counting the short
// reads.
#include "directory/RecordTexts.h"

#include <algorithm>

namespace sonaro {
namespace {

constexpr std::size_t kReadStep = 256 * 1024;           // of reading in order
constexpr std::size_t kMaxInMemory = 64 * 1024 * 1024;  // of all texts at once
constexpr std::size_t kReadCost = 4096;                 // bytes read in one go while one text is

}  // namespace

RecordTexts::RecordTexts(std::uint64_t offset, std::size_t size) : offset_(offset), size_(size) {}

const char* RecordTexts::Get(InputFile& file, std::size_t at, std::size_t length) {
  if (at > size_ || length > size_ - at) return nullptr;
  if (length == 0) return "";
  const bool inMemory = at >= begin_ && at <= end_ && length <= end_ - at;
  if (!inMemory && !ReadIn(file, at, length)) return nullptr;
  return bytes_.get() + (at - begin_);
}

bool RecordTexts::ReadIn(InputFile& file, std::size_t at, std::size_t length) {
  // A read that begins where the last one ended is taken for reading in order.
  const bool goesOn = at == end_ && end_ != 0;
  if (goesOn) return Load(file, at, std::min(std::max(kReadStep, length), size_ - at));
  const bool many = std::max(++reads_, expected_) > size_ / kReadCost && size_ <= kMaxInMemory;
  return many ? Load(file, 0, size_) : Load(file, at, length);
}

bool RecordTexts::Load(InputFile& file, std::size_t at, std::size_t length) {
  // Nothing is valid until the read has succeeded; after a failure the buffer holds neither the old nor the
  // new.
  begin_ = end_ = 0;
  if (capacity_ < length) {
    bytes_ = std::make_unique_for_overwrite<char[]>(length);
    capacity_ = length;
  }
  if (!file.ReadAt(offset_ + at, bytes_.get(), length)) return false;
  begin_ = at;
  end_ = at + length;
  return true;
}

}  // namespace sonaro
