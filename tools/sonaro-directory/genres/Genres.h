// Finds the genres of a station by its tags, and by its name when the tags say nothing.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "genres/GenreTable.h"
#include "model/Sources.h"

namespace sonaro {

struct GenreEntry {
  const Genre* genre = nullptr;
  std::string_view subGenre;  // "" for the genre as a whole
  bool operator==(const GenreEntry&) const = default;
};

struct Classification {
  std::vector<GenreEntry> entries;  // the main one first; at most kMaxGenres; empty: it belongs under Other
  std::string otherTag;             // the first tag that says something, when there are no entries
  // The main genre as the list shows it.
  std::string Format() const;
};

inline constexpr std::size_t kMaxGenres = 8;

Classification ClassifyStation(const SourceStation& station);

// The entries that one tag leads to: as a whole, or else by the words in it that are genres.
std::vector<GenreEntry> GenresOfTag(std::string_view tag);

// A tag of the station that tells nothing about the programme: a filler, the owner of a network, a frequency,
// a language, a country or one of its regions.
bool TellsNothing(std::string_view tag, const SourceStation& station);

const Genre* GenreByCode(char code);

}  // namespace sonaro
