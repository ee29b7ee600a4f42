// What the schedule's dialogs and the notification work with.
#include "directory/EventRecord.h"
#include "schedule/Notification.h"
#include "schedule/ScheduleCalendar.h"
#include "schedule/ScheduleDraft.h"
#include "schedule/ScheduleList.h"
#include "schedule/ScheduleStore.h"
#include "schedule/ScheduleWorld.h"
#include "schedule/SimulatedClock.h"

namespace sonaro {
namespace {

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
  ScheduleDraft draft;  // at eight in the evening
  const Date day{2026, 12, 24};
  const auto fault = [&](int hour, int minute) { return draft.Fault("", {day, {hour, minute, 0}}); };
  EXPECT_EQ(fault(10, 0), DraftFault::NoStation);
  draft.name.name = "Radio";
  EXPECT_EQ(fault(10, 0), DraftFault::NoDate);
  draft.dateText = "2/30/2001";
  EXPECT_EQ(fault(10, 0), DraftFault::NoDate);
  draft.dateText = "December 24 2026 (Thursday)";
  EXPECT_EQ(fault(19, 59), DraftFault::None);
  EXPECT_EQ(fault(20, 0), DraftFault::Passed);
  draft.kind = ScheduleKind::Daily;
  EXPECT_EQ(fault(20, 0), DraftFault::None);
  draft.days = {};
  EXPECT_EQ(fault(20, 0), DraftFault::NoDay);
}

TEST_F(ScheduleWorld, ItemsComeBackAsTheyWereEntered) {
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
  EXPECT_EQ(draft.Summary(texts_, ""), "every Mon, Thu at 12:00 AM");
  EXPECT_EQ(ScheduleDraft::FromItem(ScheduleItem(draft.ToFields(ClockStyle::Hours24, ""), "")).days,
            draft.days);
  draft.kind = ScheduleKind::Weekly;
  draft.weekday = 3;
  EXPECT_EQ(draft.ToFields(ClockStyle::Hours24, "").weekday, "Thursday");
}

TEST_F(ScheduleWorld, AnEventIsTakenAtItsStartOnTheLocalClock) {
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
  EXPECT_EQ(draft.StationShown(texts_), "Station: Radio (Event)");
  const ScheduleFields item = draft.ToFields(ClockStyle::Hours24, "");
  EXPECT_EQ(item.name, "Finale|||Z|||Radio>>>>>>www.x.example");
  EXPECT_EQ(item.kind + " " + item.date + " " + item.time, "once 8/17/2000 0:30");
  EXPECT_EQ(item.action, "NS77");
}

TEST_F(ScheduleWorld, ThePlayButtonsTellTheLinksApart) {
  const auto captions = [&] {
    std::string all;
    for (const PlayChoice& play :
         NotificationFor(ScheduleItem({.name = "x", .action = "NS77"}, ""), source_, extra_, texts_).plays) {
      all += play.caption + " " + play.detail + "\n";
    }
    return all;
  };
  EXPECT_EQ(captions(), "Play (MP3) 128 kbit/s\nPlay (three:8000) three:8000\n");
  linkTwo_ = "mhttp://one/other";
  MakeTable();
  EXPECT_EQ(captions(), "Play (MP3) 128 kbit/s\nPlay (MP3 2) one\nPlay (three:8000) three:8000\n");
}

TEST_F(ScheduleWorld, ANotificationOffersTheStationsLinksThenExtraOnesThreeAtMost) {
  ASSERT_TRUE(extra_.Set(77, {{"mine", "mhttp://mine"}, {"more", "mhttp://more"}}));
  ScheduleFields item;
  item.name = "Finale|||Z|||Radio>>>>>>www.x.example";
  item.kind = "live";
  item.action = "WS77";
  const Notification shown = NotificationFor(ScheduleItem(item, ""), source_, extra_, texts_);
  EXPECT_EQ(shown.eventName, "Finale on Radio");
  EXPECT_EQ(shown.webSite, "http://www.x.example");
  EXPECT_TRUE(shown.opensWebSite);
  ASSERT_EQ(shown.plays.size(), 3u);
  EXPECT_EQ(shown.plays[0].caption, "Play (MP3)");
  EXPECT_EQ(shown.plays[1].request.mode, PlayMode::LinkThree);
  EXPECT_EQ(shown.plays[1].request.station, StationKey::OfGuide(77));
  EXPECT_EQ(shown.plays[2].caption, "Play (" + std::to_string(IDS_SCHED_PLAY_EXTRA) + ")");
  EXPECT_EQ(shown.plays[2].request.link, "mhttp://mine");

  item.action = "NP9";  // a personal station that is gone
  item.name = "Radio";
  EXPECT_TRUE(NotificationFor(ScheduleItem(item, ""), source_, extra_, texts_).plays.empty());
  EXPECT_EQ(NotificationFor(ScheduleItem(item, ""), source_, extra_, texts_).webSite, "");
}

TEST_F(ScheduleWorld, SoonestFirstWithKeysThatLeadBack) {
  ScheduleStore store(data_, "");
  ScheduleCalendar calendar(store);
  const DateTime now{{2000, 8, 16}, {20, 0, 0}};  // Wednesday
  store.SetItem(0, {.name = "gone", .date = "8/15/2000", .time = "1:00 PM", .kind = "once", .action = "N"});
  store.SetItem(
      3, {.name = "weekly", .time = "7:00 AM", .weekday = "Friday", .kind = "weekly", .action = "NS5"});
  store.SetItem(9, {.name = "daily", .time = "7:15 AM", .kind = "daily", .note = "kettle", .action = "W"});
  std::vector<ScheduleRow> rows = ScheduleRows(store, calendar, now, texts_);
  SortRows(rows, kNextColumn);
  ASSERT_EQ(rows.size(), 3u);
  EXPECT_EQ(rows[0].key, "S9\tW");
  EXPECT_EQ(rows[0].cells[kNextColumn], "Tomorrow 7:15 AM");
  EXPECT_EQ(rows[0].cells[kNoteColumn], std::to_string(IDS_SCHED_ACTION_WEB) + "- kettle");
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
