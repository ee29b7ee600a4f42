// The file system as the program needs it. The implementations lie in platform/ (FilesWin, FilesPosix); the
// tests have one in memory that can fail or "crash" at any operation. Paths are texts as the process has
// them; they are used as given: finding names whatever their letter case is DataFolder's business. Nothing
// throws; a failure is a null pointer or false.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace sonaro {

// An open file to read from. Reading does not move a position, so one handle serves several readers.
class InputFile {
 public:
  virtual ~InputFile() = default;
  // Bytes in the file when it was opened.
  virtual std::uint64_t Size() const = 0;
  // Reads exactly `length` bytes at `offset` into `buffer`. False when the file does not hold them all.
  virtual bool ReadAt(std::uint64_t offset, char* buffer, std::size_t length) = 0;
};

enum class Durability {
  Cached,  // handed to the system: enough for derived files, whose damage is found and repaired
  Flushed  // forced to the disk: for what the user made
};

// A file being written from its start. Destroying it without Commit closes it and leaves what was written.
class OutputFile {
 public:
  virtual ~OutputFile() = default;
  virtual bool Append(std::string_view bytes) = 0;
  // Overwrites bytes that were appended before, for a header that is known last.
  virtual bool WriteAt(std::uint64_t offset, std::string_view bytes) = 0;
  // Writes out everything and closes. False when any byte could not be written.
  virtual bool Commit(Durability durability) = 0;
};

class Files {
 public:
  virtual ~Files() = default;
  // Null when the file is missing or cannot be read. Exists() tells the two apart.
  virtual std::unique_ptr<InputFile> Open(const std::string& path) = 0;
  // Creates or empties the file. Null when that is not possible.
  virtual std::unique_ptr<OutputFile> Create(const std::string& path) = 0;
  // Puts `from` in the place of `to` in one step: at every moment `to` is the old or the new file, whole.
  // `to` need not exist. False, with both files as they were, when `from` is missing or `to` is in use.
  // Flushed also forces the new name to the disk; Cached leaves that to the system.
  [[nodiscard]] virtual bool Replace(const std::string& from, const std::string& to,
                                     Durability durability) = 0;
  // True when the file is gone afterwards, whether or not it was there.
  virtual bool Remove(const std::string& path) = 0;
  virtual bool Exists(const std::string& path) = 0;
  // Names of the files and folders directly in `folder`, in no order; empty when there is no such folder.
  virtual std::vector<std::string> List(const std::string& folder) = 0;
  // Creates the folder and its parents; true when it is there afterwards.
  virtual bool MakeFolder(const std::string& path) = 0;
};

}  // namespace sonaro
