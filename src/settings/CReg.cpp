#include "settings/CReg.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <cstring>
#include <limits>
#include <optional>

#include "base/Numbers.h"

namespace sonaro {
namespace {

std::string TextOf(const std::optional<std::string>& bytes) {
  return bytes ? bytes->substr(0, bytes->find('\0')) : std::string();
}

// The four bytes of the number as the machine keeps it in memory.
std::string BinaryNumber(std::string_view data) {
  using Limits = std::numeric_limits<std::int32_t>;
  const auto number =
      static_cast<std::int32_t>(std::clamp<std::int64_t>(NumberValue(data), Limits::min(), Limits::max()));
  std::string bytes(sizeof number, '\0');
  std::memcpy(bytes.data(), &number, sizeof number);
  static_assert(std::endian::native == std::endian::little);
  return bytes;
}

}  // namespace

void CReg::SetData(const std::string& key, const std::string& valueName, std::string_view data,
                   bool asString) {
  if (asString) {
    registry_.WriteValue(mainKey_, key, valueName, ValueType::Text, data);
  } else {
    registry_.WriteValue(mainKey_, key, valueName, ValueType::Binary, BinaryNumber(data));
  }
}

void CReg::DeleteValue(const std::string& key, const std::string& valueName) {
  registry_.RemoveValue(mainKey_, key, valueName);
}

std::string CReg::GetData(const std::string& key, const std::string& valueName) const {
  return TextOf(registry_.ReadValue(mainKey_, key, valueName));
}

std::vector<std::string> CReg::ValueNames(const std::string& key) const {
  return registry_.ValueNames(mainKey_, key);
}

// Values are not written into a key that is missing, so whoever writes the first one calls this before.
void CReg::CheckKeyIsThere(const std::string& key) {
  if (!registry_.KeyExists(mainKey_, key)) registry_.CreateKey(mainKey_, key);
}

std::string CReg::Setting(const std::string& valueName) const {
  return TextOf(registry_.ReadValue(RootKey::LocalMachine, kSettingsKey, valueName));
}

void CReg::SetSetting(const std::string& valueName, std::string_view data) {
  registry_.WriteValue(RootKey::LocalMachine, kSettingsKey, valueName, ValueType::Text, data);
}

void CReg::FlushSettings() { registry_.Flush(RootKey::LocalMachine, kSettingsKey); }

}  // namespace sonaro
