// The small files: alphabets, rankings, kinds of search, the user's own files, window outlines. The program
// passes over a line that it cannot use; what is reported here is what a user would miss by it. Of the user's
// own files any may be missing.
#include <algorithm>
#include <set>

#include "base/Numbers.h"
#include "base/OwnFiles.h"
#include "base/Text.h"
#include "check/Checks.h"
#include "output/BrowseLists.h"
#include "schedule/ScheduleItem.h"
#include "stations/PlayLink.h"

namespace sonaro {
namespace {

using Need = CheckContext::Need;

// Calls `check(line number, line)` for every line of a file that is not empty.
template <typename Check>
void ForEachLine(CheckContext& context, std::string_view name, Need need, Check check) {
  const std::optional<std::string> text = context.Read(name, need);
  if (!text) return;
  std::size_t number = 0;
  for (const std::string_view line : SplitLines(*text)) {
    ++number;
    if (!line.empty()) check(number, line);
  }
}

// Also notes the indices, which groups and the recent list name by "P" and the index.
// Lines of index TAB name TAB ...; an index alone stands for a station that was deleted.
void CheckPersonalStations(CheckContext& context) {
  constexpr std::string_view kName = user_file::kStations;
  // Later columns may be missing at the end of the line and are empty then.
  constexpr std::size_t kLeastColumns = 2;
  ForEachLine(context, kName, Need::Optional, [&](std::size_t number, std::string_view line) {
    const std::vector<std::string_view> columns = Split(line, '\t');
    std::int32_t index = 0;
    if (!ParseStationId(columns[0], index) || index <= 0) {
      context.Add(kName, number, "the line has no index");
    } else if (columns.size() >= kLeastColumns && !columns[1].empty() &&
               !context.personal.insert(index).second) {
      context.Add(kName, number, "the index " + std::to_string(index) + " stands there twice");
    }
  });
}

// Lines of station TAB title TAB link, the link in the form of PlayLink, not scrambled.
void CheckOwnLinks(CheckContext& context) {
  constexpr std::string_view kName = user_file::kLinks;
  ForEachLine(context, kName, Need::Optional, [&](std::size_t number, std::string_view line) {
    const std::vector<std::string_view> columns = SplitAtMost(line, '\t', 3);
    if (columns.size() < 3) {
      context.Add(kName, number, "the line has less than two tabs");
      return;
    }
    context.CheckTokens(kName, number, columns[0]);
    if (!IsPlayerAddress(PlayLink::FromText(columns[2]).address))
      context.Add(kName, number, "the link cannot be opened");
  });
}

// Lines of name TAB stations. Names are compared without regard to letter case, as the program does.
void CheckGroups(CheckContext& context) {
  constexpr std::string_view kName = user_file::kGroups;
  constexpr std::size_t kMaxGroups = 10;
  std::set<std::string> names;
  ForEachLine(context, kName, Need::Optional, [&](std::size_t number, std::string_view line) {
    const std::vector<std::string_view> columns = SplitAtMost(line, '\t', 2);
    if (columns.size() < 2) {
      context.Add(kName, number, "the line has no tab, so it is no group");
      return;
    }
    if (!names.insert(FoldCase(TrimBlanks(columns[0]))).second) {
      context.Add(kName, number, "there is a group of this name already");
    }
    // Said once, with the first one too many.
    if (names.size() == kMaxGroups + 1) context.Add(kName, number, "there are more than ten groups");
    context.CheckTokens(kName, number, columns[1]);
  });
}

// One line, the stations with blanks between them, the latest first.
void CheckRecent(CheckContext& context) {
  constexpr std::string_view kName = user_file::kRecent;
  constexpr std::size_t kMaxEntries = 20;
  ForEachLine(context, kName, Need::Optional, [&](std::size_t number, std::string_view line) {
    const std::string_view tokens = TrimBlanks(line);
    if (number > 1) context.Add(kName, number, "there is more than one line");
    if (Split(tokens, ' ').size() > kMaxEntries) context.Add(kName, number, "there are more than 20 entries");
    context.CheckTokens(kName, number, tokens);
  });
}

// Only what makes an entry never due; dates and stations of old entries may be anything.
// Seven columns, the last of them the note, which may hold tabs. What the kind of repetition needs of the
// others is not looked at: the program takes an item with an odd date and shows it.
void CheckSchedule(CheckContext& context) {
  constexpr std::string_view kName = user_file::kSchedule;
  constexpr std::size_t kColumns = 7;
  ForEachLine(context, kName, Need::Optional, [&](std::size_t number, std::string_view line) {
    const std::vector<std::string_view> columns = SplitAtMost(line, '\t', kColumns);
    if (columns.size() < kColumns) {
      context.Add(kName, number, "the line has less than six tabs");
    } else if (KindOf(columns[5]) == ScheduleKind::Unknown) {
      context.Add(kName, number,
                  "\"" + std::string(TruncateUtf8(columns[5], 40)) + "\" is no kind of repetition");
    }
  });
}

// Lines of an event's identifier, "X" and its name.
void CheckShows(CheckContext& context) {
  ForEachLine(context, user_file::kShows, Need::Optional, [&](std::size_t number, std::string_view line) {
    if (line.find('X') == std::string_view::npos)
      context.Add(user_file::kShows, number, "the show has no name");
  });
}

// Outlines are points without separators: x and y, five characters each, padded with blanks. A polygon has at
// least three.
bool IsPointsText(std::string_view points) {
  constexpr std::size_t kGroup = 10;
  return points.size() >= 3 * kGroup && points.size() % kGroup == 0 &&
         points.find_first_not_of("0123456789 -") == std::string_view::npos;
}

}  // namespace

// Without the file the built-in alphabets hold. Must come before the checks of links, which are read with
// them.
void CheckAlphabets(CheckContext& context) {
  const std::optional<std::string> text = context.Read(guide_file::kAlphabet, Need::Optional);
  if (text && !ParseAlphabets(*text, context.alphabets)) {
    context.Add(guide_file::kAlphabet, 0, "is not two lines of the same 76 different characters");
  }
}

// The lines stand in any order, each ranking once. A file that is missing is one finding, not one more for
// each ranking.
void CheckRankings(CheckContext& context) {
  constexpr std::string_view kName = guide_file::kRanking;
  std::set<std::string> missing;
  for (const std::string_view name : kRankingNames) missing.insert(FoldCase(name));
  // Both in folded form, as the program looks rankings up.
  std::set<std::string> seen;
  ForEachLine(context, kName, Need::Required, [&](std::size_t number, std::string_view line) {
    const std::vector<std::string_view> columns = SplitAtMost(line, '\t', 2);
    const std::string name = FoldCase(columns[0]);
    if (columns.size() < 2) {
      context.Add(kName, number, "the line has no tab");
    } else if (missing.erase(name) == 0) {
      const std::string quoted = "\"" + std::string(TruncateUtf8(columns[0], 40)) + "\"";
      context.Add(kName, number, quoted + (seen.count(name) > 0 ? " stands there twice" : " is no ranking"));
    } else {
      context.CheckIds(kName, number, TrimBlanks(columns[1]));
    }
    seen.insert(name);
  });
  // An empty file was reported as such.
  if (!seen.empty()) {
    for (const std::string& name : missing) context.Add(kName, 0, "the ranking \"" + name + "\" is missing");
  }
  constexpr std::string_view kReliable = guide_file::kReliable;
  ForEachLine(context, kReliable, Need::Required, [&](std::size_t number, std::string_view line) {
    if (number > 1) context.Add(kReliable, number, "there is more than one line");
    context.CheckIds(kReliable, number, TrimBlanks(line));
  });
}

// Lines of caption TAB kind TAB address. One kind searches the stations of the guide; without it the search
// form could not do what it is there for.
void CheckSearchKinds(CheckContext& context) {
  constexpr std::string_view kName = guide_file::kSearchKinds;
  constexpr std::size_t kMaxKinds = 6;
  std::size_t kinds = 0;
  bool searchesStations = false;
  ForEachLine(context, kName, Need::Required, [&](std::size_t number, std::string_view line) {
    const std::vector<std::string_view> columns = SplitAtMost(line, '\t', 3);
    if (++kinds == kMaxKinds + 1) context.Add(kName, number, "there are more than six kinds");
    if (columns.size() < 2 || columns[0].empty() || columns[1].empty()) {
      context.Add(kName, number, "the line has no caption or no kind");
    } else if (columns[1] == "FindStation") {
      searchesStations = true;
    } else if (columns.size() < 3 || !columns[2].starts_with("http") ||
               columns[2].find("<<SearchWord>>") == std::string_view::npos) {
      context.Add(kName, number, "the search has no address with <<SearchWord>>");
    }
  });
  if (kinds > 0 && !searchesStations) context.Add(kName, 0, "no kind searches the stations");
}

// Own stations first: groups, recent stations and links name them.
void CheckUserFiles(CheckContext& context) {
  CheckPersonalStations(context);
  CheckOwnLinks(context);
  CheckGroups(context);
  CheckRecent(context);
  CheckSchedule(context);
  CheckShows(context);
}

// A window whose key is missing is a plain rectangle, so only the lines that are there are looked at.
void CheckOutlines(CheckContext& context) {
  constexpr std::string_view kName = "\\Depot\\sshape.pts";
  constexpr std::size_t kKeyLength = 5;
  ForEachLine(context, kName, Need::Optional, [&](std::size_t number, std::string_view line) {
    const std::size_t equals = line.find('=');
    if (equals != kKeyLength) {
      context.Add(kName, number, "the line does not begin with a key of five characters and \"=\"");
    } else if (!IsPointsText(line.substr(equals + 1))) {
      context.Add(kName, number, "the points are not groups of two five-character numbers");
    }
  });
}

}  // namespace sonaro
