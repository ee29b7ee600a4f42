#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <random>

#include "base/Text.h"
#include "commands/LocalFolder.h"
#include "net/UpdateChanges.h"
#include "net/UpdateFile.h"
#include "net/UpdateFormat.h"
#include "settings/HelpPages.h"
#include "site/TextChanges.h"
#include "site/UpdateText.h"
#include "tool/ToolTest.h"

namespace sonaro {
namespace {

namespace fs = std::filesystem;

constexpr const char* kHelpFolder = "/public/sonaroapp/sonaro4vf/apphelp/2/";
constexpr const char* kUpdateFolder = "/public/sonaroapp/sonaro4vf/asp/appupdate/";

// A data folder with files of its user's, and a place for each test's own.
class PublishTest : public testing::Test {
 protected:
  PublishTest() {
    fs::copy(BundledData(), Directory());
    WriteBytes(Directory() + "/favs.snr", "Jazz\t1 \r\n");
    WriteBytes(Directory() + "/Sched.snr", "Concert\tN\t8/14/2000\t1:30 PM\t\tonce\tnote\r\n");
  }

  std::string Directory() const { return place_.Path() + "/data"; }
  std::string Site() const { return place_.Path() + "/site"; }
  std::string Installation() const { return place_.Path() + "/installation"; }

  ToolRun Publish(const std::vector<std::string>& more = {}, const std::string& directory = {}) const {
    std::vector<std::string> words = {
        "publish", directory.empty() ? Directory() : directory, "--out", Site(), "--date", "2026-11-23"};
    words.insert(words.end(), more.begin(), more.end());
    return RunDirectoryTool(words);
  }

  // The update as an installation receives it.
  std::string PublishedUpdate() const {
    for (const auto& entry : fs::directory_iterator(Site() + kUpdateFolder)) {
      if (entry.path().filename().string().starts_with("update-")) return FileBytes(entry.path());
    }
    ADD_FAILURE() << "there is no update";
    return {};
  }

  UpdateContents Receive(const std::string& update, const std::string& publisherKey = {}) const {
    fs::remove_all(Installation());
    fs::create_directory(Installation());
    WriteBytes(Installation() + "/update.txt", update);
    if (!publisherKey.empty()) WriteBytes(Installation() + "/publish.key", publisherKey);
    LocalFolder folder(Installation());
    return ReadUpdateFile(folder.Data()).Finish();
  }

  ScratchFolder place_;
};

TEST_F(PublishTest, AnUpdateBringsTheSameDirectory) {
  const ToolRun run = Publish();
  ASSERT_EQ(run.status, 0) << run.err;
  const std::string update = PublishedUpdate();
  EXPECT_TRUE(update.ends_with(update::kSentinel));
  const UpdateContents contents = Receive(update);
  ASSERT_EQ(contents.status, UpdateFileStatus::Read);
  EXPECT_EQ(contents.date, "2026-11-23");
  EXPECT_EQ(contents.skippedSections, 0u);
  ASSERT_FALSE(contents.files.empty());
  EXPECT_EQ(contents.files.front().name, "Station.snr");

  std::size_t expected = 0;
  for (const auto& [name, bytes] : FolderContents(Directory())) {
    if (!name.ends_with(".snr") || name == "favs.snr" || name == "Sched.snr") continue;
    const auto file = std::find_if(contents.files.begin(), contents.files.end(),
                                   [&wanted = name](const ReceivedFile& one) { return one.name == wanted; });
    ASSERT_NE(file, contents.files.end()) << name;
    EXPECT_EQ(file->bytes, bytes) << name;
    ++expected;
  }
  EXPECT_GT(expected, 10u);
  EXPECT_EQ(contents.files.size(), expected);
}

TEST_F(PublishTest, OnlyTheOwnersSignatureCounts) {
  for (const char* keys : {"/ours", "/theirs"})
    ASSERT_EQ(RunDirectoryTool({"keygen", place_.Path() + keys}).status, 0);
  const std::string ours = FileBytes(place_.Path() + "/ours/publish.key");
  const std::string theirs = FileBytes(place_.Path() + "/theirs/publish.key");
  const std::string secret = place_.Path() + "/ours/secret.key";
  EXPECT_NE(ours, theirs);
  EXPECT_EQ(RunDirectoryTool({"keygen", place_.Path() + "/ours"}).status, 1) << "a key was overwritten";
  EXPECT_EQ(FileBytes(place_.Path() + "/ours/publish.key"), ours);
  EXPECT_EQ(fs::status(secret).permissions() & (fs::perms::group_all | fs::perms::others_all),
            fs::perms::none);

  // A public key that could not be written is made again from the secret one, and from nothing else.
  const std::string lost = place_.Path() + "/ours/publish.key";
  fs::remove(lost);
  fs::create_directories(lost + "/in the way");
  EXPECT_EQ(RunDirectoryTool({"keygen", place_.Path() + "/ours"}).status, 1);
  fs::remove_all(lost);
  EXPECT_EQ(RunDirectoryTool({"keygen", place_.Path() + "/ours"}).status, 0);
  EXPECT_EQ(FileBytes(lost), ours);
  fs::create_directories(place_.Path() + "/half");
  WriteBytes(place_.Path() + "/half/secret.key", FileBytes(secret).substr(0, 100));
  EXPECT_EQ(RunDirectoryTool({"keygen", place_.Path() + "/half"}).status, 1);

  ASSERT_EQ(Publish().status, 0);
  EXPECT_EQ(Receive(PublishedUpdate(), ours).status, UpdateFileStatus::NotSigned);
  fs::remove_all(Site());
  ASSERT_EQ(Publish({"--key", secret}).status, 0);
  std::string update = PublishedUpdate();
  const UpdateContents received = Receive(update, ours);
  EXPECT_EQ(received.status, UpdateFileStatus::Read);
  EXPECT_GT(received.serial.value_or(0), 1'700'000'000) << "it can be told from older ones";
  EXPECT_EQ(Receive(update).status, UpdateFileStatus::Read) << "nobody has to check";
  EXPECT_EQ(Receive(update, theirs).status, UpdateFileStatus::WrongSign);
  update[update.size() / 2] ^= 1;
  EXPECT_EQ(Receive(update, ours).status, UpdateFileStatus::WrongSign);
}

TEST_F(PublishTest, TellsInstallationsWhereTheServiceIs) {
  ASSERT_EQ(Publish({"--host", "radio.example"}).status, 0);
  const UpdateContents contents = Receive(PublishedUpdate());
  EXPECT_EQ(contents.refusedValues, 0u);
  std::vector<std::string> told;
  for (const ServiceValue& value : contents.values) {
    told.push_back(value.setting + std::string(" ") + value.value);
    // What is told is there.
    const std::string path = "/public" + value.value.substr(std::string("http://radio.example").size());
    EXPECT_TRUE(path.ends_with("/update.asp") || fs::exists(Site() + path)) << told.back();
  }
  EXPECT_EQ(told.size(), 4u);
  ASSERT_FALSE(told.empty());
  EXPECT_EQ(told[0], "UpdateURL http://radio.example/sonaroapp/sonaro4vf/asp/appupdate/update.asp");
}

// Every page that some window opens; each is whole, and leads nowhere else than to another one.
TEST_F(PublishTest, HasEveryPage) {
  ASSERT_EQ(Publish().status, 0);
  std::vector<std::string> pages = {"index.html", "9003.html", "9004.html", "9008.html",
                                    "9018.html",  "9019.html", "9020.html", "9042.html"};
  for (const char* key :
       {"DeletePersonalStation", "ToAddMorePersonalStationYouNeedMoreInfo",
        "ToSendCommentToFriendYouNeedMoreInfo", "ScheduleStationYourNeedToSelectAStation",
        "ScheduleStationYourNeedToSelectADate", "ChangingFacePlate", "CantFindProgram",
        "MissingDataFilesNeedToDownloadThem", "DeleteFavoriteGroup", "AlreadyHave10FavoriteGroups",
        "TheFavoriteGroupAlreadyExists", "ToSendCommentToSonaroYouNeedMoreInfo", "QuickStart"})
    pages.emplace_back(HelpPageForMessage(key));
  const std::string index = FileBytes(Site() + kHelpFolder + "index.html");
  for (const std::string& page : pages) {
    const std::string html = FileBytes(Site() + kHelpFolder + page);
    EXPECT_TRUE(html.ends_with("</html>\n")) << page;
    EXPECT_GT(html.size(), 700u) << page << " says nothing";
    EXPECT_TRUE(page == "index.html" || index.find("href=\"" + page + "\"") != std::string::npos) << page;
    for (std::size_t at = html.find("href=\""); at != std::string::npos; at = html.find("href=\"", at + 1)) {
      const std::string target = html.substr(at + 6, html.find('"', at + 6) - at - 6);
      const std::string path = target.starts_with('/') ? "/public" + target : kHelpFolder + target;
      EXPECT_TRUE(fs::exists(Site() + path)) << page << " leads to " << target;
    }
  }
  EXPECT_TRUE(fs::exists(Site() + "/public/privacy.html"));
  EXPECT_TRUE(
      FileBytes(Site() + "/public/sonaroapp/sonaro3/asp/proxy/test.asp").starts_with("cool proxy works!"));
}

// The file that the site's server leads an installation to.
std::string Lead(const std::string& config, const std::string& key) {
  const std::size_t at = config.find("\"" + key + "\" \"");
  if (at == std::string::npos) return {};
  const std::size_t from = at + key.size() + 4;
  return config.substr(from, config.find('"', from) - from);
}

// A year of weeks: each takes stations out, puts some in, and changes a few in place.
TEST_F(PublishTest, ChangesLeadFromEarlierGuidesToThisOne) {
  const std::string list = Directory() + "/Station.snr";
  const std::string category = Directory() + "/genre-pop.snr";
  std::vector<std::map<std::string, std::string>> guides;
  for (std::size_t week = 1; week <= 14; ++week) {
    std::string text = FileBytes(list);
    const std::size_t line = text.find("\r\n", text.size() * week / 16) + 2;
    text.erase(line, text.find("\r\n", line) + 2 - line);
    text.insert(text.find("\r\n", text.size() / 2) + 2,
                "-" + std::to_string(week) + "\tNew\tmusic\tNorway\tJazz\tgood\r\n");
    WriteBytes(list, text);
    WriteBytes(category, ReplaceFirst(FileBytes(category), " ", " -" + std::to_string(week) + " "));
    if (week == 14) WriteBytes(Directory() + "/genre-new.snr", "1\t\tNew\t0\t-1\r\n");
    ASSERT_EQ(Publish({"--date", "2026-01-" + std::to_string(week + 10)}).status, 0);
    const auto files = FolderContents(Directory());
    guides.emplace_back(files.begin(), files.end());
  }
  const std::string config = FileBytes(Site() + "/nginx.conf");
  EXPECT_EQ(Lead(config, "2026-01-11 4.00.2"), "") << "thirteen dates ago";
  EXPECT_EQ(Lead(config, "2026-01-23 4.00.1"), "") << "an older program cannot read changes";
  for (const std::size_t week : {2u, 13u}) {
    const std::string path = Lead(config, "2026-01-" + std::to_string(week + 10) + " 4.00.2");
    ASSERT_FALSE(path.empty()) << week;
    const std::string update = FileBytes(Site() + "/public" + path);
    EXPECT_LT(update.size(), 8000u) << week;
    UpdateContents contents = Receive(update);
    for (const auto& [name, bytes] : guides[week - 1]) {
      if (name.ends_with(".snr")) WriteBytes(Installation() + "/" + name, bytes);
    }
    LocalFolder folder(Installation());
    ASSERT_TRUE(ExpandChanges(folder.Data(), contents).Finish()) << week;
    EXPECT_EQ(contents.date, "2026-01-24");
    std::vector<std::string> names;
    for (const ReceivedFile& file : contents.files) {
      names.push_back(file.name);
      EXPECT_TRUE(file.bytes == guides.back()[file.name]) << file.name;
    }
    std::sort(names.begin(), names.end());
    EXPECT_EQ(names, (std::vector<std::string>{"Station.snr", "genre-new.snr", "genre-pop.snr"}));
  }
  // Whole updates of thirteen dates, changes from twelve, and what the last publication replaced.
  std::size_t updates = 0;
  for (const auto& entry : fs::directory_iterator(Site() + kUpdateFolder))
    if (entry.path().filename().string().starts_with("update-")) ++updates;
  EXPECT_EQ(updates, 13u + 12u + 12u + 1u);
}

// Any two texts: what the steps make of the one is the other.
TEST(TextChanges, LeadFromOneTextToTheOther) {
  std::mt19937 random(7);
  const auto number = [&random](int below) {
    return static_cast<int>(random() % static_cast<unsigned>(below));
  };
  const std::string kPieces[] = {"a", " ", "\t", "\r\n", "\n", "\r", "\\", "word ", "-123 ", "\\n"};
  for (int round = 0; round < 2000; ++round) {
    std::string before;
    for (int i = number(60); i > 0; --i) before += kPieces[number(std::size(kPieces))];
    std::string after = before;
    for (int i = number(5); i > 0; --i) {
      const std::size_t at = static_cast<std::size_t>(number(static_cast<int>(after.size()) + 1));
      if (number(2) != 0) after.erase(at, static_cast<std::size_t>(number(9)));
      if (number(2) != 0) after.insert(at, kPieces[number(std::size(kPieces))]);
    }
    EXPECT_EQ(ApplySteps(before, StepsBetween(before, after), 1000), after) << before;
  }
}

struct SectionCase {
  std::string bytes;
  bool fits;
};

TEST(UpdateText, CarriesLinesOnly) {
  const std::string end = "cat.SNR" + std::string(update::kSectionEnd);
  const SectionCase kCases[] = {{"", true},
                                {"a\r\nb\r\n", true},
                                {"a\r\n\r\nb\r\n", false},
                                {"\r\n", false},
                                {"a\nb\n", false},
                                {"a\r\nb", false},
                                {"a\r\n" + end + "\r\n", false},
                                {"a\r\nx" + end + "\r\n", true}};
  for (const SectionCase& one : kCases) EXPECT_EQ(FitsInSection("cat.snr", one.bytes), one.fits) << one.bytes;
}

TEST_F(PublishTest, SaysWhatItCannotPublish) {
  WriteBytes(place_.Path() + "/bad.key", "12ab\n");
  const std::string empty = place_.Path() + "/empty";
  const std::string hollow = place_.Path() + "/hollow";
  fs::create_directory(empty);
  fs::create_directory(hollow);
  WriteBytes(hollow + "/Station.snr", "no station\r\n");
  const std::string unfinished = place_.Path() + "/unfinished";
  fs::copy(Directory(), unfinished);
  WriteBytes(unfinished + "/unfinished.snr", "of two directories\r\n");
  const struct {
    ToolRun run;
    int status;
    std::string sentence;
  } kCases[] = {
      {Publish({"--key", place_.Path() + "/bad.key"}), 1, "The key is not"},
      {Publish({"--key", place_.Path() + "/none.key"}), 1, "The key \""},
      {Publish({}, empty), 1, "\""},
      {Publish({}, hollow), 1, "\"Station.snr\" holds no station."},
      {Publish({}, empty + "/none"), 1, "There is no folder"},
      {Publish({}, unfinished), 1, "\"" + unfinished + "\" is unfinished; run make again."},
      {Publish({"--date", "31/31/2026"}), 2, "--date is a date"},
      {Publish({"--host", "a b"}), 2, "--host is"},
      {Publish({"--listen", "80;"}), 2, "--listen is"},
      {Publish({"--listen", "70000"}), 2, "--listen is"},
      {Publish({"second"}), 2, "publish takes one"},
  };
  for (const auto& one : kCases) {
    EXPECT_EQ(one.run.status, one.status) << one.sentence;
    EXPECT_TRUE(one.run.err.starts_with(one.sentence)) << one.run.err;
  }
  EXPECT_FALSE(fs::exists(Site() + "/nginx.conf"));
}

}  // namespace
}  // namespace sonaro
