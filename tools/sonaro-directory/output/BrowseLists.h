// What the main window shows of a directory: the tree that it browses, by genre or by place, and the ranking
// lists, each with the files that hold it.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <map>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "model/Directory.h"

namespace sonaro {

struct CategoryNode {
  std::map<std::string, CategoryNode, std::less<>> children;
  std::vector<std::size_t>
      stations;  // indexes into Directory::stations, its own and its children's, ascending
};

// One root of the tree with its list file.
struct Category {
  char code;  // one character, and with the file's name the root's tag
  std::string name;
  std::string file;       // without backslash and ending
  std::string keyPrefix;  // of its entries' keys, used by no other category
  CategoryNode root;
};

struct CategoryTree {
  std::string fileName;              // of the list of categories, "\cat.snr"
  std::vector<Category> categories;  // those that have stations
};

CategoryTree GenreTree(const Directory& directory);  // "\cat.snr"
CategoryTree PlaceTree(const Directory& directory);  // "\catloc.snr"

// The list of categories: code, name, file and key prefix, a tab between them.
std::string CategoryList(const CategoryTree& tree);
// One category's entries, parents before children: entry code, number of stations, name, parent's code or 0,
// the identifiers with a blank between them.
std::string CategoryEntries(const Category& category, const Directory& directory);

// The ranking lists, "\fun.snr" and "\reliable.snr":
inline constexpr std::array<std::string_view, 7> kRankingNames = {
    "New Stations", "Most Pop", "Least Pop", "Best Overall", "Best Sound", "Best Speed", "Best Website"};

inline constexpr std::size_t kRankingLength = 250;

// One ranking a line: name, tab, identifiers with a blank between them.
std::string RankingList(const Directory& directory);
// The identifiers of the most reliable stations with a blank between them.
std::string ReliableList(const Directory& directory);

}  // namespace sonaro
