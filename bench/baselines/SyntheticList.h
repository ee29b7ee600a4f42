// Station lists for the benchmarks, the same on every machine: about 300 bytes a line, of which the five
// searched fields are a third, and words planted with known frequencies for the queries.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace sonaro {

enum class ListOrder { Ascending, Shuffled };

// The bytes of a "\Station.snr" with `count` stations, identifiers 10, 20, 30 and so on.
std::string SyntheticList(std::uint32_t count, ListOrder order);

struct Query {
  std::string name;
  std::vector<std::string> words;
  bool allWords = false;
};
// One absent word, a rare and a common one, three words of which all must match, twenty and a hundred of
// which any suffices.
std::vector<Query> SyntheticQueries();
// The same for a real list, which has no planted words: what people look for.
std::vector<Query> RealQueries();

}  // namespace sonaro
