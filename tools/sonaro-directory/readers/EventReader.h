// Reads a list of broadcast events: JSON Lines with the keys name, station, start (ISO date and time, GMT),
// minutes, category, web and description.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "model/SkipLog.h"
#include "model/SourceEvent.h"

namespace sonaro {

// `name` is the file's, for messages. Lines without a name, a station or a possible start are logged and left
// out.
std::vector<SourceEvent> ReadEvents(const std::string& name, std::string_view text, SkipLog& skips);

}  // namespace sonaro
