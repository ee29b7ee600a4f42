// The schedule's file and table, personal shows, and how items read.
#include <gtest/gtest.h>

#include "base/DataFolder.h"
#include "base/Text.h"
#include "fakes/FakeFiles.h"
#include "fakes/FakeMessageBox.h"
#include "fakes/FakeStrings.h"
#include "schedule/PersonalShows.h"
#include "schedule/ScheduleCalendar.h"
#include "schedule/ScheduleStore.h"
#include "schedule/ScheduleWords.h"

namespace sonaro {
namespace {

const Date kToday{2000, 8, 16};

class ScheduleFile : public testing::Test {
 protected:
  void SetUp() override { files_.MakeFolder("data"); }
  void Load(std::string_view text, const Date& today = kToday) {
    files_.Put("data/Sched.snr", text);
    store_.LoadSchedule(today);
  }
  auto Aside() { return files_.Get("data/Sched.old"); }
  std::string Saved() {
    EXPECT_TRUE(store_.SaveSchedule());
    return files_.Get("data/Sched.snr").value_or("(none)");
  }

  FakeFiles files_;
  DataFolder data_{files_, "data", '/'};
  ScheduleStore store_{data_, "d/M/yyyy"};
};

TEST_F(ScheduleFile, FieldsStandInTheLinesOwnOrderAndComeBackByteForByte) {
  const std::string line = "Jazz Hour\tNS1204\t8/17/2000\t8:05 PM\tThursday\tonce\tnote\twith a tab\r\n";
  Load(line);
  const ScheduleFields& item = store_.Item(0).fields;
  EXPECT_EQ(item.name, "Jazz Hour");
  EXPECT_EQ(item.action, "NS1204");
  EXPECT_EQ(item.date, "8/17/2000");
  EXPECT_EQ(item.time, "8:05 PM");
  EXPECT_EQ(item.weekday, "Thursday");
  EXPECT_EQ(item.kind, "once");
  EXPECT_EQ(item.note, "note\twith a tab");
  EXPECT_EQ(Saved(), line);
  const std::string unreadable = "Show>>>>>>\t?\tsoon\tnever\tthursdays\tWEEKLY\t\v\r\n";
  Load(unreadable);
  EXPECT_EQ(store_.Item(0).kind, ScheduleKind::Weekly);
  EXPECT_FALSE(store_.Item(0).time || store_.Item(0).date || store_.Item(0).weekday);
  EXPECT_EQ(Saved(), unreadable);
}

TEST_F(ScheduleFile, WhatTheTableDoesNotTakeOverGoesAside) {
  Load("no tabs at all\r\nShort\tN\t8/14/2000\r\n\r\nBare\tN\t\r\nFull\tN\t\t1:00 PM\t\tdaily\t\n");
  EXPECT_TRUE(store_.Item(0).Free());
  EXPECT_EQ(store_.Item(1).fields,
            (ScheduleFields{.name = "Short", .action = "N"}));  // no tab stands behind the date
  EXPECT_TRUE(store_.Item(2).Free());
  EXPECT_EQ(store_.Item(3).fields.name, "Bare");
  EXPECT_EQ(store_.Item(4).fields.name, "Full");
  EXPECT_EQ(store_.FirstFreeSlot(), 0u);
  EXPECT_FALSE(Aside());
  const std::string saved = "Short\tN\t\t\t\t\t\r\nBare\tN\t\t\t\t\t\r\nFull\tN\t\t1:00 PM\t\tdaily\t\r\n";
  EXPECT_EQ(Saved(), saved);
  EXPECT_EQ(Aside(), "no tabs at all\r\nShort\tN\t8/14/2000\r\n");
  Load(saved);
  EXPECT_EQ(Saved(), saved);
  EXPECT_EQ(Aside(), "no tabs at all\r\nShort\tN\t8/14/2000\r\n");
}

TEST_F(ScheduleFile, AnItemThatAClockAheadDroppedComesBack) {
  const std::string concert = "Concert\tN\t8/20/2000\t8:00 PM\t\tonce\t\r\n";
  const std::string past = "Past\tN\t8/1/2000\t8:00 PM\t\tonce\t\r\n";
  const Date ahead{2001, 8, 16};
  Load(past + concert, ahead);
  store_.SetItem(store_.FirstFreeSlot(), {.name = "new", .kind = "daily"});
  EXPECT_EQ(Saved(), "new\t\t\t\t\tdaily\t\r\n");
  EXPECT_FALSE(store_.BringBack(ahead));
  EXPECT_EQ(Aside(), past + concert);

  store_.LoadSchedule(kToday);  // the clock was put right before the next start
  EXPECT_EQ(Saved(), "new\t\t\t\t\tdaily\t\r\n" + concert);
  EXPECT_EQ(Aside(), past);

  Load(concert, ahead);  // and before the program is closed
  EXPECT_TRUE(store_.Item(0).Free());
  EXPECT_TRUE(store_.BringBack(kToday));
  EXPECT_FALSE(store_.BringBack(kToday));
  EXPECT_EQ(Saved(), concert);
}

TEST_F(ScheduleFile, WithoutAPlaceForWhatItDropsTheScheduleIsNotSaved) {
  const std::string past = "Past\tN\t8/1/2000\t8:00 PM\t\tonce\t\r\n";
  files_.Put("data/Sched.old", "older\r\n");
  files_.Lock("data/Sched.old");
  Load(past);
  EXPECT_EQ(data_.TakeNotes().size(), 1U);
  EXPECT_FALSE(store_.SetItem(0, {.name = "new"}));
  EXPECT_EQ(files_.Get("data/Sched.snr"), past);
  files_.Unlock("data/Sched.old");
  EXPECT_TRUE(store_.SetItem(0, {.name = "new"}));
  EXPECT_EQ(files_.Get("data/Sched.snr"), "new\t\t\t\t\t\t\r\n");
  EXPECT_EQ(Aside(), past + "older\r\n");
}

// Dropped by a clock ahead, brought back, and dropped again: the line is in one of the two files all the
// time.
TEST(ScheduleCrash, NoLineIsEverInNeitherFile) {
  const std::string concert = "Concert\tN\t8/20/2000\t8:00 PM\t\tonce\t\r\n";
  const auto save = [](FakeFiles& files, const Date& today) {
    DataFolder data(files, "data", '/');
    ScheduleStore store(data, "");
    store.LoadSchedule(today);
    return store.SaveSchedule();
  };
  const auto holds = [&](const FakeFiles& files, const char* path) {
    return files.Get(path).value_or("").find(concert) != std::string::npos;
  };
  ForEachCrashPoint([&](FakeFiles& files) { files.Put("data/Sched.snr", concert); },
                    [&](FakeFiles& files) {
                      for (const int year : {2001, 2000, 2002}) {
                        if (!save(files, {year, 8, 16})) return;
                      }
                    },
                    [&](FakeFiles& files, const CrashPoint& point) {
                      EXPECT_TRUE(holds(files, "data/Sched.snr") || holds(files, "data/Sched.old"))
                          << point.operation;
                      EXPECT_TRUE(save(files, kToday));
                      EXPECT_EQ(files.Get("data/Sched.snr"), concert) << point.operation;
                      EXPECT_FALSE(holds(files, "data/Sched.old")) << point.operation;
                    });
}

TEST_F(ScheduleFile, OnceItemsExpireMoreThanTwoDaysAfterTheirDay) {
  const auto kept = [&](const std::string& date, const std::string& kind) {
    Load("x\tN\t" + date + "\t1:00 PM\tMonday\t" + kind + "\t\r\n");
    return !store_.Item(0).Free();
  };
  EXPECT_TRUE(kept("8/14/2000", "once"));
  EXPECT_FALSE(kept("8/13/2000", "ONCE"));
  EXPECT_FALSE(kept("2000-08-13", "once"));
  EXPECT_TRUE(kept("some day", "once"));
  EXPECT_TRUE(kept("2/30/2000", "once"));
  EXPECT_TRUE(kept("1/1/1990", "weekly"));
  kept("8/13/2000", "once");
  EXPECT_EQ(Saved(), "");
}

TEST_F(ScheduleFile, TheTableGrowsWhenALineNeedsItAndFreeSlotsAreUsedFirst) {
  std::string text;
  for (int i = 0; i < 101; ++i) text += "x\tN\t\t1:00 PM\t\tdaily\t\r\n";
  Load(text);
  EXPECT_EQ(store_.SlotCount(), 101u);
  EXPECT_EQ(store_.FirstFreeSlot(), 101u);
  Load(text + "x\tN\t\t1:00 PM\t\tdaily\t\r\n");
  EXPECT_EQ(store_.SlotCount(), 122u);
  store_.FreeSlot(7);
  EXPECT_EQ(store_.FirstFreeSlot(), 7u);
}

TEST_F(ScheduleFile, WhatTheUserTypedCannotBreakTheLine) {
  ScheduleFields item;
  item.name = "two\r\nlines\tand a tab";
  item.note = "first\r\nsecond";
  store_.SetItem(0, item);
  Saved();
  store_.LoadSchedule(kToday);
  EXPECT_EQ(store_.Item(0).fields.name, "two  lines and a tab");
  EXPECT_TRUE(store_.Item(1).Free());
}

TEST_F(ScheduleFile, AChangeIsRefusedWhileTheFileCannotBeReadOrWrittenAndKeepsAllOfItAfterwards) {
  const std::string mine = "mine\tN\t\t1:00 PM\t\tdaily\t\r\n";
  files_.Put("data/Sched.snr", mine);
  files_.Lock("data/Sched.snr");
  store_.LoadSchedule(kToday);
  EXPECT_FALSE(store_.SetItem(0, {.name = "new"}));
  EXPECT_FALSE(store_.LoadUnread());
  EXPECT_TRUE(store_.Item(0).Free());
  files_.Unlock("data/Sched.snr");
  EXPECT_TRUE(store_.SetItem(0, {.name = "new"})) << "read again before the first change";
  EXPECT_EQ(store_.Item(0).fields.name, "mine");
  EXPECT_EQ(store_.Item(1).fields.name, "new");
  const std::string both = mine + "new\t\t\t\t\t\t\r\n";
  EXPECT_EQ(files_.Get("data/Sched.snr"), both);

  files_.SetSpaceLeft(5);
  EXPECT_FALSE(store_.FreeSlot(0));
  EXPECT_FALSE(store_.SetItem(1, {.name = "newer"}));
  EXPECT_EQ(store_.Item(0).fields.name + store_.Item(1).fields.name, "minenew")
      << "what is shown is what is on disk";
  EXPECT_EQ(files_.Get("data/Sched.snr"), both);
}

TEST_F(ScheduleFile, TwoSessionsOnOneFolderKeepTheItemsOfBoth) {
  Load("a\tN\t\t1:00 PM\t\tdaily\t\r\nb\tN\t\t1:00 PM\t\tdaily\t\r\nc\tN\t\t1:00 PM\t\tdaily\t\r\n");
  ScheduleStore other(data_, "");
  other.LoadSchedule(kToday);
  EXPECT_TRUE(other.FreeSlot(0));
  EXPECT_TRUE(other.SetItem(other.FirstFreeSlot(), {.name = "theirs"}));
  EXPECT_TRUE(store_.SetItem(2, {.name = "changed"}));  // "c", which stands elsewhere now
  EXPECT_TRUE(store_.SetItem(store_.FirstFreeSlot(), {.name = "mine"}));
  EXPECT_TRUE(other.FreeSlot(1));
  EXPECT_TRUE(store_.SetItem(1, {.name = "kept"}));
  std::string names;
  other.LoadSchedule(kToday);
  for (std::size_t slot = 0; slot < 6; ++slot) names += other.Item(slot).fields.name + " ";
  EXPECT_EQ(names, "theirs changed mine kept   ");
}

TEST(ScheduleKinds, DayFlagsAreReadAndWrittenWithTheirOwnThursday) {
  const DayFlags mondayAndThursday{true, false, false, true, false, false, false};
  const std::string kind = "daily|Mon=-1|Tue=0|Wed=0|Thr=-1|Fri=0|Sat=0|Sun=0|";
  EXPECT_EQ(DailyKind(mondayAndThursday), kind);
  EXPECT_EQ(DaysOf(kind), mondayAndThursday);
  EXPECT_EQ(DaysOf("daily|Thu=-1|"), DayFlags{});
  EXPECT_EQ(DaysOf("Daily"), (DayFlags{true, true, true, true, true, true, true}));
  EXPECT_EQ(DailyKind(DaysOf("daily")), "daily");
  EXPECT_EQ(KindOf("DAILYish"), ScheduleKind::Daily);
  EXPECT_EQ(KindOf("week"), ScheduleKind::Unknown);
}

TEST(ScheduleNames, SixMarksSeparateTheAddress) {
  EXPECT_EQ(SplitItemName("A>>>>>>x.example").Address(), "http://x.example");
  EXPECT_EQ(SplitItemName("A>>>>>>https://x.example").Address(), "https://x.example");
  EXPECT_EQ(SplitItemName("A>>>>>x.example").Address(), "");
  EXPECT_EQ(SplitItemName("A>>>>>B>>>>>>x.example").Address(), "http://x.example");
  EXPECT_EQ(SplitItemName("A>>>>>>").Address(), "");
}

TEST(ScheduleNames, EventsSplitAtTheFirstOfEachMark) {
  const ItemName event = SplitItemName("Finale|||Z|||Radio|||Z|||Two>>>>>>www.x.example>>>>>>y");
  EXPECT_EQ(event.name + "+" + event.station, "Finale+Radio|||Z|||Two");
  EXPECT_EQ(event.webSite, "www.x.example>>>>>>y");
  EXPECT_EQ(SplitItemName("Plain").name, "Plain");
  EXPECT_EQ(JoinItemName(SplitItemName("A|||Z|||B>>>>>>c")), "A|||Z|||B>>>>>>c");
}

TEST(ScheduleTexts, NoticesAndListTexts) {
  const ScheduleWords words;
  const ScheduleTexts texts(words, ClockStyle::Hours24);
  const auto item = [](std::string kind) {
    ScheduleFields made;
    made.date = "8/14/2000";
    made.time = "20:05";
    made.weekday = "Thursday";
    made.kind = std::move(kind);
    return ScheduleItem(made, "");
  };
  EXPECT_EQ(texts.Notice(item("once")), "your August 14  8:05 PM");
  EXPECT_EQ(texts.Notice(item("daily|Mon=-1|")), "your daily 8:05 PM");
  EXPECT_EQ(texts.Notice(item("weekly")), "your weekly Thursday 8:05 PM");
  EXPECT_EQ(texts.Notice(item("live")), std::to_string(IDS_SCHED_NOTICE_EVENT));
  EXPECT_EQ(texts.HowOften(item("daily")), "every day at 20:05");
  EXPECT_EQ(texts.HowOften(item("daily|Mon=-1|Tue=0|Thr=-1|")), "every Mon, Thr at 20:05");
  EXPECT_EQ(texts.HowOften(item("weekly")), "every Thursday at 20:05");
  EXPECT_EQ(texts.HowOften(item("once")), "at 20:05 on 8/14/2000");
  EXPECT_EQ(texts.Action(ScheduleItem({.action = "Wx"}, "")), std::to_string(IDS_SCHED_ACTION_WEB));
  EXPECT_EQ(texts.Action(ScheduleItem()), std::to_string(IDS_SCHED_ACTION_NOTIFY));
}

TEST(PersonalShowList, AddsOnceRemovesByTheIdentifyingPartAndTellsTheUser) {
  FakeFiles files;
  files.MakeFolder("data");
  DataFolder data(files, "data", '/');
  FakeMessageBox box;
  FakeStrings strings;
  PersonalShows shows(data, box, strings);
  shows.AddPersonalShow("12XEvening Show");
  shows.AddPersonalShow("12XRenamed Show");
  shows.AddPersonalShow("7XMorning\nX Ray");
  EXPECT_EQ(files.Get("data/Shows.snr"), "12XEvening Show\r\n7XMorning X Ray\r\n");
  EXPECT_EQ(shows.ReadPersonalShows(), "12XEvening Show\r\n7XMorning X Ray");
  EXPECT_EQ(PersonalShows::DisplayName("7XMorning X Ray"), "Morning X Ray");
  shows.RemovePersonalShow("12Xwhatever");
  EXPECT_EQ(files.Get("data/Shows.snr"), "7XMorning X Ray\r\n");
  EXPECT_EQ(box.asked.size(), 4U);
  for (const bool locked : {true, false}) {
    if (locked) files.Lock("data/Shows.snr");
    files.SetSpaceLeft(3);
    shows.AddPersonalShow("8XNews");
    if (locked) shows.RemovePersonalShow("7X");
    files.Unlock("data/Shows.snr");
    EXPECT_EQ(files.Get("data/Shows.snr"), "7XMorning X Ray\r\n");
  }
  ASSERT_EQ(box.asked.size(), 7U);
  for (std::size_t said = 4; said < 7; ++said) EXPECT_EQ(box.asked[said].key, "NotSaved") << said;
  files.SetSpaceLeft(std::nullopt);
  shows.WritePersonalShows("a\r\nb\r\nnot written");
  EXPECT_EQ(files.Get("data/Shows.snr"), "a\r\nb\r\n");
}

}  // namespace
}  // namespace sonaro
