// The stations that can be chosen for a schedule item: those of a favourite group, the user's own, the ones
// played last, or the result of a search. The partner of frmSelectStation; owned by Application.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace sonaro {

class CReg;
class PersonalStations;
struct PersonalStation;
class RecentList;
class StatList;
class Strings;

struct PickRow {
  std::string key;  // "S1204", "P3"
  std::string name;
  std::string location;
  std::string mediaType;
  int reliability = 0;  // 0 to 4
};

struct PickGroup {
  std::string name;
  std::string tokens;  // each followed by one blank, or by nothing at the end
};

class StationPicker {
 public:
  StationPicker(StatList& stations, const PersonalStations& personal, const RecentList& recent,
                const CReg& reg, const Strings& strings)
      : stations_(stations), personal_(personal), recent_(recent), reg_(reg), strings_(strings) {}

  // The favourite groups, which belong to the main window.
  void SetGroups(std::function<std::vector<PickGroup>()> groups) { groups_ = std::move(groups); }

  // What can be taken from: the groups, then "Your Stations" and "Recently Launched Stations".
  std::vector<std::string> Sources() const;
  std::vector<PickRow> RowsOf(std::size_t source);
  // Stations that hold every word of the text.
  std::vector<PickRow> Find(std::string_view text);
  // Earlier searches, newest first.
  std::vector<std::string> SearchHistory() const;

 private:
  std::vector<PickGroup> Groups() const { return groups_ ? groups_() : std::vector<PickGroup>{}; }
  std::vector<PickRow> RowsOfTokens(std::string_view tokens);
  PickRow RowOfOwn(const PersonalStation& station) const;
  std::vector<PickRow> PersonalRows() const;

  StatList& stations_;
  const PersonalStations& personal_;
  const RecentList& recent_;
  const CReg& reg_;
  const Strings& strings_;
  std::function<std::vector<PickGroup>()> groups_;
};

}  // namespace sonaro
