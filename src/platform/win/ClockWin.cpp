#include "platform/win/PlatformWin.h"

#include <windows.h>

#include <algorithm>
#include <iterator>

namespace sonaro {
namespace {

DateTime FromSystemTime(const SYSTEMTIME& time) {
  return {{time.wYear, time.wMonth, time.wDay}, {time.wHour, time.wMinute, time.wSecond}};
}

void CopyName(const WCHAR (&from)[32], std::array<char16_t, 32>& to) {
  std::transform(std::begin(from), std::end(from), to.begin(),
                 [](WCHAR unit) { return static_cast<char16_t>(unit); });
}

}  // namespace

DateTime ClockWin::LocalNow() {
  SYSTEMTIME time{};
  GetLocalTime(&time);
  return FromSystemTime(time);
}

DateTime ClockWin::GmtNow() {
  SYSTEMTIME time{};
  GetSystemTime(&time);
  return FromSystemTime(time);
}

// GetTickCount64 would count sleep.
std::uint64_t ClockWin::Ticks() {
  constexpr ULONGLONG kUnitsPerMillisecond = 10000;
  ULONGLONG units = 0;
  QueryUnbiasedInterruptTime(&units);
  return units / kUnitsPerMillisecond;
}

ZoneReport ClockWin::Zone() {
  TIME_ZONE_INFORMATION zone{};
  ZoneReport report;
  report.result = GetTimeZoneInformation(&zone);
  report.bias = zone.Bias;
  report.standardBias = zone.StandardBias;
  report.daylightBias = zone.DaylightBias;
  CopyName(zone.StandardName, report.standardName);
  CopyName(zone.DaylightName, report.daylightName);
  return report;
}

}  // namespace sonaro
