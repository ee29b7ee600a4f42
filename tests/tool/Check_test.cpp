#include <gtest/gtest.h>

#include <functional>

#include "base/Text.h"
#include "commands/LocalFolder.h"
#include "directory/StatList.h"
#include "tool/ToolTest.h"

namespace sonaro {
namespace {

// A whole data folder, with files of the user's own.
class CheckTest : public testing::Test {
 protected:
  CheckTest() {
    const std::string folder = Folder();
    std::filesystem::copy(BundledData(), folder);
    WriteBytes(folder + "/personal.snr", "1\tMine\tmhttp://a.example/\t\t\t\t\t\r\n");
    WriteBytes(folder + "/favs.snr", "Jazz\t" + id_ + " P1 \r\nEmpty\t\r\n");
    WriteBytes(folder + "/recent.snr", "P1 " + id_ + "\r\n");
    WriteBytes(folder + "/Sched.snr", "Concert\tN\t8/14/2000\t1:30 PM\t\tonce\tnote\r\n");
    WriteBytes(folder + "/Shows.snr", "12XMorning show\r\n");
    std::filesystem::create_directory(folder + "/Depot");
    WriteBytes(folder + "/Depot/sshape.pts", "fdf01=000000000000100000000010000100\r\n");
  }

  std::string Folder() const { return copy_.Path() + "/data"; }

  const std::string id_ = StationRows(BundledData())[0][0];
  ScratchFolder copy_;
};

TEST_F(CheckTest, FindsNothingInAWholeFolder) {
  const ToolRun run = RunDirectoryTool({"check", Folder()});
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(run.out, Folder() + " is whole.\n");
}

struct Damage {
  const char* file;
  std::function<void(std::string&)> change;  // null: the file is removed
  const char* finding;                       // what the answer must begin a line with
};

std::function<void(std::string&)> Replacing(std::string from, std::string to) {
  return [=](std::string& text) {
    const std::size_t at = text.find(from);
    ASSERT_NE(at, std::string::npos) << from;
    text.replace(at, from.size(), to);
  };
}

std::function<void(std::string&)> Appending(std::string line) {
  return [=](std::string& text) { text += line; };
}

std::function<void(std::string&)> AtStart(std::string inserted) {
  return [=](std::string& text) { text.insert(0, inserted); };
}

std::function<void(std::string&)> AfterFirstTab(std::string inserted) {
  return [=](std::string& text) { text.insert(text.find('\t') + 1, inserted); };
}

void FlipMiddle(std::string& text) { text[text.size() / 2] = static_cast<char>(text[text.size() / 2] ^ 4); }

const Damage kDamages[] = {
    {"Station.snr", nullptr, "Station.snr: is missing"},
    {"Station.snr", Replacing("\t", ""), "Station.snr:1: the line has 16 columns, not 17"},
    {"Station.snr", AtStart("x"), "Station.snr:1: \"x"},
    {"Station.snr", AfterFirstTab("\x01"), "Station.snr:1: field 1 holds a control character"},
    {"Station.snr", AfterFirstTab("\xFF"), "Station.snr:1: field 1 is not valid UTF-8"},
    {"Station.snr", [](std::string& text) { text += text.substr(0, text.find('\n') + 1); },
     "Station.snr:128: station "},
    {"Station.snr", [](std::string& text) { text.erase(0, text.find('\n') + 1); },
     "Statorg.isd: holds 127 stations, the station list 126"},
    {"Station.snr", AfterFirstTab("x"), "Statorg.isd: station "},
    {"Station.snr", [](std::string& text) { text.replace(text.find('\r') - 1, 1, "7"); },
     "Station.snr:1: the reliability is not 0 to 4"},
    {"statorg.isd", nullptr, "Statorg.isd: is missing"},
    {"statorg.ism", nullptr, "Statorg.ism: is missing"},
    {"statorg.isd", FlipMiddle, "Statorg.isd: the station table is damaged"},
    {"statorg.ism", FlipMiddle, "Statorg.isd: the station table is damaged"},
    {"Eventorg.isd", [](std::string& text) { text[0] = 'x'; }, "Eventorg.isd: the event table is damaged"},
    {"Eventorg2.ism", nullptr, "Eventorg2.isd: the event table is damaged"},
    {"cat.snr", nullptr, "cat.snr: is missing"},
    {"cat.snr", Replacing("genre-jazz\t", "genre-jazz "), "cat.snr:"},
    {"cat.snr", Replacing("j\tJazz", "jj\tJazz"), "cat.snr:"},
    {"cat.snr", Replacing("Gj-", "Mj-"), "cat.snr:"},
    {"cat.snr", Replacing("Gj-", "Ld-"), "catloc.snr:"},
    {"cat.snr", Replacing("j\tJazz\tgenre-jazz", "j\tJazz\tgenre-none"),
     "genre-jazz.snr: no category names this list"},
    {"genre-jazz.snr", nullptr, "cat.snr:"},
    {"genre-jazz.snr", Replacing("\t0\t", "\t7\t"),
     "genre-jazz.snr:1: the parent 7 does not stand before the entry"},
    {"genre-jazz.snr", Replacing("\t0\t", "\tx\t"), "genre-jazz.snr:1: the parent's code \"x\" is no number"},
    {"genre-jazz.snr", Replacing("\t0\t", "\t0\t5 "),
     "genre-jazz.snr:1: station 5 is not in the station list"},
    {"genre-jazz.snr", Replacing("\t0\t", " 0\t"), "genre-jazz.snr:1: the line has less than four tabs"},
    {"genre-jazz.snr", Appending("1\t0\tAgain\t0\t\r\n"), "genre-jazz.snr:"},
    {"fun.snr", nullptr, "fun.snr: is missing"},
    {"fun.snr", Replacing("Best Sound", "Best Smell"), "fun.snr: the ranking \"best sound\" is missing"},
    {"fun.snr", Replacing("Best Sound\t", "Best Sound\tx "), "fun.snr:5: \"x\" is no station identifier"},
    {"fun.snr", Appending("most pop\t\r\n"), "fun.snr:8: \"most pop\" stands there twice"},
    {"reliable.snr", Appending("99\r\n"), "reliable.snr:2: station 99 is not in the station list"},
    {"searchst.snr", Replacing("FindStation", "FindStatoin"), "searchst.snr: no kind searches the stations"},
    {"searchst.snr", Replacing("<<SearchWord>>", ""), "searchst.snr:2: the search has no address"},
    {"searchst.snr",
     Appending(
         "A\tB\thttp://x/<<SearchWord>>\nA\tB\thttp://x/<<SearchWord>>\nA\tB\thttp://x/<<SearchWord>>\n"),
     "searchst.snr:7: there are more than six kinds"},
    {"favs.snr", Appending("jazz\t\r\n"), "favs.snr:3: there is a group of this name already"},
    {"favs.snr", Appending("Other\tP2 \r\n"), "favs.snr:3: station P2 does not exist"},
    {"favs.snr", Appending("no tab\r\n"), "favs.snr:3: the line has no tab"},
    {"recent.snr", Replacing("P1", "Q1"), "recent.snr:1: \"Q1\" is no station"},
    {"Sched.snr", Replacing("\tonce", "\tsometimes"), "Sched.snr:1: \"sometimes\" is no kind of repetition"},
    {"Sched.snr", Appending("Short\t\r\n"), "Sched.snr:2: the line has less than six tabs"},
    {"Shows.snr", Replacing("X", "x"), "Shows.snr:1: the show has no name"},
    {"personal.snr", Appending("1\tTwice\t\r\n"), "personal.snr:2: the index 1 stands there twice"},
    {"Depot/sshape.pts", Replacing("=", "-="), "Depot\\sshape.pts:1: the line does not begin with a key"},
    {"Depot/sshape.pts", Replacing("=000", "=0x0"), "Depot\\sshape.pts:1: the points are not groups"},
    {"unfinished.snr", Appending("x"), "unfinished.snr: make was cut short here"},
    {"alphabet.snr", Appending("abc\nabc\n"), "alphabet.snr: is not two lines"},
};

TEST_F(CheckTest, FindsEveryDamage) {
  for (const Damage& damage : kDamages) {
    const std::string path = Folder() + "/" + damage.file;
    const bool existed = std::filesystem::exists(path);
    const std::string before = FileBytes(path);
    if (damage.change) {
      std::string text = before;
      damage.change(text);
      WriteBytes(path, text);
    } else {
      ASSERT_TRUE(std::filesystem::remove(path)) << damage.file;
    }
    const ToolRun run = RunDirectoryTool({"check", Folder()});
    EXPECT_EQ(run.status, 1) << damage.file << ": " << damage.finding;
    EXPECT_NE(("\n" + run.out).find(std::string("\n") + damage.finding), std::string::npos)
        << damage.file << ": " << damage.finding << "\n"
        << run.out;
    if (existed) {
      WriteBytes(path, before);
    } else {
      std::filesystem::remove(path);
    }
  }
  EXPECT_EQ(RunDirectoryTool({"check", Folder()}).status, 0);
}

// A table made of the list is what the check expects of it, whatever is odd about the list's identifiers.
TEST_F(CheckTest, ReadsTheListAsTheProgramDoes) {
  const std::string list = FileBytes(Folder() + "/Station.snr");
  const std::string first = list.substr(0, list.find('\n') + 1);
  std::string again = first;
  again.insert(again.find('\t') + 1, "Renamed ");
  WriteBytes(Folder() + "/Station.snr",
             "\xEF\xBB\xBF" + list + again + "-5" + first.substr(first.find('\t')));
  LocalFolder folder(Folder());
  ASSERT_TRUE(StatList(folder.Data()).RebuildStationTable());
  const ToolRun run = RunDirectoryTool({"check", Folder()});
  EXPECT_EQ(run.out, "Station.snr:128: station " + id_ + " stands there twice; this line counts\n");
}

TEST_F(CheckTest, CountsWhatItDoesNotList) {
  std::string text = FileBytes(Folder() + "/Station.snr");
  for (std::size_t at = text.find('\t'); at != std::string::npos; at = text.find('\t', at + 1))
    text[at] = ' ';
  WriteBytes(Folder() + "/Station.snr", text);
  const ToolRun run = RunDirectoryTool({"check", Folder()});
  EXPECT_EQ(run.status, 1);
  EXPECT_NE(run.out.find("Station.snr: and "), std::string::npos);
  EXPECT_LT(std::count(run.out.begin(), run.out.end(), '\n'), 1000);
}

}  // namespace
}  // namespace sonaro
