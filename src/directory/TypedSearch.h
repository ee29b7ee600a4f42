// The search while the user types and the filter of a list: letter case and accents aside, every word that
// was typed stands somewhere in a searched field of a station, as a beginning or a part. StatList applies it
// to the directory, TypedWords to any other text.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "directory/SearchIndex.h"

namespace sonaro {

class TypedWords {
 public:
  // What stands between blanks, at most kMaxSearchWords words.
  explicit TypedWords(std::string_view typed);

  bool Empty() const { return folded_.empty(); }
  // Whether each word stands in one of the fields; without words they always do. For lists of other things
  // than stations of the directory.
  bool StandIn(std::span<const std::string_view> fields) const;
  // Without letter case and accents.
  std::span<const std::string> Folded() const { return folded_; }

 private:
  std::vector<std::string> folded_;
};

// What the records of a search column are without accents: all names, in one run, since most searches end
// there, and of the rest only those records that have any, about every sixth. Made in memory when something
// is first typed: some 60 bytes a record. Owned by the table's image.
class PlainTexts {
 public:
  explicit PlainTexts(const SearchColumn& column);

  // The first field of each record, followed by a tab. The byte before the text is readable.
  SearchColumn Names() const { return ColumnOf(names_); }
  const ByteFrequencies& NameFrequencies() const { return nameFrequencies_; }
  // The records with accents, ascending, and their texts.
  std::span<const std::uint32_t> Accented() const { return accented_; }
  SearchColumn AccentedTexts() const { return ColumnOf(texts_); }
  const SearchIndex& AccentedIndex() const { return textsIndex_; }

 private:
  struct Texts {
    std::string bytes;  // a tab, the records, the padding
    std::vector<std::uint32_t> starts;
  };
  static SearchColumn ColumnOf(const Texts& texts) {
    return {std::string_view(texts.bytes).substr(0, texts.starts.back()), texts.starts};
  }
  static void Close(Texts& texts);
  void Add(const SearchColumn& column, std::uint32_t record);
  void Build(const SearchColumn& column);

  Texts names_;
  Texts texts_;
  std::vector<std::uint32_t> accented_;
  ByteFrequencies nameFrequencies_;
  SearchIndex textsIndex_;
};

// The best records for what was typed, at most `max`: first those in whose name every word begins a word,
// then those with all words in the name, then the others; each kind in ascending order. None without words.
std::vector<std::uint32_t> BestRecords(const SearchColumn& column, const SearchIndex& index,
                                       const PlainTexts& plain, const TypedWords& words, std::size_t max);

// All records that match, ascending. None without words.
std::vector<std::uint32_t> TypedRecords(const SearchColumn& column, const SearchIndex& index,
                                        const PlainTexts& plain, const TypedWords& words);

}  // namespace sonaro
