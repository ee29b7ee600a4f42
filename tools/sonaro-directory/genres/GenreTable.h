// The tree of genres and the tags that lead to each of its entries. The tags are those that lists use most,
// in the languages in which they are used; this table is where a new one goes.
#pragma once

#include <span>
#include <string_view>

namespace sonaro {

struct Genre {
  char code;  // one letter or digit, part of keys in the browse tree: never given to another genre
  std::string_view name;
  std::string_view file;  // name of its list file, without ending
};

struct GenreLine {
  char genre;                 // Genre::code
  std::string_view subGenre;  // "" for the genre as a whole
  std::string_view tags;      // joined by "|", compared by MatchKey; a tag may stand in several lines
};

inline constexpr char kOtherGenre = 'z';

// In the order in which the browse tree shows them.
std::span<const Genre> GenreList();

// The lines of the table: styles of music, music of parts of the world, everything else.
std::span<const GenreLine> MusicTags();
std::span<const GenreLine> WorldTags();
std::span<const GenreLine> OtherTags();

// Tags that say nothing about what is played: "radio", "fm", "online", networks, towns.
std::span<const std::string_view> EmptyTags();

}  // namespace sonaro
