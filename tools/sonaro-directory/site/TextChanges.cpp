// Compares by anchors: pieces that both texts have exactly once, taken in the longest row that stands in the
// same order in both. Between two anchors the comparison begins again, first of lines, then of words, so that
// a changed rating costs its digit and a new station in a category, whose stations stand on one long line,
// its number. A general shortest difference would take the square of what changed.
#include "site/TextChanges.h"

#include <algorithm>
#include <cstddef>
#include <span>
#include <unordered_map>
#include <utility>
#include <vector>

#include "net/UpdateChanges.h"

namespace sonaro {
namespace {

using Pieces = std::vector<std::string_view>;

// Each piece with the character that ends it.
Pieces Split(std::string_view text, std::string_view ends) {
  Pieces pieces;
  while (!text.empty()) {
    const std::size_t end = text.find_first_of(ends);
    const std::size_t length = end == std::string_view::npos ? text.size() : end + 1;
    pieces.push_back(text.substr(0, length));
    text.remove_prefix(length);
  }
  return pieces;
}

// The pieces are neighbours in one text.
std::string_view Joined(std::span<const std::string_view> pieces) {
  if (pieces.empty()) return {};
  const char* const begin = pieces.front().data();
  return {begin, static_cast<std::size_t>(pieces.back().data() + pieces.back().size() - begin)};
}

// Gathers the steps in the order of the old text. Neighbouring changes become one step.
class StepWriter {
 public:
  void Keep(std::string_view text) {
    if (text.empty()) return;
    if (steps_.empty() || steps_.back().skipped + steps_.back().added.size() > 0) steps_.push_back({});
    steps_.back().kept += text.size();
    keptEnd_ = text.data() + text.size();
  }
  void Replace(std::string_view before, std::string_view after) {
    if (before.empty() && after.empty()) return;
    if (steps_.empty()) steps_.push_back({});
    JoinShortKeep();
    steps_.back().skipped += before.size();
    steps_.back().added.append(after);
  }

  std::string Text() const {
    std::string text;
    for (const Step& step : steps_) {
      if (step.skipped == 0 && step.added.empty()) continue;  // the end of the old text: kept unsaid
      text.append(std::to_string(step.kept)).append(" ").append(std::to_string(step.skipped)).append(" ");
      text.append(EscapedForStep(step.added)).append("\r\n");
    }
    return text;
  }

 private:
  struct Step {
    std::size_t kept = 0;
    std::size_t skipped = 0;
    std::string added;
  };

  // A step of its own costs about as much as these bytes.
  static constexpr std::size_t kShort = 8;

  // Carries a few kept bytes between two changes again rather than begin a new step for the second.
  void JoinShortKeep() {
    if (steps_.size() < 2 || steps_.back().skipped + steps_.back().added.size() > 0) return;
    const std::size_t kept = steps_.back().kept;
    if (kept >= kShort) return;
    steps_.pop_back();
    steps_.back().skipped += kept;
    steps_.back().added.append(keptEnd_ - kept, kept);
  }

  std::vector<Step> steps_;
  const char* keptEnd_ = nullptr;  // of the last kept text
};

struct Anchor {
  std::size_t before;
  std::size_t after;
};

// Pieces that each text has once, in the order of `after`.
std::vector<Anchor> CommonOnce(std::span<const std::string_view> before,
                               std::span<const std::string_view> after) {
  struct Count {
    std::size_t inBefore = 0, inAfter = 0, at = 0;
  };
  // Words that occur often, such as a genre, anchor nothing: they would be matched with the wrong place.
  std::unordered_map<std::string_view, Count> counts;
  for (std::size_t i = 0; i < before.size(); ++i) {
    Count& count = counts[before[i]];
    ++count.inBefore;
    count.at = i;
  }
  for (const std::string_view piece : after) {
    if (const auto found = counts.find(piece); found != counts.end()) ++found->second.inAfter;
  }
  std::vector<Anchor> common;
  for (std::size_t i = 0; i < after.size(); ++i) {
    const auto found = counts.find(after[i]);
    if (found != counts.end() && found->second.inBefore == 1 && found->second.inAfter == 1)
      common.push_back({found->second.at, i});
  }
  return common;
}

// The longest row of anchors that rises in both texts.
std::vector<Anchor> LongestRising(const std::vector<Anchor>& anchors) {
  constexpr std::size_t kNone = static_cast<std::size_t>(-1);
  // As in sorting cards into piles: a card goes on the first pile whose top is not below it.
  std::vector<std::size_t> ends;  // ends[n]: the anchor with the lowest place that ends a row of n + 1
  std::vector<std::size_t> previous(anchors.size(), kNone);
  for (std::size_t i = 0; i < anchors.size(); ++i) {
    const auto place = std::partition_point(
        ends.begin(), ends.end(), [&](std::size_t end) { return anchors[end].before < anchors[i].before; });
    if (place != ends.begin()) previous[i] = *(place - 1);
    if (place == ends.end()) {
      ends.push_back(i);
    } else {
      *place = i;
    }
  }
  std::vector<Anchor> row;
  for (std::size_t i = ends.empty() ? kNone : ends.back(); i != kNone; i = previous[i])
    row.push_back(anchors[i]);
  std::reverse(row.begin(), row.end());
  return row;
}

constexpr std::string_view kLineEnds = "\n";
constexpr std::string_view kWordEnds = " \t\n";

void Compare(std::span<const std::string_view> before, std::span<const std::string_view> after,
             std::string_view ends, StepWriter& steps);

// What stands between two anchors: compared by words when lines led no further, else carried.
void CompareRest(std::span<const std::string_view> before, std::span<const std::string_view> after,
                 std::string_view ends, StepWriter& steps) {
  if (ends == kLineEnds && !before.empty() && !after.empty()) {
    Compare(Split(Joined(before), kWordEnds), Split(Joined(after), kWordEnds), kWordEnds, steps);
  } else {
    steps.Replace(Joined(before), Joined(after));
  }
}

void Compare(std::span<const std::string_view> before, std::span<const std::string_view> after,
             std::string_view ends, StepWriter& steps) {
  // What is the same at both ends is the most of it, and needs no anchors.
  const auto differ = std::mismatch(before.begin(), before.end(), after.begin(), after.end());
  const auto head = static_cast<std::size_t>(differ.first - before.begin());
  steps.Keep(Joined(before.first(head)));
  before = before.subspan(head);
  after = after.subspan(head);
  const auto tailDiffers = std::mismatch(before.rbegin(), before.rend(), after.rbegin(), after.rend());
  const auto tail = static_cast<std::size_t>(tailDiffers.first - before.rbegin());
  const std::span<const std::string_view> end = before.last(tail);
  before = before.first(before.size() - tail);
  after = after.first(after.size() - tail);

  const std::vector<Anchor> anchors = LongestRising(CommonOnce(before, after));
  std::size_t fromBefore = 0, fromAfter = 0;
  for (const Anchor& anchor : anchors) {
    const auto gapBefore = before.subspan(fromBefore, anchor.before - fromBefore);
    const auto gapAfter = after.subspan(fromAfter, anchor.after - fromAfter);
    if (!gapBefore.empty() || !gapAfter.empty()) Compare(gapBefore, gapAfter, ends, steps);
    steps.Keep(before[anchor.before]);
    fromBefore = anchor.before + 1;
    fromAfter = anchor.after + 1;
  }
  if (anchors.empty()) {
    CompareRest(before, after, ends, steps);
  } else {
    Compare(before.subspan(fromBefore), after.subspan(fromAfter), ends, steps);
  }
  steps.Keep(Joined(end));
}

}  // namespace

std::string StepsBetween(std::string_view before, std::string_view after) {
  StepWriter steps;
  Compare(Split(before, kLineEnds), Split(after, kLineEnds), kLineEnds, steps);
  return steps.Text();
}

}  // namespace sonaro
