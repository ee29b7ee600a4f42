// What the main window asks of the rest of the program, as functions that Application sets: it knows no other
// window. An empty function does nothing.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "settings/Message.h"

namespace sonaro {

// One line of the coming events, in the user's time and clock style.
struct EventLine {
  std::string when;
  std::string name;
  std::string station;
  std::string token;     // of its station; "" when the guide does not have it
  bool noticed = false;  // the user will be told
  bool personalShow = false;
};

// The next thing the user will be told of. Without `when` nothing is scheduled.
struct NextNotice {
  std::string when;  // "Thursday 8:00 PM"
  std::string name;
  std::string howOften;
};

struct MainWindowCalls {
  // Other windows.
  std::function<void()> showScan;
  std::function<void(const std::vector<std::string>& rowKeys)> addToScan;
  // A row dragged out of the main window: whether the scan's window is at that point of the screen, and what
  // was dropped on it.
  std::function<bool(int x, int y)> scanIsAt;
  std::function<void(const std::string& rowKey, int x, int y)> dropOnScan;
  std::function<void()> showSchedule;
  std::function<void(const std::string& rowKey)> scheduleStation;
  std::function<void()> showUpdate;
  std::function<bool()> canUndoUpdate;
  std::function<void()> undoUpdate;
  std::function<void()> showOptions;
  std::function<void(int index)> editPersonalStation;  // 0: a new one
  std::function<void(int index)> deletePersonalStation;
  std::function<void(std::int32_t stationId)> editExtraLinks;

  // Questions. The texts are "" when the user gave no answer.
  std::function<MessageResult(const Message& message)> ask;
  std::function<std::string()> askNewGroupName;
  std::function<std::string(const std::string& present)> askGroupName;
  std::function<std::string(const std::string& station)> askGroupForStation;  // a group's name
  std::function<std::string()> askPlaylistToOpen;                             // a path
  std::function<std::string(const std::string& name)> askPlaylistToSave;

  // The tray and the program.
  std::function<void(const std::string& text)> tellTray;
  std::function<void()> hideToTray;
  std::function<void()> closeAsked;  // the close button: Application knows whether that hides or ends
  std::function<void()> exit;
  std::function<void(const std::string& page)> openHelpPage;

  // The page of the user's own things.
  std::function<std::vector<EventLine>()> comingEvents;
  std::function<bool(std::size_t line)> notifyMe;  // an index into what comingEvents gave last; true: it will
  // Adds the line's event to the personal shows, or removes it when it is one.
  std::function<void(std::size_t line)> changePersonalShow;
  std::function<NextNotice()> nextNotice;
};

}  // namespace sonaro
