// Where the focus of a form is, what moves it, and what the keys of the keyboard do: Tab from group to group,
// arrows inside, the key table, Enter, Esc, and whether focus line and access keys are to be seen.
#pragma once

#include <windows.h>

#include <span>

#include "forms/ControlInstance.h"

namespace sonaro {

class FocusKeys {
 public:
  explicit FocusKeys(FormWindow& form) : form_(form) {}

  void Reset() {
    focusGiven_ = false;
    left_ = nullptr;
  }
  // Cues as the system says, or as the owner has them.
  void BeginCues(const FormWindow* owner);
  // The user works with the keyboard: the focus line and the underlines of access keys show from now on. The
  // form keeps this itself because not every system does.
  void ShowCues(bool focus, bool accessKeys);
  bool ShowsFocus() const { return showFocus_; }
  bool ShowsAccessKeys() const { return showAccessKeys_; }

  ControlInstance* Focused() const;
  void FocusOn(const ControlInstance& item);
  void GiveFirstFocus();  // at the first showing, when the program has not
  // Where the user is when the window goes away: behind another one, to the tray, into the task bar. Anything
  // but a control of the form is no such place.
  void Remember(HWND focus);
  // Back to there; when that control has gone meanwhile, to where the form begins. False: there is no such
  // place, and the system may choose.
  bool GiveBack();
  // What has the focus before a key or the pointer does anything.
  void BeginInput() { before_ = GetFocus(); }
  // The focus goes back to what had it before this button was pressed: its menu is not a place to stay at.
  void BackFrom(const ControlInstance& button);
  // The control and its neighbours in the arrow keys' group.
  std::span<ControlInstance> GroupOf(const ControlInstance& item) const;
  ControlInstance* ShownPrimary() const;
  // One tab stop in each group; before the focus moves by the keyboard.
  void UpdateTabStops();

  // A key that went down in the form; true when it was dealt with. The form may be closed afterwards.
  bool RunKey(MSG& message);

 private:
  void NoteKeyboardUse(const MSG& message);
  bool RunKeyTable(int key, int focusedId);
  bool RunEnter(const ControlInstance* focused, MSG& message);

  FormWindow& form_;
  HWND left_ = nullptr;    // a control of the form, or the edit inside one
  HWND before_ = nullptr;  // any window
  bool focusGiven_ = false;
  bool showFocus_ = false;
  bool showAccessKeys_ = false;
};

}  // namespace sonaro
