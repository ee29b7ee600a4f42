// The schedule table and its file "\Sched.snr". One instance, owned by Application: the evaluator reads it on
// every run, the editor changes it. Every change is made on what the file holds at that moment and saved at
// once; one that cannot be saved is taken back. Knows neither when an item comes on nor how it is shown.
//
// A save drops what loading did not take over: the end of a line with fewer than six tabs, and "once" items
// whose day has passed. Those lines go to "\Sched.old" first, the latest kMaxDropped of them: while that
// cannot be written, the schedule is not saved either. Items whose day has not passed after all (the clock
// had been ahead) come back from there, and stay there until they are in the schedule's file again.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/Dates.h"
#include "base/UserFile.h"
#include "schedule/ScheduleItem.h"

namespace sonaro {

class DataFolder;

class ScheduleStore {
 public:
  static constexpr std::size_t kMaxDropped = 200;

  ScheduleStore(DataFolder& data, std::string shortDatePattern);

  // Replaces the table by the file's lines, each in the next slot, and frees "once" items that are more than
  // two days before `today`. A missing or unreadable file leaves an empty table.
  void LoadSchedule(const Date& today);
  // True when a file that could not be read before has been read now.
  bool LoadUnread();
  // Writes every occupied slot. False when that could not be done; the old file is then still whole.
  [[nodiscard]] bool SaveSchedule();
  // Puts the "once" items back into the table that were dropped under a later date than `today`. True when
  // there was one.
  bool BringBack(const Date& today);

  // Slots 0 to SlotCount() - 1, free ones included.
  std::size_t SlotCount() const { return slots_.size(); }
  const ScheduleItem& Item(std::size_t slot) const { return slots_.at(slot); }

  // Where an item with just these fields stands; nothing when there is none.
  std::optional<std::size_t> SlotOf(const ScheduleFields& fields) const;
  // The first slot that an item can be put into; the table grows when every slot is taken.
  std::size_t FirstFreeSlot();
  // Puts an item into a slot, or takes the one in it away. When another session has changed the file, what
  // stood in the slot is looked for, and an item that is gone or new gets a free slot. False, with nothing
  // changed, when it could not be saved. Line breaks in the item, and tabs in front of its last field, become
  // blanks: they would end the field.
  [[nodiscard]] bool SetItem(std::size_t slot, ScheduleFields item);
  [[nodiscard]] bool FreeSlot(std::size_t slot);

 private:
  // The item's line in the file; "" for a free slot.
  static std::string LineIn(const ScheduleItem& item);
  void ReadFile();
  std::size_t SlotWith(const std::string& line, std::size_t slot);
  [[nodiscard]] bool Change(std::size_t slot, ScheduleItem changed);
  static bool HasDay(const ScheduleItem& item);
  static bool Expired(const ScheduleItem& item, const Date& today);
  void Drop(std::string_view line);
  void TakeDropped();
  [[nodiscard]] bool PutAside(const std::vector<std::string>& lines);
  void GrowTo(std::size_t slot);

  UserFile file_;
  UserFile droppedFile_;
  Date today_;
  std::string shortDatePattern_;
  std::vector<ScheduleItem> slots_;
  std::vector<std::string> dropped_;      // the lines of "\Sched.old" as they are after the next save
  std::vector<std::string> broughtBack_;  // more of them, which are in the table again
};

}  // namespace sonaro
