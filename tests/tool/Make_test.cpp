#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>

#include "base/Text.h"
#include "directory/Scrambling.h"
#include "text/CleanText.h"
#include "tool/ToolTest.h"

namespace sonaro {
namespace {

std::string List(std::string_view name) { return ProjectFile("data/playlists/" + std::string(name)); }

TEST(Make, TurnsEveryBundledListIntoOneWholeFolder) {
  const ScratchFolder scratch;
  const std::string folder = scratch.Path() + "/data";
  const ToolRun made = RunDirectoryTool(
      {"make", List("radio-browser_topvote_1-128.json"), List("radio-browser_topvote_129-256.json"),
       List("radio-browser_broken_2020.json"), List("AT Austria.m3u"), List("AT Austria.pls"),
       List("BAGeL Radio.pls"), List("PL Poland.opml"), List("curated_electronic.m3u"), List("iprd_jp.m3u"),
       "--out", folder});
  EXPECT_EQ(made.status, 0) << made.err;
  EXPECT_EQ(made.err, "");
  EXPECT_NE(made.out.find(" joined with others, 11 left out (11 without a usable address)"),
            std::string::npos)
      << made.out;
  const ToolRun checked = RunDirectoryTool({"check", folder});
  EXPECT_EQ(checked.status, 0) << checked.out;

  std::set<std::string> names;
  for (const auto& [name, bytes] : FolderContents(folder)) names.insert(FoldCase(name));
  for (const char* name :
       {"station.snr", "statorg.isd", "statorg.ism", "eventorg.isd", "eventorg.ism", "eventorg2.isd",
        "eventorg2.ism", "cat.snr", "catloc.snr", "fun.snr", "reliable.snr", "searchst.snr"}) {
    EXPECT_EQ(names.count(name), 1u) << name;
  }

  // The help of a folder leads nowhere else: it works without a connection.
  const auto pages = FolderContents(folder + "/help/2");
  EXPECT_GT(pages.size(), 20u);
  for (const auto& [name, html] : pages) {
    for (std::size_t at = html.find("href=\""); at != std::string::npos; at = html.find("href=\"", at + 1)) {
      const std::string target = html.substr(at + 6, html.find('"', at + 6) - at - 6);
      EXPECT_TRUE(std::filesystem::exists(folder + "/help/2/" + target)) << name << " leads to " << target;
    }
  }
}

TEST(Make, GivesTheSameBytesForTheSameLists) {
  const ScratchFolder scratch;
  const std::string first = scratch.Path() + "/first";
  const std::string second = scratch.Path() + "/second";
  for (const std::string& folder : {first, second, second}) {
    MakeData({"iprd_jp.m3u", kBundledList}, folder);
  }
  const auto contents = FolderContents(first);
  EXPECT_EQ(contents, FolderContents(second));
  EXPECT_GT(contents.size(), 20u);
  // The order of the lists makes no difference to the stations either.
  MakeData({kBundledList, "iprd_jp.m3u"}, second);
  EXPECT_EQ(FileBytes(first + "/Station.snr"), FileBytes(second + "/Station.snr"));
}

TEST(Make, RemovesListsThatAreNotNeededAnyMore) {
  const ScratchFolder scratch;
  const std::string folder = scratch.Path();
  MakeData({kBundledList}, folder);
  WriteBytes(folder + "/favs.snr", "Mine\t\r\n");
  ASSERT_TRUE(std::filesystem::exists(folder + "/genre-jazz.snr"));
  MakeData({"BAGeL Radio.pls"}, folder);
  EXPECT_FALSE(std::filesystem::exists(folder + "/genre-jazz.snr"));
  EXPECT_EQ(FileBytes(folder + "/favs.snr"), "Mine\t\r\n");
  EXPECT_EQ(RunDirectoryTool({"check", folder}).status, 0);
}

TEST(Make, LetsNothingHostileIntoAField) {
  const ScratchFolder scratch;
  const std::string list = scratch.Path() + "/list.json";
  std::string text = "[";
  const std::string names[] = {"Tab\\there",
                               "Line\\nbreak\\r\\nhere",
                               "<script>alert(\\\"x\\\")</script>",
                               "Null\\u0000byte \\u0085 \\u2028 end",
                               std::string(100000, 'x'),
                               "\\u202Eesrever",
                               "P1 S2 \\t3",
                               "broken \xC3\x28 bytes",
                               "\\uD83C\\uDFB5 note"};
  int number = 0;
  for (const std::string& name : names) {
    text +=
        (number == 0 ? "" : ",") +
        ("{\"name\":\"" + name + "\",\"urls\":[\"http://a.example/" + std::to_string(number) +
         "\",\"http://a.example/\\t" + std::to_string(number) + "\"],\"homepage\":\"http://h.example/\\n\"," +
         "\"tags\":[\"ta\\tg" + std::to_string(number) + "\",\"new\\nline\"],\"country\":\"\\tNo\\nwhere\"," +
         "\"state\":\"sta\\tte\",\"language\":\"klin\\tgon\",\"codec\":\"M\\tP3\",\"bitrate\":"
         "99999999999999999999," +
         "\"votes\":-5}");
    ++number;
  }
  WriteBytes(list, text + "]");
  const std::string folder = scratch.Path() + "/data";
  const ToolRun made = RunDirectoryTool({"make", list, "--out", folder, "-v"});
  ASSERT_EQ(made.status, 0) << made.err;
  EXPECT_EQ(made.err.find('\t'), std::string::npos);
  EXPECT_EQ(RunDirectoryTool({"check", folder}).out, folder + " is whole.\n");

  const auto rows = StationRows(folder);
  EXPECT_EQ(rows.size(), std::size(names));
  for (const auto& row : rows) {
    EXPECT_EQ(row.size(), 17u);
    for (const std::string& field : row) {
      EXPECT_TRUE(std::none_of(field.begin(), field.end(),
                               [](char c) { return static_cast<unsigned char>(c) < 0x20; }));
      EXPECT_LE(field.size(), 600u);
      EXPECT_EQ(field, TrimBlanks(field));
    }
  }
  for (const auto& [name, bytes] : FolderContents(folder)) {
    if (!name.ends_with(".snr")) continue;
    EXPECT_EQ(CleanText(bytes).find("\xEF\xBF\xBD\xEF\xBF\xBD"), std::string::npos);
    EXPECT_EQ(std::count(bytes.begin(), bytes.end(), '\n'), std::count(bytes.begin(), bytes.end(), '\r'))
        << name;
  }
}

// What each line holds is looked at by the check.
TEST(Make, BothTreesReachEveryStation) {
  const std::string& folder = BundledData();
  std::set<std::string> ids;
  for (const auto& row : StationRows(folder)) ids.insert(row[0]);
  for (const char* tree : {"/cat.snr", "/catloc.snr"}) {
    std::set<std::string> inTree;
    const std::string categories = FileBytes(folder + tree);
    for (const std::string_view line : SplitLines(categories)) {
      const std::string entries =
          FileBytes(folder + "/" + std::string(SplitAtMost(line, '\t', 4)[2]) + ".snr");
      for (const std::string_view entry : SplitLines(entries)) {
        for (const std::string_view id : Split(SplitAtMost(entry, '\t', 5)[4], ' ')) inTree.emplace(id);
      }
    }
    EXPECT_EQ(inTree, ids) << tree;
  }
}

TEST(Make, RanksByBelievableVotes) {
  const ScratchFolder scratch;
  const std::string folder = scratch.Path();
  MakeData({kBundledList, "radio-browser_topvote_129-256.json"}, folder, {"--limit", "100"});
  std::map<std::string, std::string> names;
  for (const auto& row : StationRows(folder)) names[row[0]] = row[1];
  EXPECT_EQ(names.size(), 100u);
  const std::string lists = FileBytes(folder + "/fun.snr");
  for (const std::string_view line : SplitLines(lists)) {
    const auto columns = SplitAtMost(line, '\t', 2);
    if (columns[0] != "Most Pop" && columns[0] != "Best Overall") continue;
    const auto ids = Split(columns[1], ' ');
    ASSERT_GE(ids.size(), 90u);
    // 733,866 votes are not listeners; the list itself has this station first.
    for (std::size_t i = 0; i < 10; ++i) EXPECT_NE(names[std::string(ids[i])], "MANGORADIO") << columns[0];
  }
}

TEST(Make, WritesLinksInTheAlphabetsOfTheFolder) {
  const ScratchFolder scratch;
  const std::string list = scratch.Path() + "/list.m3u";
  const std::string folder = scratch.Path() + "/data";
  WriteBytes(list, "#EXTM3U\n#EXTINF:-1,A\nhttp://a.example/live\n");
  std::filesystem::create_directory(folder);
  std::string other = BuiltInAlphabets().source;
  std::rotate(other.begin(), other.begin() + 7, other.end());
  WriteBytes(folder + "/alphabet.snr", BuiltInAlphabets().source + "\r\n" + other + "\r\n");
  MakeData({list}, folder);
  std::string link = StationRows(folder)[0][6];
  EXPECT_EQ(UnscrambleText(link, {BuiltInAlphabets().source, other}), "mhttp://a.example/live");
  EXPECT_EQ(RunDirectoryTool({"check", folder}).status, 0);
}

TEST(Make, KeepsIdentifiersOfThePreviousFolder) {
  const ScratchFolder scratch;
  const std::string list = scratch.Path() + "/list.m3u";
  const std::string first = scratch.Path() + "/first";
  const std::string second = scratch.Path() + "/second";
  WriteBytes(list, "#EXTM3U\n#EXTINF:-1,A\nhttp://a.example/old\n#EXTINF:-1,B\nhttp://b.example/\n");
  MakeData({list}, first);
  const std::string json = scratch.Path() + "/list.json";
  WriteBytes(json,
             "{\"name\":\"A\",\"urls\":[\"http://a.example/new\",\"http://a.example/old\"]}\n"
             "{\"name\":\"C\",\"urls\":[\"http://c.example/\"]}\n");
  MakeData({json}, second, {"--previous", first});
  std::map<std::string, std::string> before;
  for (const auto& row : StationRows(first)) before[row[1]] = row[0];
  std::map<std::string, std::string> after;
  for (const auto& row : StationRows(second)) after[row[1]] = row[0];
  EXPECT_EQ(after["A"], before["A"]);
  // Only C is new.
  EXPECT_EQ(FileBytes(second + "/fun.snr").substr(0, 13 + after["C"].size() + 2),
            "New Stations\t" + after["C"] + "\r\n");
}

TEST(Make, WritesEventsOfKnownStations) {
  const ScratchFolder scratch;
  const std::string folder = scratch.Path() + "/data";
  const std::string events = scratch.Path() + "/events.jsonl";
  WriteBytes(
      events,
      "{\"name\":\"Concert\",\"station\":\"mangoradio\",\"start\":\"2025-05-01T18:30:00Z\",\"minutes\":90}\n"
      "{\"name\":\"Later\",\"station\":\"MANGORADIO\",\"start\":\"2025-05-20T08:00:00Z\"}\n"
      "{\"name\":\"Unknown\",\"station\":\"No such\",\"start\":\"2025-05-01T18:30:00Z\"}\n"
      "{\"name\":\"Impossible\",\"station\":\"MANGORADIO\",\"start\":\"2025-02-31T18:30:00Z\"}\n"
      "not JSON\n");
  const ToolRun made = RunDirectoryTool(
      {"make", List("radio-browser_topvote_1-128.json"), "--out", folder, "--events", events, "--verbose"});
  EXPECT_EQ(made.status, 0);
  EXPECT_NE(made.out.find("2 events; 3 left out"), std::string::npos) << made.out;
  EXPECT_NE(made.err.find("events.jsonl:3: left out \"No such\""), std::string::npos) << made.err;
  EXPECT_EQ(RunDirectoryTool({"check", folder}).status, 0);
}

TEST(Make, SaysWhatIsWrongInOneSentence) {
  const ScratchFolder scratch;
  const std::string page = scratch.Path() + "/page.m3u";
  const std::string dead = scratch.Path() + "/dead.m3u";
  const std::string file = scratch.Path() + "/file";
  const std::string jp = List("iprd_jp.m3u");
  WriteBytes(page, "<html>404</html>");
  WriteBytes(dead, "#EXTM3U\n#EXTINF:-1,A\nC:/a.mp3\n");
  WriteBytes(file, "");
  struct Case {
    std::vector<std::string> words;
    int status;
    std::string err;
  };
  const Case cases[] = {
      {{"make", scratch.Path() + "/none.m3u", "--out", file + "x"},
       1,
       "Cannot read \"" + scratch.Path() + "/none.m3u\".\n"},
      {{"make", scratch.Path(), "--out", file + "x"}, 1, "Cannot read \"" + scratch.Path() + "\".\n"},
      {{"make", page, "--out", file + "x"}, 1, "\"page.m3u\" is not a station list: it is a web page.\n"},
      {{"make", dead, "--out", file + "x"}, 1, "No station is left: 1 without a usable address.\n"},
      {{"make", jp, "--out", file}, 1, "Cannot make the folder \"" + file + "\".\n"},
      {{"make", jp, "--out", file + "x", "--previous", scratch.Path()},
       1,
       "There is no readable Station.snr in \"" + scratch.Path() + "\".\n"},
      {{"make", jp}, 2, "make needs --out DIR; see sonaro-directory --help.\n"},
      {{"make", "--out", file}, 2, "make needs a station list; see sonaro-directory --help.\n"},
      {{"make", jp, "--out"}, 2, "\"--out\" needs a value; see sonaro-directory --help.\n"},
      {{"make", jp, "--out", file, "--limit", "0"}, 2, "--limit is a number from 1 on, not \"0\".\n"},
      {{"make", jp, "--out", file, "--player=vlc"}, 2, "--player is asx or real, not \"vlc\".\n"},
      {{"make", jp, "--out", file, "--fast", "1"},
       2,
       "make has no option \"--fast\"; see sonaro-directory --help.\n"},
      {{"mkae"}, 2, "There is no command \"mkae\"; see sonaro-directory --help.\n"},
      {{"show", file, "x"},
       2,
       "show needs a data folder and a station identifier; see sonaro-directory --help.\n"},
      {{"show", scratch.Path(), "5"},
       1,
       "There is no readable station table in \"" + scratch.Path() + "\".\n"},
      {{"search", scratch.Path(), "jazz"},
       1,
       "There is no readable station table in \"" + scratch.Path() + "\".\n"},
      {{"search", scratch.Path()},
       2,
       "search needs a data folder and a word; see sonaro-directory --help.\n"},
      {{"check", file + "x"}, 1, "There is no folder \"" + file + "x\".\n"},
  };
  for (const Case& test : cases) {
    const ToolRun run = RunDirectoryTool(test.words);
    EXPECT_EQ(run.status, test.status) << testing::PrintToString(test.words);
    EXPECT_EQ(run.err, test.err) << testing::PrintToString(test.words);
    EXPECT_EQ(run.out, "") << testing::PrintToString(test.words);
  }
}

TEST(ShowAndSearch, FindStations) {
  const std::string& folder = BundledData();
  const ToolRun found = RunDirectoryTool({"search", folder, "MANGO", "rhineland"});
  ASSERT_EQ(found.status, 0);
  ASSERT_EQ(std::count(found.out.begin(), found.out.end(), '\n'), 1) << found.out;
  const ToolRun shown = RunDirectoryTool({"show", folder, found.out.substr(0, found.out.size() - 1)});
  EXPECT_EQ(shown.status, 0);
  EXPECT_NE(shown.out.find("Name              MANGORADIO\n"), std::string::npos);
  EXPECT_NE(shown.out.find("Link one          mhttps://mangoradio.stream.laut.fm/mangoradio\n"),
            std::string::npos);
  EXPECT_NE(shown.out.find("Web site          https://mangoradio.de/\n"), std::string::npos);

  const std::string both = RunDirectoryTool({"search", folder, "--any", "mangoradio", "dance"}).out;
  std::vector<std::int64_t> ids;
  for (const std::string_view line : SplitLines(both)) {
    if (!line.empty()) ids.push_back(std::stoll(std::string(line)));
  }
  EXPECT_GT(ids.size(), 5u);
  EXPECT_TRUE(std::is_sorted(ids.begin(), ids.end()));
  EXPECT_EQ(RunDirectoryTool({"search", folder, "mangoradio", "nowhere"}).out, "");
  EXPECT_EQ(RunDirectoryTool({"show", folder, "1"}).status, 1);
}

}  // namespace
}  // namespace sonaro
