#include <gtest/gtest.h>

#include "readers/ReadSource.h"
#include "readers/Readers.h"
#include "text/CleanText.h"
#include "tool/ToolTest.h"

namespace sonaro {
namespace {

struct RealList {
  const char* file;
  SourceFormat format;
  std::size_t stations;
  std::size_t leftOut;
  const char* firstName;
  const char* firstAddress;
};

class RealLists : public testing::TestWithParam<RealList> {};

TEST_P(RealLists, GiveAllTheirEntries) {
  const RealList& list = GetParam();
  SkipLog skips(nullptr);
  const SourceResult result = ReadSource(ProjectFile(std::string("data/playlists/") + list.file), skips);
  EXPECT_EQ(result.failure, "");
  EXPECT_EQ(result.format, list.format);
  EXPECT_EQ(result.stations.size(), list.stations);
  EXPECT_EQ(skips.Total(), list.leftOut);
  ASSERT_FALSE(result.stations.empty());
  EXPECT_EQ(result.stations[0].name, list.firstName);
  EXPECT_EQ(result.stations[0].addresses[0], list.firstAddress);
}

INSTANTIATE_TEST_SUITE_P(
    Bundled, RealLists,
    testing::Values(RealList{"radio-browser_topvote_1-128.json", SourceFormat::JsonArray, 128, 0,
                             "MANGORADIO", "https://mangoradio.stream.laut.fm/mangoradio"},
                    RealList{"radio-browser_topvote_129-256.json", SourceFormat::JsonArray, 128, 0,
                             "Chocolate FM", "http://streaming5.elitecomunicacion.es:8082/live.mp3"},
                    RealList{"radio-browser_broken_2020.json", SourceFormat::JsonArray, 964, 0,
                             "WSNY 94.7 \"Sunny 95\" Columbus, OH",
                             "http://provisioning.streamtheworld.com/pls/WSNYFMAAC.pls"},
                    RealList{"AT Austria.m3u", SourceFormat::M3u, 211, 0, "1000 ELECTRONIC DANCE MUSIC",
                             "http://stream.laut.fm/1000-electronic-dance-music"},
                    RealList{"AT Austria.pls", SourceFormat::Pls, 211, 0, "1000 ELECTRONIC DANCE MUSIC",
                             "http://stream.laut.fm/1000-electronic-dance-music"},
                    RealList{"RU The Russian Federation.pls", SourceFormat::Pls, 1360, 0, "\tЕвропа Плюс",
                             "http://ep256.hostingradio.ru:8052/europaplus256.mp3"},
                    RealList{"GR Greece.opml", SourceFormat::Opml, 1671, 0, " Alexandroupolis Dee Jay 94.8",
                             "https://stream.myip.gr/proxy/deejay?mp=/stream"},
                    RealList{"PL Poland.opml", SourceFormat::Opml, 647, 0, "\tPolskie Radio Bialystok",
                             "http://stream4.nadaje.com:15476/radiobialystok"},
                    RealList{"iprd_gr.m3u", SourceFormat::M3u, 1026, 0, "Radio 1 100.0",
                             "http://s3.onweb.gr:8814/listen.pls"},
                    RealList{"iprd_jp.m3u", SourceFormat::M3u, 35, 0, "AFN The Eagle Iwakuni 1575",
                             "https://24873.live.streamtheworld.com/AFNP_IWAAAC.aac"},
                    RealList{"curated_electronic.m3u", SourceFormat::M3u, 43, 0, "54house.fm",
                             "https://54house.fm:9013/stream"},
                    RealList{"BAGeL Radio.pls", SourceFormat::Pls, 1, 0, "SomaFM: BAGeL Radio",
                             "http://xstream1.somafm.com:9090"}));

SourceResult Read(std::string text) {
  SkipLog skips(nullptr);
  return ReadSourceBytes("list", std::move(text), skips);
}

TEST(Readers, TakeEverythingThatAListTells) {
  SkipLog skips(nullptr);
  const SourceResult json = ReadSource(ProjectFile("data/playlists/radio-browser_topvote_1-128.json"), skips);
  const SourceStation& mango = json.stations[0];
  EXPECT_EQ(mango.tags, (std::vector<std::string>{"music", "variety"}));
  EXPECT_EQ(mango.countryCode, "DE");
  EXPECT_EQ(mango.region, "Rheinland-Pfalz");
  EXPECT_EQ(mango.votes, 733866);
  EXPECT_EQ(mango.clicks, 2483);
  EXPECT_EQ(mango.answered, true);
  EXPECT_EQ(mango.bitRate, 128);

  const SourceResult old = ReadSource(ProjectFile("data/playlists/radio-browser_broken_2020.json"), skips);
  EXPECT_EQ(old.stations[0].answered, false);
  EXPECT_EQ(old.stations[0].country, "United States of America");

  const SourceResult curated = ReadSource(ProjectFile("data/playlists/curated_electronic.m3u"), skips);
  EXPECT_EQ(curated.stations[1].webSite, "https://ah.fm");
  EXPECT_EQ(curated.stations[1].tags, std::vector<std::string>{"Electronic"});

  const SourceResult mirrors = ReadSource(ProjectFile("data/playlists/BAGeL Radio.pls"), skips);
  EXPECT_EQ(mirrors.stations[0].addresses.size(), 4u);
  EXPECT_EQ(mirrors.stations[0].slogan, "What alternative rock radio should sound like.");
  EXPECT_EQ(mirrors.stations[0].bitRate, 128);
}

TEST(Readers, JoinTitlesThatAreBrokenOverLines) {
  SkipLog skips(nullptr);
  const SourceResult list = ReadSource(ProjectFile("data/playlists/RU The Russian Federation.pls"), skips);
  EXPECT_EQ(list.stations[973].name, "Радио Capital-ФМ Москва 105,3 FM");
  EXPECT_EQ(list.stations[974].name, "Радио Fresh ФМ Сосновый бор 105.0 FM");
}

TEST(Readers, ReadEveryWayToWriteAnM3uEntry) {
  const SourceResult list = Read(
      "#EXTM3U\r\n"
      "#EXTINF:-1,Plain, with a comma\nhttp://a.example/1\n"
      "#EXTINF:0 tvg-id=\"x\" group-title=\"jazz;blues\" tvg-country=\"DE\",Radio "
      "\"Quoted\"\nhttp://a.example/2\n"
      "#EXTINF:-1 24/7 Hits\nhttp://a.example/3\n"
      "#EXTINF:-1 tvg-name=\"Only an attribute\",\nhttp://a.example/4\n"
      "# Homepage: http://home.example/\n#EXTINF:-1,With a page\n#EXTVLCOPT:x=y\nhttp://a.example/5\n"
      "http://a.example/6\n");
  ASSERT_EQ(list.stations.size(), 6u);
  EXPECT_EQ(list.stations[0].name, "Plain, with a comma");
  EXPECT_EQ(list.stations[1].name, "Radio \"Quoted\"");
  EXPECT_EQ(list.stations[1].tags, (std::vector<std::string>{"jazz", "blues"}));
  EXPECT_EQ(list.stations[1].countryCode, "DE");
  EXPECT_EQ(list.stations[2].name, "24/7 Hits");
  EXPECT_EQ(list.stations[3].name, "Only an attribute");
  EXPECT_EQ(list.stations[4].webSite, "http://home.example/");
  EXPECT_EQ(list.stations[5].name, "");
  EXPECT_EQ(list.stations[5].webSite, "");
}

TEST(Readers, TakeFoldersOfOutlinesAsTags) {
  const SourceResult list = Read(
      "<?xml version='1.0'?><opml><body><outline text='Jazz'><outline text='Swing &amp; more'>"
      "<outline text='One' URL='http://a.example/?x=1&amp;y=2' "
      "htmlUrl='http://home.example'/></outline></outline>"
      "<outline text='Two' xmlUrl='http://a.example/2'></outline></body></opml>");
  ASSERT_EQ(list.stations.size(), 2u);
  EXPECT_EQ(list.stations[0].tags, (std::vector<std::string>{"Jazz", "Swing & more"}));
  EXPECT_EQ(list.stations[0].addresses[0], "http://a.example/?x=1&y=2");
  EXPECT_EQ(list.stations[0].webSite, "http://home.example");
  EXPECT_TRUE(list.stations[1].tags.empty());
}

struct Recognised {
  const char* text;
  SourceFormat format;
  const char* why;
};

class FormatsByContent : public testing::TestWithParam<Recognised> {};

TEST_P(FormatsByContent, AreTold) {
  std::string why;
  EXPECT_EQ(RecogniseFormat(GetParam().text, why), GetParam().format);
  EXPECT_EQ(why, GetParam().why);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, FormatsByContent,
    testing::Values(
        Recognised{"", SourceFormat::NotAList, "it is empty"},
        Recognised{" \r\n\t", SourceFormat::NotAList, "it is empty"},
        Recognised{"{\"name\":\"x\"}\n", SourceFormat::JsonLines, ""},
        Recognised{"\n [ \n{\"name\":\"x\"}]", SourceFormat::JsonArray, ""},
        Recognised{"[]", SourceFormat::JsonArray, ""},
        Recognised{"[Playlist]\r\nFile1=http://a.example/", SourceFormat::Pls, ""},
        Recognised{"[settings]\nx=1", SourceFormat::NotAList, "it is none of JSON, M3U, PLS and OPML"},
        Recognised{"#extm3u\nhttp://a.example/", SourceFormat::M3u, ""},
        Recognised{"# my stations\n\nmms://a.example/x\n", SourceFormat::M3u, ""},
        Recognised{"#EXTM3U\n#EXT-X-TARGETDURATION:10\nx.ts", SourceFormat::NotAList,
                   "it is one HLS stream, not a list of stations"},
        Recognised{"<?xml?><OPML version='1'>", SourceFormat::Opml, ""},
        Recognised{"<!DOCTYPE html><html>", SourceFormat::NotAList, "it is a web page"},
        Recognised{"<rss/>", SourceFormat::NotAList, "it is XML, but not OPML"},
        Recognised{"Dear reader,", SourceFormat::NotAList, "it is none of JSON, M3U, PLS and OPML"}));

TEST(Readers, ReadTheCodePagesOfOldLists) {
  const auto nameIn = [](std::string bytes) {
    const SourceResult list = Read(std::move(bytes));
    return list.stations.size() == 1 ? list.stations[0].name : "no station: " + list.failure;
  };
  EXPECT_EQ(nameIn("\xEF\xBB\xBF#EXTM3U\n#EXTINF:-1,Caf\xC3\xA9\nhttp://a.example/"), "Café");
  EXPECT_EQ(nameIn("#EXTM3U\n#EXTINF:-1,Caf\xE9 \x80\nhttp://a.example/"), "Café €");
  const std::string narrow = "#EXTM3U\n#EXTINF:-1,A\nhttp://a.example/";
  std::string wide = "\xFF\xFE";
  for (const char c : narrow) wide += {c, '\0'};
  EXPECT_EQ(nameIn(wide), "A");
  // One broken character does not garble a list that is UTF-8 otherwise.
  EXPECT_EQ(nameIn("#EXTM3U\n#EXTINF:-1,Čau \xFF\nhttp://a.example/"), "Čau \xEF\xBF\xBD");
}

TEST(Readers, KeepWhatStandsAroundBrokenEntries) {
  struct Case {
    const char* text;
    std::size_t stations;
    std::size_t leftOut;
  };
  const Case cases[] = {
      {"{\"name\":\"A\",\"url\":\"http://a.example/\"}\n{\"name\":\"B\",\n{\"name\":\"C\"}\n", 2, 1},
      {"[{\"name\":\"A {\\\"}\"},{\"name\":\"B\",\"tags\":\"x}\"},{\"name\":\"C\",\"ur", 2, 1},
      {"[{\"name\":\"A\"},{\"name\":nonsense},{\"name\":\"C\"}]", 2, 1},
      {"{\"name\":5,\"votes\":\"12\",\"urls\":[1,null,\"http://a.example/\"]}\n[1,2]\n", 1, 1},
      {"<opml><body><outline text='A' url='http://a.example/'/><outline text='B", 1, 1},
      {"#EXTM3U\n#EXTINF:-1,A\n#EXTINF:-1,B\nhttp://b.example/\n#EXTINF:-1,C\n", 1, 2},
      {"[playlist]\nTitle1=A\nFile2=http://b.example/\nFile99999999999=http://c.example/\n", 1, 1},
  };
  for (const Case& test : cases) {
    SkipLog skips(nullptr);
    const SourceResult list = ReadSourceBytes("list", test.text, skips);
    EXPECT_EQ(list.stations.size(), test.stations) << test.text;
    EXPECT_EQ(skips.Total(), test.leftOut) << test.text;
  }
}

TEST(Readers, UnpackGzip) {
  const std::string text = "#EXTM3U\n#EXTINF:-1,A\nhttp://a.example/\n";
  EXPECT_EQ(Read(Gzipped(text)).stations.size(), 1u);
  EXPECT_EQ(Read(Gzipped(Gzipped(text))).stations.size(), 1u);
  EXPECT_EQ(Read(Gzipped(text.substr(0, 20)) + Gzipped(text.substr(20))).stations.size(), 1u);
  const std::string packed = Gzipped(text);
  EXPECT_EQ(Read(packed.substr(0, packed.size() - 12)).failure,
            "\"list\" is damaged: its gzip data is not complete.");
  std::string damaged = packed;
  damaged[packed.size() - 6] = static_cast<char>(damaged[packed.size() - 6] ^ 1);
  EXPECT_NE(Read(damaged).failure, "");
}

TEST(Readers, StopUnpackingWhatWouldFillTheMemory) {
  std::string unpacked;
  const std::string bomb = Gzipped(std::string(std::size_t{8} << 20, 'x'));
  EXPECT_LT(bomb.size(), 100000u);
  EXPECT_EQ(Gunzip(bomb, std::size_t{2} << 20, unpacked), GunzipStatus::TooLarge);
  EXPECT_LT(unpacked.size(), std::size_t{4} << 20);
}

}  // namespace
}  // namespace sonaro
