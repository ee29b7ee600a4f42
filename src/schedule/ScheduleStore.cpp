// The schedule is a table of slots, since menus, dialogs and messages name an item by its slot. A slot keeps
// its item until the file is read anew; in the file there are no gaps, one line an item:
//
//   name TAB action TAB date TAB time TAB weekday TAB kind TAB note
//
// Items that have expired, and lines that cannot be held in full, go to a second file, so that a wrong clock
// or a hand that slipped loses nothing: they are brought back when their day turns out to lie ahead
// (BringBack).
#include "schedule/ScheduleStore.h"

#include <algorithm>
#include <array>
#include <utility>

#include "base/OwnFiles.h"
#include "base/Text.h"

namespace sonaro {

namespace {

constexpr std::size_t kFirstSlots = 101;
constexpr std::size_t kGrowth = 20;
constexpr std::size_t kTabsInLine = 6;
constexpr std::int64_t kDaysKept = 2;

// The fields in the order of the line; the note, which takes the rest of it, is the last.
template <class Fields>
auto InOrder(Fields& item) {
  return std::array{&item.name, &item.action, &item.date, &item.time, &item.weekday, &item.kind, &item.note};
}

std::string LineOf(const ScheduleItem& item) {
  std::string line;
  for (const std::string* field : InOrder(item.fields)) line += (line.empty() ? "" : "\t") + *field;
  return line;
}

// The text between tabs goes to the fields, and what follows the sixth to the last one; fewer tabs fill the
// fields in front of them.
ScheduleFields FieldsOf(std::string_view line) {
  ScheduleFields item;
  const std::vector<std::string_view> pieces = SplitAtMost(line, '\t', kTabsInLine + 1);
  const auto fields = InOrder(item);
  for (std::size_t i = 0; i + 1 < pieces.size(); ++i) *fields[i] = pieces[i];
  if (pieces.size() == fields.size()) item.note = pieces.back();
  return item;
}

// Whether the table does not hold all that the line says: text behind its last tab, or a line without a name.
bool LosesText(const ScheduleItem& item, std::string_view line) {
  if (item.Free()) return line.find_first_not_of(" \t") != std::string_view::npos;
  return !LineOf(item).starts_with(line);
}

}  // namespace

ScheduleStore::ScheduleStore(DataFolder& data, std::string shortDatePattern)
    : file_(data, user_file::kSchedule),
      droppedFile_(data, user_file::kScheduleDropped),
      shortDatePattern_(std::move(shortDatePattern)),
      slots_(kFirstSlots) {}

void ScheduleStore::LoadSchedule(const Date& today) {
  today_ = today;
  if (file_.Look() != UserFile::Seen::Unreadable) ReadFile();
}

bool ScheduleStore::LoadUnread() {
  if (!file_.Unread() || file_.Look() == UserFile::Seen::Unreadable) return false;
  ReadFile();
  return true;
}

void ScheduleStore::ReadFile() {
  slots_.assign(kFirstSlots, ScheduleItem{});
  dropped_.clear();
  broughtBack_.clear();
  if (droppedFile_.Look() != UserFile::Seen::Unreadable) TakeDropped();
  std::size_t next = 0;
  for (std::string_view line : SplitLines(file_.Text())) {
    GrowTo(next);
    ScheduleItem& item = slots_[next++];
    item = ScheduleItem(FieldsOf(line), shortDatePattern_);
    const bool expired = Expired(item, today_);
    if (expired || LosesText(item, line)) Drop(line);
    if (expired) item = {};
  }
  BringBack(today_);
}

// A line that an earlier save wrote there, but that is still in the table's file, stands there once.
void ScheduleStore::Drop(std::string_view line) {
  if (std::find(dropped_.begin(), dropped_.end(), line) != dropped_.end()) return;
  if (dropped_.size() >= kMaxDropped) dropped_.erase(dropped_.begin());
  dropped_.emplace_back(line);
}

void ScheduleStore::TakeDropped() {
  for (const std::string_view line : SplitLines(droppedFile_.Text())) Drop(line);
}

bool ScheduleStore::BringBack(const Date& today) {
  today_ = today;
  const std::size_t before = dropped_.size();
  std::erase_if(dropped_, [&](const std::string& line) {
    const ScheduleItem item(FieldsOf(line), shortDatePattern_);
    if (!HasDay(item) || Expired(item, today)) return false;
    const bool there = std::any_of(slots_.begin(), slots_.end(),
                                   [&](const ScheduleItem& other) { return other.fields == item.fields; });
    if (!there) {
      slots_[FirstFreeSlot()] = item;
    }
    broughtBack_.push_back(line);
    return true;
  });
  return dropped_.size() != before;
}

// Slots 0 to 100 are there from the start; a line beyond them makes room for some more at once.
void ScheduleStore::GrowTo(std::size_t slot) {
  if (slot >= slots_.size()) slots_.resize(slot + kGrowth + 1);
}

// Whether the item is for one readable day.
bool ScheduleStore::HasDay(const ScheduleItem& item) {
  return !item.Free() && item.kind == ScheduleKind::Once && item.date;
}

bool ScheduleStore::Expired(const ScheduleItem& item, const Date& today) {
  return HasDay(item) && DaysFromEpoch(today) - DaysFromEpoch(*item.date) > kDaysKept;
}

std::string ScheduleStore::LineIn(const ScheduleItem& item) { return item.Free() ? "" : LineOf(item); }

// A line is always in one of the two files: it is put aside before the table drops it, and taken from there
// after the table has it again.
bool ScheduleStore::SaveSchedule() {
  if (droppedFile_.Look() == UserFile::Seen::Changed) TakeDropped();
  std::vector<std::string> aside = broughtBack_;
  aside.insert(aside.end(), dropped_.begin(), dropped_.end());
  if (!PutAside(aside)) return false;
  std::string text;
  for (const ScheduleItem& item : slots_) {
    if (!item.Free()) text += LineOf(item) + "\r\n";
  }
  if (!file_.Save(text)) return false;
  if (PutAside(dropped_)) broughtBack_.clear();  // else at the next save
  return true;
}

bool ScheduleStore::PutAside(const std::vector<std::string>& lines) {
  std::string text;
  for (const std::string& line : lines) text += line + "\r\n";
  return text == droppedFile_.Text() || droppedFile_.Save(text);
}

// Holes of deleted items are filled first. The next load closes them all, so slots are good within one run
// only.
std::size_t ScheduleStore::FirstFreeSlot() {
  const auto free =
      std::find_if(slots_.begin(), slots_.end(), [](const ScheduleItem& item) { return item.Free(); });
  const auto slot = static_cast<std::size_t>(free - slots_.begin());
  GrowTo(slot);
  return slot;
}

std::optional<std::size_t> ScheduleStore::SlotOf(const ScheduleFields& fields) const {
  const auto found = std::find_if(slots_.begin(), slots_.end(), [&](const ScheduleItem& item) {
    return !item.Free() && item.fields == fields;
  });
  return found == slots_.end() ? std::nullopt
                               : std::optional(static_cast<std::size_t>(found - slots_.begin()));
}

bool ScheduleStore::SetItem(std::size_t slot, ScheduleFields item) {
  for (std::string* field : InOrder(item)) {
    *field = OnOneLine(*field);
    if (field != &item.note) std::replace(field->begin(), field->end(), '\t', ' ');
  }
  return Change(slot, ScheduleItem(std::move(item), shortDatePattern_));
}

bool ScheduleStore::FreeSlot(std::size_t slot) {
  return slot >= slots_.size() || Change(slot, ScheduleItem{});
}

// The dialog that asks for the change may have been open for an hour, and two sessions may share the folder:
// the slot is looked up by what stood in it, not by its number. The swap goes back when the file was not
// written, so that memory never shows what a restart would not.
bool ScheduleStore::Change(std::size_t slot, ScheduleItem changed) {
  const std::string line = slot < slots_.size() ? LineIn(slots_[slot]) : "";
  const UserFile::Seen seen = file_.Look();
  if (seen == UserFile::Seen::Unreadable) return false;
  if (seen == UserFile::Seen::Changed) {
    ReadFile();
    slot = SlotWith(line, slot);
  }
  GrowTo(slot);
  std::swap(slots_[slot], changed);
  const bool saved = SaveSchedule();
  if (!saved) std::swap(slots_[slot], changed);
  return saved;
}

// Where the line stands now; a free slot for one that is gone, and for "", preferably `slot`.
std::size_t ScheduleStore::SlotWith(const std::string& line, std::size_t slot) {
  if (slot < slots_.size() && LineIn(slots_[slot]) == line) return slot;
  const auto same = std::find_if(slots_.begin(), slots_.end(), [&](const ScheduleItem& other) {
    return !line.empty() && LineIn(other) == line;
  });
  return same == slots_.end() ? FirstFreeSlot() : static_cast<std::size_t>(same - slots_.begin());
}

}  // namespace sonaro
