#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "base/Numbers.h"
#include "base/Text.h"
#include "base/xml/OutlineReader.h"
#include "readers/Readers.h"
#include "text/Hints.h"

namespace sonaro {
namespace {

// An outline that has begun and not ended: a folder has a name and no address.
struct OpenOutline {
  std::string folder;
  bool isStation = false;
};

SourceStation StationFrom(const XmlElement& outline, std::string address) {
  SourceStation station;
  station.addresses.push_back(std::move(address));
  station.name = outline.Value({"text", "title"});
  station.webSite = outline.Value({"htmlUrl"});
  station.language = outline.Value({"language"});
  station.bitRate = NumberValue(outline.Value({"bitrate"}));
  station.codec = CodecIn(outline.Value({"formats", "codec"}));
  return station;
}

// The folders around a station are what it can be classified by. Only the innermost count: a list with
// hundreds of nested folders would else give each station hundreds of tags.
std::vector<std::string> TagsFrom(const std::vector<OpenOutline>& open, const XmlElement& outline) {
  constexpr std::size_t kInnermost = 8;
  std::vector<std::string> tags;
  for (std::size_t i = open.size() > kInnermost ? open.size() - kInnermost : 0; i < open.size(); ++i) {
    if (!open[i].isStation && !open[i].folder.empty()) tags.push_back(open[i].folder);
  }
  if (std::string genre = outline.Value({"genre", "category"}); !genre.empty())
    tags.push_back(std::move(genre));
  return tags;
}

}  // namespace

void ReadOpml(const SourceText& source, std::vector<SourceStation>& stations, SkipLog& skips) {
  OutlineReader reader(source.text);
  std::vector<OpenOutline> open;
  std::size_t number = 0;
  while (const std::optional<XmlElement> element = reader.Next()) {
    if (!EqualIgnoringCase(element->name, "outline")) continue;
    if (element->isEnd) {
      if (!open.empty()) open.pop_back();
      continue;
    }
    const std::string place = source.PlaceAt(++number);
    std::string address = element->Value({"xmlUrl", "url"});
    const bool isStation = !address.empty();
    if (isStation) {
      stations.push_back(StationFrom(*element, std::move(address)));
      stations.back().tags = TagsFrom(open, *element);
      stations.back().place = place;
    } else if (element->isEmpty) {
      skips.Skip(place, element->Value({"text", "title"}), "without an address");
    }
    // A station may hold further outlines, so it is noted as open like a folder.
    if (!element->isEmpty) open.push_back({element->Value({"text", "title"}), isStation});
  }
  // What stands before the damage has been read.
  if (reader.Damaged()) skips.Skip(source.PlaceAt(number + 1), "", "not well-formed XML");
}

}  // namespace sonaro
