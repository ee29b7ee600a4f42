// The files of an indexed table on disk: their names, opening them as a pair that fits, and putting a new
// pair in their place. Used by Vmx and TableWriter; knows the headers but no records.
#pragma once

#include <memory>
#include <string>

#include "base/Files.h"
#include "directory/TableStatus.h"
#include "directory/VmxFormat.h"

namespace sonaro {

struct TablePaths {
  std::string data;
  std::string index;
  // The files of the table at `path` (without an extension), and those that a new generation is written to.
  static TablePaths Of(const std::string& path);
  static TablePaths TemporariesOf(const std::string& path);
};

// An open pair whose headers passed every check and name the same generation.
struct TableFiles {
  std::unique_ptr<InputFile> data;
  std::unique_ptr<InputFile> index;
  DataHeader dataHeader{};
  IndexHeader indexHeader{};
};

// Success, NoTable when a file is missing or cannot be opened, or Damaged. When the data file is of a newer
// generation than the index and the index's temporary file is of the same one, a swap was cut short between
// its two steps: it is completed.
TableStatus OpenTableFiles(Files& files, const std::string& path, TableFiles& opened);

// Puts complete temporary files in the place of the table's files, none of which may be open. False when the
// table is still the old one; true when it is the new one, even if a crash or a failure left the second step
// to the next OpenTableFiles.
bool SwapInTemporaries(Files& files, const std::string& path);

// Removes the table and what an interrupted writer left beside it. False when a file is still there.
bool RemoveTableFiles(Files& files, const std::string& path);

}  // namespace sonaro
