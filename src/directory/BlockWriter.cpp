// Records are a few hundred bytes each and there are many thousands, so they are gathered in a buffer and
// written in blocks of kBlock bytes. The checksum is chained over blocks of the same length whatever the
// pieces were: a reader that knows the stream only as a whole gets the same value (ChainedChecksum).
#include "directory/BlockWriter.h"

#include <algorithm>
#include <utility>

namespace sonaro {

BlockWriter::BlockWriter(std::unique_ptr<OutputFile> file, Checking checking)
    : file_(std::move(file)), checking_(checking), failed_(!file_) {}

void BlockWriter::WriteHeader(std::string_view header) { failed_ = failed_ || !file_->Append(header); }

// Twice a block at least, so that a piece that begins at the end of a block does not grow the buffer each
// time.
void BlockWriter::Grow(std::size_t length) { buffer_.resize(std::max(used_ + length, 2 * kBlock)); }

void BlockWriter::WriteBlocks() {
  std::size_t done = 0;
  for (; used_ - done >= kBlock; done += kBlock) WriteBlock({buffer_.data() + done, kBlock});
  used_ -= done;
  std::memmove(buffer_.data(), buffer_.data() + done, used_);
}

std::uint64_t BlockWriter::Flush() {
  if (used_ != 0) WriteBlock({buffer_.data(), used_});
  used_ = 0;
  return check_;
}

bool BlockWriter::Commit(std::string_view header) {
  Flush();
  // The header comes last although it stands first: it holds sizes and checksums of all that follows, and a
  // file whose writing was cut off still has the zeros that were put there, which no reader takes for a
  // header.
  failed_ = failed_ || !file_->WriteAt(0, header) || !file_->Commit(Durability::Cached);
  file_.reset();
  return !std::exchange(failed_, true);
}

void BlockWriter::WriteBlock(std::string_view block) {
  if (checking_ == Checking::Chained) check_ = Checksum(block, check_);
  failed_ = failed_ || !file_->Append(block);
  written_ += block.size();
}

}  // namespace sonaro
