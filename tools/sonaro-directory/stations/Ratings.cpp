#include "stations/Ratings.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string_view>

#include "stations/Addresses.h"
#include "text/Hints.h"

namespace sonaro {
namespace {

// How votes and clicks become ratings. Votes can be cast by scripts, clicks are harder to fake, so votes
// count only as far as clicks confirm them (BelievedVotes). Both are logarithmic: what counts is how many
// times more listeners a station has, not how many more. Ratings shown to the user are 1 to 9; 0 means
// unknown.
constexpr double kMaxVotes = 50000;
constexpr double kVotesWithoutClicks = 500;
constexpr double kVotesPerClick = 100;
constexpr double kManyClicks = 3000;  // of a day; what the most played station has
constexpr std::int64_t kListenedTo = 3;

// From 0..1 to 1..9 in equal steps.
int Digit(double score) { return 1 + std::clamp(static_cast<int>(score * 9), 0, 8); }

double Logarithmic(double value, double most) { return std::min(1.0, std::log1p(value) / std::log1p(most)); }

// 0 to 1. Clicks weigh more than votes, since they say what is listened to today.
double Popularity(const SourceStation& station) {
  if (!station.votes && !station.clicks) return 0;
  const Believed believed = BelievedVotes(station.votes.value_or(0), station.clicks.value_or(0));
  return 0.6 * Logarithmic(believed.clicks, kManyClicks) + 0.4 * Logarithmic(believed.votes, kMaxVotes);
}

// The bit rate at which MP3 sounds alike. The factors are rough; what depends on them is a rating in nine
// steps.
double Mp3Equivalent(const SourceStation& station) {
  const auto rate = static_cast<double>(station.bitRate);
  // What makes AAC+ sound well at low rates brings nothing above 64 kbit/s.
  if (station.codec.starts_with("AAC+")) return rate <= 64 ? rate * 1.7 : std::max(109.0, rate * 1.3);
  if (station.codec.starts_with("AAC") || station.codec == "OGG") return rate * 1.3;
  if (station.codec == "OPUS") return rate * 1.6;
  return rate;
}

int SoundRating(const SourceStation& station) {
  if (station.codec == "FLAC") return 9;
  const bool picture = station.codec.find("H.264") != std::string::npos || station.codec == "FLV";
  if (station.bitRate == 0 || station.codec.empty() || picture) return 0;
  // The first equivalent rate of the ratings 2 to 9: 128 kbit/s MP3 is a 6, 320 an 8, lossless a 9.
  constexpr std::array<double, 8> kSteps = {24, 40, 56, 80, 112, 150, 224, 350};
  const auto step = std::upper_bound(kSteps.begin(), kSteps.end(), Mp3Equivalent(station));
  return 1 + static_cast<int>(step - kSteps.begin());
}

// A player has to fetch and read these before it knows where the stream is.
bool IsPlaylist(const std::string& address) {
  const std::string ending = AddressEnding(address);
  return ending == ".pls" || ending == ".m3u" || ending == ".asx" || ending == ".ram" || ending == ".xspf";
}

// How soon sound comes on a slow line: few bits, nothing to fetch beforehand.
int SpeedRating(const SourceStation& station) {
  if (station.bitRate == 0) return 0;
  // `answered` may be unknown, which is not the same as false.
  if (station.answered == false) return 1;
  constexpr std::array<std::int64_t, 8> kSteps = {33, 49, 65, 97, 129, 193, 257, 321};
  const auto step = std::upper_bound(kSteps.begin(), kSteps.end(), station.bitRate);
  int rating = 9 - static_cast<int>(step - kSteps.begin());
  if (station.segmented) --rating;  // whole pieces of several seconds come first
  if (IsPlaylist(station.addresses.front())) --rating;
  return std::max(rating, 1);
}

// Pages on hosts that anybody can have one on say less than a station's own site.
bool IsSharedHost(std::string_view host) {
  constexpr std::array<std::string_view, 22> kShared = {
      "facebook.com", "twitter.com",       "x.com",       "instagram.com",
      "youtube.com",  "tunein.com",        "zeno.fm",     "laut.fm",
      "blogspot.com", "wordpress.com",     "wixsite.com", "radio.net",
      "radio.garden", "myradiostream.com", "google.com",  "t.me",
      "vk.com",       "linktr.ee",         "live365.com", "radioking.com",
      "weebly.com",   "radio-browser.info"};
  return std::any_of(kShared.begin(), kShared.end(), [&](std::string_view shared) {
    return host == shared || (host.ends_with(shared) && host[host.size() - shared.size() - 1] == '.');
  });
}

int WebSiteRating(const SourceStation& station, double popularity) {
  if (station.webSite.empty()) return 0;
  int rating = 3;
  if (station.webSite.starts_with("https")) ++rating;
  const std::string host = HostOfAddress(station.webSite);
  if (!IsSharedHost(host)) rating += 2;
  constexpr std::size_t kShortAddress = 40;
  if (station.webSite.size() <= kShortAddress) ++rating;
  if (popularity >= 0.25) ++rating;
  if (popularity >= 0.5) ++rating;
  return rating;
}

// 0 unknown, 1 did not answer when it was last tried, 2 answered, but codec or rate were not recognised, 3
// answered with both recognised, 4 is also listened to.
int Reliability(const SourceStation& station) {
  if (!station.answered) return 0;
  if (!*station.answered) return 1;
  const bool understood = !station.codec.empty() && station.bitRate > 0;
  if (!understood) return 2;
  return station.clicks.value_or(0) >= kListenedTo ? 4 : 3;
}

}  // namespace

// Votes above the highest number that a real station has been seen with are a sign of cheating, and lower the
// belief in both numbers: the more there are the less count. Below it, votes are bounded by the clicks.
Believed BelievedVotes(std::int64_t votes, std::int64_t clicks) {
  Believed believed{static_cast<double>(std::max<std::int64_t>(votes, 0)),
                    static_cast<double>(std::max<std::int64_t>(clicks, 0))};
  if (believed.votes > kMaxVotes) {
    const double share = kMaxVotes / believed.votes;
    believed.votes = kMaxVotes * share;
    believed.clicks *= std::sqrt(share * share * share);
  }
  believed.votes = std::min(believed.votes, kVotesWithoutClicks + kVotesPerClick * believed.clicks);
  return believed;
}

Ratings RateStation(const SourceStation& station) {
  Ratings ratings;
  ratings.popularity = Popularity(station);
  ratings.sound = SoundRating(station);
  ratings.speed = SpeedRating(station);
  ratings.webSite = WebSiteRating(station, ratings.popularity);
  ratings.reliability = Reliability(station);
  // Lists without any statistics say nothing about quality; 0 hides the rating instead of showing a bad one.
  const bool known = station.votes || station.clicks || station.answered;
  if (!known) return ratings;
  ratings.quality = 0.55 * ratings.popularity + 0.2 * ratings.sound / 9.0 + 0.15 * ratings.reliability / 4.0 +
                    0.1 * ratings.webSite / 9.0;
  ratings.overall = Digit(ratings.quality);
  return ratings;
}

}  // namespace sonaro
