#include "platform/win/PlatformWin.h"

#include <windows.h>
// After windows.h, which it needs and WIN32_LEAN_AND_MEAN keeps out.
#include <shellapi.h>

#include "platform/win/Handle.h"

namespace sonaro {
namespace {

constexpr std::size_t kMaxProgramPath = 254;
constexpr int kLastFailure = 32;  // the shell's codes above mean success

int ShellCode(HINSTANCE result) { return static_cast<int>(reinterpret_cast<INT_PTR>(result)); }

const char* OrNull(const std::string& text) { return text.empty() ? nullptr : text.c_str(); }

}  // namespace

FoundProgram ShellWin::FindProgramFor(const std::string& name, const std::string& folder) {
  char path[MAX_PATH] = {};  // the function takes no length and fills up to this
  const int code = ShellCode(FindExecutableA(name.c_str(), OrNull(folder), path));
  if (code <= kLastFailure) return {code, ""};
  return {code, std::string(path).substr(0, kMaxProgramPath)};
}

bool ShellWin::Open(const std::string& program, const std::string& parameters, const std::string& folder) {
  return ShellCode(ShellExecuteA(static_cast<HWND>(mainWindow_), "Open", program.c_str(), OrNull(parameters),
                                 OrNull(folder), SW_SHOWNORMAL)) > kLastFailure;
}

bool ShellWin::RunMinimised(const std::string& commandLine) {
  STARTUPINFOA startup{};
  startup.cb = sizeof startup;
  startup.dwFlags = STARTF_USESHOWWINDOW;
  startup.wShowWindow = SW_SHOWMINIMIZED;
  PROCESS_INFORMATION process{};
  std::string line = commandLine;  // the function writes into it
  if (!CreateProcessA(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup,
                      &process)) {
    return false;
  }
  // The program runs on; without closing these handles its process would be remembered as long as we run.
  const KernelHandle closesProcess(process.hProcess);
  const KernelHandle closesThread(process.hThread);
  return true;
}

}  // namespace sonaro
