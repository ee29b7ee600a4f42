#include "base/DataFolder.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

#include "base/Text.h"

namespace sonaro {

DataFolder::DataFolder(Files& files, std::string folder, char separator)
    : files_(files), folder_(std::move(folder)), separator_(separator) {}

// Names are written with backslashes everywhere in the program. On systems that tell letter case apart a file
// may have been installed in another case than the program asks for; then each part of the path is looked up
// in its folder.
std::string DataFolder::Path(std::string_view name) const {
  std::string tail(name);
  std::replace(tail.begin(), tail.end(), '\\', separator_);
  std::string asGiven = folder_ + tail;
  // With the backslash the system itself ignores letter case.
  if (separator_ == '\\' || files_.Exists(asGiven)) return asGiven;

  std::string found = folder_;
  for (const std::string_view part :
       Split(std::string_view(tail).substr(tail.starts_with(separator_) ? 1 : 0), separator_)) {
    const std::vector<std::string> names = files_.List(found);
    const auto match = std::find_if(names.begin(), names.end(), [&](const std::string& candidate) {
      return EqualIgnoringCase(candidate, part);
    });
    if (match == names.end()) return asGiven;
    found += separator_ + *match;
  }
  return found;
}

bool DataFolder::Exists(std::string_view name) const { return files_.Exists(Path(name)); }

ReadResult DataFolder::Read(std::string_view name) {
  ReadResult result = ReadWholeFile(files_, Path(name));
  if (result.status == ReadStatus::Unreadable) {
    unreadable_.insert(FoldCase(name));
  } else {
    unreadable_.erase(FoldCase(name));
  }
  return result;
}

// A file that could not be read is not written either: what the program knows of it is empty, and saving that
// would lose what the file holds.
bool DataFolder::Save(std::string_view name, std::string_view bytes) {
  return !unreadable_.contains(FoldCase(name)) && SaveWholeFile(files_, Path(name), bytes);
}

bool DataFolder::Remove(std::string_view name) { return files_.Remove(Path(name)); }

bool DataFolder::Replace(std::string_view from, std::string_view to) {
  return files_.Replace(Path(from), Path(to), Durability::Flushed);
}

// The bytes go to a temporary file beside the real one, are flushed to disk, and take its place with a
// rename. A crash at any moment leaves the old file or the new one, at worst with a temporary file beside it.
bool SaveWholeFile(Files& files, const std::string& path, std::string_view bytes) {
  const std::string temporary = TemporaryPath(path);
  std::unique_ptr<OutputFile> file = files.Create(temporary);
  bool saved = file && file->Append(bytes) && file->Commit(Durability::Flushed);
  file.reset();
  saved = saved && files.Replace(temporary, path, Durability::Flushed);
  if (!saved) files.Remove(temporary);
  return saved;
}

std::string TemporaryPath(std::string_view path) { return std::string(path) + ".new"; }

ReadResult ReadWholeFile(Files& files, const std::string& path) {
  const std::unique_ptr<InputFile> file = files.Open(path);
  if (!file) return {files.Exists(path) ? ReadStatus::Unreadable : ReadStatus::Missing, {}};
  ReadResult result{ReadStatus::Ok, {}};
  try {
    result.bytes.resize(static_cast<std::size_t>(file->Size()));
  } catch (const std::exception&) {  // a file larger than memory
    return {ReadStatus::Unreadable, {}};
  }
  if (!file->ReadAt(0, result.bytes.data(), result.bytes.size())) return {ReadStatus::Unreadable, {}};
  return result;
}

}  // namespace sonaro
