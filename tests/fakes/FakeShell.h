// Records what would be started. Programs are registered by the ending of a file's name.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "base/Files.h"
#include "base/Text.h"
#include "platform/Shell.h"

namespace sonaro {

class FakeShell : public Shell {
 public:
  struct Opened {
    std::string program;
    std::string parameters;
    std::string folder;
    bool operator==(const Opened&) const = default;
  };

  static constexpr int kFileMissing = 2;
  static constexpr int kNothingRegistered = 31;
  static constexpr int kFound = 33;

  std::map<std::string, std::string> programs;  // ending such as ".ram" -> program
  Files* files = nullptr;                       // when set, FindProgramFor looks for the file
  std::string separator = "/";
  bool startsFail = false;
  std::function<void()> whileStarting;  // what comes in while the next program starts; called once
  void* mainWindow = nullptr;
  std::vector<Opened> opened;
  std::vector<std::string> runMinimised;

  void SetMainWindow(void* window) override { mainWindow = window; }
  FoundProgram FindProgramFor(const std::string& name, const std::string& folder) override {
    if (files && !files->Exists(folder + separator + name)) return {kFileMissing, ""};
    for (const auto& [ending, program] : programs) {
      if (EndsWithIgnoringCase(name, ending)) return {kFound, program.substr(0, 254)};
    }
    return {kNothingRegistered, ""};
  }
  bool Open(const std::string& program, const std::string& parameters, const std::string& folder) override {
    if (const auto meanwhile = std::exchange(whileStarting, nullptr)) meanwhile();
    if (!startsFail) opened.push_back({program, parameters, folder});
    return !startsFail;
  }
  bool RunMinimised(const std::string& commandLine) override {
    if (!startsFail) runMinimised.push_back(commandLine);
    return !startsFail;
  }
};

}  // namespace sonaro
