// Writes a stream of small pieces to a file in whole blocks, on request with a checksum chained over the
// blocks. Owned by a TableWriter. A failure is remembered: after it everything is accepted and nothing
// written.
#pragma once

#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

#include "base/Files.h"

namespace sonaro {

class BlockWriter {
 public:
  enum class Checking { None, Chained };

  // `file` may be null, which counts as a failed write.
  BlockWriter(std::unique_ptr<OutputFile> file, Checking checking);

  // Writes past the stream, for what stands before it in the file; not part of Size or the checksum.
  void WriteHeader(std::string_view header);

  // A place for `length` bytes at the end of the stream, valid until the next call.
  char* Room(std::size_t length);
  // Makes the first `length` bytes of that place part of the stream.
  void Take(std::size_t length);
  void Append(std::string_view bytes);

  std::uint64_t Size() const { return size_; }
  // Writes what is left. Gives the checksum of the stream (ChainedChecksum) when it was asked for and this is
  // the first call.
  std::uint64_t Flush();
  // Puts the real header in the place of the first and closes the file. False when any byte was not written.
  bool Commit(std::string_view header);

 private:
  void WriteBlock(std::string_view block);

  std::unique_ptr<OutputFile> file_;
  Checking checking_;
  std::vector<char> buffer_;
  std::size_t used_ = 0;
  std::uint64_t size_ = 0;
  std::uint64_t check_ = 0;
  bool failed_ = false;
};

// The checksum of a whole stream, chained over its blocks as BlockWriter does.
std::uint64_t ChainedChecksum(std::string_view stream);

}  // namespace sonaro
