// The settings store: named text values under one root key of the registry. One instance, owned by
// Application, pointed at HKEY_LOCAL_MACHINE; the same class reads a few keys of the system and of the media
// player. No operation reports failure: a read that cannot be done gives "", which every caller takes as
// "never set".
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/Registry.h"

namespace sonaro {

// The program's own keys under HKEY_LOCAL_MACHINE, as everybody names them; where they really live
// SettingsRegistry decides.
inline constexpr const char* kSettingsKey = "SOFTWARE\\zumo\\Sonaro";
inline constexpr const char* kAdsKey = "SOFTWARE\\zumo\\Sonaro\\ads";

class CReg {
 public:
  explicit CReg(Registry& registry) : registry_(registry) {}

  // The hive that the other operations work in. Whoever changes it restores LocalMachine before returning to
  // the event loop; MainKeyScope does that.
  RootKey MainKey() const { return mainKey_; }
  void SetMainKey(RootKey root) { mainKey_ = root; }

  // Writes exactly the characters of `data`, without a terminating zero. With `asString` false the number
  // that `data` reads as is stored as a 32-bit integer of type REG_BINARY. A key that does not exist is not
  // created.
  void SetData(const std::string& key, const std::string& valueName, std::string_view data,
               bool asString = true);
  void DeleteValue(const std::string& key, const std::string& valueName);
  // The value's text up to its first zero character, or all of it when it has none.
  std::string GetData(const std::string& key, const std::string& valueName) const;
  // The names of the key's values.
  std::vector<std::string> ValueNames(const std::string& key) const;
  // Creates the key when it is not there.
  void CheckKeyIsThere(const std::string& key);

  // The program's own settings, by their line in SettingNames.h: a bool, a number, an enum or a text. They
  // stand on kSettingsKey under HKEY_LOCAL_MACHINE, whatever MainKey is.
  template <class Type>
  typename Type::Value Get(const Type& setting) const {
    return setting.Parse(Setting(setting.name));
  }
  template <class Type>
  void Set(const Type& setting, typename Type::Given value) {
    SetSetting(setting.name, setting.Format(value));
  }
  // Their texts as they stand; for what reads no meaning out of them.
  std::string Setting(const std::string& valueName) const;
  void SetSetting(const std::string& valueName, std::string_view data);
  // Brings the program's own settings to the disk. For whoever changes files after settings, or settings
  // after files, and must not find them the other way round after a power cut. Not within a SettingsBatch.
  void FlushSettings();

 private:
  friend class SettingsBatch;
  Registry& registry_;
  RootKey mainKey_ = RootKey::LocalMachine;
};

// Points the store at another hive for the length of a block.
class MainKeyScope {
 public:
  MainKeyScope(CReg& reg, RootKey root) : reg_(reg), saved_(reg.MainKey()) { reg_.SetMainKey(root); }
  ~MainKeyScope() { reg_.SetMainKey(saved_); }
  MainKeyScope(const MainKeyScope&) = delete;
  MainKeyScope& operator=(const MainKeyScope&) = delete;

 private:
  CReg& reg_;
  RootKey saved_;
};

// For the length of a block that writes many settings: they are brought to the disk together at its end.
class SettingsBatch {
 public:
  explicit SettingsBatch(CReg& reg) : registry_(reg.registry_) { registry_.BeginWrites(); }
  ~SettingsBatch() { registry_.EndWrites(); }
  SettingsBatch(const SettingsBatch&) = delete;
  SettingsBatch& operator=(const SettingsBatch&) = delete;

 private:
  Registry& registry_;
};

}  // namespace sonaro
