// Replacing a table takes two renames, data file first. A crash between them leaves the new data file with
// the old index, and the new index still beside it under its temporary name. Both files hold the generation
// of the table, so opening notices that the pair does not fit, finds that the temporary index does, and
// completes the swap. Before the first rename the old pair fits, after the second the new one: there is no
// moment without a table.
#include "directory/TableFiles.h"

#include <optional>
#include <string_view>

#include "base/DataFolder.h"

namespace sonaro {
namespace {

template <typename Header>
std::optional<Header> ReadHeader(InputFile& file,
                                 std::optional<Header> (*parse)(std::string_view, std::uint64_t)) {
  char bytes[sizeof(Header)];
  if (!file.ReadAt(0, bytes, sizeof bytes)) return {};
  return parse({bytes, sizeof bytes}, file.Size());
}

// Opens the index at `path` when it fits the data file that is open already.
bool OpenIndex(Files& files, const std::string& path, TableFiles& opened) {
  opened.index = files.Open(path);
  if (!opened.index) return false;
  const auto header = ReadHeader(*opened.index, &ParseIndexHeader);
  if (!header || !SameGeneration(opened.dataHeader, *header)) return false;
  opened.indexHeader = *header;
  return true;
}

}  // namespace

TablePaths TablePaths::Of(const std::string& path) {
  return {path + std::string(kDataExtension), path + std::string(kIndexExtension)};
}

TablePaths TablePaths::TemporariesOf(const std::string& path) {
  const TablePaths paths = Of(path);
  return {TemporaryPath(paths.data), TemporaryPath(paths.index)};
}

TableStatus OpenTableFiles(Files& files, const std::string& path, TableFiles& opened) {
  const TablePaths paths = TablePaths::Of(path);
  opened = {};
  opened.data = files.Open(paths.data);
  if (!opened.data) return TableStatus::NoTable;
  const auto header = ReadHeader(*opened.data, &ParseDataHeader);
  // An empty or foreign data file without an index is no damaged table but none at all.
  if (!header) return files.Exists(paths.index) ? TableStatus::Damaged : TableStatus::NoTable;
  opened.dataHeader = *header;
  if (OpenIndex(files, paths.index, opened)) return TableStatus::Success;

  const bool hasIndex = opened.index != nullptr;
  const std::string temporary = TablePaths::TemporariesOf(path).index;
  if (!OpenIndex(files, temporary, opened)) return hasIndex ? TableStatus::Damaged : TableStatus::NoTable;
  // An open file cannot be renamed everywhere; where renaming is refused the temporary file serves as it is.
  opened.index.reset();
  const bool renamed = files.Replace(temporary, paths.index, Durability::Cached);
  return OpenIndex(files, renamed ? paths.index : temporary, opened) ? TableStatus::Success
                                                                     : TableStatus::Damaged;
}

bool SwapInTemporaries(Files& files, const std::string& path) {
  const TablePaths paths = TablePaths::Of(path);
  const TablePaths temporaries = TablePaths::TemporariesOf(path);
  if (!files.Replace(temporaries.data, paths.data, Durability::Cached)) return false;
  // A failure here, such as a reader that has the old index open, is no failure of the swap: opening the
  // table uses the temporary file and renames it when it can.
  (void)files.Replace(temporaries.index, paths.index, Durability::Cached);  // until then it serves as it is
  return true;
}

bool RemoveTableFiles(Files& files, const std::string& path) {
  const TablePaths paths = TablePaths::Of(path);
  const TablePaths temporaries = TablePaths::TemporariesOf(path);
  // The temporary files first: otherwise a crash in between could bring back what was to be removed.
  bool removed = files.Remove(temporaries.index);
  removed = files.Remove(temporaries.data) && removed;
  removed = files.Remove(paths.index) && removed;
  return files.Remove(paths.data) && removed;
}

std::string TablePath(const DataFolder& data, std::string_view name) {
  std::string path = data.Path(std::string(name).append(kDataExtension));
  path.resize(path.size() - kDataExtension.size());
  return path;
}

}  // namespace sonaro
