#include "base/Text.h"

#include <gtest/gtest.h>

#include <random>

#include "base/Utf8.h"

namespace sonaro {
namespace {

using Pieces = std::vector<std::string_view>;

TEST(FoldCase, EveryKindOfMapping) {
  const struct {
    const char* text;
    const char* folded;
  } cases[] = {
      {"", ""},
      {"Radio ABC xyz 123 [\\]^_`{|}", "radio abc xyz 123 [\\]^_`{|}"},
      {"AZ@[az", "az@[az"},
      {"ÄÖÜ Éire ÅÆØ", "äöü éire åæø"},
      {"Straße STRASSE ẞ", "strasse strasse ss"},
      {"ΑΣ ας ασ", "ασ ασ ασ"},  // the final sigma is a sigma
      {"РАДИО Ёж", "радио ёж"},
      {"Ā Ă ğ Ğ", "ā ă ğ ğ"},             // neighbours that alternate
      {"İstanbul", "i̇stanbul"},           // one character becomes two
      {"\u212A \u212B \u017F", "k å s"},  // long forms of short letters
      {"ﬃ ﬆ", "ffi st"},
      {"\u13A0 \uAB70", "\u13A0 \u13A0"},  // Cherokee folds to its capitals
      {"𐐀 𞤀", "𐐨 𞤢"},          // four-byte characters
      {"電台 راديو", "電台 راديو"},
  };
  for (const auto& c : cases) EXPECT_EQ(FoldCase(c.text), c.folded);
}

TEST(FoldCase, BytesThatAreNoUtf8AreKeptAndTheRestIsFolded) {
  EXPECT_EQ(FoldCase("A\xE9"
                     "B\xC3"),
            "a\xE9"
            "b\xC3");
  EXPECT_EQ(FoldCase("\xC1\x81X"), "\xC1\x81x");          // overlong
  EXPECT_EQ(FoldCase("\xED\xA0\x80Y"), "\xED\xA0\x80y");  // surrogate
  EXPECT_EQ(FoldCase("\xF4\x90\x80\x80Z"), "\xF4\x90\x80\x80z");
  EXPECT_EQ(FoldCase(std::string_view("A\0B", 3)), std::string_view("a\0b", 3));
}

// Holds for every text, so that a folded text can be stored and folded again, and that the shortcuts of the
// comparisons agree with the folding itself.
TEST(WithoutAccents, OfFoldedText) {
  const struct {
    std::string folded, plain;
  } cases[] = {{"müsli çà łódź þ", "musli ca lodz þ"},
               {"øresund æon œuvre", "oresund aeon oeuvre"},
               {"e\u0301te\u0301", "ete"},
               {"tiếng việt ǖ", "tieng viet u"},
               {"ένας ὦ", "ενασ ω"},
               {"ёлка йод", "елка йод"},
               {"が中", "が中"},
               {"a\xE9 b\xC3", "a\xE9 b\xC3"}};
  for (const auto& c : cases) EXPECT_EQ(WithoutAccents(FoldCase(c.folded)), c.plain);
}

TEST(FoldCase, IsStableAndAgreesWithTheComparisons) {
  std::mt19937 random(20030814);
  const char* const alphabet[] = {"a", "A", "s", "SS",   "ß", "ẞ", "k", "\u212A",
                                  "İ", "é", "É", "\xE9", "ﬁ", "i", "Σ", "ς"};
  const auto text = [&] {
    std::string result;
    for (auto n = random() % 4; n > 0; --n) result += alphabet[random() % std::size(alphabet)];
    return result;
  };
  for (int round = 0; round < 20000; ++round) {
    const std::string a = text();
    const std::string b = text();
    const std::string foldedA = FoldCase(a);
    const std::string foldedB = FoldCase(b);
    ASSERT_EQ(FoldCase(foldedA), foldedA);
    ASSERT_EQ(EqualIgnoringCase(a, b), foldedA == foldedB) << a << " and " << b;
    ASSERT_EQ(CompareIgnoringCase(a, b) < 0, foldedA < foldedB) << a << " and " << b;
    ASSERT_EQ(CompareIgnoringCase(a, b) > 0, foldedA > foldedB) << a << " and " << b;
    ASSERT_EQ(StartsWithIgnoringCase(a, b), foldedA.starts_with(foldedB)) << a << " and " << b;
    ASSERT_EQ(EndsWithIgnoringCase(a, b), foldedA.ends_with(foldedB)) << a << " and " << b;
    ASSERT_EQ(ContainsIgnoringCase(a, b), foldedA.find(foldedB) != std::string::npos) << a << " and " << b;
  }
}

TEST(Text, TrimBlanksTakesOnlyBlanks) {
  EXPECT_EQ(TrimBlanks("  a b  "), "a b");
  EXPECT_EQ(TrimBlanks("\ta\t"), "\ta\t");
  EXPECT_EQ(TrimBlanks("   "), "");
}

TEST(Text, SplitLines) {
  EXPECT_EQ(SplitLines(""), Pieces{});
  EXPECT_EQ(SplitLines("a\r\nb\nc"), (Pieces{"a", "b", "c"}));
  EXPECT_EQ(SplitLines("a\r\n"), (Pieces{"a"}));
  EXPECT_EQ(SplitLines("\n\r\nx\ry\r\n"), (Pieces{"", "", "x\ry"}));
}

TEST(Text, SplitAndNextField) {
  EXPECT_EQ(Split("", '\t'), (Pieces{""}));
  EXPECT_EQ(Split("a\t\tb\t", '\t'), (Pieces{"a", "", "b", ""}));
  EXPECT_EQ(SplitAtMost("a|b|c|d", '|', 3), (Pieces{"a", "b", "c|d"}));
  EXPECT_EQ(SplitAtMost("a|b", '|', 1), (Pieces{"a|b"}));
  std::string_view rest = "one\ttwo";
  EXPECT_EQ(NextField(rest, '\t'), "one");
  EXPECT_EQ(rest, "two");
  EXPECT_EQ(NextField(rest, '\t'), "two");
  EXPECT_EQ(rest, "");
}

TEST(Text, ReplaceFirst) {
  EXPECT_EQ(ReplaceFirst("a <x> b <x>", "<x>", "<x><x>"), "a <x><x> b <x>");
  EXPECT_EQ(ReplaceFirst("abc", "d", "e"), "abc");
}

TEST(Text, TruncateUtf8KeepsCharactersWhole) {
  const std::string text = "a\u00E9\u96FB\U00010400z";  // 1 + 2 + 3 + 4 + 1 bytes
  const std::size_t whole[] = {0, 1, 1, 3, 3, 3, 6, 6, 6, 6, 10, 11, 11};
  for (std::size_t most = 0; most < std::size(whole); ++most) {
    EXPECT_EQ(TruncateUtf8(text, most), text.substr(0, whole[most])) << most;
  }
  EXPECT_EQ(TruncateUtf8("\xE9\xE9\xE9\xE9\xE9\xE9", 5).size(), 5u);  // not UTF-8: bytes
}

TEST(Utf8, EveryScalarValueRoundTrips) {
  for (char32_t code = 0; code <= 0x10FFFF; code += code < 0x3000 ? 1 : 0x1F) {
    if (code >= 0xD800 && code < 0xE000) continue;
    std::string text = "x";
    AppendUtf8(text, code);
    const Utf8Character character = DecodeUtf8(text, 1);
    ASSERT_EQ(character.code, code);
    ASSERT_EQ(character.length, text.size() - 1);
    ASSERT_EQ(DecodeUtf8(text.substr(0, text.size() - 1) + "x", 1).length, code < 0x80 ? 1u : 0u);
  }
}

}  // namespace
}  // namespace sonaro
