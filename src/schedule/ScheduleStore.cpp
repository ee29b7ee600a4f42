#include "schedule/ScheduleStore.h"

#include <algorithm>
#include <array>
#include <optional>

#include "base/DataFolder.h"
#include "base/Text.h"

namespace sonaro {

namespace {

constexpr std::string_view kScheduleFile = "\\Sched.snr";
constexpr std::size_t kFirstSlots = 101;
constexpr std::size_t kGrowth = 20;
constexpr std::size_t kTabsInLine = 6;
constexpr std::int64_t kDaysKept = 2;

// A tab or a line break inside a field would be read back as the next field or item.
std::string OnOneLine(std::string_view field, bool tabsAllowed) {
  std::string clean(field);
  for (char& c : clean) {
    if (c == '\r' || c == '\n' || (c == '\t' && !tabsAllowed)) c = ' ';
  }
  return clean;
}

std::string LineOf(const ScheduleItem& item) {
  std::string line;
  for (const std::string* field :
       {&item.name, &item.action, &item.date, &item.time, &item.weekday, &item.kind}) {
    line += OnOneLine(*field, false) + '\t';
  }
  return line + OnOneLine(item.note, true);
}

}  // namespace

ScheduleStore::ScheduleStore(DataFolder& data, std::string shortDatePattern)
    : data_(data), shortDatePattern_(std::move(shortDatePattern)), slots_(kFirstSlots) {}

void ScheduleStore::LoadSchedule(const Date& today) {
  slots_.assign(kFirstSlots, Slot{});
  strangeLines_.clear();
  ++generation_;
  const ReadResult file = data_.Read(kScheduleFile);
  std::size_t next = 0;
  for (std::string_view line : SplitLines(file.bytes)) {
    GrowTo(next);
    LoadLine(slots_[next++], line);
  }
  for (Slot& slot : slots_) {
    if (!Expired(slot.item, today)) continue;
    slot.item.name.clear();
    slot.item.action.clear();
    slot.partialLine.clear();
  }
}

void ScheduleStore::GrowTo(std::size_t slot) {
  if (slot >= slots_.size()) slots_.resize(slot + kGrowth + 1);
}

void ScheduleStore::LoadLine(Slot& slot, std::string_view line) {
  const std::vector<std::string_view> pieces = SplitAtMost(line, '\t', kTabsInLine + 1);
  if (pieces.size() == 1) {
    if (!line.empty()) strangeLines_.emplace_back(line);
    return;
  }
  ScheduleItem& item = slot.item;
  const std::array<std::string*, kTabsInLine> fields = {&item.name, &item.action,  &item.date,
                                                        &item.time, &item.weekday, &item.kind};
  // The text after the last tab belongs to a field only when that tab is the sixth.
  for (std::size_t i = 0; i + 1 < pieces.size(); ++i) *fields[i] = pieces[i];
  if (pieces.size() == kTabsInLine + 1) {
    item.note = pieces[kTabsInLine];
  } else {
    slot.partialLine = line;
  }
}

bool ScheduleStore::Expired(const ScheduleItem& item, const Date& today) const {
  if (item.Free() || KindOf(item.kind) != ScheduleKind::Once) return false;
  const std::optional<DateTime> date = ParseDate(item.date, shortDatePattern_);
  return date && DaysFromEpoch(today) - DaysFromEpoch(date->date) > kDaysKept;
}

bool ScheduleStore::SaveSchedule() {
  std::string text;
  for (const Slot& slot : slots_) {
    if (!slot.partialLine.empty()) {
      text += slot.partialLine + "\r\n";
    } else if (!slot.item.Free()) {
      text += LineOf(slot.item) + "\r\n";
    }
  }
  for (const std::string& line : strangeLines_) text += line + "\r\n";
  return data_.Save(kScheduleFile, text);
}

std::size_t ScheduleStore::FirstFreeSlot() {
  const auto free = std::find_if(slots_.begin(), slots_.end(), [](const Slot& slot) {
    return slot.item.Free() && slot.partialLine.empty();
  });
  const auto slot = static_cast<std::size_t>(free - slots_.begin());
  GrowTo(slot);
  return slot;
}

void ScheduleStore::SetItem(std::size_t slot, ScheduleItem item) {
  GrowTo(slot);
  slots_[slot] = Slot{std::move(item), {}};
  ++generation_;
}

void ScheduleStore::FreeSlot(std::size_t slot) {
  if (slot < slots_.size()) SetItem(slot, ScheduleItem{});
}

}  // namespace sonaro
