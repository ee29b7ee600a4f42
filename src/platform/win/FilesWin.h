// The file system of Windows. A file that is open can be read by others, and nothing else.
#pragma once

#include "base/Files.h"

namespace sonaro {

class FilesWin : public Files {
 public:
  std::unique_ptr<InputFile> Open(const std::string& path) override;
  std::unique_ptr<OutputFile> Create(const std::string& path) override;
  bool Replace(const std::string& from, const std::string& to, Durability durability) override;
  bool Remove(const std::string& path) override;
  bool Exists(const std::string& path) override;
  std::vector<std::string> List(const std::string& folder) override;
  bool MakeFolder(const std::string& path) override;
};

}  // namespace sonaro
