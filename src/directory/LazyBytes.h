// A section of a file that is brought into memory chunk by chunk as it is used. Owned by a TableImage, which
// outlives the open file: each call is given the file anew. Knows nothing of what the bytes mean and checks
// nothing.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

#include "base/Files.h"

namespace sonaro {

class LazyBytes {
 public:
  LazyBytes() = default;
  // The section of `size` bytes at `offset` of the file. Reserves memory for all of it, touches none.
  LazyBytes(std::uint64_t offset, std::size_t size, std::size_t chunkSize);

  // The bytes at `at` to `at + length` of the section, read as needed, or null when they are not all in it or
  // could not be read. Valid as long as this object.
  const char* Get(InputFile& file, std::size_t at, std::size_t length);

  // The start of the section, for positions that Get has brought in.
  const char* Loaded() const { return bytes_.get(); }
  std::size_t Size() const { return size_; }

 private:
  bool Load(InputFile& file, std::size_t firstChunk, std::size_t endChunk);

  std::uint64_t offset_ = 0;
  std::size_t size_ = 0;
  std::size_t chunkSize_ = 1;
  std::size_t readAhead_ = 1;  // chunks to read at once when reading goes on where it stopped
  std::vector<bool> loaded_;
  std::unique_ptr<char[]> bytes_;
};

}  // namespace sonaro
