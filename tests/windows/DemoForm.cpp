#include "windows/DemoForm.h"

#include "forms/Painter.h"

namespace sonaro {
namespace {

constexpr int kColumns[] = {130, 268, 406, 544, 682, 820};

ControlRow At(Kind kind, int first, int column, const char* text, int y, int height, Icon icon = Icon::None,
              unsigned flags = kNone) {
  if (column == 4) flags |= kDisabled;
  return {.id = first + column,
          .kind = kind,
          .text = text,
          .at = {kColumns[column], y, 130, height},
          .icon = icon,
          .flags = flags};
}

}  // namespace

const FormDesign& DemoForm::Design() {
  static const std::vector<ControlRow> rows = [] {
    std::vector<ControlRow> all;
    all.push_back(
        {.kind = Kind::Label, .text = "Sonaro components", .at = {20, 12, 300, 28}, .type = Type::Heading});
    constexpr const char* kHeads[] = {"normal", "hover", "pressed", "focused", "disabled", "active"};
    for (int i = 0; i < 6; ++i) {
      all.push_back({.kind = Kind::Label,
                     .text = kHeads[i],
                     .at = {kColumns[i], 42, 130, 20},
                     .flags = kCentred,
                     .type = Type::Small,
                     .ink = Ink::Muted});
    }
    const auto caption = [&](const char* text, int y) {
      all.push_back({.kind = Kind::Label,
                     .text = text,
                     .at = {20, y, 104, 30},
                     .type = Type::BodyStrong,
                     .ink = Ink::Muted});
    };
    const auto row = [&](Kind kind, int first, const char* text, int y, int height, Icon icon, int count,
                         unsigned flags = kNone) {
      for (int i = 0; i < count; ++i) all.push_back(At(kind, first, i, text, y, height, icon, flags));
    };
    caption("Push key", 64);
    row(Kind::PushKey, DemoForm::kPush, "Sche&dule", 64, 30, Icon::Sched, 5);
    caption("Primary key", 102);
    row(Kind::PrimaryKey, DemoForm::kPrimary, "Search", 102, 30, Icon::Search, 5);
    caption("Ranking key", 140);
    row(Kind::RankingKey, DemoForm::kRanking, "Best Sound", 140, 36, Icon::Sound, 6);
    caption("Group key", 184);
    row(Kind::GroupKey, DemoForm::kGroups, "Morning", 184, 28, Icon::None, 6);
    caption("Strip key", 220);
    for (int i = 0; i < 5; ++i) {
      all.push_back({.id = DemoForm::kStrip + i,
                     .kind = Kind::StripKey,
                     .text = "To tray",
                     .at = {kColumns[i] + 50, 220, 28, 22},
                     .icon = Icon::Tray,
                     .flags = i == 4 ? kDisabled : kNone});
    }
    caption("Play key 1", 250);
    row(Kind::PlayKey, DemoForm::kPlay, "Play (MP3)", 250, 40, Icon::None, 5);
    caption("Play key 2, 3", 298);
    row(Kind::PlayKey, DemoForm::kPlayMore, "Play (WMA)", 298, 40, Icon::None, 5, kSecondary);
    caption("Check box", 346);
    for (int i = 0; i < 6; ++i) {
      all.push_back({.id = DemoForm::kCheck + i,
                     .kind = Kind::CheckBox,
                     .text = "Sounds",
                     .at = {kColumns[i] + 6, 346, 120, 26},
                     .flags = i == 4 ? kDisabled : kNone});
    }
    caption("Radio button", 378);
    for (int i = 0; i < 6; ++i) {
      all.push_back({.id = DemoForm::kRadio + i,
                     .kind = Kind::RadioButton,
                     .text = "Any word",
                     .at = {kColumns[i] + 6, 378, 120, 26},
                     .flags = i == 4 ? kDisabled : kNone});
    }
    caption("Combo, edit", 412);
    row(Kind::Combo, DemoForm::kCombo, "", 412, 28, Icon::None, 6);
    all.push_back({.kind = Kind::Groove, .at = {20, 452, 940, 2}});
    for (int i = 0; i < 5; ++i) {
      all.push_back({.id = DemoForm::kEdit + i,
                     .kind = Kind::Edit,
                     .at = {kColumns[i], 464, 130, 28},
                     .flags = i == 4 ? kDisabled : kNone});
    }
    all.push_back({.id = DemoForm::kSearch, .kind = Kind::ComboEdit, .at = {820, 464, 130, 28}});
    all.push_back({.id = DemoForm::kNotes, .kind = Kind::MultiEdit, .at = {130, 500, 268, 84}});
    all.push_back({.kind = Kind::Glass, .at = {406, 500, 268, 84}, .cut = 18});
    all.push_back({.id = DemoForm::kReadOnly,
                   .kind = Kind::ReadOnlyText,
                   .text = "Late-night jazz from a cellar on the Leie: trios, ballads and long live sets.",
                   .at = {424, 510, 232, 64},
                   .flags = kOnGlass});
    for (int i = 0; i < 4; ++i) {
      all.push_back({.id = DemoForm::kHeader + i,
                     .kind = Kind::HeaderKey,
                     .text = "Media Type",
                     .at = {682 + 67 * i, 500, 67, 24}});
    }
    for (int i = 0; i < 3; ++i) {
      all.push_back({.id = DemoForm::kToggle + i,
                     .kind = Kind::ToggleKey,
                     .text = "Weekly",
                     .at = {682 + 92 * i, 532, 84, 28},
                     .pane = 3});
    }
    all.push_back({.id = DemoForm::kState,
                   .kind = Kind::StateLabel,
                   .text = "Time Left To Scan: 17",
                   .at = {130, 592, 268, 24},
                   .flags = kRightAligned,
                   .type = Type::MessageStrong,
                   .ink = Ink::TabText});
    all.push_back({.id = DemoForm::kPicture, .kind = Kind::Picture, .at = {406, 592, 268, 24}});
    all.push_back({.kind = Kind::Slots, .at = {682, 570, 200, 130}});
    all.push_back({.kind = Kind::Mark, .at = {900, 570, 76, 76}});
    return all;
  }();
  static constexpr Place kSmall[] = {{DemoForm::kPush, {20, 20, 130, 30}},
                                     {DemoForm::kEdit, {20, 60, 130, 28}}};
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
    SetDetail(kGroups + i, "1");
    SetDetail(kPlay + i, "128 kbit/s");
    SetDetail(kPlayMore + i, "20 kbit/s");
    for (const char* item : {"late night", "jazz", "R&B", "\xC3\xA9t\xC3\xA9"}) AddItem(kCombo + i, item);
    SelectItem(kCombo + i, 0);
    SetText(kEdit + i, "late night");
  }
  for (const char* item : {"late night", "jazz"}) AddItem(kSearch, item);
  SetText(kNotes, "Sea stories. Part two of the sea stories. Ask Mum to listen too.");
  Check(kCheck + 5);
  Check(kRadio + 5);
  SetToggle(kRanking + 5, true);
  SetToggle(kGroups + 5, true);
  SetToggle(kToggle + 1, true);
  SetSortMark(kHeader, SortMark::Up);
  SetPicture(kPicture, [](HDC dc, const RECT& box, const Painter& painter) {
    painter.Fill(dc, {box.left, box.top, box.left + painter.Px(100), box.bottom}, painter.Colors().signal);
  });
}

void DemoForm::OnUnload() { log.push_back("Unload"); }

void DemoForm::OnEscape() {
  log.push_back("Escape");
  Close(7);
}

void DemoForm::Push_Click(int index) {
  Note("Click", kPush + index);
  if (destroyOnClick) {
    DemoForm* self = *destroyOnClick;
    *destroyOnClick = nullptr;
    delete self;
    return;
  }
  if (closeOnClick) Close(resultOnClick);
}

}  // namespace sonaro
