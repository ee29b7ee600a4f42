// A registry in memory. Names ignore letter case, as the real one does.
#pragma once

#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/Text.h"
#include "platform/Registry.h"

namespace sonaro {

class FakeRegistry : public Registry {
 public:
  struct Value {
    ValueType type = ValueType::Text;
    std::string bytes;
  };
  struct Write {
    RootKey root = RootKey::LocalMachine;
    std::string key;
    std::string name;
    Value value;
  };

  bool readsDenied = false;
  bool writesDenied = false;
  std::set<RootKey> deniedRoots;  // below which nothing may be written
  std::vector<Write> writes;      // every successful WriteValue, in order

  // Creates the key as needed; not a logged write.
  void Put(RootKey root, const std::string& key, const std::string& name, std::string_view text) {
    AddKeys(root, key);
    values_[Id(root, key)][FoldCase(name)] = {ValueType::Text, std::string(text)};
  }
  std::optional<Value> Stored(RootKey root, const std::string& key, const std::string& name) const {
    const auto names = values_.find(Id(root, key));
    if (names == values_.end()) return std::nullopt;
    const auto value = names->second.find(FoldCase(name));
    return value == names->second.end() ? std::nullopt : std::optional<Value>(value->second);
  }

  bool KeyExists(RootKey root, const std::string& key) override {
    return !readsDenied && keys_.contains(Id(root, key));
  }
  bool CanWrite(RootKey root, const std::string& key) override {
    return !Denied(root) && keys_.contains(Id(root, key));
  }
  bool CreateKey(RootKey root, const std::string& key) override {
    if (!Denied(root)) AddKeys(root, key);
    return KeyExists(root, key);
  }
  std::optional<std::string> ReadValue(RootKey root, const std::string& key,
                                       const std::string& name) override {
    const std::optional<Value> value = readsDenied ? std::nullopt : Stored(root, key, name);
    return value ? std::optional<std::string>(value->bytes) : std::nullopt;
  }
  bool WriteValue(RootKey root, const std::string& key, const std::string& name, ValueType type,
                  std::string_view bytes) override {
    if (Denied(root) || !keys_.contains(Id(root, key))) return false;
    values_[Id(root, key)][FoldCase(name)] = {type, std::string(bytes)};
    writes.push_back({root, key, name, {type, std::string(bytes)}});
    return true;
  }
  std::vector<std::string> ValueNames(RootKey root, const std::string& key) override {
    std::vector<std::string> names;
    const auto found = values_.find(Id(root, key));
    if (readsDenied || found == values_.end()) return names;
    for (const auto& [name, value] : found->second) names.push_back(name);
    return names;
  }
  bool RemoveValue(RootKey root, const std::string& key, const std::string& name) override {
    const auto names = values_.find(Id(root, key));
    return !Denied(root) && names != values_.end() && names->second.erase(FoldCase(name)) == 1;
  }

 private:
  bool Denied(RootKey root) const { return writesDenied || deniedRoots.contains(root); }
  using KeyId = std::pair<RootKey, std::string>;
  static KeyId Id(RootKey root, const std::string& key) { return {root, FoldCase(key)}; }

  void AddKeys(RootKey root, std::string key) {
    for (;;) {
      keys_.insert(Id(root, key));
      const std::size_t cut = key.rfind('\\');
      if (cut == std::string::npos) return;
      key.resize(cut);
    }
  }

  std::set<KeyId> keys_;
  std::map<KeyId, std::map<std::string, Value>> values_;
};

}  // namespace sonaro
