#include "mainwindow/SonaroFrmTitlePane.h"

#include <algorithm>
#include <array>

#include "forms/ControlIds.h"

namespace sonaro {
namespace {

// The views in the order of the tabs and of their menu entries.
constexpr std::array kTabs{View::YourSonaro, View::List, View::Browse, View::BrowseLoc, View::Search};

// The three columns between the group bar and the status line: what is chosen from, the list, the station.
constexpr int kColumns = 3;

int ColumnOf(const ControlRow& row) {
  if (row.at.y < 132 || row.at.y >= 590) return -1;
  return row.at.x < 220 ? 0 : row.at.x < 720 ? 1 : 2;
}

// Where the keys go on in a column: not its headings' buttons, but what it is there for.
bool IsMainPart(ControlKind kind) {
  return kind == ControlKind::ListView || kind == ControlKind::TreeView || kind == ControlKind::ComboEdit ||
         kind == ControlKind::RankingButton || kind == ControlKind::PlayButton;
}

HWND FirstStop(const Form& form, int column, bool mainPart) {
  for (const ControlRow& row : form.Description().controls) {
    if (row.id == 0 || ColumnOf(row) != column || (mainPart && !IsMainPart(row.kind))) continue;
    const HWND control = GetDlgItem(form.Window(), row.id);
    const LONG_PTR style = control ? GetWindowLongPtrW(control, GWL_STYLE) : 0;
    if ((style & WS_TABSTOP) != 0 && (style & WS_VISIBLE) != 0 && (style & WS_DISABLED) == 0) return control;
  }
  return nullptr;
}

}  // namespace

std::span<const EventRow> TitlePane::Events() const {
  static const EventRow kRows[] = {
      {butTabs, Click, &TitlePane::butTabs_Click, static_cast<int>(kTabs.size())},
      {mnuViewYourSonaro, Click, &TitlePane::mnuView_Click, static_cast<int>(kTabs.size())},
      {mnuViewPersonalPage, Click, &TitlePane::mnuViewPersonalPage_Click},
      {mnuNextTab, Click, &TitlePane::mnuNextTab_Click},
      {mnuPreviousTab, Click, &TitlePane::mnuPreviousTab_Click},
      {mnuNextColumn, Click, &TitlePane::mnuNextColumn_Click},
      {mnuPreviousColumn, Click, &TitlePane::mnuPreviousColumn_Click},
      {butMenu, Click, &TitlePane::butMenu_Click},
      {butHelp, Click, &TitlePane::butHelp_Click},
      {mnuFullHelp, Click, &TitlePane::butHelp_Click},
      {mnuQuickStart, Click, &TitlePane::mnuQuickStart_Click},
      {butTray, Click, &TitlePane::butTray_Click},
      {mnuHideToTray, Click, &TitlePane::butTray_Click},
      {butMin, Click, &TitlePane::butMin_Click},
      {butCloseIt, Click, &TitlePane::butCloseIt_Click},
      {mnuExit, Click, &TitlePane::mnuExit_Click},
  };
  return kRows;
}

void TitlePane::Show() {
  const View shown = context_.models.listing.State().Front();
  for (int tab = 0; tab < butTabs_.Count(); ++tab)
    butTabs_[tab].SetActive(kTabs[static_cast<std::size_t>(tab)] == shown);
}

void TitlePane::butTabs_Click(int tab) { context_.view.ShowView(kTabs[static_cast<std::size_t>(tab)]); }

void TitlePane::MoveTab(int step) {
  const auto shown = std::find(kTabs.begin(), kTabs.end(), context_.models.listing.State().Front());
  const int count = static_cast<int>(kTabs.size());
  const int at = shown == kTabs.end() ? 0 : static_cast<int>(shown - kTabs.begin());
  mnuView_Click((at + step + count) % count);
}

// From elsewhere in the window to the first column, or to the last.
void TitlePane::MoveColumn(int step) {
  int at = step > 0 ? -1 : kColumns;
  for (const ControlRow& row : form_.Description().controls) {
    if (row.id != 0 && row.id == form_.FocusedControl() && ColumnOf(row) >= 0) at = ColumnOf(row);
  }
  for (int tries = 0; tries < kColumns; ++tries) {
    at = (at + step + kColumns) % kColumns;
    HWND target = FirstStop(form_, at, true);
    if (!target) target = FirstStop(form_, at, false);
    if (!target) continue;
    SendMessageW(form_.Window(), WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(target), TRUE);
    return;
  }
}

void TitlePane::mnuView_Click(int view) {
  butTabs_Click(view);
  if (kTabs[static_cast<std::size_t>(view)] == View::Search) {
    txtQuickSearch_.Focus();
    txtQuickSearch_.SelectAll();
  }
}

void TitlePane::butMenu_Click() {
  std::vector<MenuEntry> menu = context_.models.actions.ProgramMenu();
  for (MenuEntry& entry : menu) {
    if (entry.command == mnuUndoUpdate) entry.enabled = context_.services.update.CanUndoUpdate();
  }
  butMenu_.PopUpMenu(menu);
}

}  // namespace sonaro
