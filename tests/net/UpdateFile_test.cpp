#include "net/UpdateFile.h"

#include <gtest/gtest.h>

#include "base/Text.h"
#include "base/crypto/Signing.h"
#include "fakes/FakeStrings.h"
#include "net/NetWorld.h"
#include "net/UpdateChanges.h"
#include "net/UpdateReport.h"
#include "net/UpdateSignature.h"
#include "net/WhatIsNew.h"
#include "resources/texts/net.h"

namespace sonaro {
namespace {

class UpdateFileTest : public testing::Test {
 protected:
  UpdateContents Read(std::string_view text) {
    files_.Put("/d/update.txt", text);
    return ReadUpdateFile(data_).Finish();
  }
  static std::string Names(const UpdateContents& contents) {
    std::string names;
    for (const ReceivedFile& file : contents.files) names += file.name + "\t";
    return names;
  }
  static std::string First(const UpdateContents& contents) {
    return contents.files.empty() ? "(none)" : contents.files.front().bytes;
  }

  FakeFiles files_;
  DataFolder data_{files_, "/d", '/'};
};

TEST_F(UpdateFileTest, ReadsTheLinesInTheirOrder) {
  const struct {
    const char* line;
    const char* date;
    const char* version;
    std::size_t values;
  } kCases[] = {
      {"date::9/1/2000::", "9/1/2000", "-", 0}, {"date::9/1/2000", "-", "-", 0},
      {" date::9/1/2000::", "-", "-", 0},       {"date::::", "", "-", 0},
      {"x version::4.1 y", "-", "4.1", 0},      {"version::4.1", "-", "-", 0},
      {"date::1::version::2 ", "1", "-", 0},    {"version::2 ::HelpURL::http://a/::", "-", "2", 0},
      {"::HelpURL::http://a/::", "-", "-", 1},  {"anything", "-", "-", 0},
  };
  for (const auto& each : kCases) {
    const UpdateContents contents = Read(each.line);
    EXPECT_EQ(contents.status, UpdateFileStatus::Read);
    EXPECT_EQ(contents.date.value_or("-"), each.date) << each.line;
    EXPECT_EQ(contents.version.value_or("-"), each.version) << each.line;
    EXPECT_EQ(contents.values.size(), each.values) << each.line;
    EXPECT_TRUE(contents.files.empty()) << each.line;
  }
}

TEST_F(UpdateFileTest, UnpacksSections) {
  const std::string start(update::kSectionStart);
  const std::string end(update::kSectionEnd);
  const struct {
    std::string text;
    const char* received;
    std::string unpacked;
  } kCases[] = {
      {Section("a.snr", "1\n2\n"), "a.snr\t", "1\r\n2\r\n"},
      {"FILE::a.snr\nA.SNR" + start + "\n1\nA.snr" + end, "a.snr\t", "1\r\n"},
      {"\nfile::a.snr\n\na.snr" + start + "\n\n1\n\n2\n\na.snr" + end, "a.snr\t", "1\r\n2\r\n"},
      {"file::a.snr\na.snr" + start + "\n1\n\n\n2\na.snr" + end, "a.snr\t", "1\r\n"},
      {"file::a.snr\na.snr" + start + "\n1\nb.snr" + end + "\nrest", "a.snr\t",
       "1\r\nb.snr" + end + "\r\nrest\r\n"},
      {"file::a.snr\na.snr" + start + "\na.snr" + end, "a.snr\t", ""},
      {"file::a.snr\na.snr" + start, "a.snr\t", ""},
      {"file::a.snr\nb.snr" + start + "\n1\n", "", "(none)"},
      {"file::a.snr", "", "(none)"},
      {Section("a.snr", "1\n") + Section("A.SNR", "2\n"), "a.snr\t", "2\r\n"},
  };
  for (const auto& each : kCases) {
    const UpdateContents contents = Read(each.text);
    EXPECT_EQ(Names(contents), each.received) << each.text;
    EXPECT_EQ(First(contents), each.unpacked) << each.text;
  }
}

TEST_F(UpdateFileTest, ReadsTheLinesOfASectionWithoutAStartAsOthers) {
  const UpdateContents contents = Read("file::a.snr\n::HelpURL::http://a/::\nfile::b.snr\nb.snr" +
                                       std::string(update::kSectionStart) + "\n1\ndate::x::\n");
  ASSERT_EQ(contents.values.size(), 1u);
  EXPECT_EQ(Names(contents), "b.snr\t");
  EXPECT_EQ(First(contents), "1\r\ndate::x::\r\n");
  EXPECT_FALSE(contents.date);
}

TEST_F(UpdateFileTest, TakesNoFileThatAnUpdateMayNotBring) {
  for (const char* name : {"favs.snr",     "Sched.snr",    "SHOWS.SNR",    "recent.snr",
                           "personal.snr", "ownlinks.snr", "alphabet.snr", "previous.snr",
                           "update.txt",   "publish.key",  "Sonaro.exe",   "..\\x.snr",
                           "../x.snr",     "c:x.snr",      ".snr",         "",
                           "x.snr ",       " x.snr",       "con.snr",      "Com1.x.snr",
                           "nul .snr",     "x.snr.exe",    "x\xC3\xA9.snr"}) {
    EXPECT_FALSE(update::MayBringFile(name)) << name;
    const UpdateContents contents =
        Read("file::" + std::string(name) + "\n" + name + std::string(update::kSectionStart) +
             "\ndate::1::\n" + name + std::string(update::kSectionEnd) + "\nversion::3 \n");
    EXPECT_TRUE(contents.files.empty()) << name;
    EXPECT_EQ(contents.skippedSections, 1u) << name;
    EXPECT_FALSE(contents.date) << name;  // the lines of a skipped section say nothing
    EXPECT_EQ(contents.version.value_or(""), "3") << name;
  }
  EXPECT_FALSE(update::MayBringFile(std::string(61, 'x') + ".snr"));
  for (const char* name :
       {"Station.snr", "sstz.vbt", "sshape.pts", "Eventorg.isd", "a b-c_d.1.ISM", "com.snr"}) {
    EXPECT_TRUE(update::MayBringFile(name)) << name;
  }
}

// Whoever sends it: neither many sections nor large ones keep the program busy or fill the disk.
TEST_F(UpdateFileTest, BoundsWhatOneUpdateBrings) {
  const auto sections = [](std::size_t count, const std::string& ending) {
    std::string text;
    for (std::size_t i = 0; i < count; ++i) text += Section(std::to_string(i) + ending, "1\n");
    return text;
  };
  EXPECT_EQ(Read(sections(update::kMaxSections, ".snr")).files.size(), update::kMaxSections);
  for (const char* ending : {".snr", ".exe"}) {
    const UpdateContents contents = Read(sections(update::kMaxSections + 1, ending) + "date::1::\n");
    EXPECT_EQ(contents.status, UpdateFileStatus::TooLarge) << ending;
    EXPECT_TRUE(contents.files.empty() && !contents.date);
  }
  const std::string large(update::kMaxBytes / 2, 'x');
  EXPECT_EQ(Read(Section("a.snr", large + "\n") + Section("b.snr", large + "\n")).status,
            UpdateFileStatus::TooLarge);
}

TEST_F(UpdateFileTest, KeepsTheLastValueOfEachSetting) {
  std::string text;
  for (int i = 0; i < 1000; ++i) text += "::HelpURL::http://a/" + std::to_string(i) + "::\n::sLocal::1::\n";
  const UpdateContents contents = Read(text);
  ASSERT_EQ(contents.values.size(), 2u);
  EXPECT_EQ(contents.values[0].value, "http://a/999");
}

TEST_F(UpdateFileTest, TakesOnlyWhatThePublisherSigned) {
  const auto key = SigningKeyFromSeed(std::string(64, '5'));
  const auto other = SigningKeyFromSeed(std::string(64, '6'));
  ASSERT_TRUE(key && other);
  const std::string body = Section("a.snr", "1\n") + "date::1::\n";
  const std::string line = UpdateSignatureLine(body, key->secret) + "\n";
  const std::string sentinel(update::kSentinel);
  const struct {
    const char* what;
    std::string key;
    std::string text;
    UpdateFileStatus status;
  } kCases[] = {
      {"signed", key->publicKey + "\r\n", body + line + sentinel, UpdateFileStatus::Read},
      {"unsigned", key->publicKey, body + sentinel, UpdateFileStatus::NotSigned},
      {"another's", key->publicKey, body + UpdateSignatureLine(body, other->secret) + "\n",
       UpdateFileStatus::WrongSign},
      {"changed", key->publicKey, "x" + body + line, UpdateFileStatus::WrongSign},
      {"half a line", key->publicKey, body + line.substr(0, 90), UpdateFileStatus::WrongSign},
      {"no digest", key->publicKey, body + "signed::", UpdateFileStatus::WrongSign},
      {"a bad key", "12", body + line, UpdateFileStatus::WrongSign},
      {"no key needed", "", body + sentinel, UpdateFileStatus::Read},
  };
  for (const auto& each : kCases) {
    files_.Remove("/d/publish.key");
    if (!each.key.empty()) files_.Put("/d/publish.key", each.key);
    const UpdateContents contents = Read(each.text);
    EXPECT_EQ(contents.status, each.status) << each.what;
    EXPECT_EQ(contents.date.has_value(), each.status == UpdateFileStatus::Read) << each.what;
  }
  files_.Put("/d/publish.key", key->publicKey);
  files_.Lock("/d/publish.key");
  EXPECT_EQ(Read(body + line + sentinel).status, UpdateFileStatus::CannotCheck);
  files_.Unlock("/d/publish.key");
  const std::string dated = "serial::1700000000::\n" + body;
  EXPECT_EQ(Read(dated + UpdateSignatureLine(dated, key->secret) + "\nserial::9::\n").serial, 1700000000);
  EXPECT_EQ(Read(body + line).serial, 0) << "a number that is not signed is none";
  const UpdateContents more = Read(body + line + "date::2::\n" + sentinel);
  EXPECT_EQ(more.date.value_or(""), "1") << "what follows the signature does not count";
  EXPECT_EQ(UpdateSignatureLine(body, "no key"), "");
}

TEST(WhatIsNew, ComparesDateAndSideFile) {
  const struct {
    const char* answer;
    const char* toDo;
    const char* url;
    const char* value;
  } kCases[] = {
      {"<--LastStationUpdateStart-->9/1/2000<--LastStationUpdateEnd-->", "/SL/", "", ""},
      {"<--LastStationUpdateStart-->8/1/2000<--LastStationUpdateEnd-->", "", "", ""},
      {"<--LastStationUpdateStart-->13/45/2000<--LastStationUpdateEnd-->", "", "", ""},
      {"<--LastStationUpdateStart-->9/1/2000", "", "", ""},
      {"<--LastStationUpdateEnd--><--LastStationUpdateStart-->9/1/2000", "", "", ""},
      {"<--SideFileBegin-->12http://a/b::v<--SideFileEnd-->", "/SF/", "http://a/b", "v"},
      {"<--SideFileBegin-->5http://a/b::v<--SideFileEnd-->", "", "", ""},
      {"<--SideFileBegin-->xhttp://a/b::v<--SideFileEnd-->", "", "", ""},
      {"<--SideFileBegin-->12<--SideFileEnd-->", "", "", ""},
      {"<--LastStationUpdateStart-->9/1/"
       "2000<--LastStationUpdateEnd--><--SideFileBegin-->0http::<--SideFileEnd-->",
       "/SL//SF/", "http", ""},
  };
  for (const auto& each : kCases) {
    FakeFiles files;
    files.Put("/d/sstz.vbt", "12345");
    Machine machine(files);
    machine.reg.SetSetting(setting::kDoWhat.name, "/XX/");
    const WhatIsNew found = CheckWhatIsNew(each.answer, "", machine.data, machine.reg);
    EXPECT_EQ(machine.reg.Setting(setting::kDoWhat.name), each.toDo) << each.answer;
    EXPECT_EQ(found.sideFileUrl, each.url) << each.answer;
    EXPECT_EQ(found.sideFileValue, each.value) << each.answer;
  }
}

TEST(UpdateChanges, TakesNoStepThatDoesNotFit) {
  const struct {
    std::string steps;
    std::optional<std::string> after;
  } kCases[] = {
      {"", "one\r\ntwo\r\n"},
      {"3 2 \\n1\\l\\r\\\\\r\n", "one\r\n1\n\r\\two\r\n"},
      {"0 5 \r\n3 2 x", "twox"},
      {"10 0 ", "one\r\ntwo\r\n"},
      {"11 0 ", std::nullopt},
      {"0 11 ", std::nullopt},
      {"9 2 ", std::nullopt},
      {"1 18446744073709551615 ", std::nullopt},
      {"18446744073709551616 0 ", std::nullopt},
      {"-1 0 ", std::nullopt},
      {" 1 0 ", std::nullopt},
      {"1 0", std::nullopt},
      {"x", std::nullopt},
      {"1 0 \\", std::nullopt},
      {"1 0 \\t", std::nullopt},
      {"10 0 12345678901", std::nullopt},  // more than 20 bytes
  };
  for (const auto& each : kCases)
    EXPECT_EQ(ApplySteps("one\r\ntwo\r\n", each.steps, 20), each.after) << each.steps;
}

// Of a section that is right in all but one thing nothing is taken.
TEST_F(UpdateFileTest, TakesChangesWholeOrNotAtAll) {
  const std::string before = "a\r\nb\r\n", after = "a\r\nc\r\n";
  const std::string was = Sha256Hex(before), becomes = Sha256Hex(after);
  const std::string good = ">Station.snr\t" + was + "\t" + becomes + "\r\n3 1 c\r\n";
  const struct {
    std::string section;
    bool taken;
  } kCases[] = {
      {good, true},
      {ReplaceFirst(good, "3 1 c", "3 1 d"), false},
      {ReplaceFirst(good, was, becomes), false},
      {ReplaceFirst(good, "Station.snr", "fun.snr"), false},   // not there
      {ReplaceFirst(good, "Station.snr", "favs.snr"), false},  // the user's own
      {good + good, false},                                    // twice
      {"3 1 c\r\n" + good, false},                             // steps of no file
      {good + ">Station.snr\r\n", false},
  };
  for (const auto& each : kCases) {
    files_.Put("/d/Station.snr", before);
    files_.Put("/d/favs.snr", before);
    UpdateContents contents = Read(Section("changes.snr", each.section));
    EXPECT_EQ(contents.changes, each.section);
    EXPECT_TRUE(contents.files.empty());
    EXPECT_EQ(ExpandChanges(data_, contents).Finish(), each.taken) << each.section;
    if (each.taken) {
      EXPECT_EQ(First(contents), after);
    }
  }
}

TEST(UpdateReport, CountsAndNames) {
  const std::int32_t yours[] = {2, 1, 2, 9, -5};
  const UpdateReport report = CompareStationLists("-5\tFive\n" + kOldList + StationListLine(2, "Later Two"),
                                                  kNewList + "-5\tFive\r\n", yours);
  EXPECT_EQ(report.added, 2u);
  EXPECT_EQ(report.changed, 1u);
  EXPECT_EQ(report.gone, 1u);
  EXPECT_EQ(report.yoursChanged, std::vector<std::string>{"New One"});
  EXPECT_EQ(report.yoursGone, std::vector<std::string>{"Later Two"});
  class ReportText final : public FakeStrings {
    std::string Load(int id) const override {
      return id == IDS_NET_REPORT ? "{0}, {1}, {2}" : FakeStrings::Load(id);
    }
  } const strings;
  const std::string none = std::to_string(IDS_NET_REPORT_NONE);
  EXPECT_EQ(DescribeUpdate({.added = 1270, .changed = 1}, strings, DecimalMode::Point), "1,270, 1, " + none);
}

}  // namespace
}  // namespace sonaro
