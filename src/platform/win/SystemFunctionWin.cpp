#include "platform/SystemFunction.h"

#include <windows.h>

#include <initializer_list>

namespace sonaro {

// The flag keeps the search to the system's folder: a file of that name beside the program, where a download
// may have put it, is never loaded.
void* SystemFunction(const wchar_t* library, const char* name) {
  const HMODULE module = LoadLibraryExW(library, nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
  return module ? reinterpret_cast<void*>(GetProcAddress(module, name)) : nullptr;
}

// Delayed imports of the system's libraries need not follow the process's own order; these are the ones that
// a window brings. Sound loads five more and has nobody but SoundWin to ask for it.
void LoadFromSystemOnly() {
  SetDefaultDllDirectories(LOAD_LIBRARY_SEARCH_SYSTEM32);
  for (const wchar_t* library : {L"uxtheme.dll", L"msimg32.dll", L"version.dll"})
    LoadLibraryExW(library, nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
}

}  // namespace sonaro
