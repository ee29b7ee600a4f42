#include "settings/SettingsRegistry.h"

#include "base/Text.h"
#include "settings/CReg.h"

namespace sonaro {
namespace {

// What the names in the portable file leave out: they begin with the last part of kSettingsKey.
constexpr std::size_t kParents = std::string_view(kSettingsKey).rfind('\\') + 1;

// With the backslash behind both, so that a key that only begins with the same letters is not taken for one
// below the program's.
bool IsOwn(RootKey root, const std::string& key) {
  return root == RootKey::LocalMachine &&
         StartsWithIgnoringCase(key + "\\", std::string(kSettingsKey) + "\\");
}

}  // namespace

SettingsRegistry::SettingsRegistry(Registry& system, Files& files, const std::string& portableFile)
    : system_(system) {
  if (files.Exists(portableFile)) {
    file_.emplace(files, portableFile);
    notWritten_ = !file_->AddKey(std::string_view(kSettingsKey).substr(kParents));
    return;
  }
  if (MakeWritable(RootKey::LocalMachine)) return;
  home_ = RootKey::CurrentUser;
  notWritten_ = !MakeWritable(home_);
}

// A key that can be made cannot always be written: rights can differ for the two, so it is tried after the
// making as well.
bool SettingsRegistry::MakeWritable(RootKey root) {
  return system_.CanWrite(root, kSettingsKey) ||
         (system_.CreateKey(root, kSettingsKey) && system_.CanWrite(root, kSettingsKey));
}

SettingsPlace SettingsRegistry::Place() const {
  if (file_) return SettingsPlace::PortableFile;
  return home_ == RootKey::LocalMachine ? SettingsPlace::Machine : SettingsPlace::User;
}

// Damage is told before the other fault and apart from it: the file was kept beside, and the user may want to
// look at it.
SettingsFault SettingsRegistry::TakeFault() {
  if (file_) {
    const IniSettings::Condition state = file_->State();
    notWritten_ = notWritten_ || state == IniSettings::Condition::Unreadable ||
                  state == IniSettings::Condition::NotSaved;
    if (state == IniSettings::Condition::Damaged && !toldDamaged_) {
      toldDamaged_ = true;
      return SettingsFault::FileDamaged;
    }
  }
  if (!notWritten_ || toldNotWritten_) return SettingsFault::None;
  toldNotWritten_ = true;
  return SettingsFault::NotWritten;
}

RootKey SettingsRegistry::Home(RootKey root, const std::string& key) const {
  return IsOwn(root, key) ? home_ : root;
}

std::optional<std::string_view> SettingsRegistry::InFile(RootKey root, const std::string& key) const {
  if (!file_ || !IsOwn(root, key)) return std::nullopt;
  return std::string_view(key).substr(kParents);
}

bool SettingsRegistry::Note(bool written) {
  notWritten_ = notWritten_ || !written;
  return written;
}

bool SettingsRegistry::KeyExists(RootKey root, const std::string& key) {
  if (const auto name = InFile(root, key)) return file_->HasKey(*name);
  return system_.KeyExists(Home(root, key), key);
}

// Beside a portable file no key of the system is written, whatever the system would allow: the folder must
// leave no trace on a machine that it is only plugged into.
bool SettingsRegistry::CanWrite(RootKey root, const std::string& key) {
  if (const auto name = InFile(root, key)) return file_->HasKey(*name);
  return !file_ && system_.CanWrite(Home(root, key), key);
}

bool SettingsRegistry::CreateKey(RootKey root, const std::string& key) {
  if (const auto name = InFile(root, key)) return file_->AddKey(*name);
  return !file_ && system_.CreateKey(Home(root, key), key);
}

std::optional<std::string> SettingsRegistry::ReadValue(RootKey root, const std::string& key,
                                                       const std::string& name) {
  if (const auto own = InFile(root, key)) return file_->Read(*own, name);
  return system_.ReadValue(Home(root, key), key, name);
}

bool SettingsRegistry::WriteValue(RootKey root, const std::string& key, const std::string& name,
                                  ValueType type, std::string_view bytes) {
  if (const auto own = InFile(root, key)) return file_->Write(*own, name, bytes);
  if (file_) return false;
  const bool written = system_.WriteValue(Home(root, key), key, name, type, bytes);
  // Only the own key counts as a fault to tell; what the system keeps for itself may be refused.
  if (!IsOwn(root, key) || !system_.KeyExists(home_, key)) return written;
  return Note(written);
}

std::vector<std::string> SettingsRegistry::ValueNames(RootKey root, const std::string& key) {
  if (const auto own = InFile(root, key)) return file_->Names(*own);
  return system_.ValueNames(Home(root, key), key);
}

bool SettingsRegistry::RemoveValue(RootKey root, const std::string& key, const std::string& name) {
  if (const auto own = InFile(root, key)) return file_->Remove(*own, name);
  return !file_ && system_.RemoveValue(Home(root, key), key, name);
}

// Every save of the file is on the disk when it returns.
bool SettingsRegistry::Flush(RootKey root, const std::string& key) {
  if (const auto own = InFile(root, key)) return file_->HasKey(*own);
  return system_.Flush(Home(root, key), key);
}

void SettingsRegistry::BeginWrites() {
  if (file_) file_->Begin();
}

void SettingsRegistry::EndWrites() {
  if (file_) file_->End();
}

}  // namespace sonaro
