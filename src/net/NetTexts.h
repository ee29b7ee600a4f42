// What windows say of requests and updates: why a transfer failed, how far an update is, and how it ended.
#pragma once

#include <cstdint>
#include <string>

#include "base/http/HttpResponse.h"

namespace sonaro {

class Strings;
struct UpdateOutcome;

// `report` is what the update did to the directory, "" when it did nothing.
std::string OutcomeText(const UpdateOutcome& outcome, const std::string& report, const Strings& strings);
bool MayRetry(const UpdateOutcome& outcome);

// The kilobytes so far, and of how many if that is known (`expected` is not 0).
std::string BytesText(std::uint64_t bytes, std::uint64_t expected, const Strings& strings);

// The sentence that tells the user why a transfer failed.
std::string HttpFaultText(HttpFault fault, const Strings& strings);

}  // namespace sonaro
