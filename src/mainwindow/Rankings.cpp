#include "mainwindow/Rankings.h"

#include "base/DataFolder.h"
#include "base/OwnFiles.h"
#include "base/Text.h"
#include "resources/texts/mainwindow.h"

namespace sonaro {
namespace {

struct RankingFacts {
  std::string_view nameInFile;  // "" = has a file of its own
  std::string_view listingMode;
  int captionId;
};

// In the order of the enumeration.
constexpr std::array<RankingFacts, kRankingCount> kFacts{{
    {"New Stations", "New", IDS_RANKING_NEW_STATIONS},
    {"Most Pop", "MostPop", IDS_RANKING_MOST_POP},
    {"Least Pop", "LeastPop", IDS_RANKING_LEAST_POP},
    {"Best Overall", "BestOverAll", IDS_RANKING_BEST_OVERALL},
    {"Best Sound", "BestSound", IDS_RANKING_BEST_SOUND},
    {"Best Speed", "BestSpeed", IDS_RANKING_BEST_SPEED},
    {"Best Website", "BestWebSite", IDS_RANKING_BEST_WEBSITE},
    {"", "MostReliable", IDS_RANKING_MOST_RELIABLE},
}};
constexpr std::string_view kOtherReliableMode = "Most Reliable";

const RankingFacts& FactsOf(Ranking ranking) { return kFacts[static_cast<std::size_t>(ranking)]; }

// The file holds the identifiers alone; line ends separate them as blanks do.
std::string ReliableIds(std::string text) {
  for (char& c : text) {
    if (c == '\r' || c == '\n' || c == '\t') c = ' ';
  }
  return std::string(TrimBlanks(text));
}

}  // namespace

std::string_view ListingModeOf(Ranking ranking) { return FactsOf(ranking).listingMode; }

std::optional<Ranking> RankingOfListingMode(std::string_view mode) {
  if (mode == kOtherReliableMode) return Ranking::MostReliable;
  for (std::size_t i = 0; i < kRankingCount; ++i) {
    if (kFacts[i].listingMode == mode) return static_cast<Ranking>(i);
  }
  return std::nullopt;
}

int CaptionIdOf(Ranking ranking) { return FactsOf(ranking).captionId; }

std::string Rankings::Ids(Ranking ranking) {
  if (!read_) ReadRankings();
  return ids_[static_cast<std::size_t>(ranking)] + " ";
}

void Rankings::ReadRankings() {
  const ReadResult file = data_.Read(guide_file::kRanking);
  read_ = file.status == ReadStatus::Ok;
  for (const std::string_view line : SplitLines(file.bytes)) {
    const auto fields = SplitAtMost(line, '\t', 2);
    if (fields.size() < 2) continue;
    for (std::size_t i = 0; i < kRankingCount; ++i) {
      const std::string_view name = kFacts[i].nameInFile;
      if (!name.empty() && EqualIgnoringCase(fields[0], name)) ids_[i] = TrimBlanks(fields[1]);
    }
  }
  ids_[static_cast<std::size_t>(Ranking::MostReliable)] =
      ReliableIds(data_.Read(guide_file::kReliable).bytes);
}

}  // namespace sonaro
