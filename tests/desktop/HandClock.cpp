#include "HandClock.h"

#include <windows.h>

#include <cstdio>
#include <cstdlib>
#include <fstream>

namespace sonaro::desktop {

HandClock::HandClock() {
  if (const char* hostPath = std::getenv("FAKETIME_TIMESTAMP_FILE")) file_ = std::string("Z:") + hostPath;
  Release();
}

bool HandClock::Works() const {
  if (file_.empty()) return false;
  HandClock other;
  other.Set({{2001, 2, 3}, {4, 5, 6}});
  SYSTEMTIME now{};
  GetLocalTime(&now);
  return now.wYear == 2001 && now.wHour == 4 && now.wSecond == 6;
}

// In one step: a program may ask for the time meanwhile.
void HandClock::Set(const DateTime& local) {
  char text[32];
  std::snprintf(text, sizeof text, "%04d-%02d-%02d %02d:%02d:%02d\n", local.date.year, local.date.month,
                local.date.day, local.time.hour, local.time.minute, local.time.second);
  const std::string next = file_ + ".next";
  std::ofstream(next, std::ios::binary) << text;
  MoveFileExA(next.c_str(), file_.c_str(), MOVEFILE_REPLACE_EXISTING);
}

void HandClock::Release() {
  if (!file_.empty()) DeleteFileA(file_.c_str());
}

}  // namespace sonaro::desktop
