// The places of a table's records in the order of one field's texts, so that sorting some of them costs a
// look at a number each. Texts with equal sort keys have equal ranks. A sort key is made once for each text
// that differs, and goes when the ranks are there: four bytes a record stay. Owned by the table's image.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "base/Text.h"

namespace sonaro {

class FieldRanks {
 public:
  // Adds the next record's text.
  void Add(std::string_view text, const SortKeyOf& sortKey);
  std::size_t Count() const { return places_.size(); }
  // Makes the ranks of all that was added; nothing is added afterwards.
  void Finish();
  bool Finished() const { return finished_; }
  // Of the record added as the `place`th, from 1 on. Finish was called.
  std::uint32_t Of(std::size_t place) const { return places_[place]; }

 private:
  struct Key {
    std::uint64_t start = 0;  // its first eight bytes, which decide most comparisons
    std::uint32_t offset = 0;
    std::uint32_t length = 0;
    std::uint32_t value = 0;
  };
  struct Hash {
    using is_transparent = void;
    std::size_t operator()(std::string_view text) const { return std::hash<std::string_view>()(text); }
  };

  void AddKey(std::string_view key);
  std::string_view BytesOf(const Key& key) const {
    return std::string_view(bytes_).substr(key.offset, key.length);
  }

  std::vector<std::uint32_t> places_;  // by record: its value, a number of a text, and at last its rank
  std::vector<Key> keys_;              // by value
  std::string bytes_;                  // of all keys
  // The values of the texts so far, as long as texts occur again.
  std::optional<std::unordered_map<std::string, std::uint32_t, Hash, std::equal_to<>>> values_{std::in_place};
  bool finished_ = false;
};

}  // namespace sonaro
