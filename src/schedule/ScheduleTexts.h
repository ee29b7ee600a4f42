// How schedule items read: to the user, in the words of the resources and with his clock, and to other
// calendars. Owned by Application.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

#include "base/Dates.h"
#include "schedule/ScheduleItem.h"

namespace sonaro {

class ScheduleStore;
class Strings;

class ScheduleTexts {
 public:
  ScheduleTexts(const Strings& strings, ClockStyle style) : strings_(strings), style_(style) {}

  // "Finale on Radio" for an event, else the station's name.
  std::string Name(const ItemName& name) const;
  // "This is your weekly Thursday 8:00 PM notice for", by kind. Dates and times that cannot be read stand as
  // they are stored.
  std::string Notice(const ScheduleItem& item) const;
  // "Go to the website " or "Notify me ", as the list shows the item's action.
  std::string Action(const ScheduleItem& item) const;
  // "every day at 7:15 AM", "every Mon, Thr at 7:15 AM", "every Thursday at 8:00 PM", "at 8:00 PM on
  // 12/24/2026".
  std::string HowOften(const ScheduleItem& item) const;
  // "Delete the weekly Thursday 8:00 PM notice for Long Wave Theatre?"
  std::string DeleteQuestion(const ScheduleItem& item) const;
  // When an item comes next, seen from now: "Today 8:00 PM", "Tomorrow 7:15 AM", "Sat 10:00 PM" within a
  // week, "Dec 24, 6:00 PM" within a year, else with the year.
  std::string Next(const DateTime& next, const DateTime& now) const;

  // Any text of the resources, its inserts filled.
  std::string Filled(int id, std::initializer_list<std::string_view> values = {}) const;
  ClockStyle Style() const { return style_; }

 private:
  const Strings& strings_;
  ClockStyle style_;
};

// The whole schedule as an iCalendar file (RFC 5545), so that a phone's calendar can remind too: UTF-8, lines
// ended by CR LF and folded at 75 bytes. Times are floating local times: an item is meant for the user's wall
// clock wherever that is. Live items and items whose time or date cannot be read have no moment to write and
// are left out. `gmtNow` stamps the entries; daily and weekly items begin on their first day from `today` on.
// An item has one identity in all exports for as long as its name, station and times stay.
std::string ExportCalendar(const ScheduleStore& store, const Date& today, const DateTime& gmtNow,
                           const ScheduleTexts& texts);

}  // namespace sonaro
