// The calendar file that the schedule is exported to.
#include <gtest/gtest.h>

#include <set>

#include "base/DataFolder.h"
#include "base/Text.h"
#include "fakes/FakeFiles.h"
#include "schedule/ScheduleStore.h"
#include "schedule/ScheduleWords.h"

namespace sonaro {
namespace {

const Date kExportedOn{2000, 8, 16};

class Calendar : public testing::Test {
 protected:
  std::string Export(const Date& today = kExportedOn) {
    return ExportCalendar(store, today, {{2000, 8, 16}, {10, 0, 0}},
                          ScheduleTexts(words, ClockStyle::Hours24));
  }
  // The identities of the entries, in their order.
  std::vector<std::string> Identities(const Date& today = kExportedOn) {
    std::vector<std::string> found;
    const std::string file = Export(today);
    for (std::string_view line : SplitLines(file)) {
      if (line.starts_with("UID:")) found.emplace_back(line);
    }
    return found;
  }

  FakeFiles files;
  DataFolder data{files, "", '/'};
  ScheduleStore store{data, ""};
  ScheduleWords words;
};

TEST_F(Calendar, AnEntryKeepsItsIdentity) {
  const ScheduleFields news{.name = "News", .time = "7:15", .kind = "daily"};
  store.SetItem(0, {.name = "Gala", .date = "8/20/2000", .time = "7:15", .kind = "once"});
  store.SetItem(1, news);
  store.SetItem(2, news);
  store.SetItem(3, {.name = "News", .time = "7:15", .weekday = "Monday", .kind = "weekly"});
  const std::vector<std::string> before = Identities();
  ASSERT_EQ(before.size(), 4u);
  EXPECT_EQ(std::set<std::string>(before.begin(), before.end()).size(), 4u);
  store.FreeSlot(0);
  store.SetItem(3, {.name = "News", .time = "7:15", .weekday = "Monday", .kind = "weekly", .note = "tea"});
  EXPECT_EQ(Identities({2000, 8, 17}), std::vector<std::string>(before.begin() + 1, before.end()));
}

TEST_F(Calendar, NothingInAnItemAddsALine) {
  store.SetItem(0, {.name = "A>>>>>>x.example/\r\nATTENDEE:mailto:y\vz", .time = "7:15", .kind = "daily"});
  EXPECT_EQ(Export().find("\r\nATTENDEE"), std::string::npos);
  EXPECT_EQ(Export().find('\v'), std::string::npos);
}

TEST_F(Calendar, EntriesFollowTheFormat) {
  store.SetItem(0, {.name = "Finale|||Z|||Radio; One>>>>>>http://x.example/a,b",
                    .date = "12/24/2000",
                    .time = "6:00 PM",
                    .kind = "once",
                    .note = std::string(80, 'n') + "\xC3\xA9"});
  store.SetItem(1, {.name = "News", .time = "7:15", .kind = "daily|Mon=-1|Fri=-1|"});
  store.SetItem(2, {.name = "never", .time = "soon", .kind = "daily"});
  const std::string file = Export();
  for (const char* line :
       {"BEGIN:VCALENDAR\r\n", "DTSTART:20001224T180000\r\n", "SUMMARY:Finale on Radio\\; One\r\n",
        "URL:http://x.example/a,b\r\n", "DTSTART:20000818T071500\r\n", "RRULE:FREQ=WEEKLY;BYDAY=MO,FR\r\n",
        "DTSTAMP:20000816T100000Z\r\n", "END:VCALENDAR\r\n"}) {
    EXPECT_NE(file.find(line), std::string::npos) << line;
  }
  EXPECT_EQ(file.find("never"), std::string::npos);
  std::size_t start = 0;
  for (std::size_t end; (end = file.find("\r\n", start)) != std::string::npos; start = end + 2) {
    EXPECT_LE(end - start, 75u);
  }
}

}  // namespace
}  // namespace sonaro
