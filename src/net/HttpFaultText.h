// The sentence that tells the user why a transfer failed.
#pragma once

#include <string>

#include "base/http/HttpFault.h"

namespace sonaro {

class Strings;

std::string HttpFaultText(HttpFault fault, const Strings& strings);

}  // namespace sonaro
