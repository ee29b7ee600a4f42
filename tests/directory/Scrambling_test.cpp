#include "directory/Scrambling.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "base/DataFolder.h"
#include "fakes/FakeFiles.h"

namespace sonaro {
namespace {

std::string Scrambled(std::string text) { return ScrambleText(text, BuiltInAlphabets()); }
std::string Unscrambled(std::string text) { return UnscrambleText(text, BuiltInAlphabets()); }

TEST(Scrambling, UndoesItselfAndLeavesForeignCharactersAlone) {
  std::string everyByte;
  for (int byte = 0; byte < 256; ++byte) everyByte += static_cast<char>(byte);
  EXPECT_EQ(Unscrambled(Scrambled(everyByte)), everyByte);
  EXPECT_EQ(Scrambled(""), "");
  EXPECT_EQ(Scrambled(" \t\xC3\xA9(!"), " \t\xC3\xA9(!");

  const std::string link = "http://Radio.example:8000/live_64?x=%41&y=1,2;z~@+-";
  const std::string hidden = Scrambled(link);
  EXPECT_EQ(hidden.size(), link.size());
  for (std::size_t i = 0; i < link.size(); ++i) EXPECT_NE(hidden[i], link[i]) << link[i];
  EXPECT_EQ(Unscrambled(hidden), link);
}

TEST(Scrambling, TellsLetterCaseApart) {
  const ScramblingAlphabets pair{"aA", "Aa"};
  std::string text = "aAb";
  EXPECT_EQ(ScrambleText(text, pair), "Aab");
}

TEST(Scrambling, ReadsAlphabetsOfOtherMakers) {
  const std::string& source = BuiltInAlphabets().source;
  std::string reversed = source;
  std::reverse(reversed.begin(), reversed.end());
  std::string repeats = source;
  repeats[5] = repeats[6];
  std::string foreign = source;
  foreign[5] = '$';
  std::string control = source;
  control[5] = '\t';
  const struct {
    const char* what;
    std::string file;
    bool good;
  } cases[] = {{"line feeds", source + "\n" + reversed + "\n", true},
               {"carriage returns, no last end", source + "\r\n" + reversed, true},
               {"empty", "", false},
               {"one line", source + "\n", false},
               {"three lines", source + "\n" + reversed + "\nx", false},
               {"too short", source.substr(1) + "\n" + source.substr(1), false},
               {"too long", source + "$\n" + reversed + "$", false},
               {"a character twice", repeats + "\n" + repeats, false},
               {"not a permutation", source + "\n" + foreign, false},
               {"a control character", control + "\n" + control, false}};
  for (const auto& c : cases) {
    ScramblingAlphabets alphabets{"a", "b"};
    EXPECT_EQ(ParseAlphabets(c.file, alphabets), c.good) << c.what;
    EXPECT_EQ(alphabets.source, c.good ? source : "a") << c.what;
    EXPECT_EQ(alphabets.target, c.good ? reversed : "b") << c.what;
  }
}

TEST(Scrambling, FallsBackToTheBuiltInAlphabets) {
  FakeFiles files;
  DataFolder data(files, "/data", '/');
  ScramblingAlphabets alphabets;
  EXPECT_EQ(LoadAlphabets(data, alphabets), AlphabetSource::BuiltIn);
  EXPECT_EQ(alphabets.source, BuiltInAlphabets().source);

  files.Put("/data/alphabet.snr", "abc\ncba\n");
  EXPECT_EQ(LoadAlphabets(data, alphabets), AlphabetSource::BuiltInAfterBadFile);
  EXPECT_EQ(alphabets.target, BuiltInAlphabets().target);

  files.Put("/data/alphabet.snr", BuiltInAlphabets().target + "\n" + BuiltInAlphabets().source);
  EXPECT_EQ(LoadAlphabets(data, alphabets), AlphabetSource::DataFolder);
  EXPECT_EQ(alphabets.target, BuiltInAlphabets().source);

  files.Lock("/data/alphabet.snr");
  EXPECT_EQ(LoadAlphabets(data, alphabets), AlphabetSource::BuiltInAfterBadFile);
  EXPECT_EQ(alphabets.target, BuiltInAlphabets().target);
}

}  // namespace
}  // namespace sonaro
