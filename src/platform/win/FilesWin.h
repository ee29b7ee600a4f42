// The file system of Windows. A file that is open can be read by others, and nothing else.
//
// Other programs, virus scanners and indexers above all, open a file for a moment as soon as it is written.
// Every operation on a file waits for them in the same way: ten tries with a pause of 30 ms between.
#pragma once

#include <functional>
#include <utility>

#include "base/Files.h"

namespace sonaro {

class FilesWin : public Files {
 public:
  using Pause = std::function<void()>;
  FilesWin();
  // `pause` is called between two tries.
  explicit FilesWin(Pause pause) : pause_(std::move(pause)) {}

  std::unique_ptr<InputFile> Open(const std::string& path) override;
  std::unique_ptr<OutputFile> Create(const std::string& path) override;
  bool Replace(const std::string& from, const std::string& to, Durability durability) override;
  bool Remove(const std::string& path) override;
  bool Exists(const std::string& path) override;
  std::vector<std::string> List(const std::string& folder) override;
  bool MakeFolder(const std::string& path) override;

 private:
  Pause pause_;
};

}  // namespace sonaro
