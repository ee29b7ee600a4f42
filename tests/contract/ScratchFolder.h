// A folder of the real file system for the length of a test.
#pragma once

#include <atomic>
#include <filesystem>
#include <random>
#include <string>

namespace sonaro {

class ScratchFolder {
 public:
  ScratchFolder() {
    path_ = std::filesystem::temp_directory_path() / ("sonaro-" + std::to_string(std::random_device()()));
    std::filesystem::create_directories(path_);
  }
  ~ScratchFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  ScratchFolder(const ScratchFolder&) = delete;
  ScratchFolder& operator=(const ScratchFolder&) = delete;

  std::string Path() const { return path_.string(); }

 private:
  std::filesystem::path path_;
};

}  // namespace sonaro
