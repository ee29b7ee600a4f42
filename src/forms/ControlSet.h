// The controls of a form: makes them from the table, finds them, and keeps each in its place, shown or hidden
// as the layout, the panes and the program say.
#pragma once

#include <windows.h>

#include <bitset>
#include <initializer_list>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "forms/ControlInstance.h"

namespace sonaro {

class ListView;

class ControlSet {
 public:
  ControlSet(FormWindow& form, const FormDesign& design) : form_(form), design_(design) {}

  // All panes shown but the late ones, layout 0, not grown.
  void Reset();
  // Makes the controls in the window, in their places, but for those of late panes.
  void Build(HWND window, const Painter& painter);
  bool HasPane(int pane) const { return !late_[static_cast<std::size_t>(pane)]; }
  bool IsWhole() const { return late_.none(); }
  void MakeLatePanes();
  // The windows are gone. The rows stay until the next Build, since a control's last call may still run.
  void Forget();

  std::span<ControlInstance> All() { return items_; }
  std::span<const ControlInstance> All() const { return items_; }
  ControlInstance* Find(int id);        // nullptr: none of this number. Makes its pane
  ControlInstance* Find(HWND control);  // the control or a window inside it
  ControlInstance* FirstShown(std::initializer_list<int> ids);

  // The layout's number, its size, and by how much more a text has made the window higher.
  int Layout() const { return layout_; }
  void SetLayout(int layout);
  DesignSize Size() const;
  // Makes the form as much higher than its layout as the text in this label needs.
  void GrowFor(const ControlInstance& label, std::string_view text);
  // To where the layout puts them in a client area of this many pixels.
  void Place(const Painter& painter, PixelSize client);
  // Header buttons to where their edges are now, and the columns below them.
  void PlaceHeaders(const Painter& painter);
  ListView* ListBelow(const ControlInstance& header) const;  // nullptr: none
  void ShowOrHide(ControlInstance& item);
  void ShowPane(int pane, bool shown);

  // The painter is another one: its fonts for the controls.
  void TakeTheme(const Painter& painter);

  void SetTip(ControlInstance& item, const std::string& text);  // "": none
  // A message of a control, or of the form's window, to which labels let the mouse through.
  void RelayToTips(HWND window, UINT message, WPARAM wParam, LPARAM lParam) const;

  // While one lives, what changes is set by the program and raises no event.
  class Quiet {
   public:
    explicit Quiet(ControlSet& controls) : quiet_(controls.quiet_), before_(quiet_) { quiet_ = true; }
    ~Quiet() { quiet_ = before_; }
    Quiet(const Quiet&) = delete;
    Quiet& operator=(const Quiet&) = delete;

   private:
    bool& quiet_;
    bool before_;
  };
  bool IsQuiet() const { return quiet_; }

 private:
  void Make(ControlInstance& item, const Painter& painter);
  void MakeControl(ControlInstance& item, const Painter& painter);
  void MakePane(std::size_t pane);
  void TakeFont(const ControlInstance& item, const Painter& painter) const;
  bool IsWanted(const ControlInstance& item) const;
  std::unique_ptr<FormControl> MakeView(const ControlRow& row);  // nullptr: a control of a system class
  TTTOOLINFOW ToolOf(const ControlInstance& item) const;
  void PlaceWindow(ControlInstance& item, const Painter& painter);
  void PlaceColumnsBelowHeaders(const ControlInstance& list);

  FormWindow& form_;
  const FormDesign& design_;
  HWND window_ = nullptr;
  HWND tips_ = nullptr;  // made with the first tip
  std::vector<ControlInstance> items_;
  std::vector<ControlInstance> formerItems_;  // of the window before: its last call may still be running
  std::bitset<256> hiddenPanes_;
  std::bitset<256> late_;  // panes that are still to be made
  DesignSize grown_;       // {} = the layout's size
  PixelSize client_;       // of the last Place; {}: none yet
  int layout_ = 0;
  bool quiet_ = false;
};

}  // namespace sonaro
