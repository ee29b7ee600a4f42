// Records the paths of the sounds that were played.
#pragma once

#include <string>
#include <vector>

#include "platform/Sound.h"

namespace sonaro {

class FakeSound : public Sound {
 public:
  std::vector<std::string> played;

  void Play(const std::string& path) override { played.push_back(path); }
};

}  // namespace sonaro
