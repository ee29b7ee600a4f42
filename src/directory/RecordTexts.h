// The texts of a table's records, read from its data file as they are asked for: record by record when few
// are, in large steps when they are asked for in order, and all at once, to stay in memory, when so many are
// that single reads would cost more and the file is not too large. Owned by a TableImage, which outlives the
// open file: each call is given the file anew. Checks nothing.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>

#include "base/Files.h"
#include "directory/ByteScan.h"

namespace sonaro {

class RecordTexts {
 public:
  // The `size` bytes at `offset` of the file.
  RecordTexts(std::uint64_t offset, std::size_t size);

  // So many texts are going to be asked for, in any order.
  void Expect(std::size_t reads) { expected_ = reads; }

  // The text at `at` is going to be asked for soon: brings it near when it is in memory.
  void Bring(std::size_t at) const {
    if (at >= begin_ && at < end_) Prefetch(bytes_.get() + (at - begin_));
  }
  // The bytes from `at` to `at + length` of the texts; null when they are not all there or could not be read.
  // Valid until the next call.
  const char* Get(InputFile& file, std::size_t at, std::size_t length);

 private:
  bool ReadIn(InputFile& file, std::size_t at, std::size_t length);
  bool Load(InputFile& file, std::size_t at, std::size_t length);

  std::uint64_t offset_;
  std::size_t size_;
  std::size_t expected_ = 0;
  std::size_t reads_ = 0;  // single ones, so far
  // What is in memory: the bytes from begin_ to end_.
  std::unique_ptr<char[]> bytes_;
  std::size_t capacity_ = 0;
  std::size_t begin_ = 0;
  std::size_t end_ = 0;
};

}  // namespace sonaro
