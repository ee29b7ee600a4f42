#include "directory/BlockWriter.h"

#include <algorithm>
#include <cstring>
#include <utility>

#include "directory/Checksum.h"
#include "directory/VmxFormat.h"

namespace sonaro {

BlockWriter::BlockWriter(std::unique_ptr<OutputFile> file, Checking checking)
    : file_(std::move(file)), checking_(checking), failed_(!file_) {}

void BlockWriter::WriteHeader(std::string_view header) { failed_ = failed_ || !file_->Append(header); }

char* BlockWriter::Room(std::size_t length) {
  if (buffer_.size() - used_ < length) buffer_.resize(std::max(used_ + length, 2 * kColumnBlock));
  return buffer_.data() + used_;
}

void BlockWriter::Take(std::size_t length) {
  used_ += length;
  size_ += length;
  if (used_ < kColumnBlock) return;
  std::size_t written = 0;
  for (; used_ - written >= kColumnBlock; written += kColumnBlock) {
    WriteBlock({buffer_.data() + written, kColumnBlock});
  }
  used_ -= written;
  std::memmove(buffer_.data(), buffer_.data() + written, used_);
}

void BlockWriter::Append(std::string_view bytes) {
  if (!bytes.empty()) std::memcpy(Room(bytes.size()), bytes.data(), bytes.size());
  Take(bytes.size());
}

std::uint64_t BlockWriter::Flush() {
  if (used_ != 0) WriteBlock({buffer_.data(), used_});
  used_ = 0;
  return check_;
}

bool BlockWriter::Commit(std::string_view header) {
  Flush();
  failed_ = failed_ || !file_->WriteAt(0, header) || !file_->Commit(Durability::Cached);
  file_.reset();
  return !std::exchange(failed_, true);
}

void BlockWriter::WriteBlock(std::string_view block) {
  if (checking_ == Checking::Chained) check_ = Checksum(block, check_);
  failed_ = failed_ || !file_->Append(block);
}

std::uint64_t ChainedChecksum(std::string_view stream) {
  std::uint64_t check = 0;
  for (; !stream.empty(); stream.remove_prefix(std::min(stream.size(), kColumnBlock))) {
    check = Checksum(stream.substr(0, kColumnBlock), check);
  }
  return check;
}

}  // namespace sonaro
