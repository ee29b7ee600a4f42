// Writes the schedule of a data folder as a calendar to the standard output: write_calendar FOLDER
// YYYY-MM-DD. The test that hands it to somebody else's calendar reader is read_calendar.py.
#include <cstdio>

#include "base/DataFolder.h"
#include "platform/posix/FilesPosix.h"
#include "schedule/ScheduleStore.h"
#include "schedule/ScheduleWords.h"

int main(int count, char** arguments) {
  using namespace sonaro;
  const auto today = count == 3 ? ParseDate(arguments[2]) : std::nullopt;
  if (!today) return 2;
  FilesPosix files;
  DataFolder data(files, arguments[1], '/');
  ScheduleStore store(data, "");
  store.LoadSchedule(today->date);
  const std::string calendar = ExportCalendar(store, today->date, {today->date, {12, 0, 0}},
                                              ScheduleTexts(ScheduleWords(), ClockStyle::Hours24));
  return std::fwrite(calendar.data(), 1, calendar.size(), stdout) == calendar.size() ? 0 : 1;
}
