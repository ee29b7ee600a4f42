#include "mainwindow/SonaroFrmBrowsePane.h"

#include "forms/ControlIds.h"
#include "forms/Form.h"
#include "forms/TreeView.h"
#include "mainwindow/FigureText.h"

namespace sonaro {

void BrowsePane::Show(std::size_t personalStations) {
  if (shown_ == tree_.Mode()) return;
  shown_ = tree_.Mode();
  TreeView& view = form_.Tree(treeBrowse);
  view.BeginFill();
  view.Clear();
  for (const int root : tree_.Roots()) Add(nullptr, root, personalStations);
  view.EndFill();
}

void BrowsePane::Add(HTREEITEM parent, int node, std::size_t personalStations) {
  const BrowseNode& facts = tree_.Node(node);
  const bool personal = BrowseTree::ClickOn(facts).fill == NodeClick::Fill::PersonalStations;
  const std::size_t count = personal ? personalStations : facts.stationCount;
  const HTREEITEM item =
      form_.Tree(treeBrowse)
          .Add(parent, facts.text, count > 0 ? FigureText(count, state_.decimalMode) : std::string(), node);
  for (const int child : facts.children) Add(item, child, personalStations);
}

const BrowseNode* BrowsePane::NodeAt(HTREEITEM item) const {
  const int node = form_.Tree(treeBrowse).Data(item);
  return node >= 0 && static_cast<std::size_t>(node) < tree_.NodeCount() ? &tree_.Node(node) : nullptr;
}

}  // namespace sonaro
