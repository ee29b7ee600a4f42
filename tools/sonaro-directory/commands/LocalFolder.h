// A data folder on this machine's disk, over the file system that the machine has.
#pragma once

#include <filesystem>
#include <string>
#include <utility>

#include "base/DataFolder.h"
#include "directory/Scrambling.h"

#ifdef _WIN32
#include "platform/win/FilesWin.h"
#else
#include "platform/posix/FilesPosix.h"
#endif

namespace sonaro {

class LocalFolder {
 public:
  explicit LocalFolder(std::string path) : data_(files_, WithoutSeparator(std::move(path)), kSeparator) {}

  DataFolder& Data() { return data_; }
  // True when there is such a folder.
  bool IsThere() const {
    std::error_code error;
    return std::filesystem::is_directory(data_.Folder(), error);
  }

 private:
#ifdef _WIN32
  using LocalFiles = FilesWin;
  static constexpr char kSeparator = '\\';
#else
  using LocalFiles = FilesPosix;
  static constexpr char kSeparator = '/';
#endif

  static std::string WithoutSeparator(std::string path) {
    while (path.size() > 1 && (path.back() == '/' || path.back() == kSeparator)) path.pop_back();
    return path;
  }

  LocalFiles files_;
  DataFolder data_;
};

// The alphabets that the program uses with a data folder.
inline ScramblingAlphabets AlphabetsOf(DataFolder& data) {
  ScramblingAlphabets alphabets;
  LoadAlphabets(data, alphabets);
  return alphabets;
}

}  // namespace sonaro
