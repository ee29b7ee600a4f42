// Letters and what they are without their accents. Only what case folding leaves is here: small letters. A
// letter that an alphabet counts as one of its own and that is typed with a key of its own, such as the short
// i of Russian, stays; Latin ones do not, since names are often typed on a keyboard without them.
#include <algorithm>
#include <array>
#include <cstddef>

#include "base/Text.h"
#include "base/Utf8.h"

namespace sonaro {
namespace {

struct PlainLetter {
  char16_t plain;
  std::u16string_view accented;
};

constexpr PlainLetter kPlainLetters[] = {
    {u'a', u"àáâãäåāăąǎǟǡǻȁȃȧḁạảấầẩẫậắằẳẵặ"},
    {u'b', u"ḃḅḇ"},
    {u'c', u"çćĉċčḉ"},
    {u'd', u"ðďđḋḍḏḑḓ"},
    {u'e', u"èéêëēĕėęěȅȇȩḕḗḙḛḝẹẻẽếềểễệ"},
    {u'f', u"ḟ"},
    {u'g', u"ĝğġģǧǵḡ"},
    {u'h', u"ĥħȟḣḥḧḩḫ"},
    {u'i', u"ìíîïĩīĭįıǐȉȋḭḯỉị"},
    {u'j', u"ĵ"},
    {u'k', u"ķǩḱḳḵ"},
    {u'l', u"ĺļľłḷḹḻḽ"},
    {u'm', u"ḿṁṃ"},
    {u'n', u"ñńņňǹṅṇṉṋ"},
    {u'o', u"òóôõöøōŏőơǒǫǭǿȍȏȫȭȯȱṍṏṑṓọỏốồổỗộớờởỡợ"},
    {u'p', u"ṕṗ"},
    {u'r', u"ŕŗřȑȓṙṛṝṟ"},
    {u's', u"śŝşšșṡṣṥṧṩ"},
    {u't', u"ţťŧțṫṭṯṱ"},
    {u'u', u"ùúûüũūŭůűųưǔǖǘǚǜȕȗṳṵṷṹṻụủứừửữự"},
    {u'v', u"ṽṿ"},
    {u'w', u"ŵẁẃẅẇẉ"},
    {u'x', u"ẋẍ"},
    {u'y', u"ýÿŷȳẏỳỵỷỹ"},
    {u'z', u"źżžẑẓẕ"},
    {u'α', u"άἀἁἂἃἄἅἆἇὰάᾰᾱ"},
    {u'ε', u"έἐἑἒἓἔἕὲέ"},
    {u'η', u"ήἠἡἢἣἤἥἦἧὴή"},
    {u'ι', u"ίϊἰἱἲἳἴἵἶἷὶίῐῑ"},
    {u'ο', u"όὀὁὂὃὄὅὸό"},
    {u'ρ', u"ῥ"},
    {u'υ', u"ϋύὑὓὕὗὺύῠῡ"},
    {u'ω', u"ώὠὡὢὣὤὥὦὧὼώ"},
    {u'е', u"ѐё"},
};

constexpr char32_t kFirstMark = 0x300;  // combining marks, which are dropped
constexpr char32_t kBehindMarks = 0x370;
constexpr char32_t kShortEnd = 0x460;  // Latin, Greek, Cyrillic
constexpr char32_t kFirstLong = 0x1E00;
constexpr char32_t kLongEnd = 0x2000;  // Latin and Greek with several marks

// Made by the compiler, two ranges behind each other: one look for each letter. 0 means that a letter has
// nothing to lose. Letters of one unit only; pairs of units have no accents here.
constexpr auto kTable = [] {
  std::array<char16_t, kShortEnd + (kLongEnd - kFirstLong)> table{};
  for (const PlainLetter& letter : kPlainLetters) {
    for (const char16_t accented : letter.accented)
      table[accented < kShortEnd ? accented : kShortEnd + accented - kFirstLong] = letter.plain;
  }
  return table;
}();

// Ligatures become two letters, which the table cannot say.
void AppendPlain(std::string& out, char32_t code, std::string_view asItIs) {
  const bool isLong = code >= kFirstLong && code < kLongEnd;
  const char16_t plain = code < kShortEnd ? kTable[code] : isLong ? kTable[kShortEnd + code - kFirstLong] : 0;
  if (plain != 0) {
    AppendUtf8(out, plain);
  } else if (code == U'æ') {
    out += "ae";
  } else if (code == U'œ') {
    out += "oe";
  } else if (code < kFirstMark || code >= kBehindMarks) {
    out += asItIs;
  }
}

}  // namespace

void AppendWithoutAccents(std::string& out, std::string_view folded) {
  for (std::size_t at = 0; at < folded.size();) {
    // Most texts are ASCII: whole runs of it are copied without decoding.
    const auto isAscii = [](char c) { return static_cast<unsigned char>(c) < 0x80; };
    const auto start = folded.begin() + static_cast<std::ptrdiff_t>(at);
    const auto run = static_cast<std::size_t>(std::find_if_not(start, folded.end(), isAscii) - start);
    out.append(folded, at, run);
    at += run;
    if (at == folded.size()) return;
    const Utf8Character character = DecodeUtf8(folded, at);
    const std::size_t length = std::max<std::size_t>(character.length, 1);
    const std::string_view bytes = folded.substr(at, length);
    // A byte that is not UTF-8 stays as it is.
    if (character.length == 0) {
      out += bytes;
    } else {
      AppendPlain(out, character.code, bytes);
    }
    at += length;
  }
}

std::string WithoutAccents(std::string_view folded) {
  std::string out;
  out.reserve(folded.size());
  AppendWithoutAccents(out, folded);
  return out;
}

}  // namespace sonaro
