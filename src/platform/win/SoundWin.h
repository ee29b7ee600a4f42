// Wave sounds through the Windows multimedia library.
#pragma once

#include "platform/Sound.h"

namespace sonaro {

class SoundWin : public Sound {
 public:
  void Play(const std::string& path) override;
};

}  // namespace sonaro
