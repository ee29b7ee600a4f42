#include "playback/InstalledPlayers.h"

#include <algorithm>
#include <cstdlib>

#include "base/DataFolder.h"
#include "base/Text.h"
#include "playback/Players.h"
#include "settings/CReg.h"
#include "settings/SettingNames.h"

namespace sonaro {

namespace {

constexpr const char* kKinds[] = {".m3u", ".pls", ".mp3", ".asx"};
// The system's question which program to take; it stands for a kind of file that has none.
constexpr const char* kSystemQuestion = "openwith.exe";

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

std::vector<PlayerProgram> InstalledPlayers::Find() const {
  Programs programs;
  AddRegistered(programs);
  AddAssociated(programs);
  return programs;
}

void InstalledPlayers::AddRegistered(Programs& programs) const {
  for (const RootKey root : {RootKey::LocalMachine, RootKey::CurrentUser}) {
    const MainKeyScope scope(reg_, root);
    for (const std::string& name : reg_.ValueNames(systemkey::kRegisteredApplications)) {
      const std::string capabilities = reg_.GetData(systemkey::kRegisteredApplications, name);
      if (!capabilities.empty()) AddApplication(programs, capabilities, name);
    }
  }
}

void InstalledPlayers::AddApplication(Programs& programs, const std::string& capabilities,
                                      const std::string& name) const {
  std::string shown = reg_.GetData(capabilities, systemkey::kApplicationName);
  if (shown.empty() || shown[0] == '@') shown = name;  // "@" refers to a text in some library
  for (const char* kind : kKinds) {
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

void InstalledPlayers::Add(Programs& programs, const std::string& name, const std::string& path) const {
  const std::string fileName = path.substr(path.find_last_of("\\/") + 1);
  if (path.empty() || EqualIgnoringCase(fileName, kSystemQuestion)) return;
  const bool known = std::any_of(programs.begin(), programs.end(), [&](const PlayerProgram& program) {
    return EqualIgnoringCase(program.path, path);
  });
  if (known || !data_.FileSystem().Exists(path)) return;
  programs.push_back({name.empty() ? fileName : name, path});
}

}  // namespace sonaro
