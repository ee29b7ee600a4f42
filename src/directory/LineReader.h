// The lines of a file of any size, one after the other, in a buffer as large as the longest line needs. Lives
// for one pass over a file.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "base/Files.h"

namespace sonaro {

class LineReader {
 public:
  explicit LineReader(InputFile& file) : file_(file) {}

  // The next line without its line feed (a carriage return before it stays), valid until the next call. A
  // UTF-8 byte order mark at the start of the file is left out. False at the end and after a failure.
  bool Next(std::string_view& line);
  // ChainedChecksum of all that was read, of the whole file once Next has come to its end.
  std::uint64_t Check() const { return check_; }
  // True when the file could not be read to its end.
  bool Failed() const { return failed_; }

 private:
  bool Fill();

  InputFile& file_;
  std::vector<char> buffer_;
  std::size_t begin_ = 0;  // of what was read and not yet given out
  std::size_t end_ = 0;
  std::uint64_t position_ = 0;  // in the file, of what comes next into the buffer
  std::uint64_t check_ = 0;
  bool failed_ = false;
};

}  // namespace sonaro
