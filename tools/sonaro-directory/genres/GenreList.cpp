#include "genres/GenreTable.h"

#include "base/Text.h"

namespace sonaro {
namespace {

// In the order in which the tree shows them. A code stays with its category for ever: it is part of the keys
// of the tree's nodes. The file names end up on users' disks; one that is renamed leaves an old file behind
// there.
constexpr Genre kGenres[] = {
    {'a', "Alternative & Indie", "genre-alternative"},
    {'b', "Blues", "genre-blues"},
    {'k', "Children & Family", "genre-children"},
    {'c', "Classical", "genre-classical"},
    {'q', "Comedy & Stories", "genre-stories"},
    {'u', "Community & Campus", "genre-community"},
    {'d', "Country & Americana", "genre-country"},
    {'2', "Culture & Education", "genre-culture"},
    {'e', "Dance & Electronic", "genre-electronic"},
    {'o', "Decades & Oldies", "genre-decades"},
    {'f', "Easy Listening & Chillout", "genre-easy"},
    {'g', "Folk & Traditional", "genre-folk"},
    {'h', "Hip-Hop, R&B & Soul", "genre-urban"},
    {'i', "Holiday", "genre-holiday"},
    {'j', "Jazz", "genre-jazz"},
    {'l', "Latin", "genre-latin"},
    {'m', "Metal & Hard Rock", "genre-metal"},
    {'n', "News & Talk", "genre-talk"},
    {'p', "Pop & Hits", "genre-pop"},
    {'r', "Reggae & Caribbean", "genre-reggae"},
    {'x', "Regional Mexican", "genre-mexican"},
    {'t', "Religious", "genre-religious"},
    {'s', "Rock", "genre-rock"},
    {'y', "Schlager & Volksmusik", "genre-schlager"},
    {'0', "Soundtracks, Games & Anime", "genre-soundtracks"},
    {'1', "Sports", "genre-sports"},
    {'v', "Variety", "genre-variety"},
    {'w', "World", "genre-world"},
    {kOtherGenre, "Other", "genre-other"},
};

}  // namespace

std::span<const Genre> GenreList() { return kGenres; }

// Built at the first use. The texts are part of the program, so the pieces can point into them.
const TagTable& Tags() {
  static const TagTable kTable = [] {
    TagTable table;
    for (const std::string_view line : SplitLines(TagTableText())) {
      if (line.empty() || line.starts_with('#')) continue;
      const auto columns = SplitAtMost(line, '\t', 3);
      const std::vector<std::string_view> tags = Split(columns[2], '|');
      if (columns[0].size() == 1) {
        table.lines.push_back({columns[0][0], columns[1], tags});
      } else {
        std::vector<std::string_view>& words = columns[0] == "filler"      ? table.fillers
                                               : columns[0] == "whole tag" ? table.onlyAsWholeTag
                                                                           : table.notInNames;
        words.insert(words.end(), tags.begin(), tags.end());
      }
    }
    return table;
  }();
  return kTable;
}

}  // namespace sonaro
