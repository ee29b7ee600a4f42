// Two ways of telling time meet here. The service writes GMT as twelve digits; Windows gives a bias in
// minutes whose sign is the other way round (GMT = local time + bias), and a name of 32 units that need not
// be ended.
#include "schedule/TimeZone.h"

#include "base/Numbers.h"
#include "base/Text.h"
#include "base/http/HttpRequest.h"
#include "platform/Clock.h"
#include "platform/SystemInfo.h"

namespace sonaro {

namespace {

// The results of the system call. "Unknown" means a zone without daylight saving time, not a failure.
constexpr std::uint32_t kZoneUnknown = 0;
constexpr std::uint32_t kZoneStandard = 1;
constexpr std::uint32_t kZoneDaylight = 2;

// Each unit is taken as a single-byte character: its low byte, written as UTF-8 like every text.
std::string Narrow(const std::array<char16_t, 32>& units) {
  std::string name;
  for (char16_t unit : units) {
    if (unit == 0) break;
    const auto code = static_cast<unsigned>(unit) & 0xFFu;
    if (code < 0x80) {
      name += static_cast<char>(code);
    } else {
      name += static_cast<char>(0xC0u | (code >> 6));
      name += static_cast<char>(0x80u | (code & 0x3Fu));
    }
  }
  return name;
}

bool AllDigits(std::string_view text) {
  return text.find_first_not_of("0123456789") == std::string_view::npos;
}

// Two systems of the 9x family are told apart; all that came later are of the NT family.
std::string SystemName(const SystemVersion& version) {
  if (!version.known) return "Unknown";
  const std::string number = std::to_string(version.major) + "." + std::to_string(version.minor);
  if (version.ntFamily) return "WinNT " + number;
  return (version.major == 4 && version.minor == 10 ? "Win98 " : "Win95 ") + number;
}

}  // namespace

// The system's bias is in minutes and says what to add to local time to get GMT, hence the sign.
std::int32_t GetZoneOffset(Clock& clock, std::string& zoneName, std::string& daylightFlag) {
  const ZoneReport zone = clock.Zone();
  if (zone.result == kZoneUnknown || zone.result == kZoneStandard) {
    zoneName = Narrow(zone.standardName);
    daylightFlag = "N";
    return -(zone.bias + zone.standardBias) * 60;
  }
  if (zone.result == kZoneDaylight) {
    zoneName = Narrow(zone.daylightName);
    daylightFlag = "Y";
    return -(zone.bias + zone.daylightBias) * 60;
  }
  return 0;
}

std::int32_t GetZoneOffset(Clock& clock) {
  std::string zoneName;
  std::string daylightFlag;
  return GetZoneOffset(clock, zoneName, daylightFlag);
}

// Exactly twelve digits: a stamp with seconds, or a date alone, is some other field and would be read
// wrongly.
std::optional<DateTime> ParseServiceTime(std::string_view stamp) {
  if (stamp.size() != 12 || !AllDigits(stamp)) return std::nullopt;
  const auto number = [&](std::size_t at, std::size_t length) {
    return static_cast<int>(NumberValue(stamp.substr(at, length)));
  };
  const DateTime at{{number(0, 4), number(4, 2), number(6, 2)}, {number(8, 2), number(10, 2), 0}};
  if (!IsValid(at.date) || at.time.hour > 23 || at.time.minute > 59) return std::nullopt;
  return at;
}

// By the offset of now, not of that day: stamps are of the coming days.
std::optional<DateTime> ServiceTimeToLocal(Clock& clock, std::string_view stamp) {
  const std::optional<DateTime> gmt = ParseServiceTime(stamp);
  if (!gmt) return std::nullopt;
  return AddSeconds(*gmt, GetZoneOffset(clock));
}

std::string ApplyGmtOffsetToAddress(Clock& clock, std::string_view address) {
  return ReplaceFirst(address, "<<gmtoff>>", UrlEncodeQuery(std::to_string(GetZoneOffset(clock) / 60)));
}

std::string BuildMachineProfile(SystemInfo& system) {
  const MachineFacts facts = system.Machine();
  // 64 bits wide: a screen of 32 bits has one colour more than 32 bits can count.
  const std::uint64_t colours = std::uint64_t{1} << static_cast<unsigned>(facts.bitsPerPixel);
  return "OSX" + SystemName(facts.version) + "CPUX" + std::to_string(facts.processorType) + "-" +
         std::to_string(facts.processorCount) + "RAMX" + std::to_string(facts.memoryBytes / 1024 / 1024) +
         "VIDEOX" + std::to_string(facts.screenWidth) + "x" + std::to_string(facts.screenHeight) + "," +
         std::to_string(colours) + "NETWORKX" + (facts.networkPresent ? "Y" : "N") + "CPUSpeedX" +
         std::to_string(facts.processorMegahertz);
}

}  // namespace sonaro
