#include "settings/IniSettings.h"

#include "base/DataFolder.h"
#include "base/Text.h"
#include "platform/SystemInfo.h"

namespace sonaro {

namespace {

// Editors put it before the first line when they save as UTF-8; it is taken but never written.
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
// First and last line of every file that is saved here. Only a file with the first one is required to have
// the last: what a user wrote by hand is not damaged for want of it.
constexpr std::string_view kHead =
    "; The settings of this folder's Sonaro. While this file is here, nothing is written to the "
    "registry.\r\n";
constexpr std::string_view kEnd = "; end of the settings";  // without it the file was cut short
constexpr std::string_view kDefaultName = "@";
constexpr std::string_view kHexDigits = "0123456789ABCDEF";

bool IsBlank(char c) { return c == ' ' || c == '\t'; }

std::string_view TrimLine(std::string_view text) {
  while (!text.empty() && IsBlank(text.front())) text.remove_prefix(1);
  while (!text.empty() && IsBlank(text.back())) text.remove_suffix(1);
  return text;
}

void AppendByte(std::string& out, char c) {
  const auto byte = static_cast<unsigned char>(c);
  out += "\\x";
  out += kHexDigits[byte >> 4];
  out += kHexDigits[byte & 15];
}

// `special`: what is an escape besides backslash, control characters and blanks at the ends.
std::string Escape(std::string_view text, std::string_view special) {
  std::string out;
  for (std::size_t at = 0; at < text.size(); ++at) {
    const char c = text[at];
    const bool end = at == 0 || at + 1 == text.size();
    if (c == '\\') {
      out += "\\\\";
    } else if (c == '\n') {
      out += "\\n";
    } else if (c == '\r') {
      out += "\\r";
    } else if (c == '\t') {
      out += "\\t";
    } else if ((c >= 0 && c < ' ') || c == '\x7F' || (c == ' ' && end) ||
               special.find(c) != std::string_view::npos) {
      AppendByte(out, c);
    } else {
      out += c;
    }
  }
  return out;
}

// Of either letter case; -1 for what is no hexadecimal digit.
int HexValue(char c) {
  const std::size_t at = kHexDigits.find(c >= 'a' && c <= 'f' ? static_cast<char>(c - 'a' + 'A') : c);
  return at == std::string_view::npos ? -1 : static_cast<int>(at);
}

// Takes the escape at the start of `text` and appends what it means; false when it is not a valid one.
bool TakeEscape(std::string_view& text, std::string& out) {
  if (text.size() < 2) return false;
  switch (text[1]) {
    case '\\':
      out += '\\';
      break;
    case 'n':
      out += '\n';
      break;
    case 'r':
      out += '\r';
      break;
    case 't':
      out += '\t';
      break;
    case 'x': {
      const int high = text.size() < 4 ? -1 : HexValue(text[2]);
      const int low = text.size() < 4 ? -1 : HexValue(text[3]);
      if (high < 0 || low < 0) return false;
      out += static_cast<char>(high * 16 + low);
      text.remove_prefix(2);
      break;
    }
    default:
      return false;
  }
  text.remove_prefix(2);
  return true;
}

// A backslash that begins no escape is kept: paths typed by hand need not double theirs.
std::string Unescape(std::string_view text) {
  std::string out;
  while (!text.empty()) {
    if (text.front() == '\\' && TakeEscape(text, out)) continue;
    out += text.front();
    text.remove_prefix(1);
  }
  return out;
}

}  // namespace

// What was just read whole is worth keeping. A damaged file is not, since its copy would take the place of
// the last good one.
IniSettings::IniSettings(Files& files, std::string path) : files_(files), path_(std::move(path)) {
  if (Load() && condition_ == Condition::Whole) KeepOld();
}

IniSettings::~IniSettings() {
  if (loaded_ && !changed_) KeepOld();
}

// The name as it was first written stays the key's spelling; the map is sorted by the folded one, so saved
// files do not differ by letter case.
IniSettings::Key& IniSettings::Make(Keys& keys, std::string_view name) {
  Key& key = keys[FoldCase(name)];
  if (key.name.empty()) key.name = name;
  return key;
}

// False for what can be no line of such a file.
bool IniSettings::ParseLine(std::string_view line, Keys& keys, Key*& current) {
  line = TrimLine(line);
  if (line.empty() || line.front() == ';') return true;
  for (const char c : line)
    if (c >= 0 && c < ' ' && c != '\t') return false;
  if (line.front() == '[') {
    if (line.back() != ']' || line.size() < 3) return false;
    current = &Make(keys, Unescape(line.substr(1, line.size() - 2)));
    return true;
  }
  const std::size_t equals = line.find('=');
  if (equals == std::string_view::npos || equals == 0 || !current) return false;
  const std::string_view written = TrimLine(line.substr(0, equals));
  const std::string name = written == kDefaultName ? "" : Unescape(written);
  current->values[FoldCase(name)] = {name, Unescape(TrimLine(line.substr(equals + 1)))};
  return true;
}

IniSettings::Parsed IniSettings::Parse(std::string_view text) {
  Parsed parsed;
  if (text.starts_with(kByteOrderMark)) text.remove_prefix(kByteOrderMark.size());
  Key* current = nullptr;
  // Files without our first line were written by hand and need no last line.
  bool ended = !text.starts_with(TrimLine(kHead.substr(0, kHead.size() - 2)));
  for (const std::string_view line : SplitLines(text)) {
    ended = ended || TrimLine(line) == kEnd;
    if (!ParseLine(line, parsed.keys, current)) parsed.damaged = true;
  }
  parsed.damaged = parsed.damaged || !ended;
  return parsed;
}

// Keys and values in the order of their folded names: the same settings give the same bytes.
std::string IniSettings::TextOf(const Keys& keys) {
  std::string text(kHead);
  for (const auto& [foldedKey, key] : keys) {
    text += "[" + Escape(key.name, "") + "]\r\n";
    for (const auto& [folded, value] : key.values) {
      // What would be read as another kind of line is an escape in a name.
      const std::string name = value.name.empty()           ? std::string(kDefaultName)
                               : value.name == kDefaultName ? "\\x40"
                                                            : Escape(value.name, "=[;");
      text += name + "=" + Escape(value.bytes, "") + "\r\n";
    }
  }
  return text.append(kEnd).append("\r\n");
}

// What `over` has wins, value by value; what it lacks stays.
void IniSettings::Merge(Keys& keys, const Keys& over) {
  for (const auto& [folded, key] : over) {
    Key& target = Make(keys, key.name);
    for (const auto& [name, value] : key.values) target.values[name] = value;
  }
}

// Keys without a text say nothing: the file of a fresh unpacking has such, and must not hide the settings of
// the version before.
bool IniSettings::HoldsText(const Keys& keys) {
  for (const auto& [foldedKey, key] : keys)
    for (const auto& [name, value] : key.values)
      if (!value.bytes.empty()) return true;
  return false;
}

// Changes that were made while the file could not be read lie over what it holds.
bool IniSettings::Load() {
  const ReadResult read = ReadWholeFile(files_, path_);
  if (read.status == ReadStatus::Unreadable) {
    condition_ = Condition::Unreadable;
    return false;
  }
  Parsed parsed = Parse(read.bytes);
  // What cannot be kept beside must not be saved over.
  if (parsed.damaged && !SaveWholeFile(files_, path_ + ".bad", read.bytes)) {
    condition_ = Condition::Unreadable;
    return false;
  }
  condition_ = parsed.damaged ? Condition::Damaged : Condition::Whole;
  if (parsed.damaged || !HoldsText(parsed.keys)) {
    Keys old = Parse(ReadWholeFile(files_, path_ + ".old").bytes).keys;
    changed_ = changed_ || !old.empty();
    Merge(old, parsed.keys);
    parsed.keys = std::move(old);
  }
  Merge(parsed.keys, keys_);
  keys_ = std::move(parsed.keys);
  loaded_ = true;
  return true;
}

const IniSettings::Key* IniSettings::Find(std::string_view key) const {
  const auto found = keys_.find(FoldCase(key));
  return found == keys_.end() ? nullptr : &found->second;
}

bool IniSettings::AddKey(std::string_view key) {
  if (HasKey(key)) return true;
  Make(keys_, key);
  return Changed();
}

std::vector<std::string> IniSettings::Names(std::string_view key) const {
  std::vector<std::string> names;
  if (const Key* const found = Find(key)) {
    for (const auto& [folded, value] : found->values) names.push_back(value.name);
  }
  return names;
}

std::optional<std::string> IniSettings::Read(std::string_view key, std::string_view name) const {
  const Key* there = Find(key);
  if (!there) return std::nullopt;
  const auto value = there->values.find(FoldCase(name));
  return value == there->values.end() ? std::nullopt : std::optional<std::string>(value->second.bytes);
}

bool IniSettings::Write(std::string_view key, std::string_view name, std::string_view bytes) {
  if (!HasKey(key)) return false;
  // Nothing new; but a change before it that could not be saved is tried again.
  if (Read(key, name) == bytes && !changed_) return true;
  Value& value = Make(keys_, key).values[FoldCase(name)];
  if (value.name.empty()) value.name = name;
  value.bytes = bytes;
  return Changed();
}

bool IniSettings::Remove(std::string_view key, std::string_view name) {
  if (!HasKey(key) || Make(keys_, key).values.erase(FoldCase(name)) == 0) return false;
  return Changed();
}

void IniSettings::End() {
  if (--holds_ == 0 && changed_) Save();
}

// Within a batch a change counts as made; whether it could be saved is known to End alone.
bool IniSettings::Changed() {
  changed_ = true;
  return holds_ > 0 || Save();
}

bool IniSettings::Save() {
  if (!loaded_ && !Load()) return false;
  changed_ = !SaveWholeFile(files_, path_, TextOf(keys_));
  if (changed_) {
    condition_ = Condition::NotSaved;
  } else if (condition_ == Condition::NotSaved) {
    condition_ = Condition::Whole;
  }
  return !changed_;
}

// A copy of the last good settings. It is written when the program begins and when it ends without anything
// unsaved, not with every change.
void IniSettings::KeepOld() {
  if (!HoldsText(keys_)) return;
  const std::string text = TextOf(keys_);
  if (ReadWholeFile(files_, path_ + ".old").bytes != text)
    static_cast<void>(SaveWholeFile(files_, path_ + ".old", text));
}

std::string ReadIniValue(SystemInfo& system, const std::string& section, const std::string& key,
                         const std::string& defaultText, const std::string& fileName) {
  return system.ProfileString(section, key, defaultText, fileName);
}

}  // namespace sonaro
