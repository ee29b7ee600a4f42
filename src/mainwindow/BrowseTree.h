// The browse tree: categories or locations out of the data folder's list files, and "Your Stations" as the
// last root. Holds nodes and decides what a click on one shows; the tree view only draws it. Reading runs
// with errors ignored: a missing file leaves its part of the tree empty.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/Text.h"

namespace sonaro {

class DataFolder;

enum class BrowseMode : int { NotBuilt = 0, ByCategory = 1, ByLocation = 2 };

struct BrowseNode {
  static constexpr int kRoot = -1;
  // Levels below a category. A list that nests deeper is damaged or hostile; what lies deeper hangs on this
  // level, beside the entry that it names as its parent, so that no station is lost.
  static constexpr int kLowestLevel = 30;

  std::string key;
  std::string text;  // may begin with a blank, which puts an entry before its siblings
  std::string tag;   // identifiers separated by blanks; for a category its code and file name
  int parent = kRoot;
  int level = 0;                 // 0: a root
  std::vector<int> children;     // by the sort keys of their texts
  std::size_t stationCount = 0;  // of an entry its own stations, of a category the different ones below it
};

// What a click on a node puts into the station list.
struct NodeClick {
  enum class Fill { Nothing, PersonalStations, Stations };
  Fill fill = Fill::Nothing;
  std::string ids;  // for Stations: each identifier followed by one blank
};

class BrowseTree {
 public:
  // `ownStations`: the text of the last root.
  explicit BrowseTree(DataFolder& data, SortKeyOf sortKey = FoldCase, std::string ownStations = {})
      : data_(data), sortKey_(std::move(sortKey)), ownStations_(std::move(ownStations)) {}

  // Rebuilds the tree when `mode` is not the one it was built for; true when it did.
  bool Show(BrowseMode mode);
  // Clears the tree and rebuilds it for the mode. Counting the stations is the greater part of the work; a
  // tree that nobody looks at does without.
  enum class Counts { Wanted, Left };
  void FillBrowseTree(BrowseMode mode, Counts counts = Counts::Wanted);

  BrowseMode Mode() const { return mode_; }
  // Category nodes in the order of the file, then "Your Stations".
  const std::vector<int>& Roots() const { return roots_; }
  // `node` is an index out of Roots() or of a node's children.
  const BrowseNode& Node(int node) const { return nodes_[static_cast<std::size_t>(node)]; }
  std::size_t NodeCount() const { return nodes_.size(); }
  // The node with this key, or BrowseNode::kRoot.
  int Find(std::string_view key) const;

  static NodeClick ClickOn(const BrowseNode& node);

 private:
  int AddNode(int parent, std::string key, std::string_view text, std::string tag);
  void ExpandCategory(const std::string& tag, int category, std::string_view keyPrefix);
  void SortChildren();
  void CountStations(int category);

  DataFolder& data_;
  SortKeyOf sortKey_;
  std::string ownStations_;
  BrowseMode mode_ = BrowseMode::NotBuilt;
  std::vector<BrowseNode> nodes_;
  std::vector<int> roots_;
};

}  // namespace sonaro
