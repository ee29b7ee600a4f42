#include "playback/InstalledPlayers.h"

#include <algorithm>
#include <cstdlib>

#include "base/DataFolder.h"
#include "base/Text.h"
#include "playback/Players.h"
#include "settings/CReg.h"
#include "settings/SettingNames.h"
#include "stations/PlayLink.h"

namespace sonaro {

namespace {

// The kinds of file by which a player is known: who opens playlists or MP3 files plays streams as well.
constexpr const char* kKinds[] = {".m3u", kPls, ".mp3", ".asx"};
// The system's question which program to take; it stands for a kind of file that has none.
constexpr const char* kSystemQuestion = "openwith.exe";

std::string FileNameOf(const std::string& path) { return path.substr(path.find_last_of("\\/") + 1); }

bool AsksTheUser(const std::string& path) { return EqualIgnoringCase(FileNameOf(path), kSystemQuestion); }

const PlayerProgram* At(const std::vector<PlayerProgram>& programs, const std::string& path) {
  const auto found = std::find_if(programs.begin(), programs.end(), [&](const PlayerProgram& program) {
    return EqualIgnoringCase(program.path, path);
  });
  return found != programs.end() ? &*found : nullptr;
}

// A command is a path in quotes, or one that ends with the first ".exe".
std::string ProgramOf(const std::string& command) {
  constexpr std::string_view kExe = ".exe";
  const std::string_view text = TrimBlanks(command);
  if (text.starts_with('"')) return std::string(text.substr(1, text.find('"', 1) - 1));
  for (std::size_t at = 0; at + kExe.size() <= text.size(); ++at) {
    if (EqualIgnoringCase(text.substr(at, kExe.size()), kExe)) {
      return std::string(text.substr(0, at + kExe.size()));
    }
  }
  return {};
}

// "%ProgramFiles%\x" with the variable's value; a variable that is not set stays as it is.
std::string WithVariables(const std::string& path) {
  if (!path.starts_with('%')) return path;
  const std::size_t end = path.find('%', 1);
  if (end == std::string::npos) return path;
  const char* const value = std::getenv(path.substr(1, end - 1).c_str());
  return value != nullptr ? value + path.substr(end + 1) : path;
}

}  // namespace

// Registered programs first: they bring names of their own, and a program that is found both ways keeps its
// name.
std::vector<PlayerProgram> InstalledPlayers::Find() const {
  Programs programs;
  AddRegistered(programs, kKinds);
  AddAssociated(programs);
  return programs;
}

// What the user has set for the kind goes first; a registered application is merely able to open such files.
std::string InstalledPlayers::ForKind(const char* kind) const {
  const std::string associated = players_.AssociatedProgram(kind);
  if (!associated.empty() && !AsksTheUser(associated) && data_.FileSystem().Exists(associated))
    return associated;
  Programs programs;
  AddRegistered(programs, {&kind, 1});
  return programs.empty() ? std::string() : programs.front().path;
}

std::string InstalledPlayers::ForLink(const PlayLink& link, const std::string& realPlayer) const {
  if (std::string reader = link.IsPls() ? ForKind(kPls) : ""; !reader.empty()) return reader;
  if (link.way == PlayWay::AsxProgram) return players_.FindAsxProgram();
  return Players::IsRealPlayer(realPlayer) ? realPlayer : std::string();
}

// Remembered, since it is asked with every play.
std::string InstalledPlayers::NameOf(const std::string& path) const {
  if (const PlayerProgram* known = At(named_, path)) return known->name;
  Programs registered;
  AddRegistered(registered, kKinds);
  const PlayerProgram* const found = At(registered, path);
  named_.push_back({found != nullptr ? found->name : OwnNameOf(FileNameOf(path)), path});
  return named_.back().name;
}

// For the machine first; a user may have installed more for himself.
void InstalledPlayers::AddRegistered(Programs& programs, Kinds kinds) const {
  for (const RootKey root : {RootKey::LocalMachine, RootKey::CurrentUser}) {
    const MainKeyScope scope(reg_, root);
    for (const std::string& name : reg_.ValueNames(systemkey::kRegisteredApplications)) {
      const std::string capabilities = reg_.GetData(systemkey::kRegisteredApplications, name);
      if (!capabilities.empty()) AddApplication(programs, kinds, capabilities, name);
    }
  }
}

void InstalledPlayers::AddApplication(Programs& programs, Kinds kinds, const std::string& capabilities,
                                      const std::string& name) const {
  std::string shown = reg_.GetData(capabilities, systemkey::kApplicationName);
  if (shown.empty() || shown[0] == '@') shown = name;  // "@" refers to a text in some library
  for (const char* kind : kinds) {
    const std::string fileClass = reg_.GetData(capabilities + systemkey::kFileAssociations, kind);
    if (!fileClass.empty()) Add(programs, shown, ProgramOfClass(fileClass));
  }
}

void InstalledPlayers::AddAssociated(Programs& programs) const {
  for (const char* kind : kKinds) Add(programs, {}, players_.AssociatedProgram(kind));
  const MainKeyScope classes(reg_, RootKey::ClassesRoot);
  for (const char* kind : kKinds) {
    for (const std::string& fileClass : reg_.ValueNames(std::string(kind) + systemkey::kOpenWith)) {
      Add(programs, {}, ProgramOfClass(fileClass));
    }
  }
}

std::string InstalledPlayers::ProgramOfClass(const std::string& fileClass) const {
  if (fileClass.empty()) return {};
  const MainKeyScope classes(reg_, RootKey::ClassesRoot);
  return WithVariables(
      ProgramOf(reg_.GetData(fileClass + systemkey::kOpenCommand, systemkey::kDefaultValue)));
}

// What an uninstaller left behind in the registry has no file and is no player.
void InstalledPlayers::Add(Programs& programs, const std::string& name, const std::string& path) const {
  if (path.empty() || AsksTheUser(path) || At(programs, path) || !data_.FileSystem().Exists(path)) return;
  programs.push_back({name.empty() ? OwnNameOf(FileNameOf(path)) : name, path});
}

// A name that begins with "@" is a number in some library, which would have to be loaded.
std::string InstalledPlayers::OwnNameOf(const std::string& fileName) const {
  const MainKeyScope classes(reg_, RootKey::ClassesRoot);
  const std::string own = reg_.GetData(systemkey::kApplications + fileName, systemkey::kFriendlyName);
  return own.empty() || own[0] == '@' ? fileName : own;
}

}  // namespace sonaro
