// A library that somebody else has put into the program's folder under a system library's name: it leaves a
// file beside itself when it is loaded.
#include <windows.h>

#include <string>

BOOL WINAPI DllMain(HINSTANCE self, DWORD reason, LPVOID) {
  if (reason != DLL_PROCESS_ATTACH) return TRUE;
  char path[MAX_PATH] = {};
  GetModuleFileNameA(self, path, MAX_PATH);
  const HANDLE file = CreateFileA((std::string(path) + ".loaded").c_str(), GENERIC_WRITE, 0, nullptr,
                                  CREATE_ALWAYS, 0, nullptr);
  if (file != INVALID_HANDLE_VALUE) CloseHandle(file);
  return TRUE;
}
