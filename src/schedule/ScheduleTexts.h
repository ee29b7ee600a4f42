// How schedule items read: in the notification, in the schedule's list, and in the dialog's summary line.
#pragma once

#include <string>
#include <string_view>

#include "base/Dates.h"
#include "schedule/ScheduleItem.h"

namespace sonaro {

// "This is your weekly Thursday 8:00 PM notice for", by kind. Dates and times that cannot be read stand as
// they are stored.
std::string NoticeText(const ScheduleItem& item);

// "Go to the website " or "Notify me ", as the list shows the item's action.
std::string ActionShown(const ScheduleItem& item);
// "every day at 7:15 AM", "every Mon, Thr at 7:15 AM", "every Thursday at 8:00 PM", "at 8:00 PM on
// 12/24/2026".
std::string ScheduleShown(const ScheduleItem& item);

// When an item comes next, seen from now: "Today 8:00 PM", "Tomorrow 7:15 AM", "Sat 10:00 PM" within a week,
// "Dec 24, 6:00 PM" within a year, else with the year.
std::string NextShown(const DateTime& next, const DateTime& now, ClockStyle style);

}  // namespace sonaro
