// The readers of station lists. Each takes a whole file's text (valid UTF-8, no byte-order mark) in a format
// that ReadSource has recognised and appends the stations in it. A damaged entry is logged and left out; the
// entries around it are kept. Readers judge only the form: which stations are fit for a directory is decided
// later.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "model/SkipLog.h"
#include "model/Sources.h"

namespace sonaro {

struct SourceText {
  std::string name;  // of the file, without its folder, for messages
  std::string_view text;

  std::string PlaceAt(std::size_t number) const { return name + ":" + std::to_string(number); }
};

// One JSON object a line, or an array of objects: the keys of radio-browser in its older and newer forms (one
// "url", "url_resolved", "tags" joined by commas), or "urls" and "tags" as lists. Numbers may be texts.
void ReadJsonLines(const SourceText& source, std::vector<SourceStation>& stations, SkipLog& skips);
void ReadJsonArray(const SourceText& source, std::vector<SourceStation>& stations, SkipLog& skips);

// M3U: addresses, each with the "#EXTINF" line before it (name with or without the comma before it,
// attributes tvg-name, tvg-country, tvg-language, group-title), "# Homepage:" for the next entry and "#
// Group:" until the next one.
void ReadM3u(const SourceText& source, std::vector<SourceStation>& stations, SkipLog& skips);

// PLS: FileN and TitleN in any order and letter case. A line that is no "key=value" goes on with the title
// before it. Entries that are mirrors by their titles, "Name (#1 - 128 mp3)", become one station.
void ReadPls(const SourceText& source, std::vector<SourceStation>& stations, SkipLog& skips);

// OPML: every outline with an address is a station; the outlines around it are its tags.
void ReadOpml(const SourceText& source, std::vector<SourceStation>& stations, SkipLog& skips);

// A list of broadcast events: JSON Lines with the keys name, station, start (ISO date and time, GMT),
// minutes, category, web and description.
// `name` is the file's, for messages. Lines without a name, a station or a possible start are logged and left
// out.
std::vector<SourceEvent> ReadEvents(const std::string& name, std::string_view text, SkipLog& skips);

// Gzip data, unpacked in memory.
bool IsGzip(std::string_view bytes);

enum class GunzipStatus { Ok, Damaged, TooLarge };

// All members of the file, one after the other. Stops at `limit` bytes of result, so that a small hostile
// file cannot fill the memory.
GunzipStatus Gunzip(std::string_view bytes, std::size_t limit, std::string& unpacked);

}  // namespace sonaro
