// What the schedule's windows work with, as one bundle; made by Application.
#pragma once

#include <string>

#include "schedule/ScheduleTexts.h"

namespace sonaro {

class Clock;
class ComingEvents;
class Files;
class HelpPages;
class MessageBoxView;
class PersonalShows;
class ScheduleCalendar;
class ScheduleChanges;
class Shell;
class StationPicker;
class StationSource;
class UndoList;

class ScheduleListener {
 public:
  virtual ~ScheduleListener() = default;
  virtual void ActDone(const std::string& sentence) = 0;  // for the status line
  virtual void ItemsChanged() = 0;  // an item was added, changed or deleted, or would have been
};

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
  const ComingEvents& events;
  ScheduleListener& listener;
  const ScheduleTexts& texts;
  ScheduleChanges& changes;
  UndoList& undo;
  std::string shortDatePattern = {};
};

}  // namespace sonaro
