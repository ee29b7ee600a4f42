#include "net/UpdateReport.h"

#include <algorithm>

#include "base/Text.h"
#include "directory/StationListFile.h"
#include "resources/texts/net.h"
#include "settings/Strings.h"

namespace sonaro {

namespace {

// The dialog says the names in one label; more than these are counted.
constexpr std::size_t kNamedAtMost = 8;

// Descending by identifier, each once. The lines point into `list`, which must outlive them. What is no
// station is left out, as the table leaves it out.
std::vector<StationLine> StationsIn(std::string_view list) {
  std::vector<StationLine> stations;
  StationLine station;
  while (!list.empty()) {
    if (ParseStationLine(NextField(list, '\n'), station)) stations.push_back(station);
  }
  const auto byId = [](const StationLine& a, const StationLine& b) { return a.id < b.id; };
  std::stable_sort(stations.begin(), stations.end(), byId);
  std::reverse(stations.begin(), stations.end());  // of two lines with one identifier the later one counts
  const auto sameId = [](const StationLine& a, const StationLine& b) { return a.id == b.id; };
  stations.erase(std::unique(stations.begin(), stations.end(), sameId), stations.end());
  return stations;
}

const StationLine* Find(const std::vector<StationLine>& stations, std::int32_t id) {
  const auto at = std::partition_point(stations.begin(), stations.end(),
                                       [id](const StationLine& station) { return station.id > id; });
  return at != stations.end() && at->id == id ? &*at : nullptr;
}

// The first field of the line; the identifier has been taken off.
std::string NameOf(const StationLine& station) {
  return std::string(station.text.substr(0, station.text.find('\t')));
}

std::string NamesIn(const std::vector<std::string>& names, const Strings& strings) {
  std::string list;
  for (std::size_t i = 0; i < std::min(names.size(), kNamedAtMost); ++i) {
    list.append(i == 0 ? "" : ", ").append(names[i]);
  }
  if (names.size() <= kNamedAtMost) return list;
  return FormatText(strings.Load(IDS_NET_AND_MORE), {list, std::to_string(names.size() - kNamedAtMost)});
}

}  // namespace

// Both lists are sorted by identifier, so that comparing them takes a search for each line rather than a pass
// over the whole other list. Texts are compared as they stand in the lists, links still scrambled.
UpdateReport CompareStationLists(std::string_view before, std::string_view after,
                                 std::span<const std::int32_t> yours) {
  const std::vector<StationLine> old = StationsIn(before);
  const std::vector<StationLine> now = StationsIn(after);
  UpdateReport report;
  std::size_t stayed = 0;
  for (const StationLine& station : now) {
    const StationLine* const was = Find(old, station.id);
    if (!was) {
      ++report.added;
    } else {
      ++stayed;
      if (was->text != station.text) ++report.changed;
    }
  }
  report.gone = old.size() - stayed;

  std::vector<std::int32_t> named;
  for (const std::int32_t id : yours) {
    const StationLine* const was = Find(old, id);
    // Of `yours` only what the old list had can be gone or changed, and each is named once however many
    // groups hold it.
    if (!was || std::find(named.begin(), named.end(), id) != named.end()) continue;
    named.push_back(id);
    const StationLine* const is = Find(now, id);
    if (!is) {
      report.yoursGone.push_back(NameOf(*was));
    } else if (is->text != was->text) {
      report.yoursChanged.push_back(NameOf(*is));
    }
  }
  return report;
}

std::string DescribeUpdate(const UpdateReport& report, const Strings& strings, DecimalMode decimals) {
  const auto figure = [&](std::size_t count) {
    return count == 0 ? strings.Load(IDS_NET_REPORT_NONE) : FormatCount(count, decimals);
  };
  std::string text = FormatText(strings.Load(IDS_NET_REPORT),
                                {figure(report.added), figure(report.changed), figure(report.gone)});
  if (!report.yoursChanged.empty()) {
    text += "\r\n" + FormatText(strings.Load(IDS_NET_YOURS_CHANGED), {NamesIn(report.yoursChanged, strings)});
  }
  if (!report.yoursGone.empty()) {
    text += "\r\n" + FormatText(strings.Load(IDS_NET_YOURS_GONE), {NamesIn(report.yoursGone, strings)});
  }
  return text;
}

}  // namespace sonaro
