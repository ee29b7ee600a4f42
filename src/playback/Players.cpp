#include "playback/Players.h"

#include <algorithm>

#include "base/DataFolder.h"
#include "base/OwnFiles.h"
#include "base/Text.h"
#include "platform/Shell.h"
#include "settings/CReg.h"
#include "settings/SettingNames.h"

namespace sonaro {

namespace {

constexpr int kLastFailureCode = 32;  // of the platform's association look-up

// Letters of ASCII only: the file system finds the program in any case, and other letters may change length.
void LowerCase(std::string& path) {
  for (char& c : path) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  }
}

}  // namespace

std::string Players::RegisteredVersion() const {
  MainKeyScope machine(reg_, RootKey::LocalMachine);
  return reg_.GetData(systemkey::kPlayerVersion, systemkey::kDefaultValue);
}

std::string Players::RegisteredPath(const std::string& version) const {
  MainKeyScope machine(reg_, RootKey::LocalMachine);
  const std::string path =
      reg_.GetData(systemkey::kPlayer + version + systemkey::kPlayerMainApp, systemkey::kDefaultValue);
  return !path.empty() && data_.FileSystem().Exists(path) ? path : std::string();
}

std::string Players::RegisteredRealPlayer() const { return RegisteredPath(RegisteredVersion()); }

std::string Players::FindRealPlayer(bool force) const {
  const std::string version = RegisteredVersion();
  if (!version.empty() && !force) return RegisteredPath(version);
  const std::string path = ProgramOfMarker(work_file::kRamMarker);
  return !path.empty() && data_.FileSystem().Exists(path) ? path : std::string();
}

std::string Players::FindAsxProgram() const { return ProgramOfMarker(work_file::kAsxMarker); }

std::string Players::AssociatedProgram(const std::string& ending) const {
  const std::string marker = "\\dummy" + ending;
  const std::string program = ProgramOfMarker(marker);
  data_.Remove(marker);
  return program;
}

bool Players::IsRealPlayer(std::string_view path) {
  return StartsWithIgnoringCase(path.substr(path.rfind('\\') + 1), "r");
}

// The system tells the program of a kind of file only for a file that exists, so an empty one is made. The
// result may have arguments behind the program; it is cut behind the first ".exe".
std::string Players::ProgramOfMarker(std::string_view name) const {
  constexpr std::string_view kExe = ".exe";
  const std::string marker = data_.Path(name);
  data_.FileSystem().Remove(marker);
  if (const auto file = data_.FileSystem().Create(marker)) file->Commit(Durability::Cached);

  FoundProgram found = shell_.FindProgramFor(std::string(name.substr(1)), data_.Folder());
  if (found.code <= kLastFailureCode) return {};
  LowerCase(found.path);
  const std::size_t exe = found.path.find(kExe);
  return exe == std::string::npos ? found.path : found.path.substr(0, exe + kExe.size());
}

std::string Players::Chosen() const { return std::string(TrimBlanks(reg_.Get(setting::kPlayWith))); }

bool Players::Play(const std::string& program, const std::string& link) const {
  return shell_.Open(program, link, data_.Folder());
}

}  // namespace sonaro
