#include "forms/Columns.h"

#include <algorithm>
#include <numeric>

#include "base/Numbers.h"
#include "base/Text.h"

namespace sonaro {
namespace {

constexpr int kWhole = 1000;

int Rounded(int value, int times, int by) { return (value * times + by / 2) / by; }

// Where room is short the lower bound holds.
int Within(int value, int low, int high) { return std::max(low, std::min(value, high)); }

}  // namespace

std::optional<ColumnShares> ReadColumnShares(std::string_view text, std::size_t columns) {
  const auto fields = Split(text, ',');
  if (columns == 0 || fields.size() != columns) return {};
  ColumnShares shares;
  for (const std::string_view field : fields) {
    if (field.empty() || field.size() > 4 || !std::ranges::all_of(field, IsDigit)) return {};
    shares.push_back(static_cast<int>(NumberValue(field)));
    if (shares.back() < 1) return {};
  }
  if (std::accumulate(shares.begin(), shares.end(), 0) != kWhole) return {};
  return shares;
}

std::string WriteColumnShares(const ColumnShares& shares) {
  std::string text;
  for (const int share : shares) text.append(text.empty() ? "" : ",").append(std::to_string(share));
  return text;
}

// Edges are rounded, not widths, so that each stays where it is when another one moves.
std::vector<int> EdgesOf(const ColumnShares& shares, int width, int least) {
  std::vector<int> edges;
  int sum = 0;
  int left = 0;
  for (std::size_t i = 0; i < shares.size(); ++i) {
    sum += shares[i];
    const auto behind = static_cast<int>(shares.size() - 1 - i);
    left = behind == 0 ? width : Within(Rounded(sum, width, kWhole), left + least, width - behind * least);
    edges.push_back(left);
  }
  return edges;
}

ColumnShares SharesOf(const std::vector<int>& edges) {
  ColumnShares shares;
  int sum = 0;
  for (const int edge : edges) {
    const int upTo = Rounded(edge, kWhole, std::max(1, edges.back()));
    shares.push_back(upTo - sum);
    sum = upTo;
  }
  return shares;
}

ColumnShares MoveColumnEdge(ColumnShares shares, std::size_t edge, int to, int width, int least) {
  const std::vector<int> edges = EdgesOf(shares, width, least);
  const int left = edge == 0 ? 0 : edges[edge - 1];
  const int place = Within(to, left + least, edges[edge + 1] - least);
  const int before = std::accumulate(shares.begin(), shares.begin() + static_cast<std::ptrdiff_t>(edge), 0);
  const int both = shares[edge] + shares[edge + 1];
  shares[edge] = Within(Rounded(place, kWhole, std::max(1, width)) - before, 1, both - 1);
  shares[edge + 1] = both - shares[edge];
  return shares;
}

}  // namespace sonaro
