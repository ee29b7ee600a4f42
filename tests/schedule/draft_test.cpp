// What the schedule's dialogs and the notification work with.
#include <gtest/gtest.h>

#include "base/DataFolder.h"
#include "directory/EvList.h"
#include "directory/Scrambling.h"
#include "directory/StatList.h"
#include "fakes/FakeFiles.h"
#include "fakes/FakeStrings.h"
#include "schedule/EventDiary.h"
#include "schedule/Notification.h"
#include "schedule/ScheduleDraft.h"
#include "schedule/ScheduleList.h"
#include "schedule/ScheduleStore.h"
#include "schedule/SimulatedClock.h"
#include "stations/ExtraLinks.h"
#include "stations/PersonalStations.h"

namespace sonaro {
namespace {

SimulatedClock TwoHoursEast() {
  return SimulatedClock({{2000, 8, 16}, {21, 30, 0}}, [](std::int64_t) { return std::int64_t{7200}; });
}

TEST(Draft, EveryTimeOfDayGoesThroughTheBoxesAndBack) {
  for (ClockStyle style : {ClockStyle::Hours12, ClockStyle::Hours24}) {
    for (int hour = 0; hour < 24; ++hour) {
      const TimeOfDay time{hour, 7, 0};
      const TimeChoice choice = ChoiceOf(time, style);
      EXPECT_EQ(TimeOfChoice(choice, style), time);
      ScheduleDraft draft;
      draft.name.name = "x";
      draft.kind = ScheduleKind::Daily;
      draft.time = time;
      const std::string label = HourChoices(style)[static_cast<std::size_t>(choice.hour)];
      const std::string half = style == ClockStyle::Hours24 ? "" : choice.half == 0 ? " PM" : " AM";
      EXPECT_EQ(draft.ToFields(style, "").time, label + ":" + MinuteChoices()[7] + half);
    }
  }
}

TEST(Draft, FaultsComeInOrder) {
  ScheduleDraft draft;
  EXPECT_EQ(draft.Fault(""), DraftFault::NoStation);
  draft.name.name = "Radio";
  EXPECT_EQ(draft.Fault(""), DraftFault::NoDate);
  draft.dateText = "2/30/2001";
  EXPECT_EQ(draft.Fault(""), DraftFault::NoDate);
  draft.dateText = "December 24 2026 (Thursday)";
  EXPECT_EQ(draft.Fault(""), DraftFault::None);
  draft.kind = ScheduleKind::Daily;
  draft.days = {};
  EXPECT_EQ(draft.Fault(""), DraftFault::NoDay);
}

TEST(Draft, ItemsComeBackAsTheyWereEntered) {
  ScheduleDraft draft =
      ScheduleDraft::ForStation(StationKey::OfGuide(1204), "Radio", {{2000, 12, 31}, {23, 10, 0}});
  EXPECT_EQ(draft.dateText, "January 1 2001 (Monday)");
  draft.note = "first\r\nsecond";
  draft.openWebSite = true;
  const ScheduleFields once = draft.ToFields(ClockStyle::Hours12, "");
  EXPECT_EQ(once, (ScheduleFields{"Radio", "1/1/2001", "12:00 AM", "", "once", "first\vsecond", "WS1204"}));
  const ScheduleDraft back = ScheduleDraft::FromItem(ScheduleItem(once, ""));
  EXPECT_EQ(back.ToFields(ClockStyle::Hours12, ""), once);
  EXPECT_EQ(back.note, draft.note);

  draft.kind = ScheduleKind::Daily;
  draft.days = {true, false, false, true, false, false, false};
  EXPECT_EQ(draft.Summary(ClockStyle::Hours12, ""), "Every Mon, Thu at 12:00 AM");
  EXPECT_EQ(ScheduleDraft::FromItem(ScheduleItem(draft.ToFields(ClockStyle::Hours24, ""), "")).days,
            draft.days);
  draft.kind = ScheduleKind::Weekly;
  draft.weekday = 3;
  EXPECT_EQ(draft.ToFields(ClockStyle::Hours24, "").weekday, "Thursday");
}

TEST(Draft, AnEventIsTakenAtItsStartOnTheLocalClock) {
  class EastClock : public SimulatedClock {
   public:
    using SimulatedClock::SimulatedClock;
    ZoneReport Zone() override { return {1, -120, 0, 0, {}, {}}; }
  };
  EastClock clock({{2000, 8, 16}, {10, 0, 0}}, [](std::int64_t) { return std::int64_t{7200}; });
  EventRecord event;
  event.EventId = 5;
  event[EventField::Name] = "Finale";
  event[EventField::StationId] = "77";
  event[EventField::StationName] = "Radio";
  event[EventField::StartGmt] = "200008162230";
  event[EventField::WebAddress] = "www.x.example";
  const ScheduleDraft draft = ScheduleDraft::ForEvent(event, clock);
  EXPECT_EQ(draft.StationShown(), "Station To Schedule: Radio (Event)");
  const ScheduleFields item = draft.ToFields(ClockStyle::Hours24, "");
  EXPECT_EQ(item.name, "Finale|||Z|||Radio>>>>>>www.x.example");
  EXPECT_EQ(item.kind + " " + item.date + " " + item.time, "once 8/17/2000 0:30");
  EXPECT_EQ(item.action, "NS77");
}

class WithStations : public testing::Test {
 protected:
  void SetUp() override {
    files_.MakeFolder("data");
    MakeTable();
  }
  void MakeTable() {
    StationRecord record;
    record.StationId = 77;
    record[StationField::Name] = "Radio";
    record[StationField::MediaType] = "MP3";
    record[StationField::BitRate] = "128";
    record[StationField::LinkOne] = "mhttp://one/live";
    record[StationField::LinkTwo] = linkTwo_;
    record[StationField::LinkThree] = "mhttp://three:8000/live?x=y@z";
    std::string line = "77";
    for (std::string& field : record.fields) {
      const auto at = static_cast<int>(&field - record.fields.data()) + 1;
      if (at >= static_cast<int>(StationField::LinkOne) && at <= static_cast<int>(StationField::WebSite)) {
        ScrambleText(field, BuiltInAlphabets());
      }
      line += "\t" + field;
    }
    files_.Put("data/station.snr", line + "\r\n");
    ASSERT_TRUE(stations_.RebuildStationTable());
  }

  std::string linkTwo_;
  FakeFiles files_;
  DataFolder data_{files_, "data", '/'};
  StatList stations_{data_};
  PersonalStations personal_{data_};
  ExtraLinks extra_{data_};
  FakeStrings strings_;
  StationSource source_{stations_, personal_, BuiltInAlphabets(), strings_};
};

TEST_F(WithStations, ThePlayButtonsTellTheLinksApart) {
  const auto captions = [&] {
    std::string all;
    for (const PlayChoice& play :
         NotificationFor(ScheduleItem({.name = "x", .action = "NS77"}, ""), source_, extra_).plays) {
      all += play.caption + " " + play.detail + "\n";
    }
    return all;
  };
  EXPECT_EQ(captions(), "Play (MP3) 128 kbit/s\nPlay (three:8000) three:8000\n");
  linkTwo_ = "mhttp://one/other";
  MakeTable();
  EXPECT_EQ(captions(), "Play (MP3) 128 kbit/s\nPlay (MP3 2) one\nPlay (three:8000) three:8000\n");
}

TEST_F(WithStations, ANotificationOffersTheStationsLinksThenExtraOnesThreeAtMost) {
  ASSERT_TRUE(extra_.Set(77, {{"mine", "mhttp://mine"}, {"more", "mhttp://more"}}));
  ScheduleFields item;
  item.name = "Finale|||Z|||Radio>>>>>>www.x.example";
  item.kind = "live";
  item.action = "WS77";
  const Notification shown = NotificationFor(ScheduleItem(item, ""), source_, extra_);
  EXPECT_EQ(shown.eventName, "Finale on Radio");
  EXPECT_EQ(shown.webSite, "http://www.x.example");
  EXPECT_TRUE(shown.opensWebSite);
  ASSERT_EQ(shown.plays.size(), 3u);
  EXPECT_EQ(shown.plays[0].caption, "Play (MP3)");
  EXPECT_EQ(shown.plays[1].request.mode, PlayMode::LinkThree);
  EXPECT_EQ(shown.plays[1].request.station, StationKey::OfGuide(77));
  EXPECT_EQ(shown.plays[2].caption, "Play (Extra Link)");
  EXPECT_EQ(shown.plays[2].request.link, "mhttp://mine");

  item.action = "NP9";  // a personal station that is gone
  item.name = "Radio";
  EXPECT_TRUE(NotificationFor(ScheduleItem(item, ""), source_, extra_).plays.empty());
  EXPECT_EQ(NotificationFor(ScheduleItem(item, ""), source_, extra_).webSite, "");
}

TEST_F(WithStations, TheDiaryKnowsWhatComesAndWhatBegins) {
  EvList events(data_);
  const auto put = [&](EventSet set, std::int32_t id, const char* name, const char* stamp) {
    const EvList::Handle handle = events.OpenEventTable(set, EvList::OpenMode::Write);
    EventRecord event;
    event.EventId = id;
    event[EventField::Name] = name;
    event[EventField::StationName] = "Radio";
    event[EventField::StartGmt] = stamp;
    EXPECT_TRUE(events.PutEvent(handle, event));
    events.CloseEventTable(handle);
  };
  ASSERT_TRUE(events.CreateEventTable(EventSet::Current));
  ASSERT_TRUE(events.CreateEventTable(EventSet::Coming));
  put(EventSet::Current, 1, "Late", "200008162200");
  put(EventSet::Current, 2, "Early", "200008162130");
  put(EventSet::Current, 3, "Broken", "20000816");
  put(EventSet::Coming, 1, "Late", "200008162200");
  EventDiary diary(events);
  diary.Reload();
  SimulatedClock clock = TwoHoursEast();
  const auto coming = diary.Coming(AddSeconds(clock.GmtNow(), -60), 10);
  ASSERT_EQ(coming.size(), 2u);
  EXPECT_EQ(coming[0].record[EventField::Name], "Early");
  EXPECT_EQ(diary.Next("early", AddSeconds(clock.GmtNow(), -60)), coming[0].gmt);
  EXPECT_EQ(diary.Next("early", coming[0].gmt), std::nullopt);

  ScheduleStore store(data_, "");
  store.SetItem(4, {.name = "late|||Z|||radio", .kind = "live"});
  store.SetItem(5, {.name = "Late|||Z|||Other", .kind = "live"});
  store.SetItem(6, {.name = "Late", .kind = "once"});
  const DateTime tenOClock{{2000, 8, 16}, {22, 0, 0}};
  EXPECT_EQ(diary.Starting(store, AddSeconds(tenOClock, -60), tenOClock),
            (std::vector<Occurrence>{{4, tenOClock}}));
  EXPECT_TRUE(diary.Starting(store, tenOClock, AddSeconds(tenOClock, 60)).empty());
}

TEST(ScheduleListRows, SoonestFirstWithKeysThatLeadBack) {
  FakeFiles files;
  files.MakeFolder("data");
  DataFolder data(files, "data", '/');
  ScheduleStore store(data, "");
  ScheduleCalendar calendar(store);
  const DateTime now{{2000, 8, 16}, {20, 0, 0}};  // Wednesday
  store.SetItem(0, {.name = "gone", .date = "8/15/2000", .time = "1:00 PM", .kind = "once", .action = "N"});
  store.SetItem(
      3, {.name = "weekly", .time = "7:00 AM", .weekday = "Friday", .kind = "weekly", .action = "NS5"});
  store.SetItem(9, {.name = "daily", .time = "7:15 AM", .kind = "daily", .note = "kettle", .action = "W"});
  std::vector<ScheduleRow> rows = ScheduleRows(store, calendar, now, ClockStyle::Hours12);
  SortRows(rows, kNextColumn);
  ASSERT_EQ(rows.size(), 3u);
  EXPECT_EQ(rows[0].key, "S9\tW");
  EXPECT_EQ(rows[0].cells[kNextColumn], "Tomorrow 7:15 AM");
  EXPECT_EQ(rows[0].cells[kNoteColumn], "Go to the website - kettle");
  EXPECT_EQ(rows[1].cells[kNextColumn], "Fri 7:00 AM");
  EXPECT_EQ(rows[2].cells[kNextColumn], "");
  EXPECT_EQ(SlotOfKey(rows[1].key), 3);
  EXPECT_EQ(ShowOfKey(rows[1].key), -1);
  EXPECT_EQ(AskedItem(BringUpText(9)), 9);
  EXPECT_EQ(AskedItem("9"), -1);
  EXPECT_EQ(AskedItem("XX"), -1);
}

}  // namespace
}  // namespace sonaro
