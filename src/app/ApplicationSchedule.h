// The schedule as a whole: its store, evaluator, diary and windows, wired together. Owned by Application,
// which it serves with what the main window and the tray ask of the schedule.
#pragma once

#include <string>
#include <vector>

#include "app/ProgramListener.h"
#include "directory/EvList.h"
#include "forms/Form.h"
#include "platform/Platform.h"
#include "schedule/ComingEvents.h"
#include "schedule/EventDiary.h"
#include "schedule/PersonalShows.h"
#include "schedule/ScheduleCalendar.h"
#include "schedule/ScheduleChanges.h"
#include "schedule/ScheduleServices.h"
#include "schedule/ScheduleStore.h"
#include "schedule/ScheduleTimer.h"
#include "schedule/StationPicker.h"
#include "schedule/frmNotify.h"
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
class UndoList;
class Strings;
class WebPages;
struct AppState;

class ApplicationSchedule final : public ScheduleCommands,
                                  private NotifyCommands,
                                  private TimerTicks,
                                  private ScheduleTimerListener,
                                  private ScheduleListener {
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
    UndoList& undo;
  };

  explicit ApplicationSchedule(const Dependencies& dependencies);

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
  void NotifyMe(Form& owner, const EventKey& event) override;
  void ChangePersonalShow(const EventKey& event) override;
  NextNotice SoonestNotice() override;

  void DirectoryChanged();

 private:
  // What a notification asks for, the timer and its window, and the schedule's windows.
  bool Play(const PlayChoice& choice) override;
  void OpenPage(const std::string& address) override;
  bool Snooze(const ScheduleItem& item, int minutes) override;
  void PlaySound() override;
  void ShowHelp() override;
  void Tick() override;
  void FullMinute() override;
  std::vector<Occurrence> LiveStarts(const DateTime& from, const DateTime& to) override;
  void WhileYouWereAway(const std::vector<Occurrence>& missed) override;
  void ActDone(const std::string& sentence) override { dependencies_.listener.ActDone(sentence); }
  void ItemsChanged() override;

  void RememberSeen();

  Dependencies dependencies_;
  ScheduleTexts texts_;
  EvList events_;
  EventDiary diary_;
  ScheduleStore store_;
  ScheduleCalendar calendar_;
  PersonalShows shows_;
  sonaro::ComingEvents coming_;  // not the command of that name
  StationPicker picker_;
  ScheduleChanges changes_;
  ScheduleServices services_;
  ScheduleTimerWindow timerWindow_;
  ScheduleTimer timer_;
  frmNotifyStack notices_;
  frmSched list_;
};

}  // namespace sonaro
