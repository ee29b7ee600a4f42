#include "forms/Clipboard.h"

#include <cstring>
#include <string>

#include "forms/WideText.h"

namespace sonaro {

bool CopyToClipboard(HWND owner, std::string_view text) {
  const std::wstring wide = Widen(text);
  const std::size_t bytes = (wide.size() + 1) * sizeof(wchar_t);
  const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, bytes);
  if (!memory) return false;
  std::memcpy(GlobalLock(memory), wide.c_str(), bytes);
  GlobalUnlock(memory);
  // The clipboard owns the memory once it has taken it.
  bool taken = false;
  if (OpenClipboard(owner)) {
    EmptyClipboard();
    taken = SetClipboardData(CF_UNICODETEXT, memory) != nullptr;
    CloseClipboard();
  }
  if (!taken) GlobalFree(memory);
  return taken;
}

}  // namespace sonaro
