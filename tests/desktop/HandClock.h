// The clock of the programs that a test starts, turned by hand: it stands still until the test sets it anew,
// and then stands at another moment at once. Only the time of day is the test's own; what measures how long
// something takes goes on evenly. Works where the test program was started with the clock library, as `ctest`
// does it.
#pragma once

#include <string>

#include "base/Dates.h"

namespace sonaro::desktop {

class HandClock {
 public:
  HandClock();
  ~HandClock() { Release(); }
  HandClock(const HandClock&) = delete;
  HandClock& operator=(const HandClock&) = delete;

  // Whether the clock obeys: false when this program was started without the library.
  bool Works() const;
  // Local time, at the test program's own time zone.
  void Set(const DateTime& local);
  // The machine's own time again.
  void Release();

 private:
  std::string file_;  // read by the library whenever a program asks for the time
};

}  // namespace sonaro::desktop
