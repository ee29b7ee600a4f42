// window_shot PROGRAM PICTURE [CLASS]: starts a program, waits until a window of the class (SonaroFrm) is
// shown and its picture stands still, writes it as PNG and ends the program. Exit status 0 when the picture
// was written.
#include <cstdio>

#include "Picture.h"
#include "Probe.h"
#include "SonaroProcess.h"

using namespace sonaro::desktop;

namespace {

// A window paints in several steps; it is finished when ten looks in a row, half a second, show the same.
void WaitForStillPicture(const RECT& part) {
  unsigned long long last = PictureHash(part);
  int same = 0;
  WaitUntil(
      [&] {
        Sleep(40);
        const unsigned long long now = PictureHash(part);
        same = now == last ? same + 1 : 0;
        last = now;
        return same >= 10;
      },
      std::chrono::seconds(10));
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 3) {
    std::fputs("usage: window_shot PROGRAM PICTURE [CLASS]\n", stderr);
    return 2;
  }
  const SonaroProcess program(argv[1], "");
  if (!program.Started()) {
    std::fprintf(stderr, "window_shot: %s does not start\n", argv[1]);
    return 1;
  }
  HWND window = program.WaitForShownWindow(argc > 3 ? argv[3] : "SonaroFrm", "", std::chrono::seconds(60));
  if (window == nullptr) {
    std::fputs(program.Running() ? "window_shot: no main window within a minute; the screen instead\n"
                                 : "window_shot: the program ended before it showed its main window\n",
               stderr);
    SavePicture(WholeScreen(), argv[2]);
    return 1;
  }
  WaitForStillPicture(BoundsOf(window));
  return SavePicture(BoundsOf(window), argv[2]) ? 0 : 1;
}
