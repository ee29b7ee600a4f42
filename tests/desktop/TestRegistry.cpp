#include "TestRegistry.h"

#include <vector>

namespace sonaro::desktop {

namespace {

constexpr const char* kSettings = "SOFTWARE\\zumo\\Sonaro";
constexpr const char* kRealPlayer = "SOFTWARE\\Classes\\Software\\RealNetworks\\RealPlayer";

}  // namespace

void WriteText(HKEY root, const std::string& key, const std::string& name, const std::string& text) {
  HKEY opened = nullptr;
  if (RegCreateKeyExA(root, key.c_str(), 0, nullptr, 0, KEY_WRITE, nullptr, &opened, nullptr) !=
      ERROR_SUCCESS)
    return;
  RegSetValueExA(opened, name.c_str(), 0, REG_SZ, reinterpret_cast<const BYTE*>(text.c_str()),
                 static_cast<DWORD>(text.size() + 1));
  RegCloseKey(opened);
}

std::string ReadText(HKEY root, const std::string& key, const std::string& name) {
  DWORD size = 0;
  if (RegGetValueA(root, key.c_str(), name.c_str(), RRF_RT_REG_SZ, nullptr, nullptr, &size) != ERROR_SUCCESS)
    return "";
  std::vector<char> bytes(size + 1, '\0');
  RegGetValueA(root, key.c_str(), name.c_str(), RRF_RT_REG_SZ, nullptr, bytes.data(), &size);
  return bytes.data();
}

void RemoveKey(HKEY root, const std::string& key) { RegDeleteTreeA(root, key.c_str()); }

void ResetSettings(const SettingValues& values) {
  RemoveKey(HKEY_LOCAL_MACHINE, kSettings);
  HKEY created = nullptr;
  if (RegCreateKeyA(HKEY_LOCAL_MACHINE, kSettings, &created) == ERROR_SUCCESS) RegCloseKey(created);
  for (const auto& [name, text] : values) WriteText(HKEY_LOCAL_MACHINE, kSettings, name, text);
}

void ResetToSettled(SettingValues more) {
  more.merge(SettingValues{{"StartPlayer", "No"}, {"StartProxy", "No"}, {"StartQuickStart", "No"}});
  ResetSettings(more);
}

SettingValues ReadSettings() {
  SettingValues values;
  HKEY opened = nullptr;
  if (RegOpenKeyA(HKEY_LOCAL_MACHINE, kSettings, &opened) != ERROR_SUCCESS) return values;
  char name[256] = {};
  for (DWORD i = 0;; ++i) {
    DWORD length = sizeof(name);
    if (RegEnumValueA(opened, i, name, &length, nullptr, nullptr, nullptr, nullptr) != ERROR_SUCCESS) break;
    values[name] = ReadSetting(name);
  }
  RegCloseKey(opened);
  return values;
}

std::string ReadSetting(const std::string& name) { return ReadText(HKEY_LOCAL_MACHINE, kSettings, name); }

void RegisterRealPlayer(const std::string& program) {
  RemoveKey(HKEY_LOCAL_MACHINE, kRealPlayer);
  if (program.empty()) return;
  const std::string key = kRealPlayer;
  WriteText(HKEY_LOCAL_MACHINE, key + "\\CurrentVersion", "", "6.0");
  WriteText(HKEY_LOCAL_MACHINE, key + "\\6.0\\Preferences\\MainApp", "", program);
}

void RegisterProgram(const std::string& extensionOrProtocol, const std::string& program) {
  const bool isExtension = extensionOrProtocol.front() == '.';
  const std::string kind = isExtension ? "SonaroTest" + extensionOrProtocol : extensionOrProtocol;
  const std::string kindKey = "SOFTWARE\\Classes\\" + kind;
  if (isExtension) {
    const std::string extensionKey = "SOFTWARE\\Classes\\" + extensionOrProtocol;
    RemoveKey(HKEY_LOCAL_MACHINE, extensionKey);
    if (!program.empty()) WriteText(HKEY_LOCAL_MACHINE, extensionKey, "", kind);
  }
  if (program.empty()) {
    RemoveKey(HKEY_LOCAL_MACHINE, kindKey);
  } else {
    WriteText(HKEY_LOCAL_MACHINE, kindKey + "\\shell\\open\\command", "", "\"" + program + "\" \"%1\"");
    if (!isExtension) WriteText(HKEY_LOCAL_MACHINE, kindKey, "URL Protocol", "");
  }
}

void SetDotsPerInch(DWORD dotsPerInch) {
  RegSetKeyValueA(HKEY_CURRENT_USER, "Control Panel\\Desktop", "LogPixels", REG_DWORD, &dotsPerInch,
                  sizeof(dotsPerInch));
}

}  // namespace sonaro::desktop
