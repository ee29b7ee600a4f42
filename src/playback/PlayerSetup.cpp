#include "playback/PlayerSetup.h"

#include <algorithm>

#include "base/Files.h"
#include "base/Text.h"
#include "playback/Players.h"
#include "settings/CReg.h"
#include "settings/SettingNames.h"
#include "stations/PlayLink.h"

namespace sonaro {

std::vector<PlayerProgram> PlayerSetup::Programs() const {
  std::vector<PlayerProgram> programs = installed_.Find();
  const std::string chosen = Chosen();
  const bool offered = std::any_of(programs.begin(), programs.end(), [&](const PlayerProgram& program) {
    return EqualIgnoringCase(program.path, chosen);
  });
  if (!chosen.empty() && !offered)
    programs.push_back({chosen.substr(chosen.find_last_of("\\/") + 1), chosen});
  return programs;
}

std::string PlayerSetup::Chosen() const { return players_.Chosen(); }

PlayerChoiceOutcome PlayerSetup::Choose(const std::string& path) {
  if (path == Chosen()) return PlayerChoiceOutcome::Stored;
  if (!path.empty() && !files_.Exists(path)) return PlayerChoiceOutcome::NoSuchFile;
  reg_.Set(setting::kPlayWith, path);
  return Chosen() == path ? PlayerChoiceOutcome::Stored : PlayerChoiceOutcome::NotStored;
}

std::string PlayerSetup::Test(const std::string& path, const std::string& linkText) const {
  const PlayLink link = PlayLink::FromText(linkText);
  const std::string program = path.empty() ? installed_.ForLink(link, players_.FindRealPlayer(false)) : path;
  const std::optional<std::string> argument = PlayerArgument(link.address);
  const bool started = argument && files_.Exists(program) && players_.Play(program, *argument);
  return started ? installed_.NameOf(program) : std::string();
}

}  // namespace sonaro
