#include "platform/win/PlatformWin.h"

#include <utility>

namespace sonaro {

MessagePostWin::MessagePostWin(std::string instanceName) : instanceName_(std::move(instanceName)) {}

bool MessagePostWin::WindowExists(const std::string& caption) {
  return FindWindowA(nullptr, caption.c_str()) != nullptr;
}

bool MessagePostWin::PostTo(const std::string& caption, std::uint32_t message, std::uintptr_t first,
                            std::intptr_t second) {
  const HWND window = FindWindowA(nullptr, caption.c_str());
  return window && PostMessageA(window, message, first, second);
}

// The named mutex is never waited for: that it exists is the mark, and the system removes it with the
// process, even after a crash.
bool MessagePostWin::EarlierInstanceRuns() {
  if (!mark_ && !earlierInstance_) {
    const HANDLE mark = CreateMutexA(nullptr, FALSE, instanceName_.c_str());
    const DWORD error = GetLastError();  // set also when the mark was opened
    mark_ = KernelHandle(mark);
    // Access is denied when the earlier instance runs with higher rights.
    earlierInstance_ = error == ERROR_ALREADY_EXISTS || error == ERROR_ACCESS_DENIED;
  }
  return earlierInstance_;
}

}  // namespace sonaro
