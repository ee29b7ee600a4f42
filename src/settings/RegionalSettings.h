// The user's conventions of the system's regional settings, read once at the start: clock, dates and
// decimals.
#pragma once

namespace sonaro {

struct AppState;
class CReg;
class SystemInfo;

// Sets `state`'s clock style: 12-hour when the user's time format has an AM/PM mark; without a time format,
// when the setting "sLocal" names the user's locale.
void ReadClockStyle(CReg& reg, AppState& state);

// Sets `state`'s short-date pattern: the user's own, or one read off how the platform writes a known date.
void ReadShortDatePattern(CReg& reg, SystemInfo& systemInfo, AppState& state);

// Sets `state`'s decimal mode by how the user's locale writes 8.5.
void ReadDecimalMode(SystemInfo& systemInfo, AppState& state);

}  // namespace sonaro
