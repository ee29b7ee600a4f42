// Stations and broadcast events as one list describes them: what the readers hand on and everything after
// them works with. Texts are UTF-8 but otherwise as the list has them until stations/CleanStation has been
// over them.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "base/Dates.h"

namespace sonaro {

struct SourceStation {
  std::string name;
  std::vector<std::string> addresses;  // of the stream, best first
  std::string webSite;
  std::vector<std::string> tags;
  std::string country;       // in words
  std::string countryCode;   // two letters, ISO 3166-1
  std::string region;        // state, province or city, free text
  std::string language;      // names joined by commas
  std::string codec;         // as the database names it: "MP3", "AAC+", ... or "UNKNOWN"
  std::string slogan;        // a line of the station's own about itself
  std::int64_t bitRate = 0;  // kbit/s; 0: not known
  bool segmented = false;    // HLS
  // Empty when the list does not tell.
  std::optional<std::int64_t> votes;
  std::optional<std::int64_t> clicks;  // of the last day
  std::optional<bool> answered;        // when the list's maker last tried

  // Of the usable addresses the one that the list gives first: with the name it tells who the station is.
  std::string firstAddress;
  std::string place;  // where it was read, "file.m3u:12", for messages
};

// A broadcast event as a list of events describes it.
struct SourceEvent {
  std::string name;
  std::string station;  // its name or its identifier
  DateTime start;       // GMT
  int minutes = 0;
  std::string category;
  std::string web;
  std::string description;
  std::string place;  // where it was read, "events.jsonl:3", for messages
};

}  // namespace sonaro
