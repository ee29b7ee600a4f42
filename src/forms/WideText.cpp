#include "forms/WideText.h"

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

std::wstring WithoutAccessKey(std::wstring_view caption) {
  std::wstring words;
  for (std::size_t i = 0; i < caption.size(); ++i) {
    if (caption[i] == L'&' && i + 1 < caption.size()) ++i;
    words += caption[i];
  }
  return words;
}

}  // namespace sonaro
