// Reads what sonaro-directory's UpdateText.cpp writes: lines of "::Key::value::", and sections of files
// between a start and an end line. The text may come from anybody as long as no publisher's key is installed,
// so everything is limited: how many sections, how many bytes, how long a value, which names.
#include "net/UpdateFile.h"

#include <algorithm>
#include <map>
#include <string_view>
#include <utility>

#include "base/DataFolder.h"
#include "base/Numbers.h"
#include "base/OwnFiles.h"
#include "base/Text.h"
#include "net/UpdateFormat.h"
#include "net/UpdateSignature.h"

namespace sonaro {

namespace {

constexpr std::size_t kMaxStampLength = 64;  // of a date, a version or a serial number

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
    line = NextField(rest_, '\n');
    if (line.ends_with('\r')) line.remove_suffix(1);
    return true;
  }

  std::string_view rest_;
};

bool IsMarker(std::string_view line, std::string_view name, std::string_view marker) {
  return line.size() == name.size() + marker.size() &&
         EqualIgnoringCase(line, std::string(name).append(marker));
}

// The sections as they are found, each name once.
class Sections {
 public:
  explicit Sections(UpdateContents& contents) : contents_(contents) {}

  // Takes a section when its start line follows; without it the lines are read as others are.
  void Take(std::string_view name, UpdateLines& lines) {
    std::string_view start;
    if (!lines.Peek(start) || !IsMarker(start, name, update::kSectionStart)) return;
    lines.Next(start);
    // Counted before the name is looked at, so that sections whose names are refused are limited too.
    if (++count_ > update::kMaxSections) return;
    const bool changes = EqualIgnoringCase(name, update::kChanges);
    const bool taken = changes || update::MayBringFile(name);
    if (!taken) ++contents_.skippedSections;
    std::string bytes;
    // A section ends at its end line, at the end of the text, or at two empty lines, where UpdateLines gives
    // an empty one.
    for (std::string_view line; lines.Next(line) && !line.empty();) {
      if (IsMarker(line, name, update::kSectionEnd)) break;
      bytes_ += line.size() + kLineEnd.size();
      if (TooLarge()) return;
      if (taken) bytes.append(line).append(kLineEnd);
    }
    if (changes) {
      contents_.changes = std::move(bytes);
    } else if (taken) {
      Keep(name, std::move(bytes));
    }
  }
  bool TooLarge() const { return count_ > update::kMaxSections || bytes_ > update::kMaxBytes; }

 private:
  void Keep(std::string_view name, std::string bytes) {
    const auto [place, isNew] = places_.try_emplace(FoldCase(name), contents_.files.size());
    if (isNew) contents_.files.push_back({std::string(name), {}});
    // Of two sections with one name the later one counts.
    contents_.files[place->second].bytes = std::move(bytes);
  }

  static constexpr std::string_view kLineEnd = "\r\n";

  UpdateContents& contents_;
  std::map<std::string, std::size_t> places_;  // folded names
  std::size_t count_ = 0;
  std::size_t bytes_ = 0;
};

// What stands between `mark` and `end`, wherever the mark is; nothing when one of them is missing.
std::optional<std::string> ValueBetween(std::string_view line, std::string_view mark, std::string_view end) {
  const std::size_t at = line.find(mark);
  if (at == std::string_view::npos) return std::nullopt;
  const std::string_view rest = line.substr(at + mark.size());
  const std::size_t length = rest.find(end);
  if (length == std::string_view::npos || length > kMaxStampLength) return std::nullopt;
  return std::string(rest.substr(0, length));
}

void TakeValues(std::string_view line, UpdateContents& contents) {
  std::vector<ServiceValue> found;
  FindServiceValues(line, found, contents.refusedValues);
  for (ServiceValue& value : found) {
    const auto same = std::find_if(contents.values.begin(), contents.values.end(), [&](const auto& known) {
      return std::string_view(known.setting) == value.setting;
    });
    if (same == contents.values.end()) {
      contents.values.push_back(std::move(value));
    } else {
      same->value = std::move(value.value);
    }
  }
}

void TakeOtherLine(std::string_view line, UpdateContents& contents) {
  if (line.starts_with(update::kDate)) {
    if (auto date = ValueBetween(line, update::kDate, "::")) contents.date = std::move(date);
  } else if (line.find(update::kVersion) != std::string_view::npos) {
    if (auto version = ValueBetween(line, update::kVersion, " ")) contents.version = std::move(version);
  } else if (line.starts_with(update::kSerial)) {
    const auto serial = ValueBetween(line, update::kSerial, "::");
    // Only a signed update has a serial number that means anything; it was set to 0 when the signature was
    // checked.
    if (contents.serial && serial) contents.serial = NumberValue(*serial);
  } else {
    TakeValues(line, contents);
  }
}

UpdateFileStatus StatusOf(SignatureCheck check) {
  switch (check) {
    case SignatureCheck::NotNeeded:
    case SignatureCheck::Good:
      return UpdateFileStatus::Read;
    case SignatureCheck::Missing:
      return UpdateFileStatus::NotSigned;
    case SignatureCheck::NoKey:
      return UpdateFileStatus::CannotCheck;
    case SignatureCheck::Wrong:
      break;
  }
  return UpdateFileStatus::WrongSign;
}

UpdateContents Refusal(UpdateFileStatus status) {
  UpdateContents contents;
  contents.status = status;
  return contents;
}

// Puts into `contents` what the text says; false when it says more than an update may.
bool ReadText(std::string_view text, UpdateContents& contents) {
  UpdateLines lines(text);
  Sections sections(contents);
  for (std::string_view line; lines.Next(line);) {
    if (StartsWithIgnoringCase(line, update::kFile)) {
      sections.Take(line.substr(update::kFile.size()), lines);
    } else {
      TakeOtherLine(line, contents);
    }
    if (sections.TooLarge()) return false;
  }
  return true;
}

}  // namespace

UpdateContents ReadUpdateText(std::string_view text) {
  UpdateContents contents = Refusal(UpdateFileStatus::Read);
  return ReadText(text, contents) ? contents : Refusal(UpdateFileStatus::TooLarge);
}

Sliced<UpdateContents> ReadUpdateFile(DataFolder& data) {
  const ReadResult file = data.Read(work_file::kUpdate);
  if (file.status != ReadStatus::Ok) co_return Refusal(UpdateFileStatus::Missing);
  std::string_view text = file.bytes;
  const SignatureCheck check = CheckUpdateSignature(data, text);
  UpdateContents contents = Refusal(StatusOf(check));
  if (contents.status != UpdateFileStatus::Read) co_return contents;
  co_await NextSlice();
  // A signed update without a serial number counts as the oldest of all.
  if (check == SignatureCheck::Good) contents.serial = 0;
  if (!ReadText(text, contents)) co_return Refusal(UpdateFileStatus::TooLarge);
  co_return contents;
}

}  // namespace sonaro
