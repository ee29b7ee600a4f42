#include "base/UserFile.h"

#include <optional>
#include <utility>

#include "base/DataFolder.h"
#include "base/Utf8.h"

namespace sonaro {

namespace {

constexpr int kMaxCopies = 9;

// The text in a file's bytes; nothing when they are none. No text of ours holds a zero character, and a power
// cut can leave a file full of them.
std::optional<std::string> TextIn(std::string_view bytes) {
  const bool isUtf8 = bytes.starts_with(kMarkOfUtf8);
  if (isUtf8) bytes.remove_prefix(kMarkOfUtf8.size());
  std::optional<Utf16Text> wide = isUtf8 ? std::nullopt : DecodeMarkedUtf16(bytes);
  if (wide && wide->damaged) return std::nullopt;
  std::string text = wide ? std::move(wide->text) : std::string(bytes);
  if (text.find('\0') != std::string::npos) return std::nullopt;
  return text;
}

// The bytes that TextIn makes `text` of: one that begins as a mark does, as a pasted name can, stands behind
// another mark.
std::string FileBytesOf(std::string_view text) {
  for (const std::string_view mark : {kMarkOfUtf8, kMarkOfUtf16Little, kMarkOfUtf16Big}) {
    if (text.starts_with(mark)) return std::string(kMarkOfUtf8).append(text);
  }
  return std::string(text);
}

}  // namespace

// A missing file is not a changed one: what was read before stays, and the next Save brings it back.
UserFile::Seen UserFile::Look() {
  ReadResult read = data_.Read(name_);
  const bool first = !std::exchange(seen_, true);
  const bool wasUnread = std::exchange(unread_, read.status == ReadStatus::Unreadable);
  if (unread_) {
    if (first) data_.Note({FileNote::Kind::Unreadable, name_.substr(1), ""});
    return Seen::Unreadable;
  }
  if (read.status == ReadStatus::Missing || read.bytes == bytes_) {
    return first || wasUnread ? Seen::Changed : Seen::Same;
  }
  if (TakeOver(std::move(read.bytes))) return Seen::Changed;
  unread_ = true;  // not a text, and no place to keep it: it stays where it is
  return Seen::Unreadable;
}

bool UserFile::TakeOver(std::string bytes) {
  std::optional<std::string> text = TextIn(bytes);
  std::swap(bytes_, bytes);
  if (!text && !KeepBeside()) {
    std::swap(bytes_, bytes);
    return false;
  }
  if (text) text_ = std::move(*text);
  return true;
}

bool UserFile::Save(std::string_view text) {
  std::string bytes = FileBytesOf(text);
  if (unread_ || !data_.Save(name_, bytes)) return false;
  bytes_ = std::move(bytes);
  text_ = text;
  return true;
}

// ".bad", ".bad2" to ".bad9"; a copy with the same bytes serves again. When all are taken the file stays
// where it is and is treated as unreadable.
bool UserFile::KeepBeside() {
  for (int copy = 1; copy <= kMaxCopies; ++copy) {
    const std::string beside = name_ + (copy == 1 ? ".bad" : ".bad" + std::to_string(copy));
    const ReadResult there = data_.Read(beside);
    const bool kept = there.status == ReadStatus::Ok && there.bytes == bytes_;
    if (there.status != ReadStatus::Missing && !kept) continue;
    if (!kept && !data_.Save(beside, bytes_)) return false;
    data_.Note({FileNote::Kind::KeptBeside, name_.substr(1), beside.substr(1)});
    return true;
  }
  return false;
}

}  // namespace sonaro
