// lweb: opens the one web address on its command line in the system's browser, and nothing else. A program of
// its own, so that whatever a link is made of ends here. Quiet: exit code 0 opened, 1 refused or not started.
#include <windows.h>

#include <shellapi.h>

#include <string>

#include "base/Text.h"
#include "base/http/HttpRequest.h"

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR commandLine, int) {
  SetDefaultDllDirectories(LOAD_LIBRARY_SEARCH_SYSTEM32);  // nothing out of the program's folder
  // The handle that comes back is none: up to 32 it is an error code.
  constexpr INT_PTR kLastFailureCode = 32;
  const std::string address(sonaro::TrimBlanks(commandLine));
  // Checked here once more, whoever has started this program: the shell would open a file or run a command
  // just as well.
  if (!sonaro::IsWebAddress(address)) return 1;
  const HINSTANCE result = ShellExecuteA(nullptr, "open", address.c_str(), nullptr, nullptr, SW_SHOWNORMAL);
  return reinterpret_cast<INT_PTR>(result) > kLastFailureCode ? 0 : 1;
}
