// The left column with the rankings or the browse tree. Part of SonaroFrm.
#pragma once

#include <windows.h>

#include <commctrl.h>

#include <cstddef>
#include <string>

#include "mainwindow/MainPane.h"

namespace sonaro {

class FilterPane;
class TreeView;

class BrowsePane final : public EventTarget {
 public:
  BrowsePane(const MainContext& context, FilterPane& filter)
      : context_(context), form_(context.form), filter_(filter), tree_(context.models.tree) {}

  void Load();
  // Lights the ranking on show; in the browsing views shows the tree as it is built. The same tree keeps its
  // expansion and its selection, whatever the number of the user's own stations.
  void Show();
  // The guide is another one.
  void GuideChanged();

 private:
  std::span<const EventRow> Events() const override;
  void ShowTree();
  void FillView(TreeView& view);
  std::string Figure(std::size_t count) const;

  void butRanking_Click(int button);
  void mnuActionRanking_Click(int entry);
  void treeBrowse_NodeClick(HTREEITEM item);
  void treeBrowse_ContextMenu(int node, POINT at);
  void mnuFilterByNode_Click();

  const MainContext& context_;
  Form& form_;
  FilterPane& filter_;
  BrowseTree& tree_;
  ControlArray<ToggleButton> butRankings_{form_, butNewStations, 7};
  TreeHandle treeBrowse_{form_, treeBrowse};
  BrowseMode shown_ = BrowseMode::NotBuilt;
  HTREEITEM personal_ = nullptr;  // "Your Stations"
  // What the open menu is about, as the filter knows it.
  StationFilter::Part menuPart_ = StationFilter::Part::Place;
  std::string menuValue_;
};

}  // namespace sonaro
