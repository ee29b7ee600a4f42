// A station as one list describes it: what the readers hand on and everything after them works with. Texts
// are UTF-8 but otherwise as the list has them until stations/CleanStation has been over them.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

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

}  // namespace sonaro
