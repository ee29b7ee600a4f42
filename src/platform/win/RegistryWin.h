// The registry of Windows, in this process's own view.
#pragma once

#include "platform/Registry.h"

namespace sonaro {

class RegistryWin : public Registry {
 public:
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
};

}  // namespace sonaro
