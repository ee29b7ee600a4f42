// A running Sonaro.exe, seen from outside. Owned by a test; ends the process when it goes.
#pragma once

#include <windows.h>

#include <chrono>
#include <optional>
#include <string>

namespace sonaro::desktop {

class SonaroProcess {
 public:
  // Starts `program` with these arguments behind its name, verbatim ("" = none).
  SonaroProcess(const std::string& program, const std::string& arguments);
  ~SonaroProcess();
  SonaroProcess(const SonaroProcess&) = delete;
  SonaroProcess& operator=(const SonaroProcess&) = delete;

  bool Started() const { return process_ != nullptr; }
  bool Running() const;
  DWORD Id() const { return id_; }
  // The exit status when the process ends within the time, else nothing.
  std::optional<DWORD> WaitForEnd(std::chrono::milliseconds limit = std::chrono::seconds(10)) const;

  // A top-level window of this process with this class and caption ("" = any). Null when none came within the
  // time or the process ended.
  HWND WaitForWindow(const std::string& className, const std::string& caption = "",
                     std::chrono::milliseconds limit = std::chrono::seconds(20)) const;
  // The same, and it must be visible and idle.
  HWND WaitForShownWindow(const std::string& className, const std::string& caption = "",
                          std::chrono::milliseconds limit = std::chrono::seconds(20)) const;
  // The window of that class now; null when there is none.
  HWND Window(const std::string& className, const std::string& caption = "") const;

 private:
  HANDLE process_ = nullptr;
  DWORD id_ = 0;
};

}  // namespace sonaro::desktop
