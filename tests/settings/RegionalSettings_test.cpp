#include "settings/AppState.h"

#include <gtest/gtest.h>

#include "fakes/FakeRegistry.h"
#include "fakes/FakeSystemInfo.h"
#include "settings/CReg.h"

namespace sonaro {
namespace {

constexpr const char* kInternational = "Control Panel\\International";

class RegionalSettingsTest : public testing::Test {
 protected:
  void PutUser(const char* name, const char* text) {
    registry_.Put(RootKey::CurrentUser, kInternational, name, text);
  }

  FakeRegistry registry_;
  CReg reg_{registry_};
  FakeSystemInfo systemInfo_;
  AppState state_;
};

TEST_F(RegionalSettingsTest, ClockStyle) {
  const struct {
    const char* timeFormat;
    const char* locale;
    const char* twelveHourLocales;
    ClockStyle style;
  } kCases[] = {
      {"h:mm:ss tt", "", "", ClockStyle::Hours12},
      {"HH:mm:ss", "00000409", "|00000409|", ClockStyle::Hours24},
      {"", "00000409", "|00000809|00000409|", ClockStyle::Hours12},
      {"", "0409", "|00000409|", ClockStyle::Hours24},
      {"", "00000409", "", ClockStyle::Hours24},
      {"", "", "|00000409|", ClockStyle::Hours24},
  };
  for (const auto& c : kCases) {
    PutUser("sTimeFormat", c.timeFormat);
    PutUser("Locale", c.locale);
    registry_.Put(RootKey::LocalMachine, kSettingsKey, "sLocal", c.twelveHourLocales);
    ReadClockStyle(reg_, state_);
    EXPECT_EQ(state_.clockStyle, c.style) << c.timeFormat << c.locale << c.twelveHourLocales;
    EXPECT_EQ(reg_.MainKey(), RootKey::LocalMachine);
  }
}

TEST_F(RegionalSettingsTest, ShortDatePattern) {
  const struct {
    const char* stored;
    const char* sample;
    const char* pattern;
  } kCases[] = {
      {"dd.MM.yy", "12/25/2003", "dd.MM.yy"},
      {"", "12/25/2003", "M/d/yyyy"},
      {"", "25.12.2003", "d.M.yyyy"},
      {"", "2003-12-25", "yyyy-M-d"},
      {"", "25/12/03", "d/M/yy"},
      {"", "25-Dec-2003", "M/d/yyyy"},
      {"", "", "M/d/yyyy"},
  };
  for (const auto& c : kCases) {
    PutUser("sShortDate", c.stored);
    systemInfo_.sampleDate = c.sample;
    ReadShortDatePattern(reg_, systemInfo_, state_);
    EXPECT_EQ(state_.shortDatePattern, c.pattern) << c.stored << c.sample;
  }
}

TEST_F(RegionalSettingsTest, DecimalMode) {
  systemInfo_.eightAndAHalf = "8,5";
  ReadDecimalMode(systemInfo_, state_);
  EXPECT_EQ(state_.decimalMode, DecimalMode::Comma);
  systemInfo_.eightAndAHalf = "8.5";
  ReadDecimalMode(systemInfo_, state_);
  EXPECT_EQ(state_.decimalMode, DecimalMode::Point);
}

}  // namespace
}  // namespace sonaro
