#include "forms/StringTable.h"

#include <windows.h>

#include "forms/WideText.h"

namespace sonaro {

std::string StringTable::Load(int id) const {
  // With a buffer of length 0 the call gives a pointer into the resource itself, which is not zero-ended.
  const wchar_t* text = nullptr;
  const int length =
      LoadStringW(GetModuleHandleW(nullptr), static_cast<UINT>(id), reinterpret_cast<wchar_t*>(&text), 0);
  if (length <= 0) return {};
  return Narrow({text, static_cast<std::size_t>(length)});
}

}  // namespace sonaro
