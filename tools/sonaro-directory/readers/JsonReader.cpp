#include <algorithm>
#include <array>
#include <cstdint>
#include <nlohmann/json.hpp>

#include "base/Numbers.h"
#include "base/Text.h"
#include "readers/Readers.h"

namespace sonaro {
namespace {

using Json = nlohmann::json;

constexpr std::string_view kBroken = "not a complete JSON object";

std::string TextOf(const Json& object, const char* key) {
  const auto found = object.find(key);
  return found != object.end() && found->is_string() ? found->get<std::string>() : std::string();
}

// Numbers come as JSON numbers, as booleans (for "hls" and "lastcheckok") or, in old recordings, as texts.
// Unsigned values beyond 63 bits are cut to the largest.
std::optional<std::int64_t> NumberOf(const Json& object, const char* key) {
  const auto found = object.find(key);
  if (found == object.end()) return std::nullopt;
  if (found->is_number_unsigned()) {
    const auto value = found->get<std::uint64_t>();
    return static_cast<std::int64_t>(std::min<std::uint64_t>(value, INT64_MAX));
  }
  if (found->is_number_integer()) return found->get<std::int64_t>();
  if (found->is_boolean()) return found->get<bool>() ? 1 : 0;
  if (found->is_string() && IsNumeric(found->get_ref<const std::string&>())) {
    return NumberValue(found->get_ref<const std::string&>());
  }
  return std::nullopt;
}

// A list of texts, or one text whose parts `separator` divides.
std::vector<std::string> ListOf(const Json& object, const char* key, char separator) {
  std::vector<std::string> items;
  const auto found = object.find(key);
  if (found == object.end()) return items;
  if (found->is_array()) {
    for (const Json& item : *found) {
      if (item.is_string()) items.push_back(item.get<std::string>());
    }
  } else if (found->is_string()) {
    for (const std::string_view part : Split(found->get_ref<const std::string&>(), separator)) {
      if (!TrimBlanks(part).empty()) items.emplace_back(TrimBlanks(part));
    }
  }
  return items;
}

// The keys are those of the public radio database, which most JSON lists follow; "urls" and "tags" may also
// be arrays. "url_resolved" is where "url" led when it was tried, and comes second: what a station calls its
// address outlives the server that it points at today.
SourceStation StationFrom(const Json& object) {
  SourceStation station;
  station.name = TextOf(object, "name");
  station.addresses = ListOf(object, "urls", '\n');
  for (const char* key : {"url", "url_resolved"}) {
    if (std::string address = TextOf(object, key); !address.empty()) {
      station.addresses.push_back(std::move(address));
    }
  }
  station.webSite = TextOf(object, "homepage");
  station.tags = ListOf(object, "tags", ',');
  station.country = TextOf(object, "country");
  station.countryCode = TextOf(object, "countrycode");
  station.region = TextOf(object, "state");
  station.language = TextOf(object, "language");
  station.codec = TextOf(object, "codec");
  station.bitRate = NumberOf(object, "bitrate").value_or(0);
  station.segmented = NumberOf(object, "hls").value_or(0) != 0;
  station.votes = NumberOf(object, "votes");
  station.clicks = NumberOf(object, "clickcount");
  if (const auto answered = NumberOf(object, "lastcheckok")) station.answered = *answered != 0;
  return station;
}

void ReadObject(std::string_view text, std::string place, std::vector<SourceStation>& stations,
                SkipLog& skips) {
  const Json object = Json::parse(text, nullptr, /*allow_exceptions=*/false);
  if (!object.is_object()) {
    skips.Skip(place, text.substr(0, 80), kBroken);
    return;
  }
  stations.push_back(StationFrom(object));
  stations.back().place = std::move(place);
}

// Returns one behind the closing brace of the object that begins at `start`, npos when it is never closed.
// An array of a hundred thousand stations is cut into its objects by counting braces, and each is parsed
// alone: a broken one does not cost the others, and only one parsed tree is in memory. Braces inside strings
// do not count, and a backslash takes the next character with it.
std::size_t EndOfObject(std::string_view text, std::size_t start) {
  int depth = 0;
  bool inText = false;
  for (std::size_t i = start; i < text.size(); ++i) {
    const char c = text[i];
    if (inText) {
      if (c == '\\') ++i;
      if (c == '"') inText = false;
    } else if (c == '"') {
      inText = true;
    } else if (c == '{') {
      ++depth;
    } else if (c == '}' && --depth == 0) {
      return i + 1;
    }
  }
  return std::string_view::npos;
}

}  // namespace

void ReadJsonLines(const SourceText& source, std::vector<SourceStation>& stations, SkipLog& skips) {
  std::size_t number = 0;
  for (const std::string_view line : SplitLines(source.text)) {
    ++number;
    if (!TrimBlanks(line).empty()) ReadObject(line, source.PlaceAt(number), stations, skips);
  }
}

void ReadJsonArray(const SourceText& source, std::vector<SourceStation>& stations, SkipLog& skips) {
  std::size_t number = 0;
  for (std::size_t start = source.text.find('{'); start != std::string_view::npos;) {
    ++number;
    const std::size_t end = EndOfObject(source.text, start);
    // Nothing behind an unclosed object can be trusted: its braces may belong to anything.
    if (end == std::string_view::npos) {
      skips.Skip(source.PlaceAt(number), source.text.substr(start, 80), kBroken);
      return;
    }
    ReadObject(source.text.substr(start, end - start), source.PlaceAt(number), stations, skips);
    start = source.text.find('{', end);
  }
}

}  // namespace sonaro
