// Row keys lead from a row back to its item: the window asks for what was selected by key when rows have
// moved.
#include "schedule/ScheduleList.h"

#include <algorithm>

#include "base/Numbers.h"
#include "base/Text.h"
#include "schedule/ComingEvents.h"
#include "schedule/PersonalShows.h"
#include "schedule/ScheduleCalendar.h"
#include "schedule/ScheduleStore.h"
#include "schedule/ScheduleTexts.h"
#include "stations/Commands.h"

namespace sonaro {

namespace {

int NumberAfter(std::string_view key, char letter) {
  if (!key.starts_with(letter)) return -1;
  return static_cast<int>(NumberValue(key.substr(1)));
}

std::string ActionAndNote(const ScheduleItem& item, const ScheduleTexts& texts) {
  std::string text = texts.Action(item);
  if (!item.fields.note.empty()) text += "- " + item.fields.note;
  // The note stands as in the file, its line breaks a vertical tab; a row has one line.
  std::replace(text.begin(), text.end(), '\v', ' ');
  return text;
}

// Whether one moment comes before another; none comes after all.
bool Sooner(const std::optional<DateTime>& a, const std::optional<DateTime>& b) {
  return a.has_value() != b.has_value() ? a.has_value() : a < b;
}

ScheduleRow RowOfSlot(const ScheduleStore& store, const ScheduleCalendar& calendar, std::size_t slot,
                      const DateTime& now, const ScheduleTexts& texts) {
  const ScheduleItem& item = store.Item(slot);
  return {.key = "S" + std::to_string(slot) + "\t" + item.fields.action,
          .at = calendar.Next(slot, now),
          .cells = {"", texts.Name(item.name), texts.HowOften(item), ActionAndNote(item, texts)}};
}

void FillNext(std::vector<ScheduleRow>& rows, const DateTime& now, const ScheduleTexts& texts) {
  for (ScheduleRow& row : rows) {
    if (row.at) row.cells[kNextColumn] = texts.Next(*row.at, now);
  }
}

}  // namespace

std::vector<ScheduleRow> ScheduleRows(const ScheduleStore& store, const ScheduleCalendar& calendar,
                                      const DateTime& now, const ScheduleTexts& texts) {
  std::vector<ScheduleRow> rows;
  for (std::size_t slot = 0; slot < store.SlotCount(); ++slot) {
    if (!store.Item(slot).Free()) rows.push_back(RowOfSlot(store, calendar, slot, now, texts));
  }
  FillNext(rows, now, texts);
  return rows;
}

// A show has no slot and so no time of its own. The items of the schedule with its name say when it comes;
// one that has passed is still shown when nothing else is known.
std::vector<ScheduleRow> ShowRows(PersonalShows& shows, const ScheduleStore& store,
                                  const ScheduleCalendar& calendar, const ComingEvents& events,
                                  const DateTime& now, const ScheduleTexts& texts) {
  std::vector<ScheduleRow> rows;
  for (const std::string& line : shows.List()) {
    const std::string_view name = PersonalShows::DisplayName(line);
    ScheduleRow shown;
    for (std::size_t slot = 0; slot < store.SlotCount(); ++slot) {
      if (!EqualIgnoringCase(store.Item(slot).name.name, name)) continue;
      ScheduleRow row = RowOfSlot(store, calendar, slot, now, texts);
      if (shown.key.empty() || Sooner(row.at, shown.at)) shown = std::move(row);
    }
    if (!shown.at) shown.at = events.NextBroadcast(name);
    shown.key = "P" + std::to_string(rows.size());
    shown.cells[kNameColumn] = name;
    rows.push_back(std::move(shown));
  }
  FillNext(rows, now, texts);
  return rows;
}

// Stable, so that rows of the same text stay in the order in which they stood before: a second header sorts
// within the first one.
void SortRows(std::vector<ScheduleRow>& rows, int column) {
  const auto index = static_cast<std::size_t>(column);
  std::stable_sort(rows.begin(), rows.end(), [&](const ScheduleRow& a, const ScheduleRow& b) {
    return column == kNextColumn ? Sooner(a.at, b.at)
                                 : CompareIgnoringCase(a.cells[index], b.cells[index]) < 0;
  });
}

NextNotice SoonestNotice(const ScheduleStore& store, const ScheduleCalendar& calendar, const DateTime& now,
                         const ScheduleTexts& texts) {
  std::optional<Occurrence> soonest;
  for (std::size_t slot = 0; slot < store.SlotCount(); ++slot) {
    const std::optional<DateTime> next = calendar.Next(slot, now);
    if (next && (!soonest || *next < soonest->at)) soonest = Occurrence{slot, *next};
  }
  if (!soonest) return {};
  const ScheduleItem& item = store.Item(soonest->slot);
  return {texts.Next(soonest->at, now), texts.Name(item.name), texts.HowOften(item)};
}

int SlotOfKey(std::string_view key) { return NumberAfter(key, 'S'); }
int ShowOfKey(std::string_view key) { return NumberAfter(key, 'P'); }

}  // namespace sonaro
