// What can be learned from a title or an address when a list says nothing else. Wrong guesses are worse than
// none: a number counts as a bit rate only with its unit, and only in the range that streams have.
#include "text/Hints.h"

#include <array>
#include <utility>

#include "base/Numbers.h"
#include "base/Text.h"
#include "text/CleanText.h"

namespace sonaro {
namespace {

// kbit/s. Numbers outside are frequencies, years or channel numbers that happen to stand before a unit.
constexpr std::int64_t kLeastBitRate = 16;
constexpr std::int64_t kHighestBitRate = 1536;

bool IsDigits(std::string_view text) {
  return !text.empty() && text.find_first_not_of("0123456789") == std::string_view::npos;
}

bool IsRateUnit(std::string_view word) {
  constexpr std::array<std::string_view, 10> kUnits = {"k",    "kb",    "kbs", "kbit", "kbits",
                                                       "kbps", "kbyte", "mp3", "aac",  "ogg"};
  for (const std::string_view unit : kUnits) {
    if (word == unit) return true;
  }
  return false;
}

std::int64_t PlausibleRate(std::string_view digits) {
  const std::int64_t value = NumberValue(digits);
  return value >= kLeastBitRate && value <= kHighestBitRate ? value : 0;
}

}  // namespace

std::optional<MirrorTitle> ParseMirrorTitle(std::string_view title) {
  // The first bracket that has the form of a mark counts: "Radio (Berlin) (#2 128 mp3)" has another before
  // it. A mark is "#" and a number, or both a bit rate and a codec.
  for (std::size_t open = title.find('('); open != std::string_view::npos; open = title.find('(', open + 1)) {
    const std::size_t close = title.find(')', open);
    if (close == std::string_view::npos) return std::nullopt;
    const std::string_view mark = title.substr(open + 1, close - open - 1);
    const bool numbered = mark.size() > 1 && mark[0] == '#' && mark[1] >= '0' && mark[1] <= '9';
    const std::int64_t bitRate = BitRateIn(mark);
    if (!numbered && (bitRate == 0 || CodecIn(mark).empty())) continue;
    MirrorTitle mirror;
    mirror.name = CleanText(title.substr(0, open));
    std::string_view rest = title.substr(close + 1);
    rest.remove_prefix(std::min(rest.find_first_not_of(" :-"), rest.size()));
    mirror.slogan = CleanText(rest);
    if (mirror.name.empty()) std::swap(mirror.name, mirror.slogan);  // "(#1 - 5/300) Name"
    mirror.bitRate = bitRate;
    mirror.codec = CodecIn(mark);
    if (mirror.name.empty()) return std::nullopt;
    return mirror;
  }
  return std::nullopt;
}

std::int64_t BitRateIn(std::string_view text) {
  const std::string key = MatchKey(text);
  const auto words = KeyWords(key);
  for (std::size_t i = 0; i < words.size(); ++i) {
    const std::size_t digits = std::min(words[i].find_first_not_of("0123456789"), words[i].size());
    const std::string_view number = words[i].substr(0, digits);
    if (!IsDigits(number)) continue;
    // The unit is the rest of the word ("128k") or the next word ("128 kbps").
    const std::string_view unit = digits < words[i].size() ? words[i].substr(digits)
                                  : i + 1 < words.size()   ? words[i + 1]
                                                           : "";
    if (!IsRateUnit(unit)) continue;
    if (const std::int64_t rate = PlausibleRate(number); rate != 0) return rate;
  }
  return 0;
}

std::string CodecIn(std::string_view text) {
  constexpr std::array<std::pair<std::string_view, std::string_view>, 8> kNames = {{{"mp3", "MP3"},
                                                                                    {"aacp", "AAC+"},
                                                                                    {"aac", "AAC"},
                                                                                    {"ogg", "OGG"},
                                                                                    {"vorbis", "OGG"},
                                                                                    {"opus", "OPUS"},
                                                                                    {"flac", "FLAC"},
                                                                                    {"mpeg", "MP3"}}};
  // Before the words are looked at: in a match key the plus sign is gone.
  if (ContainsIgnoringCase(text, "aac+")) return "AAC+";
  const std::string key = MatchKey(text);
  for (const std::string_view word : KeyWords(key)) {
    for (const auto& [name, codec] : kNames) {
      if (word == name) return std::string(codec);
    }
  }
  return {};
}

std::string AddressEnding(std::string_view address) {
  const std::size_t scheme = address.find("://");
  std::string_view path = scheme == std::string_view::npos ? address : address.substr(scheme + 3);
  // A semicolon as well: old stream servers answer "/;stream.mp3" to browsers, which is no file name.
  path = path.substr(0, path.find_first_of("?#;"));
  const std::size_t slash = path.rfind('/');
  if (slash == std::string_view::npos) return {};
  const std::size_t dot = path.rfind('.');
  if (dot == std::string_view::npos || dot < slash) return {};
  return FoldCase(path.substr(dot));
}

}  // namespace sonaro
