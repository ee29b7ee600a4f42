// The schedule as a whole: its store, evaluator, diary and windows, wired together. Owned by Application,
// which it serves with what the main window and the tray ask of the schedule.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "app/ProgramListener.h"
#include "directory/EvList.h"
#include "forms/Form.h"
#include "platform/Platform.h"
#include "schedule/EventDiary.h"
#include "schedule/PersonalShows.h"
#include "schedule/ScheduleCalendar.h"
#include "schedule/ScheduleServices.h"
#include "schedule/ScheduleStore.h"
#include "schedule/ScheduleTimer.h"
#include "schedule/StationPicker.h"
#include "schedule/frmNotifyStack.h"
#include "schedule/frmSched.h"
#include "schedule/frmschedtime.h"
#include "stations/Commands.h"

namespace sonaro {

class CReg;
class DataFolder;
class ExtraLinks;
class FavoriteGroups;
class HelpPages;
class MessageBoxView;
class PlayerLaunch;
class RecentList;
class StatList;
class StationSource;
class Strings;
class WebPages;
struct AppState;

class ApplicationSchedule final : public ScheduleCommands, private NotifyCommands, private TimerTicks {
 public:
  struct Dependencies {
    const Platform& platform;
    FormContext& context;
    DataFolder& data;
    CReg& reg;
    const Strings& strings;
    const AppState& state;
    StatList& stations;
    const ExtraLinks& extra;
    const RecentList& recent;
    const FavoriteGroups& favorites;
    const StationSource& source;
    PlayerLaunch& player;
    WebPages& pages;
    HelpPages& help;
    MessageBoxView& messages;
    ProgramCommands& program;
    ProgramListener& listener;
  };

  explicit ApplicationSchedule(const Dependencies& needs);

  // Once, when the program has finished loading: what was missed meanwhile, and the first evaluation.
  void StartWatching();
  // Every minute, and when the clock was set or the machine woke up. Gives the milliseconds to the next full
  // minute, when it wants to be called again.
  unsigned Minute();
  // A due item: asks for its notification by way of the hidden label of a window.
  void AskForNotification(Form& window, int slot);
  // The text of that label: the item's slot followed by "XX".
  void ShowNotification(const std::string& asked);

  void ShowSchedule(HWND owner);

  void ScheduleStation(Form& owner, const StationKey& station) override;
  void ExplainTimes(Form& owner) override;
  std::vector<EventLine> ComingEvents() override;
  void NotifyMe(Form& owner, std::size_t line) override;
  void ChangePersonalShow(std::size_t line) override;
  NextNotice SoonestNotice() override;

  void DirectoryChanged();

 private:
  ScheduleServices MakeServices();
  // What a notification asks for, and the timer's window.
  void Play(const PlayChoice& choice) override;
  void OpenPage(const std::string& address) override;
  void PlaySound() override;
  void ShowHelp() override;
  void Tick() override;
  void FullMinute() override;

  std::optional<DateTime> NextBroadcast(std::string_view show) const;
  bool IsNoticed(const EventRecord& event, const DateTime& local) const;
  void Changed();
  void RememberSeen();

  Dependencies needs_;
  EvList events_;
  EventDiary diary_;
  ScheduleStore store_;
  ScheduleCalendar calendar_;
  PersonalShows shows_;
  StationPicker picker_;
  ScheduleServices services_;
  ScheduleTimerWindow timerWindow_;
  ScheduleTimer timer_;
  frmNotifyStack notices_;
  frmSched list_;
  std::vector<BroadcastEvent> coming_;  // what ComingEvents gave last
};

}  // namespace sonaro
