// Window messages between running programs and windows, found by caption.
#pragma once

#include <cstdint>
#include <string>

namespace sonaro {

class MessagePost {
 public:
  virtual ~MessagePost() = default;
  // True when a top-level window with exactly this caption exists, in this or another process, shown or not.
  virtual bool WindowExists(const std::string& caption) = 0;
  // Posts to that window without waiting; false when there is none.
  virtual bool PostTo(const std::string& caption, std::uint32_t message, std::uintptr_t first,
                      std::intptr_t second) = 0;
  // True when the platform knows of an earlier instance of this program in this user session. The first call
  // also registers this process as that instance.
  virtual bool EarlierInstanceRuns() = 0;
};

}  // namespace sonaro
