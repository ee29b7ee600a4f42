#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "base/Text.h"
#include "genres/Genres.h"
#include "places/Places.h"
#include "stations/Addresses.h"
#include "stations/BuildDirectory.h"
#include "stations/StationIds.h"
#include "stations/StationTexts.h"
#include "text/CleanText.h"
#include "tool/ToolTest.h"

namespace sonaro {
namespace {

struct Address {
  std::string raw;
  std::string address;
  std::string_view problem;
};

TEST(Addresses, AreCleanedOrRefused) {
  const Address cases[] = {
      {"http://a.example/x", "http://a.example/x", ""},
      {" \t%20HTTPS://a.example/X?a=1&amp;b=2 \r\n", "https://a.example/X?a=1&b=2", ""},
      {"icy://a.example:8000", "http://a.example:8000", ""},
      {"mms://a.example/x;y", "mms://a.example/x;y", ""},
      {"http://[2001:db8::1]:8000/", "http://[2001:db8::1]:8000/", ""},
      {"", "", "no address"},
      {"http://a.example/x\ty", "", "control character in the address"},
      {"http://a.example/\"x", "", "double quote in the address"},
      {"http://a.example/x y", "", "blank in the address"},
      {"http://a.example/x\\", "", "backslash in the address"},
      {"-http://a.example/", "", "begins like a switch"},
      {"/etc/passwd", "", "begins like a switch"},
      {"C:/music/a.mp3", "", "not an address on the web"},
      {"file:///etc/passwd", "", "a kind of address that cannot be opened"},
      {"javascript://a.example/%0aalert(1)", "", "a kind of address that cannot be opened"},
      {"wwhttp://a.example/", "", "a kind of address that cannot be opened"},
      {"http://a.example/?${Math.random()}", "", "a placeholder that nobody filled in"},
      {"http://a.example/?http://a.example/?http://a.example/?http://a.example/", "", "repeats itself"},
      {"http:///x", "", "no host in the address"},
      {"http://http//a.example/", "", "no host in the address"},
      {"http://a.example/" + std::string(2000, 'x'), "", "longer than 2,000 characters"},
  };
  for (const Address& test : cases) {
    const CheckedAddress checked = CheckStreamAddress(test.raw);
    EXPECT_EQ(checked.address, test.address) << test.raw;
    EXPECT_EQ(checked.problem, test.problem) << test.raw;
  }
  EXPECT_EQ(CheckWebSite("www.a.example").address, "http://www.a.example");
  EXPECT_EQ(CheckWebSite("rtsp://a.example/").address, "");
  EXPECT_EQ(CheckWebSite("hthttps://a.example/").address, "");
}

TEST(Addresses, PutStreamsBeforePlaylistsAndNumericHosts) {
  EXPECT_EQ(
      BestFirst({"http://a.example/x.pls", "http://10.1.2.3/x", "http://b.example/y", "http://a.example/z"}),
      (std::vector<std::string>{"http://b.example/y", "http://a.example/z", "http://a.example/x.pls",
                                "http://10.1.2.3/x"}));
}

TEST(CleanText, LeavesOneCleanLine) {
  EXPECT_EQ(CleanText(" \ta\r\n\x01 b\x7F\xC2\x85 c\xC2\xA0 "), "a b c");
  EXPECT_EQ(CleanText("\xEF\xBB\xBFleft\xE2\x80\x8E\xE2\x80\xAEright\xC2\xAD\xE2\x80\xA8next"),
            "leftright next");
  EXPECT_EQ(CleanText("\xFF\xC0\xAF"), "\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD");
  EXPECT_EQ(CleanText("\xF0\x9F\x91\xA8\xE2\x80\x8D\xF0\x9F\x8E\xA4"),
            "\xF0\x9F\x91\xA8\xE2\x80\x8D\xF0\x9F\x8E\xA4");
  EXPECT_EQ(DecodeEntities("Rock &amp; Pop &#38; &#x41; &bogus; & &#0; &#xD800;"),
            "Rock & Pop & A &bogus; & &#0; &#xD800;");
  EXPECT_EQ(MatchKey(" Música-ROMÁNTICA!  d'Amour "), "musica romantica damour");
  EXPECT_EQ(MatchKey("Łódź Ελλάς ЁЖ ß"), MatchKey("lodz ελλασ еж ss"));
}

TEST(CleanStation, MakesTheMostOfPoorEntries) {
  MakeLogs logs{SkipLog(nullptr), SkipLog(nullptr)};
  SourceStation station = MakeStation("", {"\thttp://www.a.example/live.aac"});
  station.tags = {"Jazz", "jázz", "#Blues;Soul", "", std::string(61, 'x')};
  station.bitRate = 128000;
  station.webSite = "javascript:alert(1)";
  ASSERT_TRUE(CleanStation(station, logs));
  EXPECT_EQ(station.name, "a.example");
  EXPECT_EQ(station.codec, "AAC");
  EXPECT_EQ(station.bitRate, 128);
  EXPECT_EQ(station.tags, (std::vector<std::string>{"Jazz", "Blues", "Soul"}));
  EXPECT_EQ(station.webSite, "");
  EXPECT_EQ(logs.addresses.Total(), 1u);

  SourceStation deaf = MakeStation("Deaf", {"http://", "-x"});
  EXPECT_FALSE(CleanStation(deaf, logs));
  EXPECT_EQ(logs.entries.Count("without a usable address"), 1u);
}

TEST(CleanStation, TellsCodecsAndBitRates) {
  struct Case {
    const char* name;
    const char* codec;
    std::int64_t bitRate;
    const char* mediaType;
    std::int64_t told;
  };
  const Case cases[] = {{"A", "MP3", 128, "MP3", 128},
                        {"A", "MP3", 500, "MP3", 0},
                        {"A", "UNKNOWN", 0, "", 0},
                        {"A 192k", "MP3", 0, "MP3", 192},
                        {"A FLAC", "OGG", 1411, "FLAC", 1411},
                        {"A", "OGG", 1411, "FLAC", 1411},
                        {"A Opus", "OGG", 96, "Opus", 96},
                        {"A", "OGG", 96, "Ogg Vorbis", 96},
                        {"A", "AAC,H.264", 3000, "Video", 3000},
                        {"Radio 24 kbps AAC+", "", 0, "AAC+", 24}};
  for (const Case& test : cases) {
    MakeLogs logs{SkipLog(nullptr), SkipLog(nullptr)};
    SourceStation station = MakeStation(test.name, {"http://a.example/"});
    station.codec = test.codec;
    station.bitRate = test.bitRate;
    ASSERT_TRUE(CleanStation(station, logs));
    EXPECT_EQ(MediaTypeOf(station), test.mediaType) << test.name << test.codec;
    EXPECT_EQ(station.bitRate, test.told) << test.name << test.codec;
  }
}

TEST(JoinStations, NeedsTheNameAndAnAddressInCommon) {
  std::vector<SourceStation> stations = {
      MakeStation("Radio Éins", {"http://a.example/1/"}),
      MakeStation("radio - eins", {"http://b.example/", "https://A.example/1"}),
      MakeStation("Radio Eins", {"http://c.example/"}), MakeStation("Radio Zwei", {"http://a.example/1"}),
      MakeStation("Radio EINS!", {"http://b.example"})};
  stations[1].votes = 7;
  stations[1].tags = {"jazz"};
  stations[4].votes = 3;
  EXPECT_EQ(JoinSameStations(stations), 2u);
  ASSERT_EQ(stations.size(), 3u);
  EXPECT_EQ(stations[0].name, "Radio Éins");
  EXPECT_EQ(stations[0].addresses.size(), 4u);
  EXPECT_EQ(stations[0].votes, 7);
  EXPECT_EQ(stations[0].tags, std::vector<std::string>{"jazz"});
}

std::vector<DirectoryStation> WithIds(std::vector<SourceStation> sources, const EarlierIds& earlier = {}) {
  MakeLogs logs{SkipLog(nullptr), SkipLog(nullptr)};
  return BuildDirectory(std::move(sources), 0, earlier, logs).directory.stations;
}

std::int32_t IdOf(const std::vector<DirectoryStation>& stations, std::string_view name) {
  for (const DirectoryStation& station : stations) {
    if (station.source.name == name) return station.id;
  }
  return 0;
}

TEST(StationIds, DoNotDependOnTheOtherStations) {
  const SourceStation a = MakeStation("A", {"http://a.example/"});
  const SourceStation b = MakeStation("B", {"http://b.example/"});
  const std::int32_t id = IdOf(WithIds({a}), "A");
  EXPECT_GT(id, 0);
  EXPECT_EQ(IdOf(WithIds({b, a}), "A"), id);
  EXPECT_EQ(IdOf(WithIds({MakeStation("a", {"https://A.example"})}), "a"), id);
  EXPECT_NE(IdOf(WithIds({MakeStation("A", {"http://other.example/"})}), "A"), id);
}

TEST(StationIds, AreUniqueWhenNumbersCollide) {
  EXPECT_EQ(FirstFreeId(5, [](std::int32_t id) { return id > 6; }), 7);
  EXPECT_EQ(FirstFreeId(0x7FFFFFFF, [](std::int32_t id) { return id < 100; }), 1);
  std::vector<SourceStation> many;
  for (int i = 0; i < 3000; ++i) {
    many.push_back(MakeStation("S" + std::to_string(i), {"http://a.example/" + std::to_string(i)}));
  }
  std::set<std::int32_t> ids;
  for (const DirectoryStation& station : WithIds(std::move(many))) ids.insert(station.id);
  EXPECT_EQ(ids.size(), 3000u);
  EXPECT_GT(*ids.begin(), 0);
}

TEST(StationIds, FollowAStationThatMoved) {
  std::string line = "77";
  std::string link = "mhttp://a.example/old";
  std::string site = "http://home.example/";
  const ScramblingAlphabets& alphabets = BuiltInAlphabets();
  line += "\tRadio A\tMP3\t\t\t\t" + ScrambleText(link, alphabets) + "\t\t\t\t" +
          ScrambleText(site, alphabets) + "\t128\t1\t1\t1\t1\t1\r\n";
  const EarlierIds earlier(line, alphabets);
  EXPECT_EQ(IdOf(WithIds({MakeStation("RADIO A", {"http://new.example/", "http://a.example/old"})}, earlier),
                 "RADIO A"),
            77);
  SourceStation moved = MakeStation("Radio A", {"http://new.example/"});
  moved.webSite = "https://home.example";
  std::vector<DirectoryStation> stations =
      WithIds({moved, MakeStation("Radio B", {"http://a.example/old"})}, earlier);
  EXPECT_EQ(IdOf(stations, "Radio A"), 77);
  EXPECT_NE(IdOf(stations, "Radio B"), 77);
  for (const DirectoryStation& station : stations) EXPECT_EQ(station.isNew, station.id != 77);
}

TEST(Ratings, DoNotBelieveEveryVote) {
  const auto popularity = [](std::int64_t votes, std::int64_t clicks) {
    SourceStation station = MakeStation("A", {"http://a.example/"});
    station.votes = votes;
    station.clicks = clicks;
    return RateStation(station).popularity;
  };
  EXPECT_GT(popularity(45000, 957), popularity(733866, 2483));
  EXPECT_GT(popularity(2000, 100), popularity(49000, 0));
  EXPECT_GT(popularity(49000, 500), popularity(48000, 500));
  EXPECT_GT(popularity(50000, 500), popularity(50001, 500));
  EXPECT_LE(popularity(1000000000000, 1000000000000), 1.0);
  EXPECT_EQ(popularity(0, 0), 0.0);
}

TEST(Ratings, AreDigits) {
  SourceStation station = MakeStation("A", {"http://a.example/"});
  const Ratings unknown = RateStation(station);
  EXPECT_EQ(unknown.overall + unknown.sound + unknown.speed + unknown.webSite + unknown.reliability, 0);
  station.votes = 60000;
  station.clicks = 900000;
  station.answered = true;
  station.codec = "FLAC";
  station.bitRate = 1411;
  station.webSite = "https://a.example/";
  const Ratings best = RateStation(station);
  EXPECT_EQ(best.overall, 9);
  EXPECT_EQ(best.sound, 9);
  EXPECT_EQ(best.speed, 1);
  EXPECT_EQ(best.webSite, 9);
  EXPECT_EQ(best.reliability, 4);
  station.answered = false;
  EXPECT_EQ(RateStation(station).reliability, 1);
  const auto sound = [&](const char* codec, std::int64_t rate) {
    station.codec = codec;
    station.bitRate = rate;
    return RateStation(station).sound;
  };
  EXPECT_GT(sound("AAC+", 64), sound("MP3", 64));
  EXPECT_GT(sound("MP3", 320), sound("MP3", 128));
  EXPECT_EQ(sound("AAC,H.264", 3000), 0);
}

std::string FormatOf(std::vector<std::string> tags, std::string name = "Radio X") {
  SourceStation station = MakeStation(std::move(name), {"http://a.example/"});
  station.tags = std::move(tags);
  return ClassifyStation(station).Format();
}

TEST(Genres, UnderstandTheTagsThatListsUseMost) {
  const std::string list = FileBytes(ProjectFile("tests/tool/frequent_tags.txt"));
  std::size_t withGenre = 0;
  std::size_t tags = 0;
  for (const std::string_view line : SplitLines(list)) {
    const std::vector<std::string_view> columns = Split(line, '\t');
    SourceStation station = MakeStation("x", {"http://a.example/"});
    station.tags = {std::string(columns[0])};
    station.countryCode = columns[1];
    const Classification genres = ClassifyStation(station);
    // What is no genre must be known to be none: a place, a network, a filler.
    EXPECT_EQ(genres.otherTag, "") << "neither a genre nor known to be none";
    ++tags;
    if (!genres.entries.empty()) ++withGenre;
  }
  EXPECT_EQ(tags, 400u);
  EXPECT_GE(withGenre, 310u);
}

TEST(Genres, FindTheMainOne) {
  EXPECT_EQ(FormatOf({"smoothjazz"}), "Smooth Jazz");
  EXPECT_EQ(FormatOf({"music", "rock", "classic rock", "pop"}), "Classic Rock");
  EXPECT_EQ(FormatOf({"variety", "talk"}), "News & Talk");
  EXPECT_EQ(FormatOf({"Música Clásica"}), "Classical");
  EXPECT_EQ(FormatOf({"классика"}), "Classical");
  EXPECT_EQ(FormatOf({"club dance electronic house trance"}), "House");
  EXPECT_EQ(FormatOf({"80's"}), "80s");
  EXPECT_EQ(FormatOf({}, "Smooth Jazz 104.5"), "Smooth Jazz");
  EXPECT_EQ(FormatOf({}, "JazzRadio Oslo"), "Jazz");
  EXPECT_EQ(FormatOf({}, "Hitradio Nord"), "Top 40 & Charts");
  EXPECT_EQ(FormatOf({}, "Classic Love Station"), "Other");
  EXPECT_EQ(FormatOf({"we rock the world with our new best pop on air"}), "Other");
}

TEST(Genres, PutWhatFitsNowhereUnderItsFirstTellingTag) {
  SourceStation station = MakeStation("x", {"http://a.example/"});
  station.countryCode = "MX";
  station.tags = {"radio", "104.5 FM", "128kbps", "Mexico", "Sinaloa", "español", "Beekeeping", "Gardens"};
  EXPECT_EQ(ClassifyStation(station).otherTag, "Beekeeping");
}

TEST(Genres, HaveTheirOwnCodesAndFiles) {
  std::set<char> codes;
  std::set<std::string_view> files;
  for (const Genre& genre : GenreList()) {
    EXPECT_TRUE(codes.insert(genre.code).second) << genre.name;
    EXPECT_TRUE(files.insert(genre.file).second) << genre.name;
  }
  for (const GenreLine& line : Tags().lines) {
    EXPECT_EQ(codes.count(line.genre), 1u) << line.subGenre;
    EXPECT_FALSE(line.tags.empty() || line.tags.front().empty()) << line.genre << line.subGenre;
  }
}

TEST(Places, MergeSpellings) {
  struct Case {
    const char* country;
    const char* text;
    const char* region;
  };
  const Case cases[] = {{"US", "Texas", "Texas"},
                        {"US", "houston, tx", "Texas"},
                        {"US", "Sioux Falls SD", "South Dakota"},
                        {"US", "Washington, DC", "Washington, D.C."},
                        {"US", "somewhere in or near the sea", ""},
                        {"DE", "NRW", "North Rhine-Westphalia"},
                        {"DE", "Bayern, München, AAC 128", "Bavaria"},
                        {"DE", "Hessen (Kassel)", "Hesse"},
                        {"AU", "Wagga Wagga NSW", "New South Wales"},
                        {"RU", "Санкт-Петербург", "Saint Petersburg"},
                        {"CN", "Szechuan", "Sichuan"},
                        {"AR", "Mar del Plata, Pcia. de Buenos Aires", "Buenos Aires"},
                        {"BR", "Joinville - SC", "Santa Catarina"},
                        {"GB", "London, England", "England"},
                        {"DE", "Texas", ""}};
  for (const Case& test : cases) {
    const Country* country = CountryByCode(test.country);
    ASSERT_NE(country, nullptr);
    EXPECT_EQ(KnownRegion(*country, test.text), test.region) << test.text;
  }
  EXPECT_EQ(CountryByName("The United States Of America"), CountryByCode("us"));
  EXPECT_EQ(CountryByName("Deutschland"), CountryByCode("DE"));
  EXPECT_EQ(CountryByCode("US")->name, "United States");
  EXPECT_EQ(LanguagesIn("english uk,castellano. español;Engilsh/klingon"),
            (std::vector<std::string>{"English", "Spanish", "Klingon"}));
}

TEST(Places, TakeFreeTextsThatSeveralStationsShare) {
  const auto place = [](const char* country, const char* region) {
    SourceStation station = MakeStation("x", {"http://a.example/"});
    station.countryCode = country;
    station.region = region;
    return station;
  };
  const std::vector<StationPlace> places =
      LocateStations({place("UG", "kampala"), place("UG", "Kampala Region"), place("UG", "Kampala"),
                      place("UG", "Gulu"), place("UG", "128 kbps"), place("UG", "https://a.example/"),
                      place("DE", "Narnia"), place("", "Poland"), place("", "Nowhere")});
  EXPECT_EQ(places[0].Text(), "Kampala, Uganda");
  EXPECT_EQ(places[1].region, "Kampala");
  EXPECT_EQ(places[3].region, "");
  EXPECT_EQ(places[3].Text(), "Gulu, Uganda");
  EXPECT_EQ(places[4].Text(), "Uganda");
  EXPECT_EQ(places[5].Text(), "Uganda");
  EXPECT_EQ(places[6].region, "");
  EXPECT_EQ(places[7].Text(), "Poland");
  EXPECT_EQ(places[8].Text(), "");
}

TEST(StationTexts, DescribeAStationInASentence) {
  MakeLogs logs{SkipLog(nullptr), SkipLog(nullptr)};
  SourceStation source = MakeStation("Radio X", {"http://a.example/"});
  source.tags = {"smooth jazz", "lounge"};
  source.language = "german,english";
  source.countryCode = "DE";
  source.region = "München";
  source.codec = "AAC+";
  source.bitRate = 64;
  const std::vector<DirectoryStation> stations =
      WithIds({source, MakeStation("Bare", {"http://b.example/"})});
  EXPECT_EQ(
      DescriptionOf(stations[0].source.name == "Bare" ? stations[1] : stations[0]),
      "Smooth jazz and lounge in German and English from München, Bavaria, Germany. AAC+ at 64 kbit/s.");
  EXPECT_EQ(DescriptionOf(stations[0].source.name == "Bare" ? stations[0] : stations[1]), "");
}

TEST(StationTexts, LeaveOutOfTheTagsWhatTellsNothingNew) {
  SourceStation source = MakeStation("Arroba FM 99.7", {"http://a.example/"});
  source.tags = {"99.7 fm", "@fm", "@fm te conecta", "arroba fm", "https://a.example/", "#1",   "español",
                 "mexico",  "mp3", "classic rock",   "pop",       "pop music",          "rock", "surf rock"};
  EXPECT_EQ(DescriptionOf(WithIds({source})[0]), "Classic rock, pop and surf rock.");
}

TEST(StationTexts, WriteLinksForTheirPlayer) {
  const std::vector<DirectoryStation> stations =
      WithIds({MakeStation("A", {"http://a.example/1", "mms://a.example/2", "https://a.example/3",
                                 "rtsp://a.example/4", "http://a.example/5"})});
  const auto link = [&](LinkPlayer player, StationField field) {
    std::string text = RecordOf(stations[0], player, BuiltInAlphabets())[field];
    return UnscrambleText(text, BuiltInAlphabets());
  };
  EXPECT_EQ(link(LinkPlayer::Asx, StationField::LinkOne), "mhttp://a.example/1");
  EXPECT_EQ(link(LinkPlayer::Asx, StationField::AlternateLink), "mrtsp://a.example/4");
  EXPECT_EQ(link(LinkPlayer::Real, StationField::LinkOne), "http://a.example/1");
  // With a small letter this one would be taken for "m" and an address.
  EXPECT_EQ(link(LinkPlayer::Real, StationField::LinkTwo), "Mms://a.example/2");
  EXPECT_NE(RecordOf(stations[0], LinkPlayer::Asx, BuiltInAlphabets())[StationField::LinkOne],
            "mhttp://a.example/1");
}

}  // namespace
}  // namespace sonaro
