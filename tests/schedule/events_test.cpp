// Broadcast events: what is coming, what of it the schedule and the personal shows know, what begins.
#include "fakes/FakeMessageBox.h"
#include "schedule/ComingEvents.h"
#include "schedule/PersonalShows.h"
#include "schedule/ScheduleList.h"
#include "schedule/ScheduleStore.h"
#include "schedule/ScheduleWorld.h"
#include "schedule/SimulatedClock.h"

namespace sonaro {
namespace {

// Half past eleven in the evening, two hours east of Greenwich.
class EastClock final : public SimulatedClock {
 public:
  EastClock()
      : SimulatedClock({{2000, 8, 16}, {21, 30, 0}}, [](std::int64_t) { return std::int64_t{7200}; }) {}
  ZoneReport Zone() override { return {1, -120, 0, 0, {}, {}}; }
};

class Events : public ScheduleWorld {
 protected:
  void SetUp() override {
    ScheduleWorld::SetUp();
    ASSERT_TRUE(events_.CreateEventTable(EventSet::Current));
    ASSERT_TRUE(events_.CreateEventTable(EventSet::Coming));
  }
  void Put(EventSet set, std::int32_t id, const char* name, const char* stamp) {
    PutEvent(events_, set, id, name, stamp);
    diary_.Reload();
  }

  EastClock clock_;
  EvList events_{data_};
  EventDiary diary_{events_};
  ScheduleStore store_{data_, ""};
  ScheduleCalendar calendar_{store_};
  FakeMessageBox box_;
  PersonalShows shows_{data_, box_, words_};
  ComingEvents coming_{{diary_, store_, shows_, source_, clock_, texts_}};
};

TEST_F(Events, TheDiaryKnowsWhatComesAndWhatBegins) {
  Put(EventSet::Current, 1, "Late", "200008162200");
  Put(EventSet::Current, 2, "Early", "200008162130");
  Put(EventSet::Current, 3, "Broken", "20000816");
  Put(EventSet::Coming, 1, "Late", "200008162200");
  const DateTime now = AddSeconds(clock_.GmtNow(), -60);
  const auto coming = diary_.Coming(now, 10);
  ASSERT_EQ(coming.size(), 2u);
  EXPECT_EQ(coming[0].record[EventField::Name], "Early");
  EXPECT_EQ(diary_.Next("early", now), coming[0].gmt);
  EXPECT_EQ(diary_.Next("early", coming[0].gmt), std::nullopt);

  store_.SetItem(4, {.name = "late|||Z|||radio", .kind = "live"});
  store_.SetItem(5, {.name = "Late|||Z|||Other", .kind = "live"});
  store_.SetItem(6, {.name = "Late", .kind = "once"});
  const DateTime tenOClock{{2000, 8, 16}, {22, 0, 0}};
  EXPECT_EQ(diary_.Starting(store_, AddSeconds(tenOClock, -60), tenOClock),
            (std::vector<Occurrence>{{4, tenOClock}}));
  EXPECT_TRUE(diary_.Starting(store_, tenOClock, AddSeconds(tenOClock, 60)).empty());
}

TEST_F(Events, ALineKnowsWhatTheScheduleAndTheShowsHold) {
  Put(EventSet::Current, 1, "Xylophone hour", "200008162145");
  Put(EventSet::Current, 2, "Begun", "200008162129");
  Put(EventSet::Coming, 1, "Xylophone hour", "200008172145");  // again the next day
  Put(EventSet::Coming, 3, "Abroad", "200008172146");
  const std::vector<EventLine> lines = coming_.Lines();
  ASSERT_EQ(lines.size(), 3u);
  EXPECT_EQ(lines[0].when, "Today 11:45 PM");
  EXPECT_EQ(lines[1].when, "Tomorrow 11:45 PM");
  EXPECT_EQ(lines[0].key, StationKey::OfGuide(77));

  // Told of the second only, by the item that its own draft makes.
  const auto draft = coming_.DraftFor(lines[1].event);
  ASSERT_TRUE(draft);
  store_.SetItem(3, draft->ToFields(ClockStyle::Hours24, ""));
  const auto noticed = [&] {
    std::string text;
    for (const EventLine& line : coming_.Lines()) text += line.noticed ? "y" : "n";
    return text;
  };
  EXPECT_EQ(noticed(), "nyn");
  store_.SetItem(4, {.name = "Xylophone hour|||Z|||Radio", .time = "11:45 PM", .kind = "daily"});
  EXPECT_EQ(noticed(), "yyn");

  // A show is every broadcast of the event.
  coming_.ChangePersonalShow(lines[1].event);
  EXPECT_EQ(files_.Get("data/Shows.snr"), "1XXylophone hour\r\n");
  EXPECT_TRUE(coming_.Lines()[0].personalShow);
  EXPECT_FALSE(coming_.Lines()[2].personalShow);
  coming_.ChangePersonalShow(lines[0].event);
  EXPECT_EQ(files_.Get("data/Shows.snr"), "");

  // What began while the page was on show is not there any more.
  clock_.Advance(15 * 60);
  EXPECT_FALSE(coming_.DraftFor(lines[0].event));
  coming_.ChangePersonalShow(lines[0].event);
  EXPECT_EQ(files_.Get("data/Shows.snr"), "");
}

TEST_F(Events, AShowHasWhatItsSoonestItemSaysOrItsNextBroadcast) {
  files_.Put("data/Shows.snr", "1XUnknown\r\n2XGone\r\n3XEvening Show\r\n4XLive Show\r\n");
  Put(EventSet::Current, 2, "gone", "200008170515");
  Put(EventSet::Current, 4, "Live Show", "200008170515");
  store_.SetItem(0, {.name = "evening show|||Z|||Radio",
                     .time = "9:00 PM",
                     .weekday = "Monday",
                     .kind = "weekly",
                     .note = "tapes"});
  store_.SetItem(1, {.name = "Evening Show", .time = "8:00 PM", .weekday = "Friday", .kind = "weekly"});
  store_.SetItem(2, {.name = "Gone", .date = "8/1/2000", .time = "8:00 PM", .kind = "once"});
  store_.SetItem(3, {.name = "Live Show|||Z|||Radio", .kind = "live"});
  std::vector<ScheduleRow> rows = ShowRows(shows_, store_, calendar_, coming_, clock_.LocalNow(), texts_);
  const auto shown = [&] {
    std::string text;
    for (const ScheduleRow& row : rows) {
      text += row.key;
      for (int column : {kNextColumn, kNameColumn, kOftenColumn}) {
        text += "|" + row.cells[static_cast<std::size_t>(column)];
      }
      text += "\n";
    }
    return text;
  };
  const std::string unknown = "P0||Unknown|\n";
  const std::string gone = "P1|Tomorrow 7:15 AM|Gone|at 8:00 PM on 8/1/2000\n";
  const std::string evening = "P2|Fri 8:00 PM|Evening Show|every Friday at 8:00 PM\n";
  const std::string live = "P3|Tomorrow 7:15 AM|Live Show|" + std::to_string(IDS_SCHED_OFTEN_EVENT) + "\n";
  EXPECT_EQ(shown(), unknown + gone + evening + live);
  SortRows(rows, kNextColumn);
  EXPECT_EQ(shown(), gone + live + evening + unknown);
  EXPECT_EQ(SoonestNotice(store_, calendar_, clock_.LocalNow(), texts_).when, "Fri 8:00 PM");
}

}  // namespace
}  // namespace sonaro
