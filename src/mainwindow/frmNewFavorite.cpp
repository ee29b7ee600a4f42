// Two dialogs of one shape: a new group is named, or one that is there gets another name. Whether the name is
// free is asked of the groups by the caller, who says so in a message; the dialog only refuses an empty one.
#include "mainwindow/frmNewFavorite.h"

#include "base/Text.h"
#include "forms/DialogRows.h"
#include "resources/texts/mainwindow.h"
#include "settings/HelpPages.h"
#include "stations/FavoriteGroups.h"

namespace sonaro {

FormDesign frmNewFavorite::DesignOf(const char* name, int title) {
  static constexpr ControlRow kControls[] = {
      {.id = lblTitle, .kind = ControlKind::TitleBar, .at = {40, 4, 300, 26}},
      Caption(IDS_DLG_GROUP_NAME, {14, 60, 392, 24}),
      {.id = txtGroupName, .kind = ControlKind::Edit, .at = {14, 88, 392, 28}},
      {.kind = ControlKind::Groove, .at = {14, 190, 392, 2}},
      OkButton({214, 201, 92, 30}, kDisabled),
      CancelButton({314, 201, 92, 30}),
      HelpButton(348),
      CloseButton(380),
  };
  return {.name = name,
          .caption = title,
          .size = {420, 248},
          .outline = "fdf01",
          .controls = kControls,
          .firstFocus = txtGroupName};
}

const FormDesign& frmNewFavorite::Design() {
  static const FormDesign kDesign = DesignOf("frmNewFavorite", IDS_DLG_NEW_TITLE);
  return kDesign;
}

const FormDesign& frmRenameFav::Design() {
  static const FormDesign kDesign = DesignOf("frmRenameFav", IDS_DLG_RENAME_TITLE);
  return kDesign;
}

frmNewFavorite::frmNewFavorite(FormContext& context, HelpPages& help, const FormDesign& design,
                               const char* page, std::string present)
    : Form(context, design), help_(help), page_(page), name_(std::move(present)) {}

std::span<const EventRow> frmNewFavorite::Events() const {
  static const EventRow kRows[] = {
      {txtGroupName, Change, &frmNewFavorite::txtGroupName_Change},
      {butOKIt, Click, &frmNewFavorite::butOKIt_Click},
      {butCancelIt, Click, &frmNewFavorite::butCancelIt_Click},
      {butCloseIt, Click, &frmNewFavorite::butCancelIt_Click},
      {butHelp, Click, &frmNewFavorite::butHelp_Click},
  };
  return kRows;
}

std::string frmNewFavorite::AskName(HWND owner) { return ShowModal(owner) == 1 ? name_ : ""; }

void frmNewFavorite::OnLoad() {
  lblTitle_.SetText(LoadText(Description().caption.id));
  txtGroupName_.Limit(FavoriteGroups::kMaxNameBytes);
  txtGroupName_.SetText(name_);
  txtGroupName_.SelectAll();
  txtGroupName_Change();
}

// A name of blanks would be none once it is trimmed for the file.
void frmNewFavorite::txtGroupName_Change() { butOKIt_.Enable(!TrimBlanks(txtGroupName_.Text()).empty()); }

void frmNewFavorite::butOKIt_Click() {
  name_ = txtGroupName_.Text();
  Close(1);
}

void frmNewFavorite::butHelp_Click() { help_.OpenHelpPage(page_); }

}  // namespace sonaro
