// The notification windows that are open, one above the other in the corner of the screen. Owned by
// Application.
#pragma once

#include <memory>
#include <vector>

#include "schedule/frmNotify.h"

namespace sonaro {

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
