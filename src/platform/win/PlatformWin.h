// The small interfaces of platform/ as Windows carries them out. Files and requests have headers of their
// own: FilesWin.h is for tools too, which do without <windows.h>, and HttpControlWin.h brings the sockets.
#pragma once

#include "platform/Clock.h"
#include "platform/MessagePost.h"
#include "platform/Registry.h"
#include "platform/Shell.h"
#include "platform/Sound.h"
#include "platform/SystemInfo.h"
#include "platform/win/Handle.h"

namespace sonaro {

class ClockWin : public Clock {
 public:
  DateTime LocalNow() override;
  DateTime GmtNow() override;
  std::uint64_t Ticks() override;
  ZoneReport Zone() override;
};

// Windows found by caption, and the mark by which running instances of the program know each other.
class MessagePostWin : public MessagePost {
 public:
  // `instanceName` names the mark; instances with the same name in one user session know each other.
  explicit MessagePostWin(std::string instanceName = "Local\\SonaroInstance");

  bool WindowExists(const std::string& caption) override;
  bool PostTo(const std::string& caption, std::uint32_t message, std::uintptr_t first,
              std::intptr_t second) override;
  bool EarlierInstanceRuns() override;

 private:
  std::string instanceName_;
  KernelHandle mark_;  // held as long as this instance lives
  bool earlierInstance_ = false;
};

// The registry of Windows, in this process's own view.
class RegistryWin : public Registry {
 public:
  bool KeyExists(RootKey root, const std::string& key) override;
  bool CanWrite(RootKey root, const std::string& key) override;
  bool CreateKey(RootKey root, const std::string& key) override;
  std::optional<std::string> ReadValue(RootKey root, const std::string& key,
                                       const std::string& name) override;
  bool WriteValue(RootKey root, const std::string& key, const std::string& name, ValueType type,
                  std::string_view bytes) override;
  std::vector<std::string> ValueNames(RootKey root, const std::string& key) override;
  bool RemoveValue(RootKey root, const std::string& key, const std::string& name) override;
  bool Flush(RootKey root, const std::string& key) override;
};

// Starting programs through the Windows shell.
class ShellWin : public Shell {
 public:
  void SetMainWindow(void* window) override { mainWindow_ = window; }
  FoundProgram FindProgramFor(const std::string& name, const std::string& folder) override;
  bool Open(const std::string& program, const std::string& parameters, const std::string& folder) override;
  bool RunMinimised(const std::string& commandLine) override;

 private:
  void* mainWindow_ = nullptr;
};

// Wave sounds through the Windows multimedia library.
class SoundWin : public Sound {
 public:
  void Play(const std::string& path) override;
};

// What Windows tells of the machine and of the user's regional settings.
class SystemInfoWin : public SystemInfo {
 public:
  MachineFacts Machine() override;
  std::string FormattedEightAndAHalf() override;
  std::string FormattedSampleDate() override;
  std::string ProfileString(const std::string& section, const std::string& key,
                            const std::string& defaultText, const std::string& fileName) override;
  std::string SortKey(std::string_view text) override;
};

}  // namespace sonaro
