// The tree of genres, and the tags that lead to each of its entries.
#pragma once

#include <span>
#include <string_view>
#include <vector>

namespace sonaro {

struct Genre {
  char code;  // one letter or digit, part of keys in the browse tree: never given to another genre
  std::string_view name;
  std::string_view file;  // name of its list file, without ending
};

// A line of tags.tsv, where the tags are.
struct GenreLine {
  char genre;                 // Genre::code
  std::string_view subGenre;  // "" for the genre as a whole
  std::vector<std::string_view> tags;
};

struct TagTable {
  std::vector<GenreLine> lines;
  std::vector<std::string_view> fillers;  // say nothing about what is played: "radio", "fm", networks, towns
  std::vector<std::string_view> onlyAsWholeTag;  // genres as a tag, something else beside other words
  std::vector<std::string_view> notInNames;      // promise nothing in a station's name
};

inline constexpr char kOtherGenre = 'z';

// In the order in which the browse tree shows them.
std::span<const Genre> GenreList();

// Read out of tags.tsv once.
const TagTable& Tags();

// The file as it is, embedded by CMake.
std::string_view TagTableText();

}  // namespace sonaro
