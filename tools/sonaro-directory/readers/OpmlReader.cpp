#include <array>
#include <pugixml.hpp>
#include <vector>

#include "base/Numbers.h"
#include "base/Text.h"
#include "readers/Readers.h"
#include "text/CleanText.h"
#include "text/Hints.h"

namespace sonaro {
namespace {

constexpr std::size_t kDeepestOutline = 64;

// The first of the attributes that is there and not empty; letter case ignored.
std::string Attribute(const pugi::xml_node& node, std::initializer_list<std::string_view> names) {
  for (const std::string_view name : names) {
    for (const pugi::xml_attribute& attribute : node.attributes()) {
      if (EqualIgnoringCase(attribute.name(), name) && *attribute.value()) return attribute.value();
    }
  }
  return {};
}

class OutlineReader {
 public:
  OutlineReader(const SourceText& source, std::vector<SourceStation>& stations, SkipLog& skips)
      : source_(source), stations_(stations), skips_(skips) {}

  void ReadChildren(const pugi::xml_node& parent) {
    for (const pugi::xml_node& node : parent.children()) {
      if (EqualIgnoringCase(node.name(), "outline")) ReadOutline(node);
    }
  }

 private:
  void ReadOutline(const pugi::xml_node& node) {
    ++number_;
    const std::string text = Attribute(node, {"text", "title"});
    SourceStation station;
    station.place = source_.PlaceAt(number_);
    if (std::string address = Attribute(node, {"xmlUrl", "url"}); !address.empty()) {
      station.addresses.push_back(std::move(address));
      station.name = text;
      station.tags = folders_;
      station.webSite = Attribute(node, {"htmlUrl"});
      station.language = Attribute(node, {"language"});
      station.bitRate = NumberValue(Attribute(node, {"bitrate"}));
      station.codec = CodecIn(Attribute(node, {"formats", "codec"}));
      if (std::string genre = Attribute(node, {"genre", "category"}); !genre.empty()) {
        station.tags.push_back(std::move(genre));
      }
      stations_.push_back(std::move(station));
    } else if (!node.first_child()) {
      skips_.Skip(station.place, text, "without an address");
    } else if (folders_.size() < kDeepestOutline) {
      folders_.push_back(text);
      ReadChildren(node);
      folders_.pop_back();
    }
  }

  const SourceText& source_;
  std::vector<SourceStation>& stations_;
  SkipLog& skips_;
  std::vector<std::string> folders_;
  std::size_t number_ = 0;
};

}  // namespace

void ReadOpml(const SourceText& source, std::vector<SourceStation>& stations, SkipLog& skips) {
  pugi::xml_document document;
  const pugi::xml_parse_result result =
      document.load_buffer(source.text.data(), source.text.size(), pugi::parse_default, pugi::encoding_utf8);
  OutlineReader reader(source, stations, skips);
  for (const pugi::xml_node& opml : document.children()) {
    if (!EqualIgnoringCase(opml.name(), "opml")) continue;
    for (const pugi::xml_node& body : opml.children()) {
      if (EqualIgnoringCase(body.name(), "body")) reader.ReadChildren(body);
    }
  }
  if (!result) {
    // What stands before the damage has been read.
    const auto offset = static_cast<std::size_t>(result.offset);
    skips.Skip(source.name, source.text.substr(std::min(offset, source.text.size()), 80),
               "not well-formed XML");
  }
}

}  // namespace sonaro
