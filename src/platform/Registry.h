// The system registry, as raw values. The program's settings store (app/CReg) gives the bytes their meaning.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace sonaro {

// Handles of the predefined root keys, as the platform numbers them.
enum class RootKey : std::uint32_t {
  ClassesRoot = 0x80000000,
  CurrentUser = 0x80000001,
  LocalMachine = 0x80000002,
  Users = 0x80000003
};

enum class ValueType : std::uint32_t { Text = 1 /* REG_SZ */, Binary = 3 /* REG_BINARY */ };

// Key and value names ignore letter case. Nothing throws; every failure looks like a missing value or false.
class Registry {
 public:
  virtual ~Registry() = default;
  virtual bool KeyExists(RootKey root, const std::string& key) = 0;
  // True when the key is there and its values may be written.
  virtual bool CanWrite(RootKey root, const std::string& key) = 0;
  // Creates the key and its parents; true when it is there afterwards.
  virtual bool CreateKey(RootKey root, const std::string& key) = 0;
  // The stored bytes, exactly: a terminating zero only when one was stored. The empty value name is the key's
  // default value. Nothing when key or value are missing or may not be read.
  virtual std::optional<std::string> ReadValue(RootKey root, const std::string& key,
                                               const std::string& name) = 0;
  // Writes exactly these bytes. Does not create the key: false when it cannot be opened for writing.
  virtual bool WriteValue(RootKey root, const std::string& key, const std::string& name, ValueType type,
                          std::string_view bytes) = 0;
  // The names of all values of a key; the default value's is "". Empty when the key may not be read.
  virtual std::vector<std::string> ValueNames(RootKey root, const std::string& key) = 0;
  virtual bool RemoveValue(RootKey root, const std::string& key, const std::string& name) = 0;
  // Brings what was written to the key, and below it, to the disk: until then a power cut can take the last
  // writes back, and a file that was made after them is ahead of them. Slow. False when the key is missing.
  // Not between the brackets.
  virtual bool Flush(RootKey root, const std::string& key) = 0;
  // Brackets around many writes, which may be nested: where values are kept in a file it is saved once, at
  // the outer end.
  virtual void BeginWrites() {}
  virtual void EndWrites() {}
};

}  // namespace sonaro
