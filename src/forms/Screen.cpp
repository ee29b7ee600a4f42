#include "forms/Screen.h"

#include "faceplate/Faceplate.h"

namespace sonaro {
namespace {

// What all screens have on systems without a resolution for each.
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

// The nearest one also for a window that is off all screens, or minimised.
HMONITOR MonitorOf(HWND window) {
  if (window) return MonitorFromWindow(window, MONITOR_DEFAULTTONEAREST);
  return MonitorFromPoint({0, 0}, MONITOR_DEFAULTTOPRIMARY);
}

// Without the task bar, wherever the user has put it.
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

// The system keeps a high-contrast theme's name when it is off; only the flag counts.
void FollowHighContrast(Faceplate& faceplate) {
  HIGHCONTRASTW contrast{};
  contrast.cbSize = sizeof(contrast);
  const BOOL known = SystemParametersInfoW(SPI_GETHIGHCONTRAST, sizeof(contrast), &contrast, 0);
  if (!known || (contrast.dwFlags & HCF_HIGHCONTRASTON) == 0) {
    faceplate.EndHighContrast();
    return;
  }
  faceplate.UseHighContrast([](SystemColor index) {
    const COLORREF color = GetSysColor(static_cast<int>(index));
    return Color{GetRValue(color), GetGValue(color), GetBValue(color)};
  });
}

// SetWindowRgn takes the region over when it succeeds; else it stays ours to delete.
bool ApplyWindowShape(HWND window, std::string_view key, const Shape& shape, int dpi, OutlineSize made) {
  const Shape::Result found = shape.OutlineOf(key, TwipsPerPixel::OfDpi(dpi));
  if (found.status == Shape::Status::NoFile) return false;
  if (found.outline.empty()) return true;

  RECT frame{};
  GetWindowRect(window, &frame);
  const OutlineSize size = {static_cast<int>(frame.right - frame.left),
                            static_cast<int>(frame.bottom - frame.top)};
  std::vector<POINT> points;
  points.reserve(found.outline.size());
  for (const ShapePoint point : FitOutline(found.outline, made, size)) points.push_back({point.x, point.y});
  const HRGN outline = CreateRectRgn(0, 0, 0, 0);
  const HRGN polygon = CreatePolygonRgn(points.data(), static_cast<int>(points.size()), WINDING);
  const bool copied = CombineRgn(outline, polygon, nullptr, RGN_COPY) != ERROR;
  DeleteObject(polygon);
  // What lies outside of the window shows nothing, but a point far off would cost a row for each of its
  // pixels.
  const HRGN whole = CreateRectRgn(0, 0, size.width, size.height);
  CombineRgn(outline, outline, whole, RGN_AND);
  DeleteObject(whole);
  // An outline without an area would make the window vanish: nothing could bring it back.
  RECT bounds{};
  const bool hasArea = copied && GetRgnBox(outline, &bounds) > NULLREGION;
  if (!hasArea || !SetWindowRgn(window, outline, TRUE)) DeleteObject(outline);
  return true;
}

}  // namespace sonaro
