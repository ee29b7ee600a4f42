// One file holds everything that an update replaces, so that it is complete or not there at all: it is
// written as a whole, and its last line tells that it was. Lengths instead of marks separate the entries,
// since the files in it may hold anything.
#include "net/PreviousGuide.h"

#include <array>
#include <memory>

#include "base/DataFolder.h"
#include "base/Text.h"
#include "net/UpdateFormat.h"

namespace sonaro {

namespace {

// Each entry is a line with its names and the length of what follows it:
//   file TAB name TAB length, the bytes      absent TAB name      setting TAB key TAB name TAB length, the
//   value
constexpr std::string_view kHead = "What the last update replaced, 1\n";
constexpr std::string_view kEnd = "end\n";

bool TakeEntry(std::string_view line, std::string_view& rest, PreviousGuide& guide) {
  const auto fields = Split(line, '\t');
  // A file that was not there before the update; undoing removes it. Names are checked as those in an update
  // are: the file lies where others can write.
  if (fields.size() == 2 && fields[0] == "absent" && update::MayBringFile(fields[1])) {
    guide.files.push_back({std::string(fields[1]), std::nullopt});
    return true;
  }
  auto bytes = TakeCounted(rest, fields.back());
  if (!bytes) return false;
  if (fields.size() == 3 && fields[0] == "file" && update::MayBringFile(fields[1])) {
    guide.files.push_back({std::string(fields[1]), std::move(bytes)});
  } else if (fields.size() == 4 && fields[0] == "setting") {
    guide.settings.push_back({std::string(fields[1]), std::string(fields[2]), std::move(*bytes)});
  } else {
    return false;
  }
  return true;
}

}  // namespace

const KeptFile* PreviousGuide::Find(std::string_view name) const {
  for (const KeptFile& file : files) {
    if (EqualIgnoringCase(file.name, name)) return &file;
  }
  return nullptr;
}

bool SavePreviousGuide(DataFolder& data, std::string_view fileName, const PreviousGuide& guide) {
  std::string text(kHead);
  for (const KeptSetting& kept : guide.settings) {
    text += "setting\t" + kept.key + '\t' + kept.name + '\t' + std::to_string(kept.value.size()) + '\n';
    text += kept.value;
  }
  for (const KeptFile& kept : guide.files) {
    if (kept.bytes) {
      text += "file\t" + kept.name + '\t' + std::to_string(kept.bytes->size()) + '\n' + *kept.bytes;
    } else {
      text += "absent\t" + kept.name + '\n';
    }
  }
  return data.Save(fileName, text.append(kEnd));
}

std::optional<PreviousGuide> LoadPreviousGuide(DataFolder& data, std::string_view fileName) {
  const ReadResult file = data.Read(fileName);
  std::string_view rest = file.bytes;
  if (!rest.starts_with(kHead)) return std::nullopt;
  rest.remove_prefix(kHead.size());
  PreviousGuide guide;
  while (rest != kEnd) {
    if (rest.empty()) return std::nullopt;
    const std::string_view line = NextField(rest, '\n');
    if (!TakeEntry(line, rest, guide)) return std::nullopt;
  }
  return guide;
}

// Looks at the first bytes only: it is asked to show whether undoing is possible, not to do it.
bool IsPreviousGuide(const DataFolder& data, std::string_view fileName) {
  const std::unique_ptr<InputFile> file = data.FileSystem().Open(data.Path(fileName));
  std::array<char, kHead.size()> head{};
  return file && file->ReadAt(0, head.data(), head.size()) &&
         std::string_view(head.data(), head.size()) == kHead;
}

}  // namespace sonaro
