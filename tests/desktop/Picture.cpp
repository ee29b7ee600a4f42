#include "Picture.h"

// gdiplus.h wants these before it.
#include <objidl.h>

#include <algorithm>
#include <vector>
using std::max;
using std::min;
#include <gdiplus.h>

namespace sonaro::desktop {

namespace {

// The screen's pixels in a bitmap of their own. A screen that cannot be read gives an empty one.
class ScreenCopy {
 public:
  explicit ScreenCopy(const RECT& part)
      : width_(std::max<LONG>(part.right - part.left, 1)),
        height_(std::max<LONG>(part.bottom - part.top, 1)) {
    HDC screen = GetDC(nullptr);
    HDC memory = CreateCompatibleDC(screen);
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof(info.bmiHeader);
    info.bmiHeader.biWidth = width_;
    info.bmiHeader.biHeight = -height_;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    bitmap_ = CreateDIBSection(screen, &info, DIB_RGB_COLORS, &pixels_, nullptr, 0);
    HGDIOBJ previous = SelectObject(memory, bitmap_);
    BitBlt(memory, 0, 0, width_, height_, screen, part.left, part.top, SRCCOPY);
    GdiFlush();
    SelectObject(memory, previous);
    DeleteDC(memory);
    ReleaseDC(nullptr, screen);
  }
  ~ScreenCopy() { DeleteObject(bitmap_); }
  ScreenCopy(const ScreenCopy&) = delete;
  ScreenCopy& operator=(const ScreenCopy&) = delete;

  HBITMAP Bitmap() const { return bitmap_; }
  size_t PixelCount() const { return static_cast<size_t>(width_) * static_cast<size_t>(height_); }
  const unsigned* Pixels() const { return static_cast<const unsigned*>(pixels_); }

 private:
  LONG width_;
  LONG height_;
  void* pixels_ = nullptr;
  HBITMAP bitmap_ = nullptr;
};

std::wstring Wide(const std::string& text) {
  const int length = MultiByteToWideChar(CP_ACP, 0, text.c_str(), -1, nullptr, 0);
  std::wstring wide(static_cast<size_t>(std::max(length, 1)), L'\0');
  MultiByteToWideChar(CP_ACP, 0, text.c_str(), -1, wide.data(), length);
  wide.pop_back();
  return wide;
}

constexpr CLSID kPngEncoder = {0x557cf406, 0x1a04, 0x11d3, {0x9a, 0x73, 0x00, 0x00, 0xf8, 0x1e, 0xf3, 0x2e}};

}  // namespace

bool SavePicture(const RECT& part, const std::string& path) {
  ULONG_PTR token = 0;
  const Gdiplus::GdiplusStartupInput input;
  if (Gdiplus::GdiplusStartup(&token, &input, nullptr) != Gdiplus::Ok) return false;
  bool saved = false;
  {
    const ScreenCopy copy(part);
    Gdiplus::Bitmap image(copy.Bitmap(), nullptr);
    saved = image.Save(Wide(path).c_str(), &kPngEncoder, nullptr) == Gdiplus::Ok;
  }
  Gdiplus::GdiplusShutdown(token);
  return saved;
}

unsigned long long PictureHash(const RECT& part) {
  const ScreenCopy copy(part);
  unsigned long long hash = 14695981039346656037ULL;
  for (size_t i = 0; copy.Pixels() != nullptr && i < copy.PixelCount(); ++i) {
    hash = (hash ^ (copy.Pixels()[i] & 0xFFFFFFU)) * 1099511628211ULL;
  }
  return hash;
}

RECT WholeScreen() { return {0, 0, GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)}; }

}  // namespace sonaro::desktop
