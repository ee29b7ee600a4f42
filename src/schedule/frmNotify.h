// The notification: what comes on, with buttons to play it or to open its web site. Opens in the lower right
// of the screen without taking the focus from what the user types in. One window for each notice;
// frmNotifyStack owns and places them.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "forms/ControlIds.h"
#include "forms/controls/Controls.h"
#include "schedule/Notification.h"

namespace sonaro {

// What a notification asks of the program.
class NotifyCommands {
 public:
  virtual ~NotifyCommands() = default;
  virtual void Play(const PlayChoice& choice) = 0;
  virtual void OpenPage(const std::string& address) = 0;
  virtual void PlaySound() = 0;  // once, when the window has appeared
  virtual void ShowHelp() = 0;
};

class frmNotify final : public Form {
 public:
  frmNotify(FormContext& context, NotifyCommands& commands, Notification notification);
  // The notice of what was missed: one line for each.
  frmNotify(FormContext& context, NotifyCommands& commands, std::vector<std::string> missed);

 private:
  static const FormDesign& Design();
  std::span<const EventRow> Events() const override;
  std::span<const TimerRow> Timers() const override;
  void OnLoad() override;
  void ShowPlayButtons();

  void butPlay_Click(int index);
  void butGoWebSiteIt_Click() { commands_.OpenPage(notification_.webSite); }
  void butCloselIt_Click() { Close(); }
  void butHelp_Click() { commands_.ShowHelp(); }
  void Timer1_Timer();

  NotifyCommands& commands_;
  Notification notification_;
  std::vector<std::string> missed_;

  ControlArray<TwoLineButton> butPlay_{*this, butPlay1It, static_cast<int>(Notification::kPlayButtons)};
  Label lblTitle_{*this, lblTitle};
  Label lblNoticeInfo_{*this, lblNoticeInfo};
  Edit txtMissed_{*this, txtMissed};
  Label lblEventName_{*this, lblEventName};
  Label lblNote_{*this, lblNote};
  Button butGoWebSiteIt_{*this, butGoWebSiteIt};
};

// The notifications that are open, one above the other in the corner of the screen. Owned by Application.
class frmNotifyStack {
 public:
  frmNotifyStack(FormContext& context, NotifyCommands& commands) : context_(context), commands_(commands) {}

  void ShowNotification(Notification notification);
  void ShowMissed(std::vector<std::string> missed);

 private:
  void Put(std::unique_ptr<frmNotify> window);

  FormContext& context_;
  NotifyCommands& commands_;
  // A place for each window; one that was closed leaves its place to the next.
  std::vector<std::unique_ptr<frmNotify>> windows_;
};

}  // namespace sonaro
