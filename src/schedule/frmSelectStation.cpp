// Two ways to a station: the rows of a group or list, and a search of the guide. Either fills the same list,
// and what was typed or chosen last is what it shows.
#include "schedule/frmSelectStation.h"

#include "base/Text.h"
#include "forms/DialogRows.h"
#include "resources/texts/schedule.h"
#include "settings/HelpPages.h"
#include "settings/SettingNames.h"

namespace sonaro {

const FormDesign& frmSelectStation::Design() {
  // OK is disabled until a row is chosen, and so is the answer to Enter.
  static constexpr ControlRow kControls[] = {
      {.id = lblTitle, .kind = ControlKind::TitleBar, .text = IDS_SCHED_PICK_TITLE, .at = {40, 4, 196, 26}},
      Caption(IDS_SCHED_PICK_FROM, {14, 48, 100, 28}),
      {.id = cmbSelectGroup,
       .kind = ControlKind::Combo,
       .text = IDS_SCHED_PICK_FROM,
       .at = {120, 48, 312, 28}},
      Caption(IDS_SCHED_PICK_WORDS, {14, 84, 100, 28}),
      {.id = txtFind, .kind = ControlKind::ComboEdit, .text = IDS_SCHED_PICK_WORDS, .at = {120, 84, 312, 28}},
      {.id = butSearchIt,
       .kind = ControlKind::PushButton,
       .text = IDS_SCHED_PICK_FIND,
       .at = {440, 84, 106, 28},
       .icon = Icon::Search},
      {.id = butSplit1,
       .kind = ControlKind::HeaderButton,
       .text = IDS_SCHED_COLUMN_NAME,
       .at = {14, 124, 250, 24},
       .flags = kNoTabStop},
      {.id = butSplit2,
       .kind = ControlKind::HeaderButton,
       .text = IDS_SCHED_COLUMN_LOCATION,
       .at = {264, 124, 170, 24},
       .flags = kNoTabStop},
      {.id = butSplit3,
       .kind = ControlKind::HeaderButton,
       .text = IDS_SCHED_COLUMN_MEDIA,
       .at = {434, 124, 112, 24},
       .flags = kNoTabStop},
      {.id = lstResult,
       .kind = ControlKind::ListView,
       .text = IDS_SCHED_PICK_TITLE,
       .at = {14, 148, 532, 220}},
      OkButton({346, 382, 96, 30}, kDisabled),
      CancelButton({450, 382, 96, 30}),
      HelpButton(488),
      CloseButton(520),
  };
  static constexpr Stretch kStretches[] = {
      {{480, 8, 80, 30}, 100, 100, 0, 0},    {{120, 48, 312, 64}, 0, 100, 0, 0},
      {{440, 84, 106, 28}, 100, 100, 0, 0},  {{14, 124, 250, 24}, 0, 60, 0, 0},
      {{264, 124, 170, 24}, 60, 90, 0, 0},   {{434, 124, 112, 24}, 90, 100, 0, 0},
      {{14, 148, 532, 220}, 0, 100, 0, 100}, {{340, 376, 220, 54}, 100, 100, 100, 100},
  };
  static constexpr FormDesign kDesign = {.name = "frmSelectStation",
                                         .caption = IDS_SCHED_PICK_TITLE,
                                         .size = {560, 430},
                                         .outline = "ddf44",
                                         .controls = kControls,
                                         .firstFocus = cmbSelectGroup,
                                         .keptSize = &setting::kPickSize,
                                         .stretches = kStretches};
  return kDesign;
}

std::span<const EventRow> frmSelectStation::Events() const {
  static const EventRow kRows[] = {
      {cmbSelectGroup, SelChange, &frmSelectStation::cmbSelectGroup_Change},
      // Enter in the words searches; it does not press OK as it does elsewhere in the dialog.
      {txtFind, EnterPressed, &frmSelectStation::butSearchIt_Click},
      {butSearchIt, Click, &frmSelectStation::butSearchIt_Click},
      {lstResult, ItemSelected, &frmSelectStation::lstResult_ItemClick},
      {lstResult, ItemActivated, &frmSelectStation::lstResult_ItemActivate},
      {butOKIt, Click, &frmSelectStation::butOKIt_Click},
      {butCancelIt, Click, &frmSelectStation::butCancelIt_Click},
      {butCloseIt, Click, &frmSelectStation::butCancelIt_Click},
      {butHelp, Click, &frmSelectStation::butHelp_Click},
  };
  return kRows;
}

std::string frmSelectStation::Rows::Cell(int row, int column) const {
  const StationInfo& shown = rows[static_cast<std::size_t>(row)];
  return column == 0 ? shown.name : column == 1 ? shown.location : shown.mediaType;
}

// 1 is what OK and a double click close with.
std::optional<StationInfo> frmSelectStation::Choose(HWND owner) {
  return ShowModal(owner) == 1 ? chosen_ : std::nullopt;
}

// Opens with the first group, or, without groups, with the user's own stations: something to choose from at
// once.
void frmSelectStation::OnLoad() {
  lstResult_->SetColumns({{LoadText(IDS_SCHED_COLUMN_NAME), 249},
                          {LoadText(IDS_SCHED_COLUMN_LOCATION), 170},
                          {LoadText(IDS_SCHED_COLUMN_MEDIA), 112}});
  lstResult_->SetModel(&rows_, true);
  for (const std::string& source : stations_.Sources()) cmbSelectGroup_.AddItem(source);
  for (const std::string& earlier : stations_.SearchHistory()) txtFind_.AddItem(earlier);
  txtFind_.SetTip(LoadText(IDS_SCHED_PICK_WORDS_TIP));
  cmbSelectGroup_.SelectItem(0);
  cmbSelectGroup_Change();
}

// No row is chosen by itself: Enter after a search would otherwise take the first hit unseen.
void frmSelectStation::ShowRows(std::vector<StationInfo> rows) {
  const bool searched = cmbSelectGroup_.SelectedItem() == static_cast<int>(stations_.WholeGuide());
  lstResult_->SetEmptyText(LoadText(searched ? IDS_SCHED_PICK_NONE : IDS_SCHED_PICK_EMPTY),
                           LoadText(searched ? IDS_SCHED_PICK_NONE_HELP : IDS_SCHED_PICK_EMPTY_HELP));
  rows_.rows = std::move(rows);
  lstResult_->RowsChanged();
  lstResult_->SelectNone();
  butOKIt_.Enable(false);
}

void frmSelectStation::cmbSelectGroup_Change() {
  const int source = cmbSelectGroup_.SelectedItem();
  if (source >= 0) ShowRows(stations_.RowsOf(static_cast<std::size_t>(source)));
}

// The combo shows where the rows come from, so a search selects the whole guide there.
void frmSelectStation::butSearchIt_Click() {
  const std::string text = txtFind_.Text();
  if (TrimBlanks(text).empty()) return txtFind_.Focus();
  cmbSelectGroup_.SelectItem(static_cast<int>(stations_.WholeGuide()));
  ShowRows(stations_.Find(text));
  lstResult_.Focus();
}

void frmSelectStation::lstResult_ItemClick(int row) { butOKIt_.Enable(row >= 0); }

void frmSelectStation::lstResult_ItemActivate(int) { butOKIt_Click(); }

void frmSelectStation::butOKIt_Click() {
  const int row = lstResult_->Selected();
  if (row < 0) return;
  // By value: the rows go with the window.
  chosen_ = rows_.rows[static_cast<std::size_t>(row)];
  Close(1);
}

void frmSelectStation::butHelp_Click() { help_.OpenHelpPage("9042.html"); }

}  // namespace sonaro
