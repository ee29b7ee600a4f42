#include "schedule/ScheduleList.h"

#include <algorithm>

#include "base/Numbers.h"
#include "base/Text.h"
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
  std::string text = ActionShown(item);
  if (!item.fields.note.empty()) text += "- " + item.fields.note;
  std::replace(text.begin(), text.end(), '\v', ' ');
  return text;
}

// Whether one moment comes before another; none comes after all.
bool Sooner(const std::optional<DateTime>& a, const std::optional<DateTime>& b) {
  return a.has_value() != b.has_value() ? a.has_value() : a < b;
}

ScheduleRow RowOfSlot(const ScheduleStore& store, const ScheduleCalendar& calendar, std::size_t slot,
                      const DateTime& now) {
  const ScheduleItem& item = store.Item(slot);
  return {.key = "S" + std::to_string(slot) + "\t" + item.fields.action,
          .at = calendar.Next(slot, now),
          .cells = {"", item.name.Shown(), ScheduleShown(item), ActionAndNote(item)}};
}

void FillNext(std::vector<ScheduleRow>& rows, const DateTime& now, ClockStyle style) {
  for (ScheduleRow& row : rows) {
    if (row.at) row.cells[kNextColumn] = NextShown(*row.at, now, style);
  }
}

}  // namespace

std::vector<ScheduleRow> ScheduleRows(const ScheduleStore& store, const ScheduleCalendar& calendar,
                                      const DateTime& now, ClockStyle style) {
  std::vector<ScheduleRow> rows;
  for (std::size_t slot = 0; slot < store.SlotCount(); ++slot) {
    if (!store.Item(slot).Free()) rows.push_back(RowOfSlot(store, calendar, slot, now));
  }
  FillNext(rows, now, style);
  return rows;
}

std::vector<ScheduleRow> ShowRows(PersonalShows& shows, const ScheduleStore& store,
                                  const ScheduleCalendar& calendar, const NextBroadcast& nextBroadcast,
                                  const DateTime& now, ClockStyle style) {
  std::vector<ScheduleRow> rows;
  for (const std::string& line : shows.List()) {
    const std::string_view name = PersonalShows::DisplayName(line);
    ScheduleRow shown;
    for (std::size_t slot = 0; slot < store.SlotCount(); ++slot) {
      if (!EqualIgnoringCase(store.Item(slot).name.name, name)) continue;
      ScheduleRow row = RowOfSlot(store, calendar, slot, now);
      if (shown.key.empty() || Sooner(row.at, shown.at)) shown = std::move(row);
    }
    if (!shown.at) shown.at = nextBroadcast(name);
    shown.key = "P" + std::to_string(rows.size());
    shown.cells[kNameColumn] = name;
    rows.push_back(std::move(shown));
  }
  FillNext(rows, now, style);
  return rows;
}

void SortRows(std::vector<ScheduleRow>& rows, int column) {
  const auto index = static_cast<std::size_t>(column);
  std::stable_sort(rows.begin(), rows.end(), [&](const ScheduleRow& a, const ScheduleRow& b) {
    return column == kNextColumn ? Sooner(a.at, b.at)
                                 : CompareIgnoringCase(a.cells[index], b.cells[index]) < 0;
  });
}

int SlotOfKey(std::string_view key) { return NumberAfter(key, 'S'); }
int ShowOfKey(std::string_view key) { return NumberAfter(key, 'P'); }

}  // namespace sonaro
