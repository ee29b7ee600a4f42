#include "net/UpdateChanges.h"

#include <algorithm>
#include <charconv>
#include <utility>

#include "base/DataFolder.h"
#include "base/Text.h"
#include "base/crypto/Signing.h"
#include "net/UpdateFile.h"
#include "net/UpdateFormat.h"

namespace sonaro {

// What one file becomes. Outside the unnamed namespace, since the frame of ExpandChanges holds one.
struct FileChange {
  std::string_view name, was, becomes;
  std::string_view steps;
};

namespace {

constexpr char kFileMark = '>';
constexpr std::string_view kLineEnd = "\r\n";

// What stands on the next line, without its end.
std::string_view NextLine(std::string_view& rest) {
  std::string_view line = NextField(rest, '\n');
  if (line.ends_with('\r')) line.remove_suffix(1);
  return line;
}

// Takes the digits and the blank after them from the front of `line`. No sign, no blank before: a step that
// somebody else's rules could read differently is no step.
bool TakeNumber(std::string_view& line, std::size_t& number) {
  const auto [end, error] = std::from_chars(line.data(), line.data() + line.size(), number);
  if (error != std::errc() || end == line.data() + line.size() || *end != ' ') return false;
  line.remove_prefix(static_cast<std::size_t>(end - line.data()) + 1);
  return true;
}

// A backslash and anything else than the four is refused, not kept: the publisher writes no other.
bool AppendUnescaped(std::string_view text, std::string& out) {
  while (!text.empty()) {
    const std::size_t plain = std::min(text.find('\\'), text.size());
    out.append(text.substr(0, plain));
    text.remove_prefix(plain);
    if (text.empty()) break;
    if (text.size() < 2) return false;
    switch (text[1]) {
      case 'n':
        out.append(kLineEnd);
        break;
      case 'r':
        out.push_back('\r');
        break;
      case 'l':
        out.push_back('\n');
        break;
      case '\\':
        out.push_back('\\');
        break;
      default:
        return false;
    }
    text.remove_prefix(2);
  }
  return true;
}

// Takes the next file and its steps from the section; false when they do not begin with a line of a file.
bool TakeFile(std::string_view& section, FileChange& change) {
  std::string_view head = NextLine(section);
  if (!head.starts_with(kFileMark)) return false;
  head.remove_prefix(1);
  change.name = NextField(head, '\t');
  change.was = NextField(head, '\t');
  change.becomes = head;
  const std::string_view from = section;
  while (!section.empty() && section.front() != kFileMark) NextLine(section);
  change.steps = from.substr(0, from.size() - section.size());
  return true;
}

}  // namespace

std::optional<std::string> ApplySteps(std::string_view before, std::string_view steps, std::size_t maxBytes) {
  std::string after;
  after.reserve(std::min(maxBytes, before.size() + steps.size()));
  while (!steps.empty()) {
    std::string_view line = NextLine(steps);
    std::size_t keep = 0, skip = 0;
    if (!TakeNumber(line, keep) || !TakeNumber(line, skip)) return std::nullopt;
    if (keep > before.size() || skip > before.size() - keep) return std::nullopt;
    after.append(before.substr(0, keep));
    before.remove_prefix(keep + skip);
    if (!AppendUnescaped(line, after) || after.size() > maxBytes) return std::nullopt;
  }
  if (before.size() > maxBytes - after.size()) return std::nullopt;
  return std::move(after.append(before));
}

std::string EscapedForStep(std::string_view text) {
  std::string out;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text.substr(i).starts_with(kLineEnd)) {
      out.append("\\n");
      ++i;
    } else if (text[i] == '\r' || text[i] == '\n' || text[i] == '\\') {
      out.append(text[i] == '\r' ? "\\r" : text[i] == '\n' ? "\\l" : "\\\\");
    } else {
      out.push_back(text[i]);
    }
  }
  return out;
}

// The digest of what comes out is the proof: whatever the steps say, only what the publisher had is taken.
// The one before is looked at first, since it costs less to find out then that this guide is another one.
Sliced<bool> ExpandChanges(DataFolder& data, UpdateContents& contents) {
  const std::string section = std::exchange(contents.changes, {});
  std::string_view rest = section;
  std::size_t room = update::kMaxBytes;
  while (!rest.empty()) {
    FileChange change;
    if (!TakeFile(rest, change) || !update::MayBringFile(change.name)) co_return false;
    const ReadResult file = data.Read("\\" + std::string(change.name));
    co_await NextSlice();
    if (file.status != ReadStatus::Ok || Sha256Hex(file.bytes) != change.was) co_return false;
    co_await NextSlice();
    std::optional<std::string> bytes = ApplySteps(file.bytes, change.steps, room);
    co_await NextSlice();
    if (!bytes || Sha256Hex(*bytes) != change.becomes) co_return false;
    const bool twice =
        std::any_of(contents.files.begin(), contents.files.end(),
                    [&](const ReceivedFile& one) { return EqualIgnoringCase(one.name, change.name); });
    if (twice || contents.files.size() == update::kMaxSections) co_return false;
    room -= bytes->size();
    contents.files.push_back({std::string(change.name), std::move(*bytes)});
  }
  co_return true;
}

}  // namespace sonaro
