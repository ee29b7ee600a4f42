// The notification: what comes on, with buttons to play it, to open its web site, or to be told again later.
// What was missed while nobody was there is one notification with a row for each item; the buttons are those
// of the selected one. Opens in the lower right of the screen without taking the focus from what the user
// types in. One window for each notice; frmNotifyStack owns and places them.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "forms/ControlIds.h"
#include "forms/controls/Controls.h"
#include "forms/controls/ListView.h"
#include "schedule/Notification.h"

namespace sonaro {

// What a notification asks of the program.
class NotifyCommands {
 public:
  virtual ~NotifyCommands() = default;
  virtual bool Play(const PlayChoice& choice) = 0;  // false: nothing took it, and the user was told why
  virtual void OpenPage(const std::string& address) = 0;
  // Another notice of the item in so many minutes. False when that could not be saved, which the user was
  // told.
  virtual bool Snooze(const ScheduleItem& item, int minutes) = 0;
  virtual void PlaySound() = 0;  // once, when the window has appeared
  virtual void ShowHelp() = 0;
};

class frmNotify final : public Form {
 public:
  frmNotify(FormContext& context, NotifyCommands& commands, Notification notification);
  // What was missed; at least one.
  frmNotify(FormContext& context, NotifyCommands& commands, std::vector<Notification> missed);

 private:
  class Rows final : public ListModel {
   public:
    explicit Rows(const std::vector<Notification>& notices) : notices_(notices) {}
    int RowCount() const override { return static_cast<int>(notices_.size()); }
    std::string Cell(int row, int column) const override;

   private:
    const std::vector<Notification>& notices_;
  };

  static const FormDesign& Design();
  std::span<const EventRow> Events() const override;
  std::span<const TimerRow> Timers() const override;
  void OnLoad() override;
  void ShowMissed();
  void ShowButtons();
  const Notification& Shown() const { return notices_[shown_]; }

  void lstMissed_ItemSelected(int row);
  void butPlay_Click(int index);
  void butGoWebSiteIt_Click() { commands_.OpenPage(Shown().webSite); }
  void butSnoozeIt_Click();
  void mnuSnooze_Click(int length);
  void butCloselIt_Click() { Close(); }
  void butHelp_Click() { commands_.ShowHelp(); }
  void Timer1_Timer();

  NotifyCommands& commands_;
  std::vector<Notification> notices_;
  bool missed_ = false;
  std::size_t shown_ = 0;  // whose buttons these are
  Rows rows_{notices_};

  ControlArray<TwoLineButton> butPlay_{*this, butPlay1It, static_cast<int>(Notification::kPlayButtons)};
  Label lblTitle_{*this, lblTitle};
  Label lblNoticeInfo_{*this, lblNoticeInfo};
  ListHandle lstMissed_{*this, lstMissed};
  Label lblEventName_{*this, lblEventName};
  Label lblNote_{*this, lblNote};
  Button butGoWebSiteIt_{*this, butGoWebSiteIt};
  Button butSnoozeIt_{*this, butSnoozeIt};
};

// The notifications that are open, one above the other in the corner of the screen. Owned by Application.
class frmNotifyStack {
 public:
  frmNotifyStack(FormContext& context, NotifyCommands& commands) : context_(context), commands_(commands) {}

  void ShowNotification(Notification notification);
  void ShowMissed(std::vector<Notification> missed);

 private:
  void Put(std::unique_ptr<frmNotify> window);

  FormContext& context_;
  NotifyCommands& commands_;
  // A place for each window; one that was closed leaves its place to the next.
  std::vector<std::unique_ptr<frmNotify>> windows_;
};

}  // namespace sonaro
