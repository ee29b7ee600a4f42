#include "mainwindow/SonaroFrmBrowsePane.h"

#include <vector>

#include "forms/ControlIds.h"
#include "forms/Form.h"
#include "forms/controls/TreeView.h"
#include "settings/FormatCount.h"

namespace sonaro {

void BrowsePane::Show(std::size_t personalStations) {
  TreeView& view = form_.Tree(treeBrowse);
  if (shown_ != tree_.Mode()) {
    shown_ = tree_.Mode();
    view.BeginFill();
    view.Clear();
    FillView(view);
    view.EndFill();
  }
  view.SetFigure(personal_, Figure(personalStations));
}

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
  return count > 0 ? FormatCount(count, state_.decimalMode) : std::string();
}

const BrowseNode* BrowsePane::NodeAt(HTREEITEM item) const {
  const int node = form_.Tree(treeBrowse).Data(item);
  return node >= 0 && static_cast<std::size_t>(node) < tree_.NodeCount() ? &tree_.Node(node) : nullptr;
}

}  // namespace sonaro
