#include "baselines/SyntheticList.h"

#include <algorithm>
#include <random>

namespace sonaro {
namespace {

constexpr const char* kSyllables[] = {"ra", "dio", "lo",  "ve", "mu",  "sic", "ta",   "len",
                                      "bo", "ri",  "son", "ne", "kal", "um",  "ster", "vo",
                                      "in", "ti",  "fer", "go", "pla", "net", "wa",   "che"};
constexpr const char* kMediaTypes[] = {"MP3 128", "AAC 64", "OGG 96", "AAC+ 48", "WM 64"};
constexpr const char* kFormats[] = {"Rock Hits", "Talk", "Classical", "World Beat", "Dance", "Country"};

constexpr std::size_t kVocabulary = 60'000;
constexpr std::size_t kRareOneIn = 4'000;
constexpr std::size_t kCommonOneIn = 12;
constexpr std::size_t kThreeOneIn = 20;  // each of the three words
constexpr std::size_t kManyOneIn = 700;  // each of the hundred words

using Random = std::mt19937_64;

std::size_t Below(Random& random, std::size_t limit) { return static_cast<std::size_t>(random() % limit); }

std::string MakeWord(Random& random) {
  std::string word;
  for (std::size_t n = 2 + Below(random, 3); n > 0; --n)
    word += kSyllables[Below(random, std::size(kSyllables))];
  return word;
}

// Words of the same letters as all others that the vocabulary does not contain, other than by chance.
std::string Planted(std::size_t number) {
  constexpr const char* kParts[] = {"mo", "lir", "sa", "ker", "nu", "ded", "pi", "lag", "fo", "rus"};
  constexpr std::size_t kCount = std::size(kParts);
  const std::size_t first = number % kCount;
  const std::size_t second = number / kCount % kCount;
  const std::size_t third = (first + second + number / (kCount * kCount) * 5 + 2) % kCount;
  return std::string(kParts[first]) + kParts[second] + kParts[third];
}

struct Vocabulary {
  explicit Vocabulary(Random& random) {
    for (std::size_t i = 0; i < kVocabulary; ++i) words.push_back(MakeWord(random));
  }
  // Few words are frequent, most are rare.
  const std::string& Pick(Random& random) const {
    return words[Below(random, Below(random, Below(random, kVocabulary) + 1) + 1)];
  }
  std::vector<std::string> words;
};

std::string Text(Random& random, const Vocabulary& vocabulary, std::size_t length) {
  std::string text = vocabulary.Pick(random);
  while (text.size() < length) text += ' ' + vocabulary.Pick(random);
  text[0] = static_cast<char>(text[0] - 'a' + 'A');
  return text;
}

std::string Description(Random& random, const Vocabulary& vocabulary) {
  std::string text = Text(random, vocabulary, 30 + Below(random, 20));
  if (Below(random, kRareOneIn) == 0) text += ' ' + Planted(0);
  if (Below(random, kCommonOneIn) == 0) text += ' ' + Planted(1);
  for (std::size_t i = 2; i < 5; ++i) {
    if (Below(random, kThreeOneIn) == 0) text += ' ' + Planted(i);
  }
  for (std::size_t i = 5; i < 105; ++i) {
    if (Below(random, kManyOneIn) == 0) text += ' ' + Planted(i);
  }
  return text;
}

std::string Line(Random& random, const Vocabulary& vocabulary, std::uint32_t id) {
  const auto link = [&] {
    return "http://" + vocabulary.Pick(random) + ".example:8000/" + vocabulary.Pick(random);
  };
  std::string line = std::to_string(id);
  const auto add = [&](const std::string& field) { line += '\t' + field; };
  add(Text(random, vocabulary, 14 + Below(random, 8)));
  add(kMediaTypes[Below(random, std::size(kMediaTypes))]);
  add(Text(random, vocabulary, 12));
  add(kFormats[Below(random, std::size(kFormats))]);
  add(Description(random, vocabulary));
  for (int i = 0; i < 5; ++i) add(link());
  add(std::to_string(32 + Below(random, 300)));
  for (int i = 0; i < 5; ++i) add(std::to_string(Below(random, 10)));
  return line + '\n';
}

std::vector<std::string> PlantedFrom(std::size_t first, std::size_t count) {
  std::vector<std::string> words;
  for (std::size_t i = first; i < first + count; ++i) words.push_back(Planted(i));
  return words;
}

}  // namespace

std::string SyntheticList(std::uint32_t count, ListOrder order) {
  Random random(20);
  const Vocabulary vocabulary(random);
  std::vector<std::string> lines;
  for (std::uint32_t i = 1; i <= count; ++i) lines.push_back(Line(random, vocabulary, i * 10));
  for (std::size_t i = lines.size(); order == ListOrder::Shuffled && i > 1; --i) {
    std::swap(lines[i - 1], lines[Below(random, i)]);
  }
  std::string list;
  for (const std::string& line : lines) list += line;
  return list;
}

std::vector<Query> SyntheticQueries() {
  return {{"absent word", {"mokernu"}, true},           {"rare word", PlantedFrom(0, 1), true},
          {"common word", PlantedFrom(1, 1), true},     {"3 words, all", PlantedFrom(2, 3), true},
          {"20 words, any", PlantedFrom(5, 20), false}, {"100 words, any", PlantedFrom(5, 100), false}};
}

std::vector<Query> RealQueries() {
  return {{"absent word", {"mokerlag"}, true},
          {"rare word", {"reggaeton"}, true},
          {"common word", {"music"}, true},
          {"3 words, all", {"radio", "rock", "germany"}, true},
          {"20 words, any",
           {"jazz",  "blues", "soul",   "funk",   "swing",     "bossa",   "latin",
            "salsa", "tango", "samba",  "cumbia", "fado",      "chanson", "schlager",
            "polka", "opera", "gospel", "celtic", "bluegrass", "ambient"},
           false}};
}

}  // namespace sonaro
