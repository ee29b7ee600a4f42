// The ranked lists of the directory: seven out of "\fun.snr" and the reliable list out of "\reliable.snr".
// Read at the first use and kept for the run, so that an update's new rankings show at the next start;
// rankings that were missing show as soon as they are there.
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace sonaro {

class DataFolder;

enum class Ranking : int {
  NewStations = 0,
  MostPop,
  LeastPop,
  BestOverall,
  BestSound,
  BestSpeed,
  BestWebsite,
  MostReliable
};
inline constexpr std::size_t kRankingCount = 8;

// The listing mode that stands for a ranking: "New", "MostPop" ...
std::string_view ListingModeOf(Ranking ranking);
// The ranking that a listing mode stands for, compared exactly ("Most Reliable" is accepted too).
std::optional<Ranking> RankingOfListingMode(std::string_view mode);
// The number of the ranking's caption in the string table.
int CaptionIdOf(Ranking ranking);

class Rankings {
 public:
  explicit Rankings(DataFolder& data) : data_(data) {}

  // The ranking's identifiers, best first, each followed by one blank. A ranking that the files do not hold
  // gives a single blank, which lists nothing.
  std::string Ids(Ranking ranking);

 private:
  void ReadRankings();

  DataFolder& data_;
  bool read_ = false;
  std::array<std::string, kRankingCount> ids_;
};

}  // namespace sonaro
