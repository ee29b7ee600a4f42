// An M3U list is one address a line; lines that begin with "#" are comments, some of which have come to mean
// something. An #EXTINF line tells about the next address, "# Homepage:" comments occur before and after it,
// and "# Group:" holds for all entries until the next one.
#include <optional>

#include "base/Text.h"
#include "readers/Readers.h"
#include "text/CleanText.h"
#include "text/Hints.h"

namespace sonaro {
namespace {

// The part of a line after a comment's key: "# Homepage: x" gives "x" for "homepage".
std::optional<std::string_view> CommentValue(std::string_view line, std::string_view key) {
  line.remove_prefix(std::min(line.find_first_not_of("# \t"), line.size()));
  if (!StartsWithIgnoringCase(line, key)) return std::nullopt;
  line.remove_prefix(key.size());
  if (!line.starts_with(':')) return std::nullopt;
  return TrimBlanks(line.substr(1));
}

void AddTags(std::vector<std::string>& tags, std::string_view text) {
  for (const std::string_view part : Split(text, ';')) {
    if (!TrimBlanks(part).empty()) tags.emplace_back(TrimBlanks(part));
  }
}

// Attributes that players of TV lists have introduced; there is no standard, and unknown ones are ignored.
void TakeAttribute(std::string_view key, std::string_view value, SourceStation& entry) {
  if (EqualIgnoringCase(key, "group-title")) AddTags(entry.tags, value);
  if (EqualIgnoringCase(key, "tvg-name")) entry.name = value;
  if (EqualIgnoringCase(key, "tvg-country")) (value.size() == 2 ? entry.countryCode : entry.country) = value;
  if (EqualIgnoringCase(key, "tvg-language")) entry.language = value;
}

// Takes `key="value"` pairs from the front of `rest`; a value may hold commas and blanks.
void TakeAttributes(std::string_view& rest, SourceStation& entry) {
  for (;;) {
    const std::string_view start = rest.substr(std::min(rest.find_first_not_of(" \t"), rest.size()));
    const std::size_t equals = start.find("=\"");
    if (equals == std::string_view::npos ||
        start.substr(0, equals).find_first_of(" ,\"") != std::string_view::npos) {
      return;
    }
    const std::size_t end = start.find('"', equals + 2);
    if (end == std::string_view::npos) return;
    TakeAttribute(start.substr(0, equals), start.substr(equals + 2, end - equals - 2), entry);
    rest = start.substr(end + 1);
  }
}

// "#EXTINF:-1 tvg-logo="..." group-title="a;b",Name", "#EXTINF:-1,Name" or "#EXTINF:-1 Name".
void ReadExtInf(std::string_view line, SourceStation& entry) {
  std::string_view rest = line.substr(line.find(':') + 1);
  rest.remove_prefix(std::min(rest.find_first_not_of("-+0123456789."), rest.size()));  // the duration
  TakeAttributes(rest, entry);
  rest = TrimBlanks(rest);
  if (rest.starts_with(',')) rest.remove_prefix(1);
  if (!TrimBlanks(rest).empty()) entry.name = TrimBlanks(rest);
}

}  // namespace

void ReadM3u(const SourceText& source, std::vector<SourceStation>& stations, SkipLog& skips) {
  SourceStation entry;
  std::string group;
  std::size_t number = 0;
  for (const std::string_view whole : SplitLines(source.text)) {
    ++number;
    const std::string_view line = TrimBlanks(whole);
    if (line.empty()) continue;
    if (StartsWithIgnoringCase(line, "#EXTINF:")) {
      if (!entry.place.empty()) skips.Skip(entry.place, entry.name, "without an address");
      // A home page may stand before its #EXTINF line, so it survives the start of the entry.
      std::string webSite = std::move(entry.webSite);
      entry = SourceStation{};
      entry.webSite = std::move(webSite);
      entry.place = source.PlaceAt(number);
      ReadExtInf(line, entry);
    } else if (line.starts_with('#')) {
      if (const auto homepage = CommentValue(line, "homepage")) entry.webSite = *homepage;
      if (const auto title = CommentValue(line, "group")) group = *title;
      if (const auto title = CommentValue(line, "extgrp")) AddTags(entry.tags, *title);
    } else {
      entry.place = source.PlaceAt(number);
      entry.addresses.emplace_back(line);
      // The group of the list is the weakest statement: it is used only where the entry says nothing of its
      // own.
      if (entry.tags.empty() && !group.empty()) entry.tags.push_back(group);
      stations.push_back(std::move(entry));
      entry = SourceStation{};
    }
  }
  if (!entry.place.empty()) skips.Skip(entry.place, entry.name, "without an address");
}

}  // namespace sonaro
