// Lets the user find, choose and try the RealPlayer-compatible player. The partner of frmStartUpInfo's player
// pages. A choice is stored where the player's own installation would store it, so that the look-up finds it.
#pragma once

#include <string>

namespace sonaro {

class CReg;
class Files;
class Players;

enum class PlayerChoiceOutcome {
  Stored,
  NoSuchFile,
  NotCompatible,  // its file name does not begin with "r"
  NotStored
};

class PlayerSetup {
 public:
  PlayerSetup(CReg& reg, Files& files, const Players& players)
      : reg_(reg), files_(files), players_(players) {}

  // Full path, or "".
  std::string Find() const;
  std::string FindAsxProgram() const;
  PlayerChoiceOutcome Choose(const std::string& path);
  // Plays the service's test link with the program. False when it did not start.
  bool Test(const std::string& path, const std::string& testLink) const;

 private:
  CReg& reg_;
  Files& files_;
  const Players& players_;
};

}  // namespace sonaro
