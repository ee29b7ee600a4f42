// What one folder's windows ask of another's: the schedule, the updates, and the program as a whole.
// Application and its parts implement them; windows get them with their constructors and know no other
// window. `owner` is the form that a new window stands before, nullptr for one that stands alone.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "base/Dates.h"
#include "stations/StationKey.h"

namespace sonaro {

class Form;

// A broadcast event; one that is repeated has the same identifier each time.
struct EventKey {
  std::int32_t id = 0;
  DateTime gmt;
  bool operator==(const EventKey&) const = default;
};

// One line of the coming events, in the user's time and clock style.
struct EventLine {
  EventKey event;
  std::string when;
  std::string name;
  std::string station;
  StationKey key;        // of its station; None when the guide does not have it
  bool noticed = false;  // the user will be told
  bool personalShow = false;
};

// The next thing the user will be told of. Without `when` nothing is scheduled.
struct NextNotice {
  std::string when;  // "Thursday 8:00 PM"
  std::string name;
  std::string howOften;
};

class ScheduleCommands {
 public:
  virtual ~ScheduleCommands() = default;
  // The dialog that adds an item for the station to the schedule.
  virtual void ScheduleStation(Form& owner, const StationKey& station) = 0;
  // Explains the time zone that the schedule works in.
  virtual void ExplainTimes(Form& owner) = 0;

  virtual std::vector<EventLine> ComingEvents() = 0;
  // Asks how the user wants to be told of the event. Nothing for one that has begun or is in the guide no
  // more.
  virtual void NotifyMe(Form& owner, const EventKey& event) = 0;
  // Adds the event to the personal shows, or removes it when it is one.
  virtual void ChangePersonalShow(const EventKey& event) = 0;
  virtual NextNotice SoonestNotice() = 0;
};

class UpdateCommands {
 public:
  virtual ~UpdateCommands() = default;
  virtual bool CanUndoUpdate() = 0;
  // The update dialog with nothing but the way back to the guide of before the last update.
  virtual void OfferUndo(Form& owner) = 0;
  // "host:port" of the proxy that the computer is set to, or "".
  virtual std::string FindProxy() = 0;
  virtual void TestProxy(Form& owner, const std::string& address, const std::string& port) = 0;
};

// Takes a text for the label of the small tray window, such as "AddNewFavGroup", tab, name. Other programs
// read it there.
class TrayMessages {
 public:
  virtual ~TrayMessages() = default;
  virtual void TellTray(const std::string& text) = 0;
};

// The pages of the dialog frmStartUpInfo.
enum class StartUpInfoPage {
  Player,        // at the start: no player is registered
  Proxy,         // at the start: a proxy was found
  NoPlayer,      // a station has no player
  ChoosePlayer,  // asked for by the user
};

enum class ProgramWindow { Scan, Schedule, Update, Options };

class ProgramCommands : public TrayMessages {
 public:
  virtual void Open(ProgramWindow window, Form* owner) = 0;
  // For the tray, which is there before the rest and while dialogs wait: while one does, that comes forward
  // instead. BringForward shows the main window, with `view` on show unless that is "".
  virtual void OpenWhenFree(ProgramWindow window) = 0;
  virtual void BringForward(std::string_view view) = 0;
  virtual void ShowGroup(const std::string& name) = 0;
  virtual void PlayStation(const StationKey& station) = 0;
  // For windows that have no groups of their own.
  virtual void AddStationToGroup(const std::string& group, const StationKey& station) = 0;
  // Adds the station to the group that was used last, or asks for one before `owner`.
  virtual void KeepStation(Form& owner, const StationKey& station) = 0;
  // Hides the main window; the tray brings it back.
  virtual void HideToTray() = 0;
  // The close button: hides or ends the program, as the user wants.
  virtual void CloseAsked() = 0;
  virtual void Exit() = 0;
  // The page on which the user chooses what plays.
  virtual void ChoosePlayer(Form& owner) = 0;
  virtual void PlayNoticeSound() = 0;

  // The scan's window: whether it is what the user sees at a point of the screen, and a station that was
  // dropped there.
  virtual bool ScanIsAt(int x, int y) = 0;
  virtual void DropOnScan(const StationKey& station, int x, int y) = 0;
};

}  // namespace sonaro
