// The ranking lists: "\fun.snr" and "\reliable.snr".
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "model/Directory.h"

namespace sonaro {

inline constexpr std::array<std::string_view, 7> kRankingNames = {
    "New Stations", "Most Pop", "Least Pop", "Best Overall", "Best Sound", "Best Speed", "Best Website"};

inline constexpr std::size_t kRankingLength = 250;

// One ranking a line: name, tab, identifiers with a blank between them.
std::string RankingList(const Directory& directory);
// The identifiers of the most reliable stations with a blank between them.
std::string ReliableList(const Directory& directory);

}  // namespace sonaro
