#include "settings/AppState.h"

#include <string>

#include "base/Text.h"
#include "platform/SystemInfo.h"
#include "settings/CReg.h"
#include "settings/SettingNames.h"

namespace sonaro {

namespace {

// Of this user, as the control panel writes it.
std::string International(CReg& reg, const std::string& valueName) {
  MainKeyScope user(reg, RootKey::CurrentUser);
  return reg.GetData(systemkey::kInternational, valueName);
}

// The pattern in which the platform wrote 25 December 2003; "" when it did not write numbers.
std::string PatternOf(const std::string& sampleDate) {
  std::string pattern = ReplaceFirst(sampleDate, "2003", "yyyy");
  if (pattern == sampleDate) pattern = ReplaceFirst(sampleDate, "03", "yy");
  if (pattern == sampleDate) return {};
  for (const auto& [number, part] : {std::pair{"12", "M"}, {"25", "d"}}) {
    if (pattern.find(number) == std::string::npos) return {};
    pattern = ReplaceFirst(pattern, number, part);
  }
  return pattern;
}

}  // namespace

void ReadClockStyle(CReg& reg, AppState& state) {
  const std::string timeFormat = International(reg, systemkey::kTimeFormat);
  bool twelveHours = timeFormat.find("tt") != std::string::npos;
  // Some systems keep no format; then the locale decides, which stands between bars in the setting.
  if (timeFormat.empty()) {
    const std::string locale = '|' + International(reg, systemkey::kLocale) + '|';
    twelveHours = reg.Get(setting::kLocal).find(locale) != std::string::npos;
  }
  state.clockStyle = twelveHours ? ClockStyle::Hours12 : ClockStyle::Hours24;
}

// Three sources, the user's own first. The last one is fixed, so that dates can always be written and read
// back.
void ReadShortDatePattern(CReg& reg, SystemInfo& systemInfo, AppState& state) {
  state.shortDatePattern = International(reg, systemkey::kShortDate);
  if (state.shortDatePattern.empty()) state.shortDatePattern = PatternOf(systemInfo.FormattedSampleDate());
  if (state.shortDatePattern.empty()) state.shortDatePattern = "M/d/yyyy";
}

// Read off a number as the system writes it for this user.
void ReadDecimalMode(SystemInfo& systemInfo, AppState& state) {
  const bool comma = systemInfo.FormattedEightAndAHalf().find(',') != std::string::npos;
  state.decimalMode = comma ? DecimalMode::Comma : DecimalMode::Point;
}

}  // namespace sonaro
