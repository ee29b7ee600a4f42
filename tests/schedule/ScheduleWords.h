// The words of schedule items whose inserts a test looks at; any other text is its number.
#pragma once

#include "fakes/FakeStrings.h"
#include "resources/texts/schedule.h"
#include "schedule/ScheduleTexts.h"

namespace sonaro {

class ScheduleWords final : public FakeStrings {
 public:
  std::string Load(int id) const override {
    switch (id) {
      case IDS_SCHED_NOTICE_ONCE:
        return "your {0}  {1}";
      case IDS_SCHED_NOTICE_DAILY:
        return "your daily {0}";
      case IDS_SCHED_NOTICE_WEEKLY:
        return "your weekly {0} {1}";
      case IDS_SCHED_OFTEN_DAILY:
        return "every day at {0}";
      case IDS_SCHED_OFTEN_DAYS:
      case IDS_SCHED_SUMMARY_DAYS:
        return "every {0} at {1}";
      case IDS_SCHED_OFTEN_ONCE:
        return "at {0} on {1}";
      case IDS_SCHED_SNOOZED:
        return "Again: {0} {1}";
      case IDS_SCHED_DELETE_ONCE:
        return "Delete {0} {1} {2}";
      case IDS_SCHED_EVENT_ON:
        return "{0} on {1}";
      case IDS_SCHED_TODAY:
        return "Today {0}";
      case IDS_SCHED_TOMORROW:
        return "Tomorrow {0}";
      case IDS_SCHED_CHANGE_STATION:
        return "Station: {0}";
      case IDS_SCHED_CHANGE_EVENT:
        return "{0} (Event)";
      case IDS_SCHED_PLAY:
        return "Play ({0})";
      case IDS_SCHED_PLAY_BIT_RATE:
        return "{0} kbit/s";
      default:
        return FakeStrings::Load(id);
    }
  }
};

}  // namespace sonaro
