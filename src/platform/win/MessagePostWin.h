// Windows found by caption, and the mark by which running instances of the program know each other.
#pragma once

#include "platform/MessagePost.h"
#include "platform/win/Handle.h"

namespace sonaro {

class MessagePostWin : public MessagePost {
 public:
  // `instanceName` names the mark; instances with the same name in one user session know each other.
  explicit MessagePostWin(std::string instanceName = "Local\\SonaroInstance");

  bool WindowExists(const std::string& caption) override;
  bool PostTo(const std::string& caption, std::uint32_t message, std::uintptr_t first,
              std::intptr_t second) override;
  bool EarlierInstanceRuns() override;

 private:
  std::string instanceName_;
  KernelHandle mark_;  // held as long as this instance lives
  bool earlierInstance_ = false;
};

}  // namespace sonaro
