// OPML: every outline with an address is a station, whatever outlines it lies in. Fields of our own are
// attributes: sonaro-type="MP3".
#include "base/Text.h"
#include "base/xml/OutlineReader.h"
#include "playlists/PlaylistFields.h"

namespace sonaro {
namespace {

constexpr std::string_view kFieldAttribute = "sonaro-";

bool IsOutline(const XmlElement& element) { return EqualIgnoringCase(element.name, "outline"); }

// Nothing when the outline is a folder.
void TakeOutline(const XmlElement& element, Playlist& playlist) {
  PlaylistEntry entry;
  bool ours = false;
  for (const XmlElement::Attribute& attribute : element.attributes) {
    if (!StartsWithIgnoringCase(attribute.name, kFieldAttribute)) continue;
    SetPlaylistField(entry, attribute.name.substr(kFieldAttribute.size()), attribute.value);
    ours = true;
  }
  const std::string address = element.Value({"url", "xmlUrl"});
  if (address.empty() && !ours) return;
  TakeAddress(entry, address);
  if (entry.station.webSite.empty()) entry.station.webSite = element.Value({"htmlUrl"});
  entry.station.name = element.Value({"text", "title"});
  AddEntry(playlist, std::move(entry));
}

}  // namespace

void ReadOpml(std::string_view text, Playlist& playlist) {
  OutlineReader reader(text);
  bool ended = false;
  while (const auto element = reader.Next()) {
    if (element->isEnd) ended = EqualIgnoringCase(element->name, "opml");
    if (element->isEnd) continue;
    if (IsOutline(*element)) TakeOutline(*element, playlist);
    if (EqualIgnoringCase(element->name, "title")) playlist.title = reader.TextAhead();
  }
  playlist.damaged = reader.Damaged() || !ended;
}

std::string WriteOpml(const Playlist& playlist) {
  std::string out =
      "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\r\n<opml version=\"2.0\">\r\n<head>\r\n<title>" +
      XmlText(playlist.title) + "</title>\r\n</head>\r\n<body>\r\n";
  for (const PlaylistEntry& entry : playlist.entries) {
    out += "<outline text=\"" + XmlText(entry.station.name) + "\" type=\"audio\"";
    const std::string address = AddressOf(entry);
    if (!address.empty()) out += " URL=\"" + XmlText(address) + "\"";
    ForEachPlaylistField(entry, [&out](std::string_view name, std::string_view value) {
      out += " " + std::string(kFieldAttribute) + std::string(name) + "=\"" + XmlText(value) + "\"";
    });
    out += " />\r\n";
  }
  return out + "</body>\r\n</opml>\r\n";
}

}  // namespace sonaro
