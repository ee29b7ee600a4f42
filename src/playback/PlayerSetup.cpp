#include "playback/PlayerSetup.h"

#include "app/CReg.h"
#include "base/Files.h"
#include "base/Text.h"
#include "playback/PlayLink.h"
#include "playback/Players.h"

namespace sonaro {

namespace {

constexpr const char* kPlayerKey = "SOFTWARE\\Classes\\Software\\RealNetworks\\RealPlayer";
constexpr const char* kOwnVersion = "Sonaro";  // for a player whose installation registered none

std::string FileNameOf(const std::string& path) { return path.substr(path.find_last_of("\\/") + 1); }

}  // namespace

std::string PlayerSetup::Find() const {
  const std::string registered = players_.FindRealPlayer(false);
  return registered.empty() ? players_.FindRealPlayer(true) : registered;
}

std::string PlayerSetup::FindAsxProgram() const { return players_.FindAsxProgram(); }

PlayerChoiceOutcome PlayerSetup::Choose(const std::string& path) {
  if (path.empty() || !files_.Exists(path)) return PlayerChoiceOutcome::NoSuchFile;
  if (!StartsWithIgnoringCase(FileNameOf(path), "r")) return PlayerChoiceOutcome::NotCompatible;
  const std::string versionKey = std::string(kPlayerKey) + "\\CurrentVersion";
  std::string version = reg_.GetData(versionKey, "");
  if (version.empty()) {
    version = kOwnVersion;
    reg_.CheckKeyIsThere(versionKey);
    reg_.SetData(versionKey, "", version);
  }
  const std::string programKey = std::string(kPlayerKey) + "\\" + version + "\\Preferences\\MainApp";
  reg_.CheckKeyIsThere(programKey);
  reg_.SetData(programKey, "", path);
  return players_.RegisteredRealPlayer() == path ? PlayerChoiceOutcome::Stored
                                                 : PlayerChoiceOutcome::NotStored;
}

bool PlayerSetup::Test(const std::string& path, const std::string& testLink) const {
  const std::optional<std::string> link = PlayerArgument(testLink);
  return link && files_.Exists(path) && players_.Play(path, *link);
}

}  // namespace sonaro
