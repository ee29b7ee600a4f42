#include "forms/Dpi.h"

namespace sonaro {
namespace {

int SystemDpi() {
  const HDC screen = GetDC(nullptr);
  const int dpi = GetDeviceCaps(screen, LOGPIXELSX);
  ReleaseDC(nullptr, screen);
  return dpi > 0 ? dpi : 96;
}

BOOL CALLBACK NoteWorkArea(HMONITOR monitor, HDC, RECT*, LPARAM list) {
  MONITORINFO info{};
  info.cbSize = sizeof(info);
  if (GetMonitorInfoW(monitor, &info)) {
    reinterpret_cast<std::vector<PixelRect>*>(list)->push_back(ToPixelRect(info.rcWork));
  }
  return TRUE;
}

}  // namespace

int DpiOfMonitor(HMONITOR monitor) {
  // Not there before Windows 8.1; the library stays loaded as long as the process.
  using GetDpi = HRESULT(WINAPI*)(HMONITOR, int, UINT*, UINT*);
  const HMODULE library = LoadLibraryW(L"shcore.dll");
  const auto getDpi =
      library ? reinterpret_cast<GetDpi>(reinterpret_cast<void*>(GetProcAddress(library, "GetDpiForMonitor")))
              : nullptr;
  UINT x = 0;
  UINT y = 0;
  if (getDpi && SUCCEEDED(getDpi(monitor, 0, &x, &y)) && x > 0) return static_cast<int>(x);
  return SystemDpi();
}

HMONITOR MonitorOf(HWND window) {
  if (window) return MonitorFromWindow(window, MONITOR_DEFAULTTONEAREST);
  return MonitorFromPoint({0, 0}, MONITOR_DEFAULTTOPRIMARY);
}

PixelRect WorkAreaOf(HWND window) {
  MONITORINFO info{};
  info.cbSize = sizeof(info);
  GetMonitorInfoW(MonitorOf(window), &info);
  return ToPixelRect(info.rcWork);
}

std::vector<PixelRect> WorkAreas() {
  std::vector<PixelRect> areas;
  EnumDisplayMonitors(nullptr, nullptr, NoteWorkArea, reinterpret_cast<LPARAM>(&areas));
  return areas;
}

}  // namespace sonaro
