#include "net/UpdateFile.h"

#include <memory>
#include <string_view>

#include "base/DataFolder.h"
#include "base/Text.h"
#include "net/UpdateFormat.h"
#include "net/UpdateSignature.h"

namespace sonaro {

namespace {

constexpr std::size_t kLongestStamp = 64;  // of a date or a version
constexpr std::size_t kPiece = 64 * 1024;  // what is written at once

std::string TemporaryName(std::string_view name) { return std::string("\\t").append(name); }

// The lines of the file. One empty line before a line is skipped; of two in a row the second is a line.
class UpdateLines {
 public:
  explicit UpdateLines(std::string_view text) : rest_(text) {}

  bool Next(std::string_view& line) {
    if (!TakeLine(line)) return false;
    return !line.empty() || TakeLine(line);
  }
  // The next line without taking it.
  bool Peek(std::string_view& line) const { return UpdateLines(*this).Next(line); }

 private:
  bool TakeLine(std::string_view& line) {
    if (rest_.empty()) return false;
    line = TakeUntil(rest_, '\n');
    if (line.ends_with('\r')) line.remove_suffix(1);
    return true;
  }

  std::string_view rest_;
};

bool IsMarker(std::string_view line, std::string_view name, std::string_view marker) {
  return line.size() == name.size() + marker.size() &&
         EqualIgnoringCase(line, std::string(name).append(marker));
}

// Writes one section; its start line has been taken.
class SectionWriter {
 public:
  SectionWriter(DataFolder& data, std::string_view name)
      : file_(data.FileSystem().Create(data.Path(TemporaryName(name)))), failed_(!file_) {}

  void Add(std::string_view line) {
    buffer_.append(line).append("\r\n");
    if (buffer_.size() >= kPiece) Flush();
  }
  bool Finish() {
    Flush();
    return !failed_ && file_->Commit(Durability::Flushed);
  }

 private:
  void Flush() {
    failed_ = failed_ || !file_->Append(buffer_);
    buffer_.clear();
  }

  std::unique_ptr<OutputFile> file_;
  std::string buffer_;
  bool failed_;
};

bool WriteSection(DataFolder& data, std::string_view name, UpdateLines& lines) {
  SectionWriter writer(data, name);
  for (std::string_view line; lines.Next(line) && !line.empty();) {
    if (IsMarker(line, name, update::kSectionEnd)) break;
    writer.Add(line);
  }
  return writer.Finish();
}

void SkipSection(std::string_view name, UpdateLines& lines) {
  for (std::string_view line; lines.Next(line) && !line.empty();) {
    if (IsMarker(line, name, update::kSectionEnd)) break;
  }
}

bool IsReceived(const UpdateContents& contents, std::string_view name) {
  for (std::string_view rest = contents.received; !rest.empty();) {
    if (EqualIgnoringCase(TakeUntil(rest, '\t'), name)) return true;
  }
  return false;
}

// False when the file could not be saved. Without its start line a section is none, and its lines are read as
// others are.
bool TakeSection(DataFolder& data, std::string_view name, UpdateLines& lines, UpdateContents& contents) {
  std::string_view start;
  if (!lines.Peek(start) || !IsMarker(start, name, update::kSectionStart)) return true;
  lines.Next(start);
  if (!update::MayBringFile(name)) {
    ++contents.skippedSections;
    SkipSection(name, lines);
    return true;
  }
  if (!IsReceived(contents, name)) contents.received.append(name).append("\t");
  return WriteSection(data, name, lines);
}

// What stands between `mark` and `end`, wherever the mark is; nothing when one of them is missing.
std::optional<std::string> ValueBetween(std::string_view line, std::string_view mark, std::string_view end) {
  const std::size_t at = line.find(mark);
  if (at == std::string_view::npos) return std::nullopt;
  const std::string_view rest = line.substr(at + mark.size());
  const std::size_t length = rest.find(end);
  if (length == std::string_view::npos || length > kLongestStamp) return std::nullopt;
  return std::string(rest.substr(0, length));
}

void TakeOtherLine(std::string_view line, UpdateContents& contents) {
  if (line.starts_with(update::kDate)) {
    if (auto date = ValueBetween(line, update::kDate, "::")) contents.date = std::move(date);
  } else if (line.find(update::kVersion) != std::string_view::npos) {
    if (auto version = ValueBetween(line, update::kVersion, " ")) contents.version = std::move(version);
  } else {
    FindServiceValues(line, contents.values, contents.refusedValues);
  }
}

UpdateFileStatus StatusOf(SignatureCheck check) {
  switch (check) {
    case SignatureCheck::NotNeeded:
    case SignatureCheck::Good:
      return UpdateFileStatus::Read;
    case SignatureCheck::Missing:
      return UpdateFileStatus::NotSigned;
    case SignatureCheck::Wrong:
      break;
  }
  return UpdateFileStatus::WrongSign;
}

}  // namespace

UpdateContents ReadUpdateFile(DataFolder& data) {
  UpdateContents contents;
  const ReadResult file = data.Read(kUpdateFileName);
  if (file.status != ReadStatus::Ok) return contents;
  std::string_view text = file.bytes;
  contents.status = StatusOf(CheckUpdateSignature(data, text));
  if (contents.status != UpdateFileStatus::Read) return contents;

  UpdateLines lines(text);
  for (std::string_view line; lines.Next(line);) {
    if (!StartsWithIgnoringCase(line, update::kFile)) {
      TakeOtherLine(line, contents);
    } else if (!TakeSection(data, line.substr(update::kFile.size()), lines, contents)) {
      DropReceived(data, contents.received);
      contents = {};
      contents.status = UpdateFileStatus::NotSaved;
      return contents;
    }
  }
  return contents;
}

void DropReceived(DataFolder& data, const std::string& received) {
  for (std::string_view rest = received; !rest.empty();) data.Remove(TemporaryName(TakeUntil(rest, '\t')));
}

}  // namespace sonaro
