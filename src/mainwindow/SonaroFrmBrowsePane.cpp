// The browse tree and the ranking buttons of the left column. The tree's model (BrowseTree) is shared by both
// of its views; the control holds what was filled into it last (shown_).
#include "mainwindow/SonaroFrmBrowsePane.h"

#include <array>
#include <vector>

#include "forms/ControlIds.h"
#include "forms/controls/TreeView.h"
#include "mainwindow/SonaroFrmFilterPane.h"
#include "resources/texts/mainwindow.h"
#include "settings/Strings.h"
#include "stations/PersonalStations.h"

namespace sonaro {
namespace {

// In the order of the ranking buttons. The least popular stations have a menu entry only.
constexpr std::array kRankingButtons{Ranking::NewStations, Ranking::MostPop,   Ranking::BestOverall,
                                     Ranking::BestSound,   Ranking::BestSpeed, Ranking::BestWebsite,
                                     Ranking::MostReliable};

}  // namespace

std::span<const EventRow> BrowsePane::Events() const {
  static const EventRow kRows[] = {
      // Arrays: 7 buttons, and 8 menu entries with the ranking that has no button.
      {butNewStations, Click, &BrowsePane::butRanking_Click, 7},
      {mnuActionNewStations, Click, &BrowsePane::mnuActionRanking_Click, 8},
      {treeBrowse, NodeClick, &BrowsePane::treeBrowse_NodeClick},
      {treeBrowse, ContextMenu, &BrowsePane::treeBrowse_ContextMenu},
      {mnuFilterByNode, Click, &BrowsePane::mnuFilterByNode_Click},
  };
  return kRows;
}

void BrowsePane::Load() {
  constexpr int kTips[] = {IDS_RANKING_NEW_TIP,     IDS_RANKING_POP_TIP,  IDS_RATING_OVERALL_TIP,
                           IDS_RATING_SOUND_TIP,    IDS_RATING_SPEED_TIP, IDS_RATING_WEB_SITE_TIP,
                           IDS_RANKING_RELIABLE_TIP};
  for (int button = 0; button < butRankings_.Count(); ++button)
    butRankings_[button].SetTip(form_.LoadText(kTips[button]));
}

void BrowsePane::Show() {
  const ListingState& state = context_.models.listing.State();
  for (int button = 0; button < butRankings_.Count(); ++button) {
    butRankings_[button].SetActive(state.ranking == kRankingButtons[static_cast<std::size_t>(button)]);
  }
  if (state.view == View::Browse || state.view == View::BrowseLoc) ShowTree();
}

// A tree that nobody has looked at yet is read when somebody does.
void BrowsePane::GuideChanged() {
  if (tree_.Mode() != BrowseMode::NotBuilt) tree_.FillBrowseTree(tree_.Mode());
  shown_ = BrowseMode::NotBuilt;
}

// Filled only when the control holds another tree: filling it costs time and loses what the user has opened.
// The number of own stations can change between, so it is set each time.
void BrowsePane::ShowTree() {
  TreeView& view = *treeBrowse_;
  if (shown_ != tree_.Mode()) {
    shown_ = tree_.Mode();
    view.BeginFill();
    view.Clear();
    FillView(view);
    view.EndFill();
  }
  view.SetFigure(personal_, Figure(context_.data.personal.All().size()));
}

// Without recursion, since how deep a tree goes is up to the files it came from.
void BrowsePane::FillView(TreeView& view) {
  struct Waiting {
    HTREEITEM parent;
    int node;
  };
  std::vector<Waiting> waiting;  // the next one last
  const auto push = [&waiting](HTREEITEM parent, const std::vector<int>& nodes) {
    for (auto node = nodes.rbegin(); node != nodes.rend(); ++node) waiting.push_back({parent, *node});
  };
  push(nullptr, tree_.Roots());
  while (!waiting.empty()) {
    const Waiting next = waiting.back();
    waiting.pop_back();
    const BrowseNode& facts = tree_.Node(next.node);
    const HTREEITEM item = view.Add(next.parent, facts.text, Figure(facts.stationCount), next.node);
    if (BrowseTree::ClickOn(facts).fill == NodeClick::Fill::PersonalStations) personal_ = item;
    push(item, facts.children);
  }
}

std::string BrowsePane::Figure(std::size_t count) const {
  return count > 0 ? FormatCount(count, context_.data.state.decimalMode) : std::string();
}

void BrowsePane::butRanking_Click(int button) {
  context_.models.listing.ShowRanking(kRankingButtons[static_cast<std::size_t>(button)]);
  context_.view.ShowEverything();
}

void BrowsePane::mnuActionRanking_Click(int entry) {
  if (const auto ranking = RankingOfCommand(mnuActionNewStations + entry))
    context_.models.listing.ShowRanking(*ranking);
  context_.view.ShowEverything();
}

// The control's data is an index into the model; -1 or more than there are means a node of a tree before.
void BrowsePane::treeBrowse_NodeClick(HTREEITEM item) {
  const int node = treeBrowse_->Data(item);
  if (node < 0 || static_cast<std::size_t>(node) >= tree_.NodeCount()) return;
  context_.models.listing.treeBrowse_NodeClick(tree_.Node(node));
  context_.view.ShowEverything();
}

// The menu is about the node under the pointer, which need not be the selected one. What it means is kept as
// the filter knows it: the tree may be another one when the entry is chosen.
void BrowsePane::treeBrowse_ContextMenu(int node, POINT at) {
  menuPart_ =
      tree_.Mode() == BrowseMode::ByLocation ? StationFilter::Part::Place : StationFilter::Part::Genre;
  menuValue_ = node >= 0 ? StationFilter::ValueOf(tree_, node) : std::string();
  if (menuValue_.empty()) return form_.PopUpMenu(context_.models.actions.PersonalMenu(), at);
  const std::string name = MenuText(StationFilter::ShortText(menuValue_));
  form_.PopUpMenu(std::vector<MenuEntry>{{.command = mnuFilterByNode,
                                          .text = FormatText(form_.LoadText(IDS_FILTER_NODE), {name})}},
                  at);
}

void BrowsePane::mnuFilterByNode_Click() {
  if (!menuValue_.empty()) filter_.Set(menuPart_, menuValue_);
}

}  // namespace sonaro
