// The browse tree in the left column. Part of SonaroFrm.
#pragma once

#include <windows.h>

#include <commctrl.h>

#include <cstddef>
#include <string>

#include "mainwindow/BrowseTree.h"
#include "settings/AppState.h"

namespace sonaro {

class Form;
class TreeView;

class BrowsePane {
 public:
  BrowsePane(Form& form, const BrowseTree& tree, const AppState& state)
      : form_(form), tree_(tree), state_(state) {}

  // Shows the tree as it is built; the same tree keeps its expansion and its selection, whatever the number
  // of the user's own stations.
  void Show(std::size_t personalStations);
  // The next Show takes the tree over anew.
  void TreeChanged() { shown_ = BrowseMode::NotBuilt; }
  // Null for nullptr.
  const BrowseNode* NodeAt(HTREEITEM item) const;

 private:
  void FillView(TreeView& view);
  std::string Figure(std::size_t count) const;

  Form& form_;
  const BrowseTree& tree_;
  const AppState& state_;
  BrowseMode shown_ = BrowseMode::NotBuilt;
  HTREEITEM personal_ = nullptr;  // "Your Stations"
};

}  // namespace sonaro
