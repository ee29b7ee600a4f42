// What the directory says about how good a station is. The numbers come from what lists tell (votes, clicks,
// codec, bit rate, the last check, the web site); README.md of the tool explains them to the user.
#pragma once

#include <cstdint>

#include "model/Sources.h"

namespace sonaro {

struct Ratings {
  double popularity = 0;  // 0 (not known) to 1
  double quality = 0;     // of all that is known together, 0 to 1: the order of "Best Overall"
  int overall = 0;        // digits: 0 none, 1 to 9
  int speed = 0;
  int sound = 0;
  int webSite = 0;
  int reliability =
      0;  // 0 not known, 1 did not answer, 2 answered, 3 and its stream was understood, 4 and is listened to
};

Ratings RateStation(const SourceStation& station);

// Votes and clicks that can be believed. More than 50,000 votes were never seen from listeners alone and
// count the less the more they are; so do that station's clicks. Votes without listeners to match count up to
// 100 a click.
struct Believed {
  double votes = 0;
  double clicks = 0;
};
Believed BelievedVotes(std::int64_t votes, std::int64_t clicks);

}  // namespace sonaro
