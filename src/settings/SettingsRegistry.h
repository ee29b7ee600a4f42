// The registry as the program uses it: the program's own key lives where this machine and user let it, every
// other key is the system's. The readers and writers of settings name the machine-wide key and need not know.
// Owned by Application.
//
// The own key's place is decided once, at the start:
// - the portable file beside the program, when there is one: then nothing is written to the system's registry
// - the machine-wide key, when it can be written or made
// - the same path under the current user, made now
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/Registry.h"
#include "settings/IniSettings.h"

namespace sonaro {

enum class SettingsPlace { PortableFile, Machine, User };

// What the user should know about the settings.
enum class SettingsFault { None, NotWritten, FileDamaged };

class SettingsRegistry final : public Registry {
 public:
  // `portableFile`: full path where the portable file would be.
  SettingsRegistry(Registry& system, Files& files, const std::string& portableFile);

  SettingsPlace Place() const;
  // What has gone wrong so far and was not told yet; every fault is told once in a session.
  SettingsFault TakeFault();

  bool KeyExists(RootKey root, const std::string& key) override;
  bool CanWrite(RootKey root, const std::string& key) override;
  bool CreateKey(RootKey root, const std::string& key) override;
  std::optional<std::string> ReadValue(RootKey root, const std::string& key,
                                       const std::string& name) override;
  bool WriteValue(RootKey root, const std::string& key, const std::string& name, ValueType type,
                  std::string_view bytes) override;
  std::vector<std::string> ValueNames(RootKey root, const std::string& key) override;
  bool RemoveValue(RootKey root, const std::string& key, const std::string& name) override;
  bool Flush(RootKey root, const std::string& key) override;
  void BeginWrites() override;
  void EndWrites() override;

 private:
  bool MakeWritable(RootKey root);
  RootKey Home(RootKey root, const std::string& key) const;
  // The key's name in the portable file; nothing for a key of the system.
  std::optional<std::string_view> InFile(RootKey root, const std::string& key) const;
  bool Note(bool written);

  Registry& system_;
  std::optional<IniSettings> file_;
  RootKey home_ = RootKey::LocalMachine;
  bool notWritten_ = false;
  bool toldNotWritten_ = false;
  bool toldDamaged_ = false;
};

}  // namespace sonaro
