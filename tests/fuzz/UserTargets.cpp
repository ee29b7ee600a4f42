#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "base/DataFolder.h"
#include "base/Text.h"
#include "faceplate/Shape.h"
#include "fakes/FakeFiles.h"
#include "fakes/FakeStrings.h"
#include "fuzz/Targets.h"
#include "mainwindow/BrowseTree.h"
#include "schedule/ScheduleStore.h"
#include "schedule/ScheduleTexts.h"
#include "settings/IniSettings.h"
#include "stations/ExtraLinks.h"
#include "stations/FavoriteGroups.h"
#include "stations/PersonalStations.h"

namespace sonaro {
namespace {

constexpr Date kToday{2026, 11, 23};
constexpr const char* kDatePattern = "M/d/yyyy";

// A data folder with one file in it.
class OneFile {
 public:
  OneFile(const char* name, std::string_view bytes) : path_(std::string("/d/") + name) {
    files_.MakeFolder("/d");
    files_.Put(path_, bytes);
  }
  DataFolder Open() { return DataFolder(files_, "/d", '/'); }
  FakeFiles& System() { return files_; }
  std::string Bytes() const { return files_.Get(path_).value_or(""); }

 private:
  FakeFiles files_;
  std::string path_;
};

std::size_t ItemsIn(const ScheduleStore& store) {
  std::size_t items = 0;
  for (std::size_t slot = 0; slot < store.SlotCount(); ++slot) items += store.Item(slot).Free() ? 0U : 1U;
  return items;
}

// Checks that a calendar is lines of at most 75 bytes, each a property that the export writes.
void CheckCalendar(const std::string& calendar) {
  std::vector<std::string_view> open;
  for (std::string_view rest = calendar; !rest.empty();) {
    std::string_view line = NextField(rest, '\n');
    Require(line.ends_with('\r'), "lines end with CR LF");
    line.remove_suffix(1);
    Require(line.size() <= 75 && line.find('\r') == std::string_view::npos, "a line that fits");
    if (line.starts_with(' ')) continue;  // of the line before
    if (line.starts_with("BEGIN:")) {
      open.push_back(line.substr(6));
    } else if (line.starts_with("END:")) {
      Require(!open.empty() && open.back() == line.substr(4), "what ends was begun");
      open.pop_back();
    } else {
      const std::string_view name = line.substr(0, line.find(':'));
      constexpr std::string_view kNames[] = {"VERSION",     "PRODID", "UID",     "DTSTAMP",
                                             "DTSTART",     "RRULE",  "SUMMARY", "ACTION",
                                             "DESCRIPTION", "URL",    "TRIGGER"};
      Require(std::find(std::begin(kNames), std::end(kNames), name) != std::end(kNames), "no other property");
    }
  }
  Require(open.empty(), "what was begun ends");
}

// Checks that all of the tree can be reached and shown.
void CheckTree(DataFolder& data, BrowseMode mode) {
  BrowseTree tree(data);
  tree.FillBrowseTree(mode);
  std::vector<int> waiting(tree.Roots().begin(), tree.Roots().end());
  std::size_t reached = 0;
  while (!waiting.empty()) {
    const int at = waiting.back();
    waiting.pop_back();
    ++reached;
    Require(tree.Node(at).level <= BrowseNode::kLowestLevel, "as deep as a window can show");
    for (const int child : tree.Node(at).children) {
      Require(tree.Node(child).parent == at && child > at, "a child knows its parent, which came before it");
      waiting.push_back(child);
    }
  }
  Require(reached == tree.NodeCount(), "every node is reached once");
}

}  // namespace

// The user's schedule. What was read is written as lines of seven fields, and those are read as the same.
void FuzzSchedule(std::string_view input) {
  OneFile file("Sched.snr", input);
  DataFolder data = file.Open();
  ScheduleStore store(data, kDatePattern);
  store.LoadSchedule(kToday);
  Require(store.SaveSchedule(), "saved");
  const std::string first = file.Bytes();
  for (const std::string_view line : SplitLines(first))
    Require(std::count(line.begin(), line.end(), '\t') >= 6, "seven fields");

  ScheduleStore again(data, kDatePattern);
  again.LoadSchedule(kToday);
  Require(ItemsIn(again) == ItemsIn(store), "as many items");
  Require(again.SaveSchedule(), "saved again");
  Require(file.Bytes() == first, "the same items");
  CheckCalendar(
      ExportCalendar(again, kToday, {kToday, {12, 0, 0}}, ScheduleTexts(FakeStrings(), ClockStyle::Hours24)));
}

// The user's own stations: an added one is there after a restart, beside all that were there before.
void FuzzPersonalStations(std::string_view input) {
  OneFile file("personal.snr", input);
  DataFolder data = file.Open();
  PersonalStations stations(data);
  Require(stations.Load(), "loaded");
  std::vector<PersonalStation> expected = stations.All();
  PersonalStation added;
  added.name = "x" + std::string(input.substr(0, 300));
  added.links[0] = input.substr(input.size() / 2, 2500);
  added.note = input;
  added.index = stations.Add(added);
  if (added.index != 0) expected.push_back(*stations.Find(added.index));

  PersonalStations again(data);
  Require(again.Load() && again.All() == expected, "the same stations");
  for (const PersonalStation& station : expected) {
    Require(again.Find(station.index) != nullptr && again.Find(station.index)->name == station.name,
            "an index names one station");
  }
}

// The user's extra links: those of one station can be replaced, and no other line changes.
void FuzzExtraLinks(std::string_view input) {
  OneFile file("ownlinks.snr", input);
  DataFolder data = file.Open();
  ExtraLinks links(data);
  Require(links.Load(), "loaded");
  const std::vector<ExtraLink> others = links.Of(1204);
  if (!links.Set(7, {{std::string(input), "http://a.example/" + std::string(input.substr(0, 40))}})) return;
  ExtraLinks again(data);
  Require(again.Load(), "loaded again");
  Require(again.Of(7) == links.Of(7) && again.Of(7).size() == 1, "the new link");
  Require(again.Of(1204) == others, "the links of the other station");
}

// The favourite groups: each has a name of its own, and a restart finds the same.
void FuzzGroups(std::string_view input) {
  OneFile file("favs.snr", input);
  DataFolder data = file.Open();
  FavoriteGroups groups(data);
  groups.LoadFavoriteGroups();
  if (groups.Count() > 0) {
    const std::size_t last = groups.Count() - 1;
    Require(groups.AddStation(last, StationKey::OfGuide(4711)) != FavoriteChange::NotSaved &&
                groups.Contains(last, StationKey::OfGuide(4711)),
            "added");
    Require(groups.Move(last, 0) != FavoriteChange::NotSaved && groups.Contains(0, StationKey::OfGuide(4711)),
            "moved");
    (void)groups.RemoveStation(0, StationKey::FromToken(input.substr(0, input.find_first_of(" \t\r\n"))));
  }
  (void)groups.Add(input.substr(0, 200), StationKey::OfUser(1));
  for (std::size_t group = 0; group < groups.Count(); ++group) {
    Require(!groups.Name(group).empty(), "a group has a name");
    Require(groups.Find(groups.Name(group)) == group, "of its own");
  }
  FavoriteGroups again(data);
  again.LoadFavoriteGroups();
  Require(again.Count() == groups.Count(), "as many groups");
  for (std::size_t group = 0; group < groups.Count(); ++group) {
    Require(again.Name(group) == groups.Name(group), "the same name");
    Require(again.Keys(group) == groups.Keys(group), "the same members");
  }
}

// The settings of a portable folder: any text can be stored, and a restart finds all values as they were.
void FuzzSettings(std::string_view input) {
  OneFile file("portable.ini", input);
  const std::string path = "/d/portable.ini";
  IniSettings settings(file.System(), path);
  Require(settings.AddKey("Sonaro") && settings.Write("Sonaro", input.substr(0, 20), input), "saved");
  IniSettings again(file.System(), path);
  Require(again.State() == IniSettings::Condition::Whole, "what was saved is whole");
  const std::vector<std::string> names = settings.Names("Sonaro");
  Require(again.Names("Sonaro") == names, "the same names");
  for (const std::string& name : names)
    Require(again.Read("Sonaro", name) == settings.Read("Sonaro", name), "the same value");
  Require(again.Read("Sonaro", input.substr(0, 20)) == input, "the new value");
}

// A category file, which stands for that of the locations as well, and after a zero the entries of the
// category whose file is "jazz.snr".
void FuzzCategories(std::string_view input) {
  const std::string_view categories = NextField(input, '\0');
  OneFile file("cat.snr", categories);
  file.System().Put("/d/catloc.snr", categories);
  file.System().Put("/d/jazz.snr", input);
  DataFolder data = file.Open();
  CheckTree(data, BrowseMode::ByCategory);
  CheckTree(data, BrowseMode::ByLocation);
}

// The faceplate's point file.
void FuzzOutlines(std::string_view input) {
  const std::string_view line = OutlineLine(input, "fdf01");
  const Outline outline = ParseOutline(line);
  const std::size_t at = line.find('=');
  const std::size_t length = at == std::string_view::npos ? 0 : line.size() - at - 1;
  const double points = std::nearbyint(static_cast<double>(length) / 10.0 - 1) + 1;
  if (at != std::string_view::npos)
    Require(static_cast<double>(outline.size()) == std::max(0.0, points), "as many points as the line has");
  Require(ScaleOutline(outline, TwipsPerPixel::OfDpi(144)).size() == outline.size(), "as many points");
}

}  // namespace sonaro
