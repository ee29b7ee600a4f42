// A record is given the number of its text when it is added, and the rank of that number when all are there:
// what is sorted are the texts that differ. Sorting the records would compare the same places and formats
// again and again.
#include "directory/FieldRanks.h"

#include <algorithm>

namespace sonaro {
namespace {

// Names hardly ever occur twice: with so many texts, most of them new, looking for them again does not pay.
constexpr std::size_t kTextsToJudgeBy = 1000;

std::uint64_t StartOf(std::string_view key) {
  std::uint64_t start = 0;
  for (std::size_t i = 0; i < 8; ++i) {
    start = start << 8 | (i < key.size() ? static_cast<unsigned char>(key[i]) : 0U);
  }
  return start;
}

}  // namespace

void FieldRanks::Add(std::string_view text, const SortKeyOf& sortKey) {
  const auto next = static_cast<std::uint32_t>(keys_.size());
  if (values_) {
    if (const auto known = values_->find(text); known != values_->end()) {
      places_.push_back(known->second);
      return;
    }
    values_->emplace(text, next);
    if (places_.size() > kTextsToJudgeBy && keys_.size() > places_.size() / 4 * 3) values_.reset();
  }
  AddKey(sortKey(text));
  places_.push_back(next);
}

void FieldRanks::AddKey(std::string_view key) {
  keys_.push_back({StartOf(key), static_cast<std::uint32_t>(bytes_.size()),
                   static_cast<std::uint32_t>(key.size()), static_cast<std::uint32_t>(keys_.size())});
  bytes_ += key;
}

void FieldRanks::Finish() {
  // Equal starts are frequent, since thousands of names begin with the same word.
  std::sort(keys_.begin(), keys_.end(), [this](const Key& a, const Key& b) {
    return a.start != b.start ? a.start < b.start : BytesOf(a) < BytesOf(b);
  });
  std::vector<std::uint32_t> ranks(keys_.size());
  // 0 stays free for a record that is not there.
  std::uint32_t rank = 0;
  for (std::size_t i = 0; i < keys_.size(); ++i) {
    if (i == 0 || BytesOf(keys_[i - 1]) != BytesOf(keys_[i])) ++rank;
    ranks[keys_[i].value] = rank;
  }
  for (std::uint32_t& place : places_) place = ranks[place];
  // Assigned anew, not cleared, so that the memory goes back.
  keys_ = {};
  bytes_ = {};
  values_.reset();
  finished_ = true;
}

}  // namespace sonaro
