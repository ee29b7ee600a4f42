#include "directory/LazyBytes.h"

#include <algorithm>

namespace sonaro {
namespace {

constexpr std::size_t kMostReadAhead = 256 * 1024;  // bytes

}  // namespace

LazyBytes::LazyBytes(std::uint64_t offset, std::size_t size, std::size_t chunkSize)
    : offset_(offset),
      size_(size),
      chunkSize_(chunkSize),
      loaded_(size / chunkSize + 1),
      bytes_(std::make_unique_for_overwrite<char[]>(size)) {}

const char* LazyBytes::Get(InputFile& file, std::size_t at, std::size_t length) {
  if (at > size_ || length > size_ - at) return nullptr;
  if (length == 0) return bytes_.get() + at;
  const std::size_t end = (at + length - 1) / chunkSize_ + 1;
  for (std::size_t chunk = at / chunkSize_; chunk < end; ++chunk) {
    if (loaded_[chunk]) continue;
    const bool goesOn = chunk > 0 && loaded_[chunk - 1];
    readAhead_ = goesOn ? std::min(readAhead_ * 2, std::max<std::size_t>(kMostReadAhead / chunkSize_, 1)) : 1;
    if (!Load(file, chunk, std::max(end, chunk + readAhead_))) return nullptr;
  }
  return bytes_.get() + at;
}

bool LazyBytes::Load(InputFile& file, std::size_t firstChunk, std::size_t endChunk) {
  const std::size_t at = firstChunk * chunkSize_;
  const std::size_t length = std::min(endChunk * chunkSize_, size_) - at;
  if (!file.ReadAt(offset_ + at, bytes_.get() + at, length)) return false;
  endChunk = std::min(endChunk, loaded_.size());
  std::fill(loaded_.begin() + static_cast<std::ptrdiff_t>(firstChunk),
            loaded_.begin() + static_cast<std::ptrdiff_t>(endChunk), true);
  return true;
}

}  // namespace sonaro
