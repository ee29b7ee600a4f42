// What an update replaced, all of it: files, settings. Kept in one file that is written in one step, so that
// there is always a whole one or none. Used by UpdateInstall; knows what to write down, not when.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace sonaro {

class DataFolder;

struct KeptFile {
  std::string name;                  // plain, one that an update may bring
  std::optional<std::string> bytes;  // nothing: there was no such file
};

struct KeptSetting {
  std::string key;  // of the registry, under HKEY_LOCAL_MACHINE
  std::string name;
  std::string value;
};

struct PreviousGuide {
  std::vector<KeptFile> files;
  std::vector<KeptSetting> settings;

  const KeptFile* Find(std::string_view name) const;  // ignoring letter case; null when it is not kept
};

// False when it could not be saved; what was kept before stays then.
[[nodiscard]] bool SavePreviousGuide(DataFolder& data, std::string_view fileName, const PreviousGuide& guide);
// Nothing when there is none, or none that is whole.
std::optional<PreviousGuide> LoadPreviousGuide(DataFolder& data, std::string_view fileName);
// Looks at the beginning of the file only.
bool IsPreviousGuide(const DataFolder& data, std::string_view fileName);

}  // namespace sonaro
