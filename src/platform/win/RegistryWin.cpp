// The registry by its byte functions: names and values are bytes of the program's code page, and values are
// handed on as they are stored, terminating zero and all. Keys are opened for each call and closed after it,
// so no handle outlives a change by another program.
#include "platform/win/PlatformWin.h"

#include <windows.h>

#include "platform/win/Handle.h"

namespace sonaro {
namespace {

// All rights that concern a key and its values, without the standard rights such as deleting it.
constexpr REGSAM kAllSpecificRights = 0x3F;

// A predefined key is the sign-extended number.
HKEY Root(RootKey root) { return reinterpret_cast<HKEY>(static_cast<LONG_PTR>(static_cast<LONG>(root))); }

RegistryKey OpenKey(RootKey root, const std::string& key, REGSAM access) {
  RegistryKey opened;
  if (RegOpenKeyExA(Root(root), key.c_str(), 0, access, opened.Receive()) != ERROR_SUCCESS) return {};
  return opened;
}

}  // namespace

// A key that may not be read counts as missing: nothing could be done with it.
bool RegistryWin::KeyExists(RootKey root, const std::string& key) {
  return static_cast<bool>(OpenKey(root, key, KEY_QUERY_VALUE));
}

// By opening it with all the rights that writing takes; nothing is written.
bool RegistryWin::CanWrite(RootKey root, const std::string& key) {
  return static_cast<bool>(OpenKey(root, key, kAllSpecificRights));
}

// Makes the keys above it as well; a key that is there is no failure.
bool RegistryWin::CreateKey(RootKey root, const std::string& key) {
  RegistryKey created;
  return RegCreateKeyA(Root(root), key.c_str(), created.Receive()) == ERROR_SUCCESS;
}

std::optional<std::string> RegistryWin::ReadValue(RootKey root, const std::string& key,
                                                  const std::string& name) {
  const RegistryKey opened = OpenKey(root, key, KEY_QUERY_VALUE);
  if (!opened) return std::nullopt;
  std::string bytes;
  DWORD size = 128;  // what most values need less than
  LSTATUS status = ERROR_MORE_DATA;
  while (status == ERROR_MORE_DATA) {  // then the size that it wants is known, and may have grown since
    bytes.resize(size);
    status = RegQueryValueExA(opened.Get(), name.c_str(), nullptr, nullptr,
                              reinterpret_cast<BYTE*>(bytes.data()), &size);
  }
  if (status != ERROR_SUCCESS) return std::nullopt;
  bytes.resize(size);
  return bytes;
}

std::vector<std::string> RegistryWin::ValueNames(RootKey root, const std::string& key) {
  constexpr DWORD kMaxNameLength = 16384;  // of the system, with its terminating zero
  std::vector<std::string> names;
  const RegistryKey opened = OpenKey(root, key, KEY_QUERY_VALUE);
  if (!opened) return names;
  std::vector<char> name(kMaxNameLength);
  for (DWORD index = 0;; ++index) {
    DWORD length = kMaxNameLength;
    if (RegEnumValueA(opened.Get(), index, name.data(), &length, nullptr, nullptr, nullptr, nullptr) !=
        ERROR_SUCCESS) {
      return names;
    }
    names.emplace_back(name.data(), length);
  }
}

bool RegistryWin::WriteValue(RootKey root, const std::string& key, const std::string& name, ValueType type,
                             std::string_view bytes) {
  const RegistryKey opened = OpenKey(root, key, kAllSpecificRights);
  if (!opened) return false;
  // The function looks at the byte behind the text and stores a terminating zero when it finds one there.
  const std::string buffer = std::string(bytes) + '\x01';
  return RegSetValueExA(opened.Get(), name.c_str(), 0, static_cast<DWORD>(type),
                        reinterpret_cast<const BYTE*>(buffer.data()),
                        static_cast<DWORD>(bytes.size())) == ERROR_SUCCESS;
}

bool RegistryWin::RemoveValue(RootKey root, const std::string& key, const std::string& name) {
  const RegistryKey opened = OpenKey(root, key, kAllSpecificRights);
  return opened && RegDeleteValueA(opened.Get(), name.c_str()) == ERROR_SUCCESS;
}

bool RegistryWin::Flush(RootKey root, const std::string& key) {
  const RegistryKey opened = OpenKey(root, key, KEY_QUERY_VALUE);
  return opened && RegFlushKey(opened.Get()) == ERROR_SUCCESS;
}

}  // namespace sonaro
