// What the schedule and the exchange with the service tell the program. Application implements it, and hands
// it on to the main window when that is there.
#pragma once

#include <string>

namespace sonaro {

class ProgramListener {
 public:
  virtual ~ProgramListener() = default;
  virtual void ActDone(const std::string& sentence) = 0;  // what the user did has worked: for the status line
  virtual void ScheduleChanged() = 0;                     // an item, or a minute has passed
  virtual void DirectoryChanged() = 0;                    // the station list was replaced
  // While data comes: how much of it is there, 0 to 100 or below 0 when that is not known; and when no more
  // comes.
  virtual void UpdateProgress(int percent) = 0;
  virtual void UpdateProgressEnded() = 0;
};

}  // namespace sonaro
