// What the update dialog says when an update is over, and how far one is.
#pragma once

#include <cstdint>
#include <string>

namespace sonaro {

class Strings;
struct UpdateOutcome;

// `report` is what the update did to the directory, "" when it did nothing.
std::string OutcomeText(const UpdateOutcome& outcome, const std::string& report, const Strings& strings);
bool MayRetry(const UpdateOutcome& outcome);

// The kilobytes so far, and of how many if that is known (`expected` is not 0).
std::string BytesText(std::uint64_t bytes, std::uint64_t expected, const Strings& strings);

}  // namespace sonaro
