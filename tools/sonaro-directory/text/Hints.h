// What names and addresses of stations tell beside the point: "(#1 - 128 mp3)", "Groove Salad 192k", ".m3u8".
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace sonaro {

// A title with the mark of a mirror server in it: "SomaStation (#2 128 mp3): the slogan".
struct MirrorTitle {
  std::string name;    // what stands before the mark
  std::string slogan;  // what stands after it, may be empty
  std::int64_t bitRate = 0;
  std::string codec;
};

std::optional<MirrorTitle> ParseMirrorTitle(std::string_view title);

// A bit rate in kbit/s that stands in a text as "128k", "128 kbit/s", "128kbps" or "128 mp3"; 0 when none
// does.
std::int64_t BitRateIn(std::string_view text);

// The codec that a text names ("MP3", "AAC", "AAC+", "OGG", "OPUS", "FLAC"); "" when it names none.
std::string CodecIn(std::string_view text);

// The name of an address without its folders and query, in small letters, from its last dot on: ".pls"; ""
// when there is none.
std::string AddressEnding(std::string_view address);

}  // namespace sonaro
