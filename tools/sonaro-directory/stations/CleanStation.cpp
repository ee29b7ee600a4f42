#include "stations/BuildDirectory.h"

#include <algorithm>
#include <set>

#include "base/Text.h"
#include "stations/Addresses.h"
#include "text/CleanText.h"
#include "text/Hints.h"

namespace sonaro {
namespace {

// Bytes. What is longer is cut at a character, and blanks at the cut are dropped.
constexpr std::size_t kMaxNameLength = 200;
constexpr std::size_t kMaxTagLength = 60;
constexpr std::size_t kMaxSloganLength = 200;
constexpr std::size_t kMaxPlaceOrLanguageLength = 100;
constexpr std::size_t kMaxTags = 40;

std::string DecodedField(std::string_view text, std::size_t longest) {
  const std::string clean = CleanText(DecodeEntities(text));
  return std::string(TrimBlanks(TruncateUtf8(clean, longest)));
}

void CleanAddresses(SourceStation& station, SkipLog& log) {
  std::vector<std::string> usable;
  std::set<std::string> seen;
  for (const std::string& raw : station.addresses) {
    CheckedAddress checked = CheckStreamAddress(raw);
    if (!checked.problem.empty()) {
      log.Skip(station.place, raw, checked.problem);
    } else if (seen.insert(checked.address).second) {
      usable.push_back(std::move(checked.address));
    }
  }
  // The identifier is computed from the first address as the list gave it. Sorting the addresses by how well
  // they play must not change it.
  if (!usable.empty()) station.firstAddress = usable.front();
  station.addresses = BestFirst(std::move(usable));
}

void CleanWebSite(SourceStation& station, SkipLog& log) {
  if (station.webSite.empty()) return;
  CheckedAddress checked = CheckWebSite(station.webSite);
  if (!checked.problem.empty()) log.Skip(station.place, station.webSite, checked.problem);
  station.webSite = std::move(checked.address);
}

void CleanTags(SourceStation& station) {
  std::vector<std::string> tags;
  std::set<std::string> seen;
  for (const std::string& raw : station.tags) {
    for (const std::string_view part : Split(raw, ';')) {
      std::string tag = CleanText(DecodeEntities(part));
      while (tag.starts_with('#') || tag.starts_with(' ')) tag.erase(0, 1);
      // A tag that is too long is dropped, not cut: half a sentence would be classified as something it does
      // not say.
      if (tag.empty() || tag.size() > kMaxTagLength || tags.size() == kMaxTags) continue;
      if (seen.insert(MatchKey(tag)).second) tags.push_back(std::move(tag));
    }
  }
  station.tags = std::move(tags);
}

// The same names that CodecIn gives, so that codecs from all sources compare equal.
std::string CodecByEnding(const std::string& address) {
  const std::string ending = AddressEnding(address);
  if (ending == ".mp3") return "MP3";
  if (ending == ".aac") return "AAC";
  if (ending == ".aacp") return "AAC+";
  if (ending == ".ogg" || ending == ".oga") return "OGG";
  if (ending == ".opus") return "OPUS";
  if (ending == ".flac") return "FLAC";
  if (ending == ".wma" || ending == ".asf" || ending == ".asx" || address.starts_with("mms")) return "WMA";
  if (ending == ".ra" || ending == ".rm" || ending == ".ram" || address.starts_with("pnm")) return "REAL";
  return {};
}

// kbit/s that streams of a codec can have. A number outside this range means something else, mostly that
// there is a picture with the sound.
bool IsPossibleBitRate(std::int64_t rate, const std::string& codec) {
  if (codec == "MP3") return rate >= 8 && rate <= 320;
  if (codec == "AAC" || codec == "AAC+" || codec == "OPUS") return rate >= 8 && rate <= 330;
  if (codec == "FLAC") return rate >= 200 && rate <= 9216;
  return rate >= 8 && rate <= 9216;
}

// The database calls everything in an Ogg stream "OGG".
std::string CodecInOgg(const SourceStation& station) {
  for (const std::string& said : {CodecByEnding(station.addresses.front()), CodecIn(station.name)}) {
    if (said == "OPUS" || said == "FLAC") return said;
  }
  constexpr std::int64_t kOnlyLossless = 500;  // kbit/s
  return station.bitRate > kOnlyLossless ? "FLAC" : "OGG";
}

void CleanSound(SourceStation& station) {
  station.codec = DecodedField(station.codec, kMaxTagLength);
  if (EqualIgnoringCase(station.codec, "UNKNOWN")) station.codec.clear();
  if (AddressEnding(station.addresses.front()) == ".m3u8") station.segmented = true;
  for (const std::string& address : station.addresses) {
    if (station.codec.empty()) station.codec = CodecByEnding(address);
  }
  if (station.codec.empty()) station.codec = CodecIn(station.name);
  if (station.bitRate <= 0) station.bitRate = BitRateIn(station.name);
  // Before the check of the range, which would drop it.
  if (station.bitRate >= 16000) station.bitRate /= 1000;  // typed in bit/s
  if (station.codec == "OGG") station.codec = CodecInOgg(station);
  if (!IsPossibleBitRate(station.bitRate, station.codec)) station.bitRate = 0;
}

}  // namespace

bool CleanStation(SourceStation& station, MakeLogs& logs) {
  station.name = DecodedField(station.name, kMaxNameLength);
  CleanAddresses(station, logs.addresses);
  if (station.addresses.empty()) {
    logs.entries.Skip(station.place, station.name, "without a usable address");
    return false;
  }
  // After the addresses were checked: the host of a usable address is the best name there is.
  if (station.name.empty()) station.name = HostOfAddress(station.addresses.front());
  CleanWebSite(station, logs.addresses);
  CleanTags(station);
  station.slogan = DecodedField(station.slogan, kMaxSloganLength);
  station.country = DecodedField(station.country, kMaxPlaceOrLanguageLength);
  station.countryCode = DecodedField(station.countryCode, kMaxPlaceOrLanguageLength);
  station.region = DecodedField(station.region, kMaxPlaceOrLanguageLength);
  station.language = DecodedField(station.language, kMaxPlaceOrLanguageLength);
  CleanSound(station);
  return true;
}

}  // namespace sonaro
