// A small directory with everything of the main window that shows no window.
#pragma once

#include <string>

#include "fakes/FakeRegistry.h"
#include "mainwindow/BrowseTree.h"
#include "mainwindow/Rankings.h"
#include "mainwindow/StationFilter.h"
#include "mainwindow/StationListFiller.h"
#include "mainwindow/StationListState.h"
#include "settings/CReg.h"
#include "settings/Strings.h"
#include "stations/StationModels.h"

namespace sonaro {

// Gives the number and shows what was filled in: "11011(rock)()".
class MarkedStrings : public Strings {
 public:
  std::string Load(int id) const override { return std::to_string(id) + "({0})({1})"; }
};

class Models : public StationModels {
 protected:
  Models() { registry.CreateKey(RootKey::LocalMachine, kSettingsKey); }

  // The keys of the rows as shown, each followed by a blank.
  std::string Shown() const {
    std::string keys;
    for (const StationKey& key : listing.Rows().Keys()) keys += (key ? key.RowKey() : "X") + " ";
    return keys;
  }
  const BrowseNode& NodeWithKey(std::string_view key) const { return tree.Node(tree.Find(key)); }

  FakeRegistry registry;
  CReg settings{registry};
  MarkedStrings strings;
  BrowseTree tree{data};
  Rankings rankings{data};
  StationListFiller lists{stations, source, recent, strings};
  StationFilter filter{data, settings, stations, FoldCase};
  StationListState listing{lists, rankings, groups, tree, source, strings, FoldCase, &filter};
};

}  // namespace sonaro
