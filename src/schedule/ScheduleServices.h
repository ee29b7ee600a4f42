// What the schedule's windows work with, as one bundle; made by Application.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "base/Dates.h"

namespace sonaro {

class Clock;
class Files;
class HelpPages;
class MessageBoxView;
class PersonalShows;
class ScheduleCalendar;
class ScheduleStore;
class Shell;
class StationPicker;
class StationSource;

struct ScheduleServices {
  ScheduleStore& store;
  ScheduleCalendar& calendar;
  PersonalShows& shows;
  StationPicker& stations;
  const StationSource& source;
  Clock& clock;
  Files& files;
  Shell& shell;
  MessageBoxView& messages;
  HelpPages& help;
  ClockStyle clockStyle = ClockStyle::Hours24;
  std::string shortDatePattern = {};
  // Functions: each is one question or one word to the schedule's owner, in the middle of a handler of a
  // window that knows nothing else of it. When a broadcast event of this name begins next, local time.
  std::function<std::optional<DateTime>(std::string_view show)> nextBroadcast = {};
  std::function<void()> changed = {};  // the table was changed and saved
};

}  // namespace sonaro
