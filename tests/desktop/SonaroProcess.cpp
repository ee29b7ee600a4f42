#include "SonaroProcess.h"

#include "Probe.h"
#include "forms/ControlIds.h"

namespace sonaro::desktop {

SonaroProcess::SonaroProcess(const std::string& program, const std::string& arguments) {
  std::string commandLine = "\"" + program + "\"";
  if (!arguments.empty()) commandLine += " " + arguments;
  STARTUPINFOA startup{};
  startup.cb = sizeof(startup);
  PROCESS_INFORMATION process{};
  // On a busy machine Wine may give a new process up before it has answered; the next try succeeds.
  const bool started = WaitUntil([&] {
    return CreateProcessA(program.c_str(), commandLine.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                          &startup, &process) != FALSE;
  });
  if (!started) return;
  CloseHandle(process.hThread);
  process_ = process.hProcess;
  id_ = process.dwProcessId;
}

SonaroProcess::~SonaroProcess() {
  if (process_ == nullptr) return;
  if (Running()) {
    TerminateProcess(process_, 1);
    WaitForSingleObject(process_, 10000);
  }
  CloseHandle(process_);
}

bool SonaroProcess::Running() const {
  return process_ != nullptr && WaitForSingleObject(process_, 0) == WAIT_TIMEOUT;
}

std::optional<DWORD> SonaroProcess::WaitForEnd(std::chrono::milliseconds limit) const {
  if (WaitForSingleObject(process_, static_cast<DWORD>(limit.count())) != WAIT_OBJECT_0) return std::nullopt;
  DWORD status = 0;
  GetExitCodeProcess(process_, &status);
  return status;
}

HWND SonaroProcess::Window(const std::string& className, const std::string& caption) const {
  return FindTopWindow(id_, className, caption);
}

HWND SonaroProcess::WaitForWindow(const std::string& className, const std::string& caption,
                                  std::chrono::milliseconds limit) const {
  WaitUntil([&] { return Window(className, caption) != nullptr || !Running(); }, limit);
  return Window(className, caption);
}

HWND SonaroProcess::WaitForShownWindow(const std::string& className, const std::string& caption,
                                       std::chrono::milliseconds limit) const {
  WaitUntil([&] { return IsShown(Window(className, caption)) || !Running(); }, limit);
  HWND window = Window(className, caption);
  if (!IsShown(window)) return nullptr;
  DWORD_PTR ignored = 0;  // answered when the handlers of its showing have run
  SendMessageTimeoutA(window, WM_NULL, 0, 0, SMTO_NORMAL, static_cast<UINT>(limit.count()), &ignored);
  // The main window makes what it does not show at first once it is painted, this one last.
  if (className == "SonaroFrm") WaitUntil([&] { return Control(window, cmbFavs) != nullptr; }, limit);
  return window;
}

}  // namespace sonaro::desktop
