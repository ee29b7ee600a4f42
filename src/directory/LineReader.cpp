// The buffer holds the part of the file from begin_ to end_ that has not been given out. A line is found in
// it or the buffer is filled further; what is left is moved to the front first, so a line always lies in one
// piece. The checksum is taken over what is read, block by block, so the caller gets it without a second
// pass.
#include "directory/LineReader.h"

#include <algorithm>
#include <cstring>

#include "base/Utf8.h"
#include "directory/ByteScan.h"
#include "directory/Checksum.h"

namespace sonaro {
namespace {

constexpr std::size_t kBufferSize = 256 * 1024;
static_assert(kBufferSize % kChecksumBlock == 0, "what is read at once are whole blocks of the checksum");

}  // namespace

// `searched` keeps a very long line from being searched from its start after every read.
bool LineReader::Next(std::string_view& line) {
  std::size_t searched = 0;
  for (;;) {
    const std::string_view rest(buffer_.data() + begin_, end_ - begin_);
    const std::size_t length = searched + FindByte(rest.substr(searched), '\n');
    if (length < rest.size()) {
      line = rest.substr(0, length);
      begin_ += length + 1;
      return true;
    }
    if (Fill()) {
      searched = length;
      continue;
    }
    line = rest;
    begin_ = end_;
    return !failed_ && !line.empty();
  }
}

// Reads on behind what is still to be given out. False at the end of the file and after a failure.
bool LineReader::Fill() {
  const auto left = static_cast<std::size_t>(std::min<std::uint64_t>(file_.Size() - position_, kBufferSize));
  if (left == 0 || failed_) return false;
  if (begin_ != 0) std::memmove(buffer_.data(), buffer_.data() + begin_, end_ - begin_);
  end_ -= begin_;
  begin_ = 0;
  if (buffer_.size() - end_ < left) buffer_.resize(std::max(end_ + left, 2 * buffer_.size()));
  failed_ = !file_.ReadAt(position_, buffer_.data() + end_, left);
  if (failed_) return false;
  // Every read but the last is of kBufferSize, a multiple of the checksum's blocks: the chain is the same as
  // over the whole file.
  check_ = ChainedChecksum({buffer_.data() + end_, left}, check_);
  const bool marked = position_ == 0 && std::string_view(buffer_.data(), left).starts_with(kMarkOfUtf8);
  if (marked) begin_ = kMarkOfUtf8.size();
  end_ += left;
  position_ += left;
  return true;
}

}  // namespace sonaro
