// Lets the user choose and try the program that plays every stream link. The partner of frmStartUpInfo's
// player pages. A choice is the setting "PlayWith"; without one the kind of the link decides.
#pragma once

#include <string>
#include <vector>

#include "playback/InstalledPlayers.h"

namespace sonaro {

class CReg;
class Files;
class Players;

enum class PlayerChoiceOutcome { Stored, NoSuchFile, NotStored };

class PlayerSetup {
 public:
  PlayerSetup(CReg& reg, Files& files, const Players& players, const InstalledPlayers& installed)
      : reg_(reg), files_(files), players_(players), installed_(installed) {}

  // What can be chosen by name: the installed players, and the chosen program when it is none of them.
  std::vector<PlayerProgram> Programs() const;
  // Full path, or "" when the kind of the link decides.
  std::string Chosen() const;
  // Any executable; "" leaves it to the kind of the link again.
  [[nodiscard]] PlayerChoiceOutcome Choose(const std::string& path);
  // Plays a link text with the program or, when `path` is "", as one of its kind is played. What the program
  // is called; "" when none was started.
  std::string Test(const std::string& path, const std::string& linkText) const;

 private:
  CReg& reg_;
  Files& files_;
  const Players& players_;
  const InstalledPlayers& installed_;
};

}  // namespace sonaro
