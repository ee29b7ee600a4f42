// What the user does to the schedule besides editing an item: deleting, which asks, can be undone, and takes
// the rows of both lists; and putting a notice off. Owned by Application. An item is meant by what it says,
// not by its slot: while a question stands, or a notice lies on the screen, the table may change.
#pragma once

#include <string>
#include <vector>

#include "schedule/ScheduleItem.h"

namespace sonaro {

class CReg;
class MessageBoxView;
class PersonalShows;
class ScheduleListener;
class ScheduleStore;
class ScheduleTexts;
class Strings;
class UndoList;
enum class UndoResult;

class ScheduleChanges {
 public:
  struct Dependencies {
    ScheduleStore& store;
    PersonalShows& shows;
    CReg& settings;
    UndoList& undo;
    MessageBoxView& messages;
    const Strings& strings;
    const ScheduleTexts& texts;
    ScheduleListener& listener;
  };

  explicit ScheduleChanges(const Dependencies& dependencies) : dependencies_(dependencies) {}

  // Deletes what rows stand for (keys as in ScheduleList.h). Items are asked about, once for all of them,
  // unless the user does not want that; a personal show is told of.
  void Delete(const std::vector<std::string>& rowKeys);

  // Tells of the item again that many minutes from `now`, local time, to the nearest minute. A "once" item is
  // put off itself; of any other, a "once" item is made beside it. So what was put off is in the schedule,
  // and lasts as long as that. False, and the user was told, when it could not be saved.
  bool Snooze(const ScheduleItem& item, int minutes, const DateTime& now);

 private:
  bool ConfirmDelete(const std::vector<ScheduleFields>& items);
  void DeleteItems(const std::vector<ScheduleFields>& items);
  void DeleteShow(const std::string& line);
  UndoResult PutBack(const std::vector<ScheduleFields>& items);
  bool Saved(bool saved);

  Dependencies dependencies_;
};

}  // namespace sonaro
