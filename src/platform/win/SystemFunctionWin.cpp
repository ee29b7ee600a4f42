#include "platform/SystemFunction.h"

#include <windows.h>

namespace sonaro {

void* SystemFunction(const wchar_t* library, const char* name) {
  const HMODULE module = LoadLibraryExW(library, nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
  return module ? reinterpret_cast<void*>(GetProcAddress(module, name)) : nullptr;
}

}  // namespace sonaro
