// Windows that exist by caption, and the messages posted to them.
#pragma once

#include <cstdint>
#include <set>
#include <string>
#include <vector>

#include "platform/MessagePost.h"

namespace sonaro {

class FakeMessagePost : public MessagePost {
 public:
  struct Posted {
    std::string caption;
    std::uint32_t message = 0;
    std::uintptr_t first = 0;
    std::intptr_t second = 0;
    bool operator==(const Posted&) const = default;
  };

  std::set<std::string> windows;
  bool earlierInstanceRuns = false;
  std::vector<Posted> posted;

  bool WindowExists(const std::string& caption) override { return windows.contains(caption); }
  bool PostTo(const std::string& caption, std::uint32_t message, std::uintptr_t first,
              std::intptr_t second) override {
    if (!WindowExists(caption)) return false;
    posted.push_back({caption, message, first, second});
    return true;
  }
  bool EarlierInstanceRuns() override { return earlierInstanceRuns; }
};

}  // namespace sonaro
