// The program's entry: the real platform, the application, its message loop.
#include <winsock2.h>

#include <windows.h>

#include <commctrl.h>

#include <string>
#include <string_view>

#include "app/Application.h"
#include "forms/Guard.h"
#include "forms/WideText.h"
#include "platform/SystemFunction.h"
#include "platform/win/FilesWin.h"
#include "platform/win/HttpControlWin.h"
#include "platform/win/PlatformWin.h"
#include "resources/texts/app.h"
#include "settings/AppState.h"
#include "settings/Strings.h"

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

  sonaro::StringTable strings;
  if (std::string_view(commandLine) == "--help") {
    MessageBoxW(nullptr, sonaro::Widen(strings.Load(IDS_START_HELP)).c_str(), L"Sonaro", MB_OK);
    return 0;
  }
  sonaro::RegistryWin registry;
  sonaro::FilesWin files;
  sonaro::ClockWin clock;
  sonaro::ShellWin shell;
  sonaro::SoundWin sound;
  sonaro::SystemInfoWin systemInfo;
  sonaro::MessagePostWin messages;
  sonaro::HttpControlFactoryWin http(std::string("Sonaro/") + sonaro::kVersionText);
  const sonaro::Platform platform = {registry, files, clock, shell, sound, systemInfo, messages, http};
  constexpr int kFailed = -1;
  const auto run = [&]() -> LRESULT {
    return sonaro::Application(platform, strings, ProgramPath(), commandLine).Run();
  };
  // What fails in a window is caught there; here the start itself fails, and must not do so without a word.
  const auto exitCode = static_cast<int>(sonaro::Guarded(kFailed, run));
  if (exitCode == kFailed) {
    MessageBoxW(nullptr, sonaro::Widen(strings.Load(IDS_CANNOT_GO_ON)).c_str(), L"Sonaro",
                MB_ICONERROR | MB_SETFOREGROUND);
  }
  return exitCode;
}
