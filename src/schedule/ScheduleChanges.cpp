// What changes the schedule on the user's word. A deletion goes one way: find the item anew by its fields,
// save without it, tell the windows, offer to undo, and say it when saving failed. Slots are never kept over
// a question, since another session may move what they hold.
#include "schedule/ScheduleChanges.h"

#include <optional>

#include "resources/texts/app.h"
#include "resources/texts/schedule.h"
#include "schedule/PersonalShows.h"
#include "schedule/ScheduleList.h"
#include "schedule/ScheduleServices.h"
#include "schedule/ScheduleStore.h"
#include "schedule/ScheduleTexts.h"
#include "settings/CReg.h"
#include "settings/Message.h"
#include "settings/SettingNames.h"
#include "settings/Strings.h"
#include "settings/UndoList.h"

namespace sonaro {

namespace {

constexpr int kOneMinute = 60;  // seconds

}  // namespace

// The rows are read to what they stand for before anything is asked: while the box is open, the minute goes
// on, and another session may write the file.
void ScheduleChanges::Delete(const std::vector<std::string>& rowKeys) {
  std::vector<ScheduleFields> items;
  std::vector<std::string> shows;
  const std::vector<std::string> lines = dependencies_.shows.List();
  const ScheduleStore& store = dependencies_.store;
  for (const std::string& key : rowKeys) {
    const int slot = SlotOfKey(key);
    const int show = ShowOfKey(key);
    if (slot >= 0 && static_cast<std::size_t>(slot) < store.SlotCount()) {
      items.push_back(store.Item(static_cast<std::size_t>(slot)).fields);
    }
    if (show >= 0 && static_cast<std::size_t>(show) < lines.size()) {
      shows.push_back(lines[static_cast<std::size_t>(show)]);
    }
  }
  // A show is not asked about: it is told of afterwards, and both can be undone.
  if (!items.empty() && ConfirmDelete(items)) DeleteItems(items);
  for (const std::string& line : shows) DeleteShow(line);
}

bool ScheduleChanges::ConfirmDelete(const std::vector<ScheduleFields>& items) {
  const auto& [store, shows, settings, undo, messages, strings, texts, listener] = dependencies_;
  if (settings.Get(setting::kNoShowDeleteNotice)) return true;
  // The question names one item, and only counts several.
  const auto slot = store.SlotOf(items.front());
  const std::string question = items.size() == 1 && slot
                                   ? texts.DeleteQuestion(store.Item(*slot))
                                   : texts.Filled(IDS_SCHED_DELETE_MANY, {std::to_string(items.size())});
  const MessageResult result = messages.Ask({.key = "DeleteNotification",
                                             .caption = strings.Load(IDS_SCHED_DELETE_CAPTION),
                                             .text = question,
                                             .firstButton = strings.Load(IDS_SCHED_DELETE_YES),
                                             .secondButton = strings.Load(IDS_APP_CANCEL),
                                             .dontAskText = strings.Load(IDS_DONT_ASK_AGAIN)});
  if (result.answer != MessageAnswer::First) return false;
  if (result.dontAskAgain) settings.Set(setting::kNoShowDeleteNotice, true);
  return true;
}

// Each removal is saved by itself. When one fails the rest stays too, and what has gone so far can be undone.
void ScheduleChanges::DeleteItems(const std::vector<ScheduleFields>& items) {
  const auto& [store, shows, settings, undo, messages, strings, texts, listener] = dependencies_;
  std::vector<ScheduleFields> gone;
  bool saved = true;
  for (const ScheduleFields& item : items) {
    const auto slot = store.SlotOf(item);
    if (!slot) continue;
    saved = store.FreeSlot(*slot);
    if (!saved) break;
    gone.push_back(item);
  }
  listener.ItemsChanged();
  if (!gone.empty()) {
    const std::string sentence =
        gone.size() == 1 ? texts.Filled(IDS_SCHED_DELETED, {texts.Name(SplitItemName(gone.front().name))})
                         : texts.Filled(IDS_SCHED_DELETED_MANY, {std::to_string(gone.size())});
    undo.Add(sentence, [this, gone] { return PutBack(gone); });
  }
  Saved(saved);
}

// What is there again, by another session or from the file beside the schedule's, stays alone.
UndoResult ScheduleChanges::PutBack(const std::vector<ScheduleFields>& items) {
  ScheduleStore& store = dependencies_.store;
  bool any = false;
  bool saved = true;
  for (const ScheduleFields& item : items) {
    if (store.SlotOf(item)) continue;
    saved = store.SetItem(store.FirstFreeSlot(), item);
    if (!saved) break;
    any = true;
  }
  dependencies_.listener.ItemsChanged();
  if (!Saved(saved)) return UndoResult::Kept;
  return any ? UndoResult::Done : UndoResult::Gone;
}

void ScheduleChanges::DeleteShow(const std::string& line) {
  PersonalShows& shows = dependencies_.shows;
  shows.RemovePersonalShow(line);
  dependencies_.listener.ItemsChanged();
  if (PersonalShows::Holds(shows.List(), line)) return;
  dependencies_.undo.Add(dependencies_.texts.Filled(IDS_SCHED_SHOW_GONE, {PersonalShows::DisplayName(line)}),
                         [this, line] {
                           const bool saved = dependencies_.shows.PutBack(line);
                           dependencies_.listener.ItemsChanged();
                           if (saved) return UndoResult::Done;
                           SavedOrSaid(false, dependencies_.strings.Load(IDS_FILE_SHOWS),
                                       dependencies_.messages, dependencies_.strings);
                           return UndoResult::Kept;
                         });
}

bool ScheduleChanges::Snooze(const ScheduleItem& item, int minutes, const DateTime& now) {
  ScheduleStore& store = dependencies_.store;
  // Items have no seconds, so half a minute is what rounding costs at most.
  const DateTime at = AddSeconds(now, std::int64_t{minutes} * kOneMinute + kOneMinute / 2);
  ScheduleFields later = item.fields;
  later.kind = "once";
  later.date = FormatShortDate(at.date);
  later.time = FormatTime(at.time, dependencies_.texts.Style());
  later.weekday.clear();
  std::optional<std::size_t> slot;
  // Where the item stands now; one that was deleted meanwhile is made again.
  if (item.kind == ScheduleKind::Once) slot = store.SlotOf(item.fields);
  const bool saved = store.SetItem(slot ? *slot : store.FirstFreeSlot(), later);
  dependencies_.listener.ItemsChanged();
  if (!Saved(saved)) return false;
  dependencies_.listener.ActDone(dependencies_.texts.Filled(
      IDS_SCHED_SNOOZED, {dependencies_.texts.Name(item.name), dependencies_.texts.Next(at, now)}));
  return true;
}

bool ScheduleChanges::Saved(bool saved) {
  return SavedOrSaid(saved, dependencies_.strings.Load(IDS_FILE_SCHEDULE), dependencies_.messages,
                     dependencies_.strings);
}

}  // namespace sonaro
