// Writes a stream of small pieces to a file in whole blocks, on request with a checksum chained over the
// blocks. Owned by a TableWriter. A failure is remembered: after it everything is accepted and nothing
// written.
#pragma once

#include <cstdint>
#include <cstring>
#include <memory>
#include <string_view>
#include <vector>

#include "base/Files.h"
#include "directory/Checksum.h"

namespace sonaro {

class BlockWriter {
 public:
  enum class Checking { None, Chained };

  // `file` may be null, which counts as a failed write.
  BlockWriter(std::unique_ptr<OutputFile> file, Checking checking);

  // Writes past the stream, for what stands before it in the file; not part of Size or the checksum.
  void WriteHeader(std::string_view header);

  // A place for `length` bytes at the end of the stream, valid until the next call.
  char* Room(std::size_t length) {
    if (buffer_.size() - used_ < length) Grow(length);
    return buffer_.data() + used_;
  }
  // Makes the first `length` bytes of that place part of the stream.
  void Take(std::size_t length) {
    used_ += length;
    if (used_ >= kBlock) WriteBlocks();
  }
  void Append(std::string_view bytes) {
    if (!bytes.empty()) std::memcpy(Room(bytes.size()), bytes.data(), bytes.size());
    Take(bytes.size());
  }

  std::uint64_t Size() const { return written_ + used_; }
  // Writes what is left. Gives the checksum of the stream (ChainedChecksum) when it was asked for and this is
  // the first call.
  std::uint64_t Flush();
  // Puts the real header in the place of the first and closes the file. False when any byte was not written.
  bool Commit(std::string_view header);

 private:
  static constexpr std::size_t kBlock = kChecksumBlock;

  void Grow(std::size_t length);
  void WriteBlocks();
  void WriteBlock(std::string_view block);

  std::unique_ptr<OutputFile> file_;
  Checking checking_;
  std::vector<char> buffer_;
  std::size_t used_ = 0;
  std::uint64_t written_ = 0;
  std::uint64_t check_ = 0;
  bool failed_ = false;
};

}  // namespace sonaro
