#include "settings/InstallId.h"

#include <random>
#include <string>

#include "settings/CReg.h"
#include "settings/SettingNames.h"

namespace sonaro {

namespace {

constexpr std::size_t kDigits = 32;

std::string RandomDigits() {
  std::random_device random;
  std::uniform_int_distribution<std::size_t> digit(0, 15);
  std::string digits;
  while (digits.size() < kDigits) digits += "0123456789abcdef"[digit(random)];
  return digits;
}

}  // namespace

void EnsureInstallId(CReg& reg) {
  if (reg.Get(setting::kInstallId).empty()) reg.Set(setting::kInstallId, RandomDigits());
}

}  // namespace sonaro
