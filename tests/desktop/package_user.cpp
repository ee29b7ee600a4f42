// package_user PROGRAM use | see: works the windows of a Sonaro that was installed or unpacked, for
// scripts/test-package. "use" switches the click of the buttons off, looks at the players and puts a station
// into a new group; "see" looks for both in a new session. package_user load LIBRARY: loads a library as
// careless programs do, by its bare name. Exit status 0 when all went as it should; otherwise what did not is
// printed.
#include <cstdio>
#include <filesystem>
#include <stdexcept>
#include <string>

#include "Probe.h"
#include "SonaroProcess.h"
#include "forms/ControlIds.h"

using namespace sonaro;
using namespace sonaro::desktop;

namespace {

constexpr const char* kGroup = "Kept";

void Expect(bool holds, const char* what) {
  if (!holds) throw std::runtime_error(what);
}

// A session begun hidden, which asks nothing, and brought forward through the tray.
class Session {
 public:
  explicit Session(const std::string& program)
      : portable_(std::filesystem::exists(std::filesystem::path(program).parent_path() / "portable.ini")),
        sonaro_(program, "WinStart=Yes") {
    Expect(sonaro_.WaitForWindow("SonaroFrm", "", std::chrono::seconds(60)) != nullptr, "it does not start");
    tray_ = sonaro_.WaitForWindow("", "frmSysTrayMenu");
    Expect(tray_ != nullptr, "no tray window");
    Command(tray_, mnuTrayOpen);
    main_ = sonaro_.WaitForShownWindow("SonaroFrm");
    Expect(main_ != nullptr, "the main window is not shown");
  }
  HWND Main() const { return main_; }
  HWND Dialog(const char* name) const {
    HWND dialog = sonaro_.WaitForShownWindow(name);
    Expect(dialog != nullptr, name);
    return dialog;
  }
  HWND Options() const {
    Command(tray_, mnuTrayOptions);
    HWND dialog = Dialog("frmOptions");
    const bool canStart = IsWindowEnabled(Control(dialog, chkStartWindows)) != FALSE;
    Expect(canStart != portable_, "starting with Windows is offered where it should not, or the reverse");
    return dialog;
  }
  void EndWith(HWND dialog, int button) const {
    Click(Control(dialog, button));
    Expect(WaitUntil([&] { return !IsShown(dialog) && IsWindowEnabled(main_) != FALSE; }), "a dialog stays");
  }
  void End() const {
    Command(tray_, mnuTrayExit);
    Expect(sonaro_.WaitForEnd(std::chrono::seconds(30)) == 0u, "it does not end");
  }

 private:
  const bool portable_;
  SonaroProcess sonaro_;
  HWND tray_ = nullptr;
  HWND main_ = nullptr;
};

void Use(const Session& session) {
  HWND options = session.Options();
  Expect(IsChecked(Control(options, chkSoundKeys)), "the buttons do not click at first");
  Click(Control(options, chkSoundKeys));
  Click(Control(options, butPlayerIt));  // asks Windows about players, by files that it makes for that
  HWND player = session.Dialog("frmStartUpInfo");
  Click(Control(player, butDoneIt));
  Expect(WaitUntil([&] { return !IsShown(player) && IsWindowEnabled(options) != FALSE; }), "the page stays");
  session.EndWith(options, butOKIt);

  HWND list = Control(session.Main(), lstFavs);
  Command(session.Main(), mnuActionMostPoular);
  Expect(WaitUntil([&] { return RowCount(list) > 2; }), "no stations");
  Command(session.Main(), mnuFavoritesAdd);
  HWND group = session.Dialog("frmNewFavorite");
  SetText(Control(group, txtGroupName), kGroup);
  session.EndWith(group, butOKIt);
  SelectRow(list, 0);
  Command(session.Main(), mnuActionStationToGroup);
}

void See(const Session& session) {
  HWND options = session.Options();
  Expect(!IsChecked(Control(options, chkSoundKeys)), "the setting is lost");
  session.EndWith(options, butCancelIt);
  HWND key = Control(session.Main(), butFavs);
  Expect(TextOf(key) == kGroup, "the group is lost");
  Click(key);
  HWND list = Control(session.Main(), lstFavs);
  Expect(
      WaitUntil([&] { return TextOf(Control(session.Main(), lblListing)) == kGroup && RowCount(list) == 1; }),
      "the favourite is lost");
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) {
    std::fputs("usage: package_user PROGRAM use | PROGRAM see | load LIBRARY\n", stderr);
    return 2;
  }
  if (argv[1] == std::string("load")) return LoadLibraryA(argv[2]) != nullptr ? 0 : 1;
  try {
    const Session session(argv[1]);
    if (argv[2] == std::string("use")) Use(session);
    See(session);
    session.End();
  } catch (const std::exception& fault) {  // the session has ended with its process
    std::printf("package_user %s: %s\n", argv[2], fault.what());
    return 1;
  }
  return 0;
}
