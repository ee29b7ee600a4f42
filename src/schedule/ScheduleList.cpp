#include "schedule/ScheduleList.h"

#include <algorithm>
#include <optional>

#include "base/Numbers.h"
#include "schedule/PersonalShows.h"
#include "schedule/ScheduleCalendar.h"
#include "schedule/ScheduleStore.h"
#include "schedule/ScheduleTexts.h"

namespace sonaro {

namespace {

int NumberAfter(std::string_view key, char letter) {
  if (!key.starts_with(letter)) return -1;
  return static_cast<int>(NumberValue(key.substr(1)));
}

std::string ActionAndNote(const ScheduleItem& item) {
  std::string text = ActionShown(item.action);
  if (!item.note.empty()) text += "- " + item.note;
  std::replace(text.begin(), text.end(), '\v', ' ');
  return text;
}

}  // namespace

std::vector<ScheduleRow> ScheduleRows(const ScheduleStore& store, ScheduleCalendar& calendar,
                                      const DateTime& now, ClockStyle style) {
  struct Timed {
    std::optional<DateTime> next;
    ScheduleRow row;
  };
  std::vector<Timed> timed;
  for (std::size_t slot = 0; slot < store.SlotCount(); ++slot) {
    const ScheduleItem& item = store.Item(slot);
    if (item.Free()) continue;
    const std::optional<DateTime> next = calendar.Next(slot, now);
    timed.push_back(
        {next,
         {"S" + std::to_string(slot) + "\t" + item.action, next ? NextShown(*next, now, style) : "",
          SplitItemName(item.name).Shown(), ScheduleShown(item), ActionAndNote(item)}});
  }
  std::stable_sort(timed.begin(), timed.end(), [](const Timed& a, const Timed& b) {
    if (a.next.has_value() != b.next.has_value()) return a.next.has_value();
    return a.next < b.next;
  });
  std::vector<ScheduleRow> rows;
  rows.reserve(timed.size());
  for (Timed& each : timed) rows.push_back(std::move(each.row));
  return rows;
}

std::vector<ScheduleRow> ShowRows(PersonalShows& shows) {
  std::vector<ScheduleRow> rows;
  for (const std::string& line : shows.List()) {
    rows.push_back(
        {"P" + std::to_string(rows.size()), "", std::string(PersonalShows::DisplayName(line)), "", ""});
  }
  return rows;
}

int SlotOfKey(std::string_view key) { return NumberAfter(key, 'S'); }
int ShowOfKey(std::string_view key) { return NumberAfter(key, 'P'); }

}  // namespace sonaro
