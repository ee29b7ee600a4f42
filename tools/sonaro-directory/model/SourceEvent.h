// A broadcast event as a list of events describes it.
#pragma once

#include <string>

#include "base/Dates.h"

namespace sonaro {

struct SourceEvent {
  std::string name;
  std::string station;  // its name or its identifier
  DateTime start;       // GMT
  int minutes = 0;
  std::string category;
  std::string web;
  std::string description;
  std::string place;  // where it was read, "events.jsonl:3", for messages
};

}  // namespace sonaro
