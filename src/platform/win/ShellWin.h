// Starting programs through the Windows shell.
#pragma once

#include "platform/Shell.h"

namespace sonaro {

class ShellWin : public Shell {
 public:
  void SetMainWindow(void* window) override { mainWindow_ = window; }
  FoundProgram FindProgramFor(const std::string& name, const std::string& folder) override;
  bool Open(const std::string& program, const std::string& parameters, const std::string& folder) override;
  bool RunMinimised(const std::string& commandLine) override;

 private:
  void* mainWindow_ = nullptr;
};

}  // namespace sonaro
