// The program's entry: the real platform, the application, its message loop.
#include <winsock2.h>

#include <windows.h>

#include <commctrl.h>

#include <string>

#include "app/AppState.h"
#include "app/Application.h"
#include "forms/StringTable.h"
#include "net/HttpFaultText.h"
#include "platform/SystemFunction.h"
#include "platform/win/ClockWin.h"
#include "platform/win/FilesWin.h"
#include "platform/win/HttpControlWin.h"
#include "platform/win/MessagePostWin.h"
#include "platform/win/RegistryWin.h"
#include "platform/win/ShellWin.h"
#include "platform/win/SoundWin.h"
#include "platform/win/SystemInfoWin.h"

namespace {

// Full path of the executable.
std::string ProgramPath() {
  std::string path(32768, '\0');
  path.resize(GetModuleFileNameA(nullptr, path.data(), static_cast<DWORD>(path.size())));
  return path;
}

}  // namespace

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR commandLine, int) {
  sonaro::LoadFromSystemOnly();
  const INITCOMMONCONTROLSEX classes = {
      sizeof classes, ICC_STANDARD_CLASSES | ICC_LISTVIEW_CLASSES | ICC_TREEVIEW_CLASSES | ICC_DATE_CLASSES};
  InitCommonControlsEx(&classes);

  sonaro::RegistryWin registry;
  sonaro::FilesWin files;
  sonaro::ClockWin clock;
  sonaro::ShellWin shell;
  sonaro::SoundWin sound;
  sonaro::SystemInfoWin systemInfo;
  sonaro::MessagePostWin messages;
  sonaro::StringTable strings;
  sonaro::HttpControlMakerWin http(
      std::string("Sonaro/") + sonaro::kVersionText,
      [&strings](sonaro::HttpFault fault) { return sonaro::HttpFaultText(fault, strings); });
  const sonaro::Platform platform = {registry, files, clock, shell, sound, systemInfo, messages, http};
  return sonaro::Application(platform, strings, ProgramPath(), commandLine).Run();
}
