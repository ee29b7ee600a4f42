// What an update did to the directory, for the user: how many stations are new, changed and gone, and which
// of the user's own are among them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "settings/AppState.h"

namespace sonaro {

class Strings;

struct UpdateReport {
  std::size_t added = 0;
  std::size_t changed = 0;
  std::size_t gone = 0;
  std::vector<std::string> yoursChanged;  // names as they are now, in the order of `yours`
  std::vector<std::string> yoursGone;     // names as they were
};

// Compares two station lists. `yours` are the stations of the user's groups; one that stands there twice is
// named once.
UpdateReport CompareStationLists(std::string_view before, std::string_view after,
                                 std::span<const std::int32_t> yours);

// One line with the numbers ("1,270 new, 1 changed, none gone"), and one line each for what concerns the
// user's stations.
std::string DescribeUpdate(const UpdateReport& report, const Strings& strings, DecimalMode decimals);

}  // namespace sonaro
