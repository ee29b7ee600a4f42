// Sounds of the program: short wave files, played without waiting. Never reports failure: nothing may depend
// on whether a sound card is there.
#pragma once

#include <string>

namespace sonaro {

class Sound {
 public:
  virtual ~Sound() = default;
  // Starts playing the wave file, ending one that still plays. A missing file or device is silence.
  virtual void Play(const std::string& path) = 0;
};

}  // namespace sonaro
