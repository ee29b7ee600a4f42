#include "mainwindow/BrowseTree.h"

#include <algorithm>
#include <cstdint>
#include <unordered_map>
#include <utility>

#include "base/DataFolder.h"
#include "base/Numbers.h"
#include "base/OwnFiles.h"
#include "base/Text.h"

namespace sonaro {
namespace {

constexpr const char* kListFileEnd = ".snr";
constexpr const char* kYourStationsKey = "O1";
constexpr const char* kYourStationsTag = "O";

// Tags hold identifiers with blanks between them; what is no number is passed over.
void AppendIds(std::string_view tag, std::vector<std::int32_t>& ids) {
  while (!tag.empty()) {
    std::int32_t id = 0;
    if (ParseStationId(NextField(tag, ' '), id)) ids.push_back(id);
  }
}

}  // namespace

// Reading takes a while, so the same tree is not read again. A new guide calls FillBrowseTree itself.
bool BrowseTree::Show(BrowseMode mode) {
  if (mode == mode_) return false;
  FillBrowseTree(mode);
  return true;
}

// One file lists the categories, and each has a file of its own entries. A missing one leaves its category
// empty.
void BrowseTree::FillBrowseTree(BrowseMode mode, Counts counts) {
  mode_ = mode;
  nodes_.clear();
  roots_.clear();
  const ReadResult file =
      data_.Read(mode == BrowseMode::ByCategory ? guide_file::kCategories : guide_file::kLocations);
  for (const std::string_view line : SplitLines(file.bytes)) {
    const auto fields = SplitAtMost(line, '\t', 4);
    if (fields.size() < 4) continue;
    // The first character is the category's code, the rest the name of its file.
    const std::string tag = std::string(fields[0]) + std::string(fields[2]);
    const int category = AddNode(BrowseNode::kRoot, "M" + std::string(fields[0]), fields[1], tag);
    ExpandCategory(tag, category, fields[3]);
    if (counts == Counts::Wanted) CountStations(category);
  }
  AddNode(BrowseNode::kRoot, kYourStationsKey, ownStations_, kYourStationsTag);
  SortChildren();
}

// An index, since nodes_ moves when it grows: references to nodes do not last across this call.
int BrowseTree::AddNode(int parent, std::string key, std::string_view text, std::string tag) {
  const int index = static_cast<int>(nodes_.size());
  BrowseNode node;
  node.key = std::move(key);
  node.text = text;
  node.tag = std::move(tag);
  node.parent = parent;
  if (parent != BrowseNode::kRoot) node.level = Node(parent).level + 1;
  nodes_.push_back(std::move(node));
  auto& siblings = parent == BrowseNode::kRoot ? roots_ : nodes_[static_cast<std::size_t>(parent)].children;
  siblings.push_back(index);
  return index;
}

void BrowseTree::ExpandCategory(const std::string& tag, int category, std::string_view keyPrefix) {
  if (tag.empty()) return;
  const ReadResult file = data_.Read("\\" + tag.substr(1) + kListFileEnd);
  std::unordered_map<std::string_view, int> entries;  // by entry code, of this file only
  for (const std::string_view line : SplitLines(file.bytes)) {
    const auto fields = SplitAtMost(line, '\t', 5);
    // A line that is cut short ends the list: what follows cannot be trusted to be whole.
    if (fields.size() < 5) return;
    int parent = category;
    if (NumberValue(fields[3]) != 0) {
      const auto found = entries.find(fields[3]);
      if (found == entries.end()) continue;  // an entry must come after its parent
      parent = found->second;
      if (Node(parent).level == BrowseNode::kLowestLevel) parent = Node(parent).parent;
    }
    const int entry =
        AddNode(parent, std::string(keyPrefix) + std::string(fields[0]), fields[2], std::string(fields[4]));
    entries.emplace(fields[0], entry);
  }
}

// In the order of the user's language. The keys are made once, not with every comparison. Roots keep the
// order of the file.
void BrowseTree::SortChildren() {
  std::vector<std::string> keys;
  keys.reserve(nodes_.size());
  for (const BrowseNode& node : nodes_) keys.push_back(sortKey_(node.text));
  for (BrowseNode& node : nodes_) {
    std::stable_sort(node.children.begin(), node.children.end(), [&keys](int a, int b) {
      return keys[static_cast<std::size_t>(a)] < keys[static_cast<std::size_t>(b)];
    });
  }
}

// Called when the category's entries are the last nodes of the tree.
void BrowseTree::CountStations(int category) {
  std::vector<std::int32_t> all;
  for (std::size_t i = static_cast<std::size_t>(category) + 1; i < nodes_.size(); ++i) {
    const std::size_t before = all.size();
    AppendIds(nodes_[i].tag, all);
    nodes_[i].stationCount = all.size() - before;
  }
  std::sort(all.begin(), all.end());
  const auto last = std::unique(all.begin(), all.end());
  nodes_[static_cast<std::size_t>(category)].stationCount = static_cast<std::size_t>(last - all.begin());
}

// -1 when there is none, which is also the parent of the roots.
int BrowseTree::Find(std::string_view key) const {
  for (std::size_t i = 0; i < nodes_.size(); ++i) {
    if (nodes_[i].key == key) return static_cast<int>(i);
  }
  return BrowseNode::kRoot;
}

NodeClick BrowseTree::ClickOn(const BrowseNode& node) {
  if (node.key.starts_with('M') || node.tag.empty()) return {};
  if (node.key.starts_with('O')) return {NodeClick::Fill::PersonalStations, {}};
  return {NodeClick::Fill::Stations, node.tag + " "};
}

}  // namespace sonaro
