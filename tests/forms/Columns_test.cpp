#include "forms/Columns.h"

#include <gtest/gtest.h>

namespace sonaro {
namespace {

TEST(ColumnShares, AreReadOnlyWhenTheyAreWhole) {
  const ColumnShares shares = {378, 228, 167, 227};
  EXPECT_EQ(ReadColumnShares(WriteColumnShares(shares), 4), shares);
  for (const char* text : {"", "1000", "378,228,394", "378,228,167,228", "378,228,167,227,0", "0,500,250,250",
                           "378,228,167,", "378,228,167, 227", "1378,-378,0,0", "99999,1,1,1"}) {
    EXPECT_EQ(ReadColumnShares(text, 4), std::nullopt) << text;
  }
}

TEST(ColumnShares, HoldAtEveryWidthButForTheLeast) {
  const ColumnShares shares = {378, 228, 167, 227};
  EXPECT_EQ(EdgesOf(shares, 492, 40), (std::vector<int>{186, 298, 380, 492}));
  EXPECT_EQ(EdgesOf(shares, 2000, 40), (std::vector<int>{756, 1212, 1546, 2000}));
  EXPECT_EQ(EdgesOf({10, 970, 10, 10}, 492, 40), (std::vector<int>{40, 412, 452, 492}));
  EXPECT_EQ(EdgesOf({970, 10, 10, 10}, 492, 40), (std::vector<int>{372, 412, 452, 492}));
  EXPECT_EQ(SharesOf({186, 298, 380, 492}), (ColumnShares{378, 228, 166, 228}));
  for (const int width : {492, 738, 999}) {
    const std::vector<int> edges = {width / 3, width / 2, width - 101, width};
    EXPECT_EQ(EdgesOf(SharesOf(edges), width, 40), edges) << "what was there before stays to the pixel";
  }
}

TEST(MoveColumnEdge, ChangesTheTwoColumnsBesideItDownToTheLeast) {
  const std::vector<int> before = {186, 298, 380, 492};
  const struct {
    std::size_t edge;
    int to, stands;
  } cases[] = {{0, 220, 220}, {0, 5, 40},    {0, 500, 258}, {1, 0, 226},
               {1, 341, 340}, {2, 379, 379}, {2, 480, 452}};
  for (const auto& c : cases) {
    std::vector<int> after = before;
    after[c.edge] = c.stands;
    EXPECT_EQ(EdgesOf(MoveColumnEdge(SharesOf(before), c.edge, c.to, 492, 40), 492, 40), after)
        << c.edge << " to " << c.to;
  }
}

}  // namespace
}  // namespace sonaro
