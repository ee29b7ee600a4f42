#include "app/InstallId.h"

#include <random>
#include <string>

#include "app/CReg.h"

namespace sonaro {

namespace {

constexpr const char* kInstallId = "InstallId";
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
  if (reg.Setting(kInstallId).empty()) reg.SetSetting(kInstallId, RandomDigits());
}

}  // namespace sonaro
