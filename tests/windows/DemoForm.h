// A form with rows of the controls that forms are made of, and a log of their events.
#pragma once

#include <string>
#include <vector>

#include "forms/controls/Controls.h"

namespace sonaro {

class DemoForm final : public Form {
 public:
  // Controls of one kind stand in a row of five or six, of which the fifth is disabled.
  enum Number {
    kPush = 5001,
    kPrimary = 5011,
    kRanking = 5021,
    kGroups = 5031,
    kCheck = 5071,
    kRadio = 5081,
    kCombo = 5091,
    kEdit = 5101,
    kSearch = 5111,
    kNotes = 5112,
    kToggle = 5131,
    kState = 5141,
    kTimer = 5150,
    kMenuEntry = 5160
  };

  explicit DemoForm(FormContext& context);

  std::vector<std::string> log;  // one entry for each event, "Click 5001"
  bool closeOnClick = false;
  int resultOnClick = 0;
  bool menuOnClick = false;  // of kMenuEntry

  ControlArray<Button> push{*this, kPush, 5};
  ControlArray<Button> primary{*this, kPrimary, 5};
  ControlArray<ToggleButton> ranking{*this, kRanking, 6};
  ControlArray<GroupButton> groups{*this, kGroups, 6};
  ControlArray<CheckBox> check{*this, kCheck, 6};
  ControlArray<RadioButton> radio{*this, kRadio, 6};
  ControlArray<ComboBox> combo{*this, kCombo, 6};
  ControlArray<Edit> edit{*this, kEdit, 5};
  ComboBox search{*this, kSearch};
  Edit notes{*this, kNotes};
  ControlArray<ToggleButton> toggle{*this, kToggle, 3};
  Label state{*this, kState};

 private:
  static const FormDesign& Design();
  std::span<const EventRow> Events() const override;
  std::span<const TimerRow> Timers() const override;
  void OnLoad() override;
  void OnUnload() override;
  void OnEscape() override;

  void Note(const std::string& what, int number) { log.push_back(what + " " + std::to_string(number)); }
  void Push_Click(int index);
  void Groups_Click(int index) { Note("Click", kGroups + index); }
  void Groups_ContextMenu(int index, POINT) { Note("ContextMenu", kGroups + index); }
  void Check_Click(int index) { Note("Click", kCheck + index); }
  void Radio_Click(int index) { Note("Click", kRadio + index); }
  void Combo_SelChange(int index) { Note("SelChange", kCombo + index); }
  void Edit_Change(int index) { Note("Change", kEdit + index); }
  void Search_Change() { Note("Change", kSearch); }
  void Search_SelChange() { log.push_back("SelChange " + search.Text()); }
  void Search_EnterPressed() { Note("EnterPressed", kSearch); }
  void Menu_Click() { Note("Click", kMenuEntry); }
  void Primary_Click() { Note("Click", kPrimary); }
  void Timer_Timer() { Note("Timer", kTimer); }
};

}  // namespace sonaro
