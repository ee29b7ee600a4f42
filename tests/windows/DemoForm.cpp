#include "windows/DemoForm.h"

namespace sonaro {
namespace {

constexpr int kColumns[] = {130, 268, 406, 544, 682, 820};

// The control of a row that stands in a column; the fifth is disabled.
ControlRow At(ControlKind kind, int first, int column, const char* text, int y, int height) {
  return {.id = first + column,
          .kind = kind,
          .text = text,
          .at = {kColumns[column], y, 130, height},
          .flags = column == 4 ? kDisabled : kNone};
}

}  // namespace

const FormDesign& DemoForm::Design() {
  static const std::vector<ControlRow> rows = [] {
    std::vector<ControlRow> all;
    const auto row = [&](ControlKind kind, int first, const char* text, int y, int height, int count) {
      for (int i = 0; i < count; ++i) all.push_back(At(kind, first, i, text, y, height));
    };
    row(ControlKind::PushButton, DemoForm::kPush, "Sche&dule", 64, 30, 5);
    row(ControlKind::PrimaryButton, DemoForm::kPrimary, "Search", 102, 30, 5);
    row(ControlKind::RankingButton, DemoForm::kRanking, "Best Sound", 140, 36, 6);
    row(ControlKind::GroupButton, DemoForm::kGroups, "Morning", 184, 28, 6);
    row(ControlKind::CheckBox, DemoForm::kCheck, "Sounds", 346, 26, 6);
    row(ControlKind::RadioButton, DemoForm::kRadio, "Any word", 378, 26, 6);
    row(ControlKind::Combo, DemoForm::kCombo, "", 412, 28, 6);
    row(ControlKind::Edit, DemoForm::kEdit, "", 464, 28, 5);
    all.push_back({.id = DemoForm::kSearch, .kind = ControlKind::ComboEdit, .at = {820, 464, 130, 28}});
    all.push_back({.id = DemoForm::kNotes, .kind = ControlKind::MultiEdit, .at = {130, 500, 268, 84}});
    for (int i = 0; i < 3; ++i) {
      all.push_back({.id = DemoForm::kToggle + i,
                     .kind = ControlKind::ToggleButton,
                     .text = "Weekly",
                     .at = {682 + 92 * i, 532, 84, 28},
                     .pane = 3});
    }
    all.push_back({.id = DemoForm::kState,
                   .kind = ControlKind::StateLabel,
                   .text = "Time Left To Scan: 17",
                   .at = {130, 592, 268, 24}});
    return all;
  }();
  static constexpr Bounds kSmall[] = {{DemoForm::kPush, {20, 20, 130, 30}},
                                      {DemoForm::kEdit, {20, 60, 130, 28}},
                                      {DemoForm::kState, {20, 100, 130, 30}}};
  static constexpr Layout kLayouts[] = {{{440, 150}, "scc44", kSmall}};
  static constexpr KeyRow kKeys[] = {{'K', kCtrl, DemoForm::kPush + 1},
                                     {VK_DELETE, kPlain, DemoForm::kMenuEntry, DemoForm::kCheck},
                                     {'F', kCtrl, DemoForm::kSearch}};
  static const FormDesign design = {.name = "frmDemo",
                                    .caption = "Components",
                                    .size = {980, 760},
                                    .outline = "demo1",
                                    .controls = rows,
                                    .titleGroove = 0,
                                    .layouts = kLayouts,
                                    .keys = kKeys,
                                    .firstFocus = DemoForm::kPush + 3};
  return design;
}

DemoForm::DemoForm(FormContext& context) : Form(context, Design()) {}

std::span<const EventRow> DemoForm::Events() const {
  static const EventRow kRows[] = {
      {kPush, Click, &DemoForm::Push_Click, 5},
      {kPrimary, Click, &DemoForm::Primary_Click},
      {kGroups, Click, &DemoForm::Groups_Click, 6},
      {kGroups, ContextMenu, &DemoForm::Groups_ContextMenu, 6},
      {kCheck, Click, &DemoForm::Check_Click, 6},
      {kRadio, Click, &DemoForm::Radio_Click, 6},
      {kCombo, SelChange, &DemoForm::Combo_SelChange, 6},
      {kEdit, Change, &DemoForm::Edit_Change, 5},
      {kSearch, Change, &DemoForm::Search_Change},
      {kSearch, SelChange, &DemoForm::Search_SelChange},
      {kSearch, EnterPressed, &DemoForm::Search_EnterPressed},
      {kMenuEntry, Click, &DemoForm::Menu_Click},
  };
  return kRows;
}

std::span<const TimerRow> DemoForm::Timers() const {
  static const TimerRow kRows[] = {{kTimer, &DemoForm::Timer_Timer}};
  return kRows;
}

void DemoForm::OnLoad() {
  for (int i = 0; i < 6; ++i) {
    for (const char* item : {"late night", "jazz", "R&B", "\xC3\xA9t\xC3\xA9"}) combo[i].AddItem(item);
    combo[i].SelectItem(0);
  }
  for (int i = 0; i < 5; ++i) edit[i].SetText("late night");
  for (const char* item : {"late night", "jazz"}) search.AddItem(item);
  notes.SetText("Sea stories. Part two of the sea stories. Ask Mum to listen too.");
  check[5].Check();
  radio[5].Check();
  ranking[5].SetActive(true);
  groups[5].SetActive(true);
  toggle[1].SetActive(true);
}

void DemoForm::OnUnload() { log.push_back("Unload"); }

void DemoForm::OnEscape() {
  log.push_back("Escape");
  Close(7);
}

void DemoForm::Push_Click(int index) {
  Note("Click", kPush + index);
  if (menuOnClick) push[index].PopUpMenu(std::vector<MenuEntry>{{.command = kMenuEntry, .text = "Entry"}});
  if (closeOnClick) Close(resultOnClick);
}

}  // namespace sonaro
