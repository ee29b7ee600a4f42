#include "mainwindow/SearchPanel.h"

#include <algorithm>
#include <utility>

#include "base/DataFolder.h"
#include "base/OwnFiles.h"
#include "base/Text.h"
#include "base/http/HttpRequest.h"
#include "mainwindow/StationListState.h"
#include "settings/CReg.h"
#include "settings/SettingNames.h"
#include "stations/Commands.h"

namespace sonaro {
namespace {

// The kind that searches this directory; every other name is a search of the web. The marks stand in its
// address, the last text begins what the tray tells other programs.
constexpr const char* kFindStation = "FindStation";
constexpr const char* kWordMark = "<<SearchWord>>";
constexpr const char* kOptionMark = "<<SearchOpt>>";
constexpr const char* kTrayResults = "SearchResults";

// What can be pasted into an edit but has no place in the history's format: it counts as a blank.
std::string CleanText(std::string_view text) {
  std::string clean(text);
  std::replace_if(
      clean.begin(), clean.end(), [](char c) { return c == '\t' || c == '\r' || c == '\n'; }, ' ');
  return std::string(TrimBlanks(clean));
}

}  // namespace

bool SearchKind::SearchesStations() const { return name == kFindStation; }

// The file comes with the guide and may be missing: searching the directory is always offered.
void SearchPanel::LoadSearchKinds(std::string builtInCaption) {
  kinds_.clear();
  std::string text = data_.Read(guide_file::kSearchKinds).bytes;
  std::replace(text.begin(), text.end(), '\r', '\n');
  for (const std::string_view line : Split(text, '\n')) {
    if (line.empty() || kinds_.size() == kMaxKinds) continue;
    auto fields = SplitAtMost(line, '\t', 3);
    fields.resize(3);
    kinds_.push_back({std::string(fields[0]), std::string(fields[1]), std::string(fields[2])});
  }
  if (kinds_.empty()) kinds_.push_back({std::move(builtInCaption), kFindStation, {}});
}

bool SearchPanel::SearchesStations(std::size_t kind) const {
  // A setting may name a kind that a newer guide has no more; then the last one is meant.
  return !kinds_.empty() && kinds_[std::min(kind, kinds_.size() - 1)].SearchesStations();
}

std::vector<std::string> SearchPanel::History() const {
  return SearchHistory(settings_.Get(setting::kSearchList)).Entries();
}

SearchHistory SearchPanel::Pinned() const {
  return SearchHistory(settings_.Get(setting::kPinnedSearches), SearchHistory::kMaxPinned);
}

// Pinned searches first, the newest of them at the top; none stands in the list twice.
std::vector<std::string> SearchPanel::Searches() const {
  const SearchHistory pinned = Pinned();
  std::vector<std::string> searches(pinned.Entries().rbegin(), pinned.Entries().rend());
  for (const std::string& past : History()) {
    if (!pinned.Contains(past)) searches.push_back(past);
  }
  return searches;
}

bool SearchPanel::IsPinned(std::string_view text) const { return Pinned().Contains(CleanText(text)); }

void SearchPanel::TogglePinned(std::string_view text) {
  const std::string clean = CleanText(text);
  if (clean.empty()) return;
  SearchHistory pinned = Pinned();
  if (pinned.Contains(clean)) {
    pinned.Remove(clean);
  } else {
    pinned.Add(clean);
  }
  settings_.Set(setting::kPinnedSearches, pinned.ToSetting());
}

SearchPanel::Outcome SearchPanel::FindStation(std::string_view text, std::size_t kind, bool allWords) {
  const std::string clean = CleanText(text);
  if (clean.empty() || kinds_.empty()) return Outcome::Nothing;
  const SearchKind& chosen = kinds_[std::min(kind, kinds_.size() - 1)];
  if (!chosen.SearchesStations()) {
    FindOnTheWeb(clean, chosen, allWords);
    return Outcome::Web;
  }
  FindInTheDirectory(clean, allWords);
  return Outcome::Stations;
}

// The words are encoded, the option is not: it is one of two fixed words. The page opens when the user asks
// for it.
void SearchPanel::FindOnTheWeb(const std::string& text, const SearchKind& kind, bool allWords) {
  last_ = LastKind::Web;
  webCaption_ = kind.caption;
  webWords_ = text;
  webAddress_ = ReplaceFirst(kind.urlTemplate, kWordMark, UrlEncodeQuery(text));
  webAddress_ = ReplaceFirst(webAddress_, kOptionMark, allWords ? "all" : "any");
  listing_.ShowWebSearch();
}

// Kept before the search, so that a search that takes the program down is not forgotten.
void SearchPanel::FindInTheDirectory(const std::string& text, bool allWords) {
  SearchHistory history(settings_.Get(setting::kSearchList));
  history.Add(text);
  settings_.Set(setting::kSearchList, history.ToSetting());
  last_ = LastKind::Station;
  listing_.ShowSearch(text, allWords);
  std::string ids;
  for (const StationKey& station : listing_.LastFound()) ids += station.Token() + ' ';
  tray_.TellTray(std::string(kTrayResults) + '\t' + ids + '\t' + text);
}

}  // namespace sonaro
