// The search for words in the station directory: one pass over those parts of the folded search column of a
// table that can hold them. Owns nothing; StatList hands in the column and its index.
#pragma once

#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "directory/SearchIndex.h"

namespace sonaro {

inline constexpr std::size_t kMaxSearchWords = 100;

// What stands between single blanks, at most kMaxSearchWords words. Runs of blanks give no words.
std::vector<std::string> SearchWords(std::string_view text);

// The indices, ascending, of the records in which all words, or any word, occur. A word occurs when it stands
// anywhere in one of the searched fields, letter case ignored. No words match no record.
std::vector<std::uint32_t> FindRecords(const SearchColumn& column, const SearchIndex& index,
                                       const std::vector<std::string>& words, bool allWords);

// Calls `take` with each record, in ascending order, in which all words occur, until it gives false.
// `folded`: at least one word, as it would stand in the column.
void ForEachMatch(const SearchColumn& column, const SearchIndex& index, std::span<const std::string> folded,
                  const std::function<bool(std::uint32_t record)>& take);

}  // namespace sonaro
