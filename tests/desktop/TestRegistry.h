// The registry of the test prefix, as tests set it up and read it back. All texts are REG_SZ.
#pragma once

#include <windows.h>

#include <map>
#include <string>

namespace sonaro::desktop {

using SettingValues = std::map<std::string, std::string>;

// Empties the program's settings key and writes these values, as an installer and earlier sessions left them.
void ResetSettings(const SettingValues& values);
// The same with the checks of the first start settled, which asks nothing then.
void ResetToSettled(SettingValues more = {});
std::string ReadSetting(const std::string& name);
SettingValues ReadSettings();  // all of them

void WriteText(HKEY root, const std::string& key, const std::string& name, const std::string& text);
std::string ReadText(HKEY root, const std::string& key, const std::string& name);
void RemoveKey(HKEY root, const std::string& key);  // with everything below it

// The program that the registry names as the RealPlayer-compatible player; "" removes the registration.
void RegisterRealPlayer(const std::string& program);
// The program of the files with this extension (".asx"), or of this web protocol ("http"); "" removes it.
void RegisterProgram(const std::string& extensionOrProtocol, const std::string& program);

// The resolution that the next process sees: 96, 120, 144.
void SetDotsPerInch(DWORD dotsPerInch);

}  // namespace sonaro::desktop
