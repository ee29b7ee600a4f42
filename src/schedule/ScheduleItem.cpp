// The texts of an item are read once, when it comes into the table, and written as they are: a text that this
// version cannot read, or that an older one has written in its way, goes through a load and a save unchanged.
#include "schedule/ScheduleItem.h"

#include <algorithm>

#include "base/Text.h"

namespace sonaro {

namespace {

// The name field holds up to three texts: "Name|||Z|||Station>>>>>>web site". Either mark may be missing.
constexpr std::string_view kEventMark = "|||Z|||";
constexpr std::string_view kWebSiteMark = ">>>>>>";
constexpr char kLineBreakInFile = '\v';  // a line of the file holds no line break
// "Thr" is how files spell it.
constexpr std::array<std::string_view, 7> kDayKeys = {"Mon", "Tue", "Wed", "Thr", "Fri", "Sat", "Sun"};

std::optional<int> WeekdayNamed(std::string_view name) {
  for (int day = 0; day < kDaysInWeek; ++day) {
    if (EqualIgnoringCase(EnglishDayName(day), name)) return day;
  }
  return std::nullopt;
}

}  // namespace

// "daily" is followed by its days. What is none of these is kept in the file and never comes on.
ScheduleKind KindOf(std::string_view kind) {
  if (StartsWithIgnoringCase(kind, "daily")) return ScheduleKind::Daily;
  if (EqualIgnoringCase(kind, "weekly")) return ScheduleKind::Weekly;
  if (EqualIgnoringCase(kind, "once")) return ScheduleKind::Once;
  if (EqualIgnoringCase(kind, "live")) return ScheduleKind::Live;
  return ScheduleKind::Unknown;
}

std::string_view DayKey(int weekday) {
  return weekday >= 0 && weekday < 7 ? kDayKeys[static_cast<std::size_t>(weekday)] : std::string_view{};
}

// "daily" is every day; "daily|Mon=-1|Tue=0|...|" the days with -1.
DayFlags DaysOf(std::string_view dailyKind) {
  DayFlags days{};
  if (dailyKind.find('|') == std::string_view::npos) {
    days.fill(true);
    return days;
  }
  for (std::size_t day = 0; day < days.size(); ++day) {
    const std::string chosen = "|" + std::string(kDayKeys[day]) + "=-1";
    days[day] = dailyKind.find(chosen) != std::string_view::npos;
  }
  return days;
}

// -1 and 0 are true and false as their writer had them. The bar at the end belongs to it: readers look for
// "|Sun=-1" as for any other.
std::string DailyKind(const DayFlags& days) {
  std::string kind = "daily";
  if (std::all_of(days.begin(), days.end(), [](bool day) { return day; })) return kind;
  for (std::size_t day = 0; day < days.size(); ++day) {
    kind += "|" + std::string(kDayKeys[day]) + (days[day] ? "=-1" : "=0");
  }
  return kind + "|";
}

// The address first: its mark is the later one, and what stands behind it may hold anything.
ItemName SplitItemName(std::string_view nameField) {
  ItemName parts;
  if (const auto web = nameField.find(kWebSiteMark); web != std::string_view::npos) {
    parts.webSite = nameField.substr(web + kWebSiteMark.size());
    nameField = nameField.substr(0, web);
  }
  if (const auto event = nameField.find(kEventMark); event != std::string_view::npos) {
    parts.station = nameField.substr(event + kEventMark.size());
    nameField = nameField.substr(0, event);
  }
  parts.name = nameField;
  return parts;
}

std::string JoinItemName(const ItemName& name) {
  std::string joined = name.name;
  if (name.IsEvent()) joined.append(kEventMark).append(name.station);
  if (!name.webSite.empty()) joined.append(kWebSiteMark).append(name.webSite);
  return joined;
}

// Addresses of events come as "www.x.example/page"; the shell opens such a text as a file.
std::string ItemName::Address() const {
  return webSite.empty() || webSite.starts_with("http") ? webSite : "http://" + webSite;
}

// A note may have several lines, a line of the file only one.
std::string NoteForFile(std::string_view note) {
  std::string stored;
  for (char c : note) {
    if (c == '\n') stored += kLineBreakInFile;
    if (c != '\n' && c != '\r') stored += c;
  }
  return stored;
}

std::string NoteFromFile(std::string_view stored) {
  std::string note;
  for (char c : stored) note += c == kLineBreakInFile ? std::string("\r\n") : std::string(1, c);
  return note;
}

// The row key, not the bare number: the station may be one of the user's own.
std::string ActionText(bool openWebSite, const StationKey& station) {
  return (openWebSite ? "W" : "N") + station.RowKey();
}

ScheduleItem::ScheduleItem(ScheduleFields texts, std::string_view shortDatePattern)
    : fields(std::move(texts)),
      name(SplitItemName(fields.name)),
      kind(KindOf(fields.kind)),
      time(ParseTime(fields.time)),
      weekday(WeekdayNamed(fields.weekday)),
      note(NoteFromFile(fields.note)),
      opensWebSite(fields.action.starts_with('W')),
      station(fields.action.empty() ? StationKey() : StationKey::FromRowKey(fields.action.substr(1))) {
  if (const auto read = ParseDate(fields.date, shortDatePattern)) date = read->date;
  if (kind == ScheduleKind::Daily) days = DaysOf(fields.kind);
  if (kind == ScheduleKind::Weekly && weekday) days[static_cast<std::size_t>(*weekday)] = true;
}

}  // namespace sonaro
