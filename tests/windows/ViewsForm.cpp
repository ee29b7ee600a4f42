#include "windows/ViewsForm.h"

#include <array>

#include "forms/controls/TreeView.h"

namespace sonaro {

const FormDesign& ViewsForm::Design() {
  static constexpr ControlRow kRows[] = {
      {.id = ViewsForm::kTree, .kind = ControlKind::TreeView, .at = {14, 164, 200, 280}},
      {.id = ViewsForm::kList, .kind = ControlKind::ListView, .at = {224, 188, 492, 398}},
  };
  static constexpr FormDesign kDesign = {.name = "frmViews",
                                         .caption = "Views",
                                         .size = {980, 640},
                                         .controls = kRows,
                                         .firstFocus = ViewsForm::kList};
  return kDesign;
}

namespace {

constexpr std::array<const char*, 18> kNames = {"Amber Tram FM",
                                                "Bayside Gospel Hour",
                                                "Blue Cellar Jazz",
                                                "Copper Canyon 101",
                                                "Ferrovia Uno",
                                                "Harbourlight FM",
                                                "Kite Hill Public Radio with a name that is much too long",
                                                "Lagoon Roots Radio",
                                                "Łódź Nocą",
                                                "Радио Полночь",
                                                "夜更けのジャズ",
                                                "قناة الليل",
                                                "Prairie & Signal",
                                                "Radio Kesselhaus",
                                                "Radio Volcán",
                                                "Sakura Lounge 77",
                                                "Studio Montparnasse",
                                                "Ελληνικά Τραγούδια"};

}  // namespace

std::string MadeUpStations::Cell(int row, int column) const {
  if (column > 0) return std::to_string(column) + " of " + std::to_string(row);
  const std::size_t number = static_cast<std::size_t>(row);
  const std::size_t round = number / kNames.size();
  return std::string(kNames[number % kNames.size()]) + (round == 0 ? "" : " " + std::to_string(round));
}

ViewsForm::ViewsForm(FormContext& context, MadeUpStations& stations)
    : Form(context, Design()), stations_(stations) {}

std::span<const EventRow> ViewsForm::Events() const {
  static const EventRow kRows[] = {
      {kList, ItemActivated, &ViewsForm::List_ItemActivate},
      {kList, ItemSelected, &ViewsForm::List_ItemSelect},
      {kList, ContextMenu, &ViewsForm::List_ContextMenu},
      {kTree, ContextMenu, &ViewsForm::List_ContextMenu},
      {kTree, NodeClick, &ViewsForm::Tree_NodeClick},
  };
  return kRows;
}

void ViewsForm::OnLoad() {
  list->SetColumns({{"Name", 185}, {"Location", 112}, {"Media Type", 82}, {"Station Format", 99}});
  list->SetEmptyText("No Stations Found",
                     "Try fewer words, choose \xE2\x80\x9C"
                     "Any word\xE2\x80\x9D, or search in all fields.");
  list->SetModel(&stations_, true);
  FillTree();
}

void ViewsForm::FillTree() {
  TreeView& view = *tree;
  view.BeginFill();
  view.Clear();
  int number = 0;
  for (const char* root : {"Adult Hits", "Alternative", "Blues", "Classical", "Electronic", "Jazz",
                           "News & Talk", "Rock", "Spoken Word", "World", "Your Stations"}) {
    const HTREEITEM node = view.Add(nullptr, root, std::to_string(100 + 37 * number), number);
    ++number;
    const std::string name = root;
    if (name != "Classical" && name != "Jazz" && name != "Rock") continue;
    for (const char* child : {"Chamber", "Opera", "Orchestral with a very long name indeed"})
      view.Add(node, child, "58", number++);
    if (name == "Classical") view.Expand(node);
  }
  view.EndFill();
}

void ViewsForm::Tree_NodeClick(HTREEITEM node) { Note("NodeClick", tree->Data(node)); }

}  // namespace sonaro
