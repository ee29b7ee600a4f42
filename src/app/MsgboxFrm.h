// The message box: one dialog for every question and every sentence that the program says. What it shows is a
// Message; nothing is decided here.
#pragma once

#include <string_view>

#include "forms/ControlIds.h"
#include "forms/controls/Controls.h"
#include "settings/Message.h"

namespace sonaro {

class HelpPages;

class MsgboxFrm final : public Form {
 public:
  MsgboxFrm(FormContext& context, HelpPages& help, Message message);

  MessageResult Ask(HWND owner);

 private:
  static const FormDesign& Design();
  std::span<const EventRow> Events() const override;
  void OnLoad() override;
  void OnUnload() override;

  void butMsg_Click(int index);
  void butCloseIt_Click() { Close(0); }
  void butHelp_Click();

  HelpPages& help_;
  Message message_;
  bool dontAskAgain_ = false;

  Label lblTitle_{*this, lblTitle};
  Label picStuff_{*this, picStuff};
  Label lblMsg_{*this, lblMsg};
  ControlArray<Button> butMsg_{*this, butMsg, 2};
  Button butCancelIt_{*this, butCancelIt};
  CheckBox chkDontAsk_{*this, chkDontAsk};
};

// Shows messages over the program's active window. Owned by Application.
class MessageBoxes final : public MessageBoxView {
 public:
  MessageBoxes(FormContext& context, HelpPages& help) : context_(context), help_(help) {}

  MessageResult Ask(const Message& message) override;

 private:
  FormContext& context_;
  HelpPages& help_;
};

}  // namespace sonaro
