// Stands in for a player or a browser: appends its whole command line as one line to the file that is named
// like itself with ".txt" behind, and ends.
#include <windows.h>

#include <array>
#include <string>

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int) {
  std::array<char, 1024> program{};
  GetModuleFileNameA(nullptr, program.data(), static_cast<DWORD>(program.size()));
  const std::string record = std::string(program.data()) + ".txt";
  const std::string line = std::string(GetCommandLineA()) + "\n";
  HANDLE file = CreateFileA(record.c_str(), FILE_APPEND_DATA, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                            OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file == INVALID_HANDLE_VALUE) return 1;
  DWORD written = 0;
  WriteFile(file, line.data(), static_cast<DWORD>(line.size()), &written, nullptr);
  CloseHandle(file);
  return 0;
}
