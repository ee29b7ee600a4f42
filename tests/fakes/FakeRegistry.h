// A registry in memory. Names ignore letter case, as the real one does. Made with a journal, it dies with the
// files of that journal: writing, removing and flushing are operations that a crash can hit, and a power cut
// can undo afterwards what was not flushed. A key that is made stays.
#pragma once

#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/Text.h"
#include "fakes/CrashJournal.h"
#include "platform/Registry.h"

namespace sonaro {

class FakeRegistry : public Registry {
 public:
  FakeRegistry() = default;
  explicit FakeRegistry(CrashJournal& journal) : journal_(&journal) {}

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
    if (!Denied(root) && !(journal_ && journal_->Crashed())) AddKeys(root, key);
    return KeyExists(root, key);
  }
  std::optional<std::string> ReadValue(RootKey root, const std::string& key,
                                       const std::string& name) override {
    const std::optional<Value> value = readsDenied ? std::nullopt : Stored(root, key, name);
    return value ? std::optional<std::string>(value->bytes) : std::nullopt;
  }
  bool WriteValue(RootKey root, const std::string& key, const std::string& name, ValueType type,
                  std::string_view bytes) override {
    if (Denied(root) || !keys_.contains(Id(root, key)) || !Begins("set ", root, key, name)) return false;
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
    if (Denied(root) || !Stored(root, key, name) || !Begins("unset ", root, key, name)) return false;
    return values_[Id(root, key)].erase(FoldCase(name)) == 1;
  }
  bool Flush(RootKey root, const std::string& key) override {
    if (!keys_.contains(Id(root, key))) return false;
    if (!journal_) return true;
    if (journal_->Begin("flush " + key) != CrashJournal::Step::Runs) return false;
    journal_->Settle();
    return true;
  }

 private:
  // Announces a change to the journal, with the way back. False when the machine is dead.
  bool Begins(const char* what, RootKey root, const std::string& key, const std::string& name) {
    if (!journal_) return true;
    if (journal_->Begin(what + key + ' ' + name) != CrashJournal::Step::Runs) return false;
    journal_->SettingChanged([this, root, key, name, before = Stored(root, key, name)] {
      if (before) {
        values_[Id(root, key)][FoldCase(name)] = *before;
      } else {
        values_[Id(root, key)].erase(FoldCase(name));
      }
    });
    return true;
  }
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

  CrashJournal* journal_ = nullptr;  // not owned
  std::set<KeyId> keys_;
  std::map<KeyId, std::map<std::string, Value>> values_;
};

}  // namespace sonaro
