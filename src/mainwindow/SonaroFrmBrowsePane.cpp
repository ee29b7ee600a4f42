#include "mainwindow/SonaroFrmBrowsePane.h"

#include "app/FigureText.h"
#include "forms/ControlIds.h"
#include "forms/Form.h"
#include "forms/TreeView.h"

namespace sonaro {

void BrowsePane::Show(std::size_t personalStations) {
  TreeView& view = form_.Tree(treeBrowse);
  if (shown_ != tree_.Mode()) {
    shown_ = tree_.Mode();
    view.BeginFill();
    view.Clear();
    for (const int root : tree_.Roots()) Add(nullptr, root);
    view.EndFill();
  }
  view.SetFigure(personal_, Figure(personalStations));
}

void BrowsePane::Add(HTREEITEM parent, int node) {
  const BrowseNode& facts = tree_.Node(node);
  const HTREEITEM item = form_.Tree(treeBrowse).Add(parent, facts.text, Figure(facts.stationCount), node);
  if (BrowseTree::ClickOn(facts).fill == NodeClick::Fill::PersonalStations) personal_ = item;
  for (const int child : facts.children) Add(item, child);
}

std::string BrowsePane::Figure(std::size_t count) const {
  return count > 0 ? FigureText(count, state_.decimalMode) : std::string();
}

const BrowseNode* BrowsePane::NodeAt(HTREEITEM item) const {
  const int node = form_.Tree(treeBrowse).Data(item);
  return node >= 0 && static_cast<std::size_t>(node) < tree_.NodeCount() ? &tree_.Node(node) : nullptr;
}

}  // namespace sonaro
