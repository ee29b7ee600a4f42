// What the schedule's windows work with, as one bundle; made by Application.
#pragma once

#include <functional>
#include <string>

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

struct ScheduleServices {
  ScheduleStore& store;
  ScheduleCalendar& calendar;
  PersonalShows& shows;
  StationPicker& stations;
  Clock& clock;
  Files& files;
  Shell& shell;
  MessageBoxView& messages;
  HelpPages& help;
  ClockStyle clockStyle = ClockStyle::Hours24;
  std::string shortDatePattern = {};
  // The web site of a station by its row key; "" when there is none.
  std::function<std::string(const std::string& stationKey)> webSiteOf = {};
  std::function<void()> changed = {};  // the table was changed and saved
};

}  // namespace sonaro
