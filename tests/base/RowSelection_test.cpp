#include "base/RowSelection.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace sonaro {
namespace {

constexpr int kNone = -1;

TEST(RowSelection, FollowsItsRowThroughAChangeOfPlaces) {
  struct Case {
    RowsChange change;
    std::size_t selected;
    std::size_t count;
    int after;
  };
  const Case cases[] = {
      {{2, 1, 0}, 2, 4, 2},                            // removed: the next one moved up
      {{4, 1, 0}, 4, 4, 3},                            // the last one removed
      {{1, 1, 0}, 3, 4, 2},                            // one above removed
      {{3, 1, 0}, 1, 4, 1},                            // one below removed
      {{1, 3, 0}, 2, 2, 1},                            // several, the selected one among them
      {{0, 1, 0}, 0, 0, kNone}, {{1, 0, 2}, 1, 6, 3},  // inserted before it
      {{2, 0, 2}, 1, 6, 1},                            // inserted after it
  };
  for (const Case& c : cases) {
    const auto after = SelectionAfter(c.change, c.selected, c.count);
    EXPECT_EQ(after ? static_cast<int>(*after) : kNone, c.after)
        << c.change.at << " " << c.change.removed << " " << c.change.inserted << ", " << c.selected;
  }
}

TEST(RowSelection, FollowsItsKeyThroughAFill) {
  struct Case {
    const char* before;  // one letter a row
    std::size_t selected;
    const char* after;
    int row;
  };
  const Case cases[] = {{"abcd", 1, "acd", 1},  {"abcd", 3, "abc", 2},  {"abcd", 1, "bacd", 0},
                        {"abcd", 1, "ad", 1},   {"abcd", 2, "ab", 1},   {"abcd", 0, "xy", 1},
                        {"abcd", 2, "", kNone}, {"abab", 2, "abab", 2}, {"abab", 3, "baba", 0}};
  const auto keys = [](std::string_view letters) {
    std::vector<std::string> rows;
    for (const char letter : letters) rows.emplace_back(1, letter);
    return rows;
  };
  for (const Case& c : cases) {
    const auto row = SelectionAfterFill(keys(c.before), c.selected, keys(c.after));
    EXPECT_EQ(row ? static_cast<int>(*row) : kNone, c.row) << c.before << c.selected << c.after;
  }
}

}  // namespace
}  // namespace sonaro
