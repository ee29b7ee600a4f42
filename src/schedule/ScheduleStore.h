// The schedule table and its file "\Sched.snr". One instance, owned by Application: the evaluator reads it on
// every run, the editor changes it and saves. Knows neither when an item comes on nor how it is shown.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "base/Dates.h"
#include "schedule/ScheduleItem.h"

namespace sonaro {

class DataFolder;

class ScheduleStore {
 public:
  ScheduleStore(DataFolder& data, std::string shortDatePattern);

  // Replaces the table by the file's lines, each in the next slot, and frees "once" items that are more than
  // two days before `today`. A missing or unreadable file leaves an empty table.
  void LoadSchedule(const Date& today);
  // Writes every occupied slot, and the lines that could not be understood as they were read. False when the
  // file could not be written; the old one is then still whole.
  bool SaveSchedule();

  // Slots 0 to SlotCount() - 1, free ones included.
  std::size_t SlotCount() const { return slots_.size(); }
  const ScheduleItem& Item(std::size_t slot) const { return slots_.at(slot).item; }
  // Grows with every change; whoever keeps something derived from the items compares it.
  std::uint64_t Generation() const { return generation_; }

  // The first slot that an item can be put into; the table grows when every slot is taken.
  std::size_t FirstFreeSlot();
  void SetItem(std::size_t slot, ScheduleItem item);
  void FreeSlot(std::size_t slot);

 private:
  struct Slot {
    ScheduleItem item;
    // A line with fewer than six tabs holds more than its fields; it is written back as it was until the item
    // is changed.
    std::string partialLine;
  };

  void LoadLine(Slot& slot, std::string_view line);
  bool Expired(const ScheduleItem& item, const Date& today) const;
  void GrowTo(std::size_t slot);

  DataFolder& data_;
  std::string shortDatePattern_;
  std::vector<Slot> slots_;
  std::vector<std::string> strangeLines_;  // lines without a tab: no item, but not ours to lose
  std::uint64_t generation_ = 0;
};

}  // namespace sonaro
