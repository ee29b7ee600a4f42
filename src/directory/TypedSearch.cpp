// Names come first, so they are searched first, and for most of what is typed that is all: a pass ends when
// it has found as many as are wanted. What is left is found in the search column as a search finds it, but
// for the records with accents, which are looked for in their own texts.
#include "directory/TypedSearch.h"

#include <algorithm>
#include <iterator>

#include "base/Text.h"
#include "directory/ByteScan.h"
#include "directory/StationSearch.h"
#include "directory/VmxFormat.h"
#include "directory/WordFinder.h"

namespace sonaro {
namespace {

using Records = std::vector<std::uint32_t>;

std::string_view TextOf(const SearchColumn& column, std::size_t record) {
  return column.text.substr(column.starts[record], column.starts[record + 1] - column.starts[record]);
}

std::string_view NameOf(std::string_view record) {
  return record.substr(0, FindByte(record, kFieldSeparator));
}

// The words as they are looked for in names, rarest first: it leads through the names, and where it is
// missing the others need not be looked for.
class NameWords {
 public:
  NameWords(std::span<const std::string> words, const ByteFrequencies& frequencies) {
    for (const std::string& word : words) finders_.emplace_back(word, frequencies);
    std::sort(finders_.begin(), finders_.end(),
              [](const WordFinder& a, const WordFinder& b) { return a.EstimatedHits() < b.EstimatedHits(); });
  }
  const WordFinder& Rarest() const { return finders_.front(); }
  bool AllStandIn(std::string_view name) const {
    return std::all_of(finders_.begin(), finders_.end(), [&](const WordFinder& word) {
      return word.Find(name.data(), End(name)) != End(name);
    });
  }
  bool AllBeginIn(std::string_view name) const {
    return std::all_of(finders_.begin(), finders_.end(), [&](const WordFinder& word) {
      return word.FindBeginning(name.data(), End(name)) != End(name);
    });
  }

 private:
  static const char* End(std::string_view name) { return name.data() + name.size(); }

  std::vector<WordFinder> finders_;
};

// The records whose names hold all words.
struct NameHits {
  Records beginnings;
  Records parts;
};

NameHits SearchNames(const SearchColumn& names, const NameWords& words, std::size_t max) {
  NameHits hits;
  const char* const end = names.text.data() + names.text.size();
  RecordCursor cursor(names, 0);
  const char* at = cursor.Begin();
  while (hits.beginnings.size() < max) {
    // Parts come behind all beginnings: with enough of both only beginnings count.
    const bool partsCount = hits.beginnings.size() + hits.parts.size() < max;
    at = partsCount ? words.Rarest().Find(at, end) : words.Rarest().FindBeginning(at, end);
    if (at == end) break;
    cursor.MoveTo(at);
    const std::string_view name = TextOf(names, cursor.Record());
    if (words.AllBeginIn(name)) {
      hits.beginnings.push_back(cursor.Record());
    } else if (partsCount && words.AllStandIn(name)) {
      hits.parts.push_back(cursor.Record());
    }
    at = cursor.End();
  }
  return hits;
}

// The records with all words, in ascending order, for which `wanted(text)` holds; the first `max` of those
// without and of those with accents.
template <typename Wanted>
Records SearchTexts(const SearchColumn& column, const SearchIndex& index, const PlainTexts& plain,
                    std::span<const std::string> words, std::size_t max, Wanted wanted) {
  Records usual;
  auto accented = plain.Accented().begin();
  ForEachMatch(column, index, words, [&](std::uint32_t record) {
    while (accented != plain.Accented().end() && *accented < record) ++accented;
    const bool isAccented = accented != plain.Accented().end() && *accented == record;
    if (!isAccented && wanted(TextOf(column, record))) usual.push_back(record);
    return usual.size() < max;
  });
  Records others;
  const SearchColumn texts = plain.AccentedTexts();
  ForEachMatch(texts, plain.AccentedIndex(), words, [&](std::uint32_t place) {
    if (wanted(TextOf(texts, place))) others.push_back(plain.Accented()[place]);
    return others.size() < max;
  });
  // Both are in ascending order and hold no record twice, since an accented one counts in its own text only.
  Records all;
  all.reserve(usual.size() + others.size());
  std::merge(usual.begin(), usual.end(), others.begin(), others.end(), std::back_inserter(all));
  return all;
}

}  // namespace

TypedWords::TypedWords(std::string_view typed) {
  std::string plain = WithoutAccents(FoldCase(typed));
  std::replace(plain.begin(), plain.end(), kFieldSeparator, ' ');  // no field holds one
  folded_ = SearchWords(plain);
}

bool TypedWords::StandIn(std::span<const std::string_view> fields) const {
  std::string plain;
  for (const std::string_view field : fields) {
    AppendWithoutAccents(plain, FoldCase(field));
    plain += kFieldSeparator;
  }
  return std::all_of(folded_.begin(), folded_.end(),
                     [&](const std::string& word) { return plain.find(word) != std::string::npos; });
}

PlainTexts::PlainTexts(const SearchColumn& column)
    : nameFrequencies_((Build(column), Names().text)), textsIndex_(AccentedTexts()) {}

void PlainTexts::Build(const SearchColumn& column) {
  const std::size_t count = column.starts.size() - 1;
  names_.bytes = texts_.bytes = kFieldSeparator;
  // A guess; names are about a fifth of what is searched.
  names_.bytes.reserve(column.text.size() / 4);
  names_.starts.reserve(count + 1);
  for (std::uint32_t record = 0; record < count; ++record) Add(column, record);
  Close(names_);
  Close(texts_);
}

void PlainTexts::Add(const SearchColumn& column, std::uint32_t record) {
  const std::string_view text = TextOf(column, record);
  names_.starts.push_back(static_cast<std::uint32_t>(names_.bytes.size()));
  // Most records are ASCII, which is seen at a glance. Others need not have accents: Chinese or Russian ones
  // stay as they are.
  if (!IsAscii(text)) {
    const std::size_t start = texts_.bytes.size();
    AppendWithoutAccents(texts_.bytes, text);
    const std::string_view plain = std::string_view(texts_.bytes).substr(start);
    if (plain != text) {
      texts_.starts.push_back(static_cast<std::uint32_t>(start));
      accented_.push_back(record);
      names_.bytes.append(NameOf(plain)) += kFieldSeparator;
      return;
    }
    texts_.bytes.resize(start);
  }
  names_.bytes.append(NameOf(text)) += kFieldSeparator;
}

void PlainTexts::Close(Texts& texts) {
  texts.starts.push_back(static_cast<std::uint32_t>(texts.bytes.size()));
  texts.bytes.append(kColumnPadding, '\0');
}

Records BestRecords(const SearchColumn& column, const SearchIndex& index, const PlainTexts& plain,
                    const TypedWords& words, std::size_t max) {
  if (words.Empty() || max == 0 || plain.Names().starts.size() < 2) return {};
  const NameWords nameWords(words.Folded(), plain.NameFrequencies());
  auto [best, parts] = SearchNames(plain.Names(), nameWords, max);
  best.insert(best.end(), parts.begin(), parts.end());
  // The quota ends this pass as well: a word that stands in every description costs a few hundred records.
  if (best.size() < max) {
    const auto isOther = [&](std::string_view text) { return !nameWords.AllStandIn(NameOf(text)); };
    const Records others = SearchTexts(column, index, plain, words.Folded(), max - best.size(), isOther);
    best.insert(best.end(), others.begin(), others.end());
  }
  best.resize(std::min(best.size(), max));
  return best;
}

Records TypedRecords(const SearchColumn& column, const SearchIndex& index, const PlainTexts& plain,
                     const TypedWords& words) {
  if (words.Empty()) return {};
  const std::size_t all = column.starts.size();
  return SearchTexts(column, index, plain, words.Folded(), all, [](std::string_view) { return true; });
}

}  // namespace sonaro
