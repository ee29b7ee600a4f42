#include "platform/win/PlatformWin.h"

#include <windows.h>
// After windows.h, which it needs and WIN32_LEAN_AND_MEAN keeps out.
#include <mmsystem.h>

#include "platform/SystemFunction.h"

namespace sonaro {

// Without SND_NODEFAULT a missing file would sound as the system's beep.
void SoundWin::Play(const std::string& path) {
  static const auto play =
      reinterpret_cast<decltype(&sndPlaySoundA)>(SystemFunction(L"winmm.dll", "sndPlaySoundA"));
  if (play) play(path.c_str(), SND_ASYNC | SND_NODEFAULT);
}

}  // namespace sonaro
