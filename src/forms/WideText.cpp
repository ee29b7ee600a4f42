#include "forms/WideText.h"

#include <cstring>

namespace sonaro {

// CP_ACP is UTF-8 here: the program's manifest makes it so. Without the manifest letters beyond ASCII would
// be garbled.
std::wstring Widen(std::string_view text) {
  const int bytes = static_cast<int>(text.size());
  const int count = MultiByteToWideChar(CP_ACP, 0, text.data(), bytes, nullptr, 0);
  std::wstring wide(static_cast<std::size_t>(count), L'\0');
  MultiByteToWideChar(CP_ACP, 0, text.data(), bytes, wide.data(), count);
  return wide;
}

// Characters that the code page lacks become "?"; with UTF-8 that are only halves of surrogate pairs.
std::string Narrow(std::wstring_view text) {
  const int length = static_cast<int>(text.size());
  const int count = WideCharToMultiByte(CP_ACP, 0, text.data(), length, nullptr, 0, nullptr, nullptr);
  std::string narrow(static_cast<std::size_t>(count), '\0');
  WideCharToMultiByte(CP_ACP, 0, text.data(), length, narrow.data(), count, nullptr, nullptr);
  return narrow;
}

std::wstring TextOfWindow(HWND window) {
  const LRESULT length = SendMessageW(window, WM_GETTEXTLENGTH, 0, 0);
  if (length <= 0) return {};
  std::wstring text(static_cast<std::size_t>(length) + 1, L'\0');
  const LRESULT copied = SendMessageW(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()));
  text.resize(static_cast<std::size_t>(copied));
  return text;
}

// "&&" stands for one "&", and an "&" at the end for itself.
std::wstring WithoutAccessKey(std::wstring_view caption) {
  std::wstring words;
  for (std::size_t i = 0; i < caption.size(); ++i) {
    if (caption[i] == L'&' && i + 1 < caption.size()) ++i;
    words += caption[i];
  }
  return words;
}

std::string StringTable::Load(int id) const {
  // With a buffer of length 0 the call gives a pointer into the resource itself, which is not zero-ended.
  const wchar_t* text = nullptr;
  const int length =
      LoadStringW(GetModuleHandleW(nullptr), static_cast<UINT>(id), reinterpret_cast<wchar_t*>(&text), 0);
  if (length <= 0) return {};
  return Narrow({text, static_cast<std::size_t>(length)});
}

// As UTF-16: the system makes the other formats from it for programs that ask for them.
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
