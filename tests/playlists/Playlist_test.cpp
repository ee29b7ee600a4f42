#include "playlists/Playlist.h"

#include <gtest/gtest.h>

#include "base/Text.h"
#include "base/xml/OutlineReader.h"
#include "playlists/PlaylistFields.h"

namespace sonaro {
namespace {

constexpr PlaylistFormat kFormats[] = {PlaylistFormat::M3u, PlaylistFormat::Pls, PlaylistFormat::Opml};

PlaylistEntry Entry(std::string name, std::string link1, std::string link2 = "", std::string stationId = "") {
  PlaylistEntry entry;
  entry.station.name = std::move(name);
  entry.station.links = {std::move(link1), std::move(link2), ""};
  entry.stationId = std::move(stationId);
  return entry;
}

TEST(Playlist, WhatGoesOutComesBackWhole) {
  Playlist list;
  list.title = "Late & \"loud\" <Nächte>";
  list.entries = {
      Entry("Plain", "mhttp://a.example/live"),
      Entry("Real, with a comma", "rtsp://b.example/x.ra", "mhttp://b.example/2?a=1&b=%20"),
      Entry("Web = page", "whttp://c.example/player#x"),
      Entry("Радио \"Юг\" & <Co> 'x'", "mhttps://d.example/;stream", "", "-1204"),
      Entry("tvg-logo=\"x\",Tricky", "mmms://e.example/"),
      Entry("-1 #EXTINF", "mhttp://f.example/1"),
      Entry("Lost in the directory", "", "", "77"),
      Entry("Second link only", "", "mhttp://g.example/2"),
      Entry("&amp; &#65; as typed", "mhttp://h.example/"),
  };
  list.entries[0].station.webSite = "http://a.example/?q=1&r=2";
  list.entries[0].station.type = "MP3";
  list.entries[0].station.note = "A note = with, everything; in #it";
  for (const PlaylistFormat format : kFormats) {
    list.format = format;
    const std::string text = WritePlaylist(list);
    const Playlist back = ReadPlaylist(text);
    EXPECT_EQ(back.format, format);
    EXPECT_EQ(back.title, list.title);
    EXPECT_FALSE(back.damaged);
    EXPECT_EQ(back.skipped, 0U);
    ASSERT_EQ(back.entries.size(), list.entries.size()) << text;
    for (std::size_t i = 0; i < list.entries.size(); ++i) {
      EXPECT_EQ(back.entries[i], list.entries[i]) << text << list.entries[i].station.name;
    }
  }
}

TEST(Playlist, OtherProgramsFindAddressAndName) {
  Playlist list;
  list.entries = {Entry("One", "mhttp://a.example/1"), Entry("Two", "rtsp://b.example/2")};
  list.format = PlaylistFormat::M3u;
  EXPECT_EQ(WritePlaylist(list),
            "#EXTM3U\r\n#EXTINF:-1,One\r\nhttp://a.example/1\r\n"
            "#EXTINF:-1,Two\r\n#SONARO:link1=rtsp://b.example/2\r\nrtsp://b.example/2\r\n");
  list.format = PlaylistFormat::Pls;
  EXPECT_EQ(WritePlaylist(list),
            "[playlist]\r\nFile1=http://a.example/1\r\nTitle1=One\r\nLength1=-1\r\n"
            "File2=rtsp://b.example/2\r\nTitle2=Two\r\nLength2=-1\r\nSonaro-link1.2=rtsp://b.example/2\r\n"
            "NumberOfEntries=2\r\nVersion=2\r\n");
}

// As "name|first link" for each entry.
std::string Brief(const Playlist& list) {
  std::string brief;
  for (const PlaylistEntry& entry : list.entries) {
    brief += entry.station.name + "|" + entry.station.links[0] + "\n";
  }
  return brief;
}

TEST(Playlist, ReadsTheM3uOfOthers) {
  const Playlist list = ReadPlaylist(
      "\xEF\xBB\xBF#EXTM3U\n#PLAYLIST:Stations\n# Group: Electronic\n# Homepage: https://www.a.example/\n"
      "#EXTINF:-1 group-title=\"Electronic, House\" tvg-logo=\"x.png\",After, "
      "Hours\nhttp://a.example:8000/,\n"
      "#EXTINF:-1 1000 ELECTRONIC DANCE\nhttp://b.example/x\n"
      "#EXTINF:0,\nhttp://c.example/unnamed\n"
      "#EXTINF:12.5,Unfinished\n#EXTINF:-1,Local\nC:\\music\\x.mp3\n"
      "http://d.example/bare");
  EXPECT_EQ(
      Brief(list),
      "After, Hours|mhttp://a.example:8000/,\n1000 ELECTRONIC DANCE|mhttp://b.example/x\n"
      "http://c.example/unnamed|mhttp://c.example/unnamed\nhttp://d.example/bare|mhttp://d.example/bare\n");
  EXPECT_EQ(list.title, "Stations");
  EXPECT_EQ(list.entries[0].station.webSite, "https://www.a.example/");
  EXPECT_EQ(list.entries[1].station.webSite, "");
  EXPECT_EQ(list.skipped, 2U);
}

TEST(Playlist, ReadsThePlsOfOthers) {
  const Playlist list = ReadPlaylist(
      "[playlist]\r\nnumberofentries=3\r\nTitle2=\tRadio \xCF\xEE\xEB \r\nfile2=http://b.example/?a=b\r\n"
      "File10=http://j.example/\r\nFile1=http://a.example/\r\nTitle1=A (#1 128 mp3): b=c\r\nLength1=-1\r\n"
      "Title7=Without a file\r\nnonsense\r\n");
  EXPECT_EQ(Brief(list),
            "A (#1 128 mp3): b=c|mhttp://a.example/\nRadio \xC3\x8F\xC3\xAE\xC3\xAB|mhttp://b.example/?a=b\n"
            "http://j.example/|mhttp://j.example/\n");
  EXPECT_EQ(list.skipped, 1U);
}

TEST(Playlist, ReadsTheOpmlOfOthers) {
  const Playlist list = ReadPlaylist(
      "<?xml version=\"1.0\"?>\n<!DOCTYPE opml>\n<!-- <outline url='http://no.example/'> -->\n"
      "<opml version='1.0'><head><title> Greece &amp; Co </title></head><body>\n"
      "<outline text='Folder'><outline TEXT=\"\tA &#x3b1; &bogus; &lt;b&gt;\" type=\"rss\" "
      "url = \"https://a.example/s?x=1&amp;y=2&z=3\" /></outline>\n"
      "<outline title=\"B\" xmlUrl='http://b.example/' htmlUrl='http://b.example/home'></outline>\n"
      "<outline text='Bad' url='javascript:alert(1)'/></body></opml>");
  EXPECT_EQ(Brief(list), "A \xCE\xB1 &bogus; <b>|mhttps://a.example/s?x=1&y=2&z=3\nB|mhttp://b.example/\n");
  EXPECT_EQ(list.title, "Greece & Co");
  EXPECT_EQ(list.entries[1].station.webSite, "http://b.example/home");
  EXPECT_EQ(list.skipped, 1U);
  EXPECT_FALSE(list.damaged);
}

TEST(Playlist, ADamagedOpmlKeepsWhatStandsBefore) {
  const std::string whole = "<opml><body><outline text='A' url='http://a.example/'/></body></opml>";
  const std::string good = whole.substr(0, whole.find("</body>"));
  for (const char* tail :
       {"", "<outline text='B' url='http://b", "<outline text=B>", "<!-- never ends", "< a>"}) {
    const Playlist list = ReadPlaylist(good + tail);
    EXPECT_EQ(Brief(list), "A|mhttp://a.example/\n") << tail;
    EXPECT_TRUE(list.damaged) << tail;
  }
  EXPECT_FALSE(ReadPlaylist(whole).damaged);
}

TEST(Playlist, TellsTheFormatByTheContent) {
  const std::pair<const char*, PlaylistFormat> cases[] = {
      {"\n [Playlist]\nFile1=x", PlaylistFormat::Pls},
      {"# a comment\nhttp://a/", PlaylistFormat::M3u},
      {"#extm3u", PlaylistFormat::M3u},
      {"<?xml?><OPML>", PlaylistFormat::Opml},
      {"<html></html>", PlaylistFormat::NotAPlaylist},
      {"", PlaylistFormat::NotAPlaylist},
      {"hello\nhttp://a/", PlaylistFormat::NotAPlaylist},
      {"[{\"url\":\"http://a/\"}]", PlaylistFormat::NotAPlaylist}};
  for (const auto& [text, format] : cases) EXPECT_EQ(RecognisePlaylist(text), format) << text;
  EXPECT_TRUE(ReadPlaylist("MZ\x90\x00\x03 binary").entries.empty());
}

// The work for a line grows with its length and no faster, whatever it is made of.
TEST(Playlist, TheInfoOfALineIsLookedAtOnce) {
  for (const char* piece : {" ", "a=\"b\" ", "a=\" ", "a= ", " =\"", "\" ", "a=\"\"", " ,", "= ", "-1 "}) {
    std::string info = "-1";
    while (info.size() < 30000) info.append(" ").append(piece);
    std::size_t looked = 0;
    NameInInfo(info, looked);
    EXPECT_GT(looked, 0U) << piece;
    EXPECT_LE(looked, 2 * info.size()) << piece;
  }
}

TEST(Playlist, HostileLinksAreNotTaken) {
  const Playlist list = ReadPlaylist(
      "#EXTM3U\n#EXTINF:-1,Quote\nhttp://a.example/\" /run\n#EXTINF:-1,Switch\n-x://a\n"
      "#EXTINF:-1,Field\n#SONARO:link1=m/switch://x\n#SONARO:link2=mhttp://ok.example/\nfile\n");
  ASSERT_EQ(list.entries.size(), 1U);
  EXPECT_EQ(list.entries[0].station.links, (std::array<std::string, 3>{"", "mhttp://ok.example/", ""}));
}

}  // namespace
}  // namespace sonaro
