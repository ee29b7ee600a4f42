#include "windows/ViewsForm.h"

#include <array>

#include "forms/ProgressScale.h"
#include "forms/RatingPicture.h"
#include "forms/TreeView.h"

namespace sonaro {
namespace {

constexpr ControlRow Tab(int index, const char* text) {
  return {.id = ViewsForm::kTabs + index,
          .kind = Kind::TabKey,
          .text = text,
          .at = {15 + 190 * index, 43, 190, 42}};
}

constexpr ControlRow Header(int index, const char* text, int x, int width) {
  return {.id = ViewsForm::kHeader + index, .kind = Kind::HeaderKey, .text = text, .at = {x, 164, width, 24}};
}

constexpr ControlRow RatingRow(int index, const char* text) {
  return {.id = ViewsForm::kRating + index,
          .kind = Kind::Rating,
          .text = text,
          .at = {738 + 54 * index, 306, 54, 62},
          .flags = kOnGlass};
}

}  // namespace

const FormDesign& ViewsForm::Design() {
  static constexpr ControlRow kRows[] = {
      {.id = 1, .kind = Kind::TitleBar, .text = "Sonaro", .at = {50, 4, 92, 30}, .type = Type::Wordmark},
      {.kind = Kind::Dial, .at = {14, 42, 952, 44}},
      Tab(0, "Your Sonaro"),
      Tab(1, "List"),
      Tab(2, "Browse"),
      Tab(3, "By Location"),
      Tab(4, "Search"),
      {.kind = Kind::Label, .text = "Categories", .at = {14, 137, 200, 24}, .ink = Ink::Muted},
      {.id = ViewsForm::kTree, .kind = Kind::TreeView, .at = {14, 164, 200, 280}},
      {.kind = Kind::Slots, .at = {14, 456, 200, 130}},
      {.kind = Kind::Label,
       .text = "Jazz",
       .at = {224, 137, 380, 24},
       .type = Type::Title,
       .ink = Ink::TabText},
      Header(0, "Name", 224, 186),
      Header(1, "Location", 410, 112),
      Header(2, "Media Type", 522, 82),
      Header(3, "Station Format", 604, 112),
      {.id = ViewsForm::kList, .kind = Kind::ListView, .at = {224, 188, 492, 398}},
      {.kind = Kind::Glass, .at = {726, 140, 240, 446}, .cut = 18},
      RatingRow(0, "Overall"),
      RatingRow(1, "Sound"),
      RatingRow(2, "Speed"),
      RatingRow(3, "Website"),
      {.kind = Kind::Glass, .at = {14, 599, 546, 24}},
      {.id = ViewsForm::kProgress, .kind = Kind::Progress, .at = {126, 601, 366, 20}, .flags = kOnGlass},
  };
  static constexpr FormDesign kDesign = {.name = "frmViews",
                                         .caption = "Views",
                                         .size = {980, 640},
                                         .outline = "maf98",
                                         .controls = kRows,
                                         .titleGroove = 38,
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
constexpr std::array<const char*, 6> kPlaces = {"Lisbon, Portugal", "Mobile, US",
                                                "Ghent, Belgium",   "Tromsø, Norway",
                                                "Quito, Ecuador",   "Saint Petersburg, Russia"};
constexpr std::array<const char*, 4> kMedia = {"MP3", "AAC", "Ogg Vorbis", "RealAudio"};
constexpr std::array<const char*, 5> kFormats = {"Jazz", "Gospel", "News & Talk", "Drum & Bass",
                                                 "Classic Rock"};

template <std::size_t N>
std::string Pick(const std::array<const char*, N>& texts, int row) {
  return texts[static_cast<std::size_t>(row) % N];
}

}  // namespace

std::string MadeUpStations::Cell(int row, int column) const {
  switch (column) {
    case 0: {
      const int round = row / static_cast<int>(kNames.size());
      return Pick(kNames, row) + (round == 0 ? "" : " " + std::to_string(round));
    }
    case 1:
      return Pick(kPlaces, row);
    case 2:
      return Pick(kMedia, row / 2);
    default:
      return Pick(kFormats, row / 3);
  }
}

ViewsForm::ViewsForm(FormContext& context, MadeUpStations& stations)
    : Form(context, Design()), stations_(stations) {}

std::span<const EventRow> ViewsForm::Events() const {
  static const EventRow kRows[] = {
      {kTabs, Click, &ViewsForm::Tabs_Click, 5},
      {kList, ItemActivated, &ViewsForm::List_ItemActivate},
      {kList, ItemSelected, &ViewsForm::List_ItemSelect},
      {kList, ContextMenu, &ViewsForm::List_ContextMenu},
      {kTree, NodeClick, &ViewsForm::Tree_NodeClick},
  };
  return kRows;
}

void ViewsForm::OnLoad() {
  List(kList).SetColumns({{"Name", 185}, {"Location", 112}, {"Media Type", 82}, {"Station Format", 99}});
  List(kList).SetEmptyText("No Stations Found",
                           "Try fewer words, choose \xE2\x80\x9C"
                           "Any word\xE2\x80\x9D, or search in all fields.");
  List(kList).SetModel(&stations_, true);
  FillTree();
  Rating(kRating).SetRating(9, "4.5", "Overall 4.5 of 5");
  Rating(kRating + 1).SetRating(10, "5.0", "Sound 5.0 of 5");
  Rating(kRating + 2).SetRating(7, "3.5", "Speed 3.5 of 5");
  Rating(kRating + 3).SetRating(0, "\xE2\x80\x93", "Website not rated");
  Progress(kProgress).SetProgress(62, 100);
  SetToggleOnly(kTabs, 5, 2);
  SetSortMark(kHeader, SortMark::Up);
}

void ViewsForm::FillTree() {
  TreeView& tree = Tree(kTree);
  tree.BeginFill();
  tree.Clear();
  int number = 0;
  for (const char* root : {"Adult Hits", "Alternative", "Blues", "Classical", "Electronic", "Jazz",
                           "News & Talk", "Rock", "Spoken Word", "World", "Your Stations"}) {
    const HTREEITEM node = tree.Add(nullptr, root, std::to_string(100 + 37 * number), number);
    ++number;
    const std::string name = root;
    if (name != "Classical" && name != "Jazz" && name != "Rock") continue;
    for (const char* child : {"Chamber", "Opera", "Orchestral with a very long name indeed"})
      tree.Add(node, child, "58", number++);
    if (name == "Classical") tree.Expand(node);
  }
  tree.EndFill();
}

void ViewsForm::Tabs_Click(int index) {
  SetToggleOnly(kTabs, 5, index);
  Note("Tab", index);
}

void ViewsForm::Tree_NodeClick(HTREEITEM node) { Note("NodeClick", Tree(kTree).Data(node)); }

}  // namespace sonaro
