// How the two trees are built. Stations are visited best first, and each is appended to the entries on its
// path by its index. The list of every entry is therefore in the directory's order without being sorted, and
// the children of an entry are in alphabetical order because they are held in a map.
//
// A category always has one entry of all its stations ("All Jazz"), since the root itself lists nothing. The
// program shows entries in the order of their texts, and a blank stands before all letters: with one at its
// beginning the entry of all comes first.
#include "output/BrowseLists.h"

#include <algorithm>
#include <array>
#include <initializer_list>
#include <set>

#include "base/OwnFiles.h"
#include "base/Text.h"
#include "places/Places.h"
#include "text/CleanText.h"

namespace sonaro {
namespace {

struct CategoryName {
  char code;
  std::string_view name;
  std::string_view file;
};

// Indexed by Continent; the last one is for stations of no known country.
constexpr std::array<CategoryName, kContinents + 1> kPlaceCategories = {
    {{'a', "Africa", "place-africa"},
     {'b', "Antarctica", "place-antarctica"},
     {'c', "Asia", "place-asia"},
     {'d', "Europe", "place-europe"},
     {'e', "North America", "place-north-america"},
     {'f', "Oceania", "place-oceania"},
     {'g', "South America", "place-south-america"},
     {'h', "No Country Given", "place-none"}}};

// Puts a station at the end of a path, and so into every entry on the way. A station can come to an entry
// twice, by two sub-genres of one genre. Stations come in ascending order, so it is enough to look at the
// last one.
void Add(Category& category, std::initializer_list<std::string_view> path, std::size_t station) {
  CategoryNode* node = &category.root;
  for (const std::string_view name : path) {
    auto child = node->children.find(name);
    if (child == node->children.end()) child = node->children.emplace(name, CategoryNode{}).first;
    node = &child->second;
    if (node->stations.empty() || node->stations.back() != station) node->stations.push_back(station);
  }
}

void RemoveEmpty(std::vector<Category>& categories) {
  std::erase_if(categories, [](const Category& category) { return category.root.children.empty(); });
}

// Returns the entry of Other under which a tag is filed: its first letter, whose text `buffer` holds. Tags
// are capitalized before, so that "A" to "Z" covers both cases; everything beyond ASCII shares one entry.
std::string_view InitialOf(std::string_view tag, std::string& buffer) {
  std::size_t position = 0;
  const char32_t c = NextCharacter(tag, position);
  if (c >= '0' && c <= '9') return "0-9";
  if (!(c >= 'A' && c <= 'Z')) return "Other Letters";
  buffer.assign(1, static_cast<char>(c));
  return buffer;
}

// One name for the spellings of a tag: the one that comes first in the directory.
class TagNames {
 public:
  const std::string& NameOf(const std::string& tag) {
    return names_.try_emplace(MatchKey(tag), Capitalized(tag)).first->second;
  }

 private:
  std::map<std::string, std::string> names_;
};

void AddToOther(Category& other, const DirectoryStation& station, std::size_t index, TagNames& names) {
  Add(other, {" All Other"}, index);
  if (station.genres.otherTag.empty()) {
    Add(other, {"No Genre Given", station.place.country ? station.place.country->name : "No Country Given"},
        index);
    return;
  }
  const std::string& name = names.NameOf(station.genres.otherTag);
  std::string buffer;
  Add(other, {InitialOf(name, buffer), name}, index);
}

// Writes the entries below `node` depth first, a line each:
//
//   code TAB number of stations TAB name TAB code of the parent or 0 TAB identifiers with blanks between CR
//   LF
//
// Codes count up from 1 through the whole file, so that a parent always stands before its children; whoever
// reads the file relies on it.
void AppendEntries(const CategoryNode& node, int parent, int& code, const Directory& directory,
                   std::string& text) {
  for (const auto& [name, child] : node.children) {
    const int own = ++code;
    text += std::to_string(own) + '\t' + std::to_string(child.stations.size()) + '\t' + name + '\t' +
            std::to_string(parent) + '\t';
    for (std::size_t i = 0; i < child.stations.size(); ++i) {
      if (i > 0) text += ' ';
      text += std::to_string(directory.stations[child.stations[i]].id);
    }
    text += "\r\n";
    AppendEntries(child, own, code, directory, text);
  }
}

}  // namespace

CategoryTree GenreTree(const Directory& directory) {
  CategoryTree tree{std::string(guide_file::kCategories), {}};
  std::map<char, std::size_t> byCode;
  for (const Genre& genre : GenreList()) {
    byCode.emplace(genre.code, tree.categories.size());
    tree.categories.push_back({genre.code,
                               std::string(genre.name),
                               std::string(genre.file),
                               std::string("G") + genre.code + "-",
                               {}});
  }
  TagNames names;
  for (std::size_t i = 0; i < directory.stations.size(); ++i) {
    const DirectoryStation& station = directory.stations[i];
    for (const GenreEntry& entry : station.genres.entries) {
      Category& category = tree.categories[byCode.at(entry.genre->code)];
      Add(category, {" All " + category.name}, i);
      if (!entry.subGenre.empty()) Add(category, {entry.subGenre}, i);
    }
    if (station.genres.entries.empty())
      AddToOther(tree.categories[byCode.at(kOtherGenre)], station, i, names);
  }
  RemoveEmpty(tree.categories);
  return tree;
}

CategoryTree PlaceTree(const Directory& directory) {
  CategoryTree tree{std::string(guide_file::kLocations), {}};
  for (const CategoryName& place : kPlaceCategories) {
    tree.categories.push_back({place.code,
                               std::string(place.name),
                               std::string(place.file),
                               std::string("L") + place.code + "-",
                               {}});
  }
  for (std::size_t i = 0; i < directory.stations.size(); ++i) {
    const DirectoryStation& station = directory.stations[i];
    if (!station.place.country) {
      const std::vector<std::string> languages = LanguagesIn(station.source.language);
      // Stations without a country are sorted by language instead: it is the next best guess of where they
      // belong.
      Category& category = tree.categories.back();
      Add(category, {" All Without a Country"}, i);
      Add(category, {languages.empty() ? std::string_view("No Language Given") : languages.front()}, i);
      continue;
    }
    const Country& country = *station.place.country;
    Category& category = tree.categories[static_cast<std::size_t>(country.continent)];
    Add(category, {" All of " + category.name}, i);
    // With a region the country's own entry lists the station as well: Add puts it into every entry of the
    // path.
    if (station.place.region.empty()) {
      Add(category, {country.name}, i);
    } else {
      Add(category, {country.name, station.place.region}, i);
    }
  }
  RemoveEmpty(tree.categories);
  return tree;
}

std::string CategoryList(const CategoryTree& tree) {
  std::string text;
  for (const Category& category : tree.categories) {
    text += std::string(1, category.code) + '\t' + category.name + '\t' + category.file + '\t' +
            category.keyPrefix + "\r\n";
  }
  return text;
}

std::string CategoryEntries(const Category& category, const Directory& directory) {
  std::string text;
  int code = 0;
  AppendEntries(category.root, 0, code, directory, text);
  return text;
}

}  // namespace sonaro
