// Columns whose header buttons the user makes wider: what share of the list each has, and what dragging an
// edge makes of the shares. Arithmetic only; HeaderEdges asks the mouse and moves the buttons.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace sonaro {

// Of each column in thousandths of the list's width, from left to right: each at least one, together a
// thousand.
using ColumnShares = std::vector<int>;

// "378,228,167,227"; nothing when the text is not that many whole shares.
std::optional<ColumnShares> ReadColumnShares(std::string_view text, std::size_t columns);
std::string WriteColumnShares(const ColumnShares& shares);

// Right edges in pixels in a list of `width` pixels, the last one its width. A column whose share comes to
// less than `least` pixels takes what it lacks from its neighbours.
std::vector<int> EdgesOf(const ColumnShares& shares, int width, int least);
ColumnShares SharesOf(const std::vector<int>& edges);

// The shares with the right edge of column `edge`, not the last, as near to `to` pixels as the columns beside
// it can have it; the other columns keep theirs.
ColumnShares MoveColumnEdge(ColumnShares shares, std::size_t edge, int to, int width, int least);

}  // namespace sonaro
