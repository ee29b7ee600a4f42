// What tests of the schedule's dialogs, notices and events stand on.
#pragma once

#include <gtest/gtest.h>

#include "base/DataFolder.h"
#include "directory/EvList.h"
#include "directory/Scrambling.h"
#include "directory/StatList.h"
#include "fakes/FakeFiles.h"
#include "schedule/ScheduleWords.h"
#include "stations/ExtraLinks.h"
#include "stations/PersonalStations.h"
#include "stations/StationSource.h"

namespace sonaro {

// A data folder with one station, 77, and the events that a test puts there.
class ScheduleWorld : public testing::Test {
 protected:
  void SetUp() override {
    files_.MakeFolder("data");
    MakeTable();
  }
  static void PutEvent(EvList& events, EventSet set, std::int32_t id, const char* name, const char* stamp) {
    const EvList::Handle handle = events.OpenEventTable(set, EvList::OpenMode::Write);
    EventRecord event;
    event.EventId = id;
    event[EventField::Name] = name;
    event[EventField::StationName] = "Radio";
    event[EventField::StationId] = "77";
    event[EventField::StartGmt] = stamp;
    EXPECT_TRUE(events.PutEvent(handle, event));
    events.CloseEventTable(handle);
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
    files_.Put("data/Station.snr", line + "\r\n");
    ASSERT_TRUE(stations_.RebuildStationTable());
  }

  std::string linkTwo_;
  FakeFiles files_;
  DataFolder data_{files_, "data", '/'};
  StatList stations_{data_};
  PersonalStations personal_{data_};
  ExtraLinks extra_{data_};
  ScheduleWords words_;
  ScheduleTexts texts_{words_, ClockStyle::Hours12};
  StationSource source_{stations_, personal_, BuiltInAlphabets(), words_};
};

}  // namespace sonaro
