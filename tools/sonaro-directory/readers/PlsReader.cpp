// A PLS list is an INI file that hardly any program writes strictly: keys in any letter case and order,
// titles that go on over several lines, numbers that have gaps. What counts is the number behind "File" and
// "Title".
#include <cstdint>
#include <map>
#include <optional>
#include <utility>

#include "base/Numbers.h"
#include "base/Text.h"
#include "readers/Readers.h"
#include "text/CleanText.h"
#include "text/Hints.h"

namespace sonaro {
namespace {

struct PlsEntry {
  std::string address;
  std::string title;
  std::size_t line = 0;
};

// One line of the list, the key taken apart.
struct PlsKey {
  std::string_view word;  // "File", "Title", ... as written
  std::int64_t number = 0;
  std::string_view value;
};

// "Title12=text"; nothing when the line is not of that form.
std::optional<PlsKey> ParseKey(std::string_view line) {
  const std::size_t equals = line.find('=');
  if (equals == std::string_view::npos) return std::nullopt;
  const std::string_view key = TrimBlanks(line.substr(0, equals));
  const std::size_t digits = key.find_first_of("0123456789");
  const std::string_view word = key.substr(0, digits);
  for (const std::string_view known : {"file", "title", "length", "numberofentries", "version"}) {
    if (!EqualIgnoringCase(word, known)) continue;
    const std::string_view number = digits == std::string_view::npos ? "0" : key.substr(digits);
    if (number.size() > 9 || number.find_first_not_of("0123456789") != std::string_view::npos)
      return std::nullopt;
    return PlsKey{word, NumberValue(number), TrimBlanks(line.substr(equals + 1))};
  }
  return std::nullopt;
}

// Returns the entries by their number. "File2=" and "Title2=" belong together by it, wherever they stand, and
// it gives the order. A line without a key continues the title before it: some lists break long titles.
std::map<std::int64_t, PlsEntry> ReadEntries(std::string_view text) {
  std::map<std::int64_t, PlsEntry> entries;
  std::string* lastTitle = nullptr;
  std::size_t number = 0;
  for (const std::string_view line : SplitLines(text)) {
    ++number;
    const auto key = ParseKey(line);
    if (!key) {
      const bool header = TrimBlanks(line).starts_with('[') && !lastTitle;
      if (lastTitle && !header) lastTitle->append(" ").append(line);
      continue;
    }
    lastTitle = nullptr;
    if (EqualIgnoringCase(key->word, "file")) {
      entries[key->number].address = key->value;
      entries[key->number].line = number;
    } else if (EqualIgnoringCase(key->word, "title")) {
      lastTitle = &(entries[key->number].title = key->value);
    }
  }
  return entries;
}

}  // namespace

void ReadPls(const SourceText& source, std::vector<SourceStation>& stations, SkipLog& skips) {
  // Large stations publish one list with an entry for each of their servers, "(#1 - 5/300) Name". These
  // become one station with several addresses.
  std::map<std::string, std::size_t> mirrors;  // key of the name -> index in `stations`
  for (auto& [number, entry] : ReadEntries(source.text)) {
    const std::string place = source.PlaceAt(entry.line);
    if (entry.address.empty()) {
      skips.Skip(place, entry.title, "without an address");
      continue;
    }
    SourceStation station;
    station.place = place;
    station.name = entry.title;
    station.addresses.push_back(std::move(entry.address));
    if (auto mirror = ParseMirrorTitle(entry.title)) {
      const auto [known, isNew] = mirrors.emplace(MatchKey(mirror->name), stations.size());
      if (!isNew) {
        stations[known->second].addresses.push_back(std::move(station.addresses.front()));
        continue;
      }
      station.name = std::move(mirror->name);
      station.slogan = std::move(mirror->slogan);
      station.bitRate = mirror->bitRate;
      station.codec = std::move(mirror->codec);
    }
    stations.push_back(std::move(station));
  }
}

}  // namespace sonaro
