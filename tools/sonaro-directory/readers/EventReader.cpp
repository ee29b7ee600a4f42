#include "readers/Readers.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <optional>
#include <utility>

#include "base/Text.h"
#include "text/CleanText.h"

namespace sonaro {
namespace {

using Json = nlohmann::json;

constexpr int kMaxEventLength = 7 * 24 * 60;  // minutes

// A station may be given by its number; the other fields are texts, and anything else counts as missing.
std::string ShownTextOf(const Json& object, const char* key) {
  const auto found = object.find(key);
  if (found == object.end()) return {};
  if (found->is_number_integer()) return std::to_string(found->get<std::int64_t>());
  return found->is_string() ? CleanText(found->get<std::string>()) : std::string();
}

// "2025-05-01T18:30:00Z", "2025-05-01 18:30". Starts are in GMT; an offset such as "+02:00" is not understood
// and makes the event invalid rather than wrong.
std::optional<DateTime> ParseStart(std::string text) {
  if (text.ends_with('Z')) text.pop_back();
  std::replace(text.begin(), text.end(), 'T', ' ');
  return ParseDate(text);
}

}  // namespace

std::vector<SourceEvent> ReadEvents(const std::string& name, std::string_view text, SkipLog& skips) {
  std::vector<SourceEvent> events;
  std::size_t number = 0;
  for (const std::string_view line : SplitLines(text)) {
    ++number;
    if (TrimBlanks(line).empty()) continue;
    const std::string place = name + ":" + std::to_string(number);
    const Json object = Json::parse(line, nullptr, /*allow_exceptions=*/false);
    if (!object.is_object()) {
      skips.Skip(place, line, "not a complete JSON object");
      continue;
    }
    SourceEvent event;
    event.place = place;
    event.name = ShownTextOf(object, "name");
    event.station = ShownTextOf(object, "station");
    event.category = ShownTextOf(object, "category");
    event.web = ShownTextOf(object, "web");
    event.description = ShownTextOf(object, "description");
    const auto minutes = object.find("minutes");
    if (minutes != object.end() && minutes->is_number_integer()) {
      // Clamped in 64 bits first: a length of 10^12 minutes must not wrap around to a plausible one.
      event.minutes =
          static_cast<int>(std::clamp<std::int64_t>(minutes->get<std::int64_t>(), 0, kMaxEventLength));
    }
    const std::optional<DateTime> start = ParseStart(ShownTextOf(object, "start"));
    if (event.name.empty() || event.station.empty() || !start) {
      skips.Skip(place, event.name, "an event without a name, a station or a start");
      continue;
    }
    event.start = *start;
    events.push_back(std::move(event));
  }
  return events;
}

}  // namespace sonaro
