// The filter is kept as the texts that the user sees, not as identifiers of stations: the next guide numbers
// its entries anew, and "Poland" still means Poland. Identifiers are read out of the tree when a list is
// narrowed, and forgotten with the guide.
#include "mainwindow/StationFilter.h"

#include <algorithm>
#include <map>
#include <utility>

#include "base/DataFolder.h"
#include "base/Numbers.h"
#include "directory/StatList.h"
#include "settings/CReg.h"
#include "settings/SettingNames.h"

namespace sonaro {
namespace {

// Between the texts of a way through the tree, in settings too, so it never changes.
constexpr std::string_view kStep = " > ";
constexpr int kAnswered = 2;  // reliability of a station that answered when last tried

void AppendIds(const BrowseTree& tree, int node, std::vector<std::int32_t>& ids) {
  const BrowseNode& from = tree.Node(node);
  // A category's tag names its file; its stations stand in its entries.
  for (std::string_view tag = from.level > 0 ? std::string_view(from.tag) : ""; !tag.empty();) {
    std::int32_t id = 0;
    if (ParseStationId(NextField(tag, ' '), id)) ids.push_back(id);
  }
  if (from.level > 0) return;
  for (const int entry : from.children) AppendIds(tree, entry, ids);
}

// A sub-genre is an entry that has none below it; entries that do sort stations of other genres by initials.
// An entry with the name of its category stands for all of it.
bool CanBeChosen(StationFilter::Part part, const BrowseTree& tree, const BrowseNode& node) {
  if (node.level == 0) return true;
  if (node.level > 1 || node.text.starts_with(' ') || node.text == tree.Node(node.parent).text) return false;
  return part == StationFilter::Part::Place || node.children.empty();
}

}  // namespace

StationFilter::StationFilter(DataFolder& data, CReg& settings, StatList& stations, SortKeyOf sortKey)
    : data_(data), settings_(settings), stations_(stations), sortKey_(std::move(sortKey)) {
  // A text of fewer values leaves the other parts off.
  const std::string kept = settings_.Get(setting::kListFilter);
  std::size_t part = 0;
  for (const std::string_view value : SplitAtMost(kept, '\t', kParts)) values_[part++] = value;
}

// The setting is written with every change, so a crash keeps the filter; an empty one clears it, so that
// nothing is left of a filter that was taken away.
void StationFilter::Set(Part part, std::string_view value) {
  const auto place = static_cast<std::size_t>(part);
  if (values_[place] == value) return;
  values_[place] = value;
  if (place < ids_.size()) ids_[place].reset();  // read again by the list that is narrowed next
  std::string kept;
  for (const std::string& each : values_) kept += (&each == values_.data() ? "" : "\t") + each;
  settings_.Set(setting::kListFilter, IsOn() ? kept : "");
}

bool StationFilter::IsOn() const {
  return std::any_of(values_.begin(), values_.end(), [](const std::string& value) { return !value.empty(); });
}

void StationFilter::TakeAllAway() {
  for (int part = 0; part < kParts; ++part) Set(static_cast<Part>(part), "");
}

std::string_view StationFilter::ShortText(std::string_view value) {
  const std::size_t step = value.rfind(kStep);
  return step == std::string_view::npos ? value : value.substr(step + kStep.size());
}

// From the node up to its root, so the steps are put in front of each other.
std::string StationFilter::ValueOf(const BrowseTree& tree, int node) {
  if (BrowseTree::ClickOn(tree.Node(node)).fill == NodeClick::Fill::PersonalStations) return {};
  std::string value;
  for (; node != BrowseNode::kRoot; node = tree.Node(node).parent) {
    const std::string_view text = TrimBlanks(tree.Node(node).text);
    value = std::string(text) + (value.empty() ? "" : std::string(kStep) + value);
  }
  return value;
}

BrowseTree StationFilter::ReadTree(Part part) const {
  BrowseTree tree(data_, sortKey_);
  tree.FillBrowseTree(part == Part::Place ? BrowseMode::ByLocation : BrowseMode::ByCategory,
                      BrowseTree::Counts::Left);
  return tree;
}

// A multimap, since two entries may have the same text; they differ by the way to them, which is the value.
std::vector<StationFilter::Choice> StationFilter::Choices(Part placeOrGenre) const {
  const BrowseTree tree = ReadTree(placeOrGenre);
  std::multimap<std::string, Choice> byText;
  for (int node = 0; node < static_cast<int>(tree.NodeCount()); ++node) {
    if (!CanBeChosen(placeOrGenre, tree, tree.Node(node))) continue;
    std::string value = ValueOf(tree, node);
    if (value.empty()) continue;
    // Sub-genres of two genres may have one name. Both are offered; the tip of the box tells their ways.
    Choice choice{std::string(ShortText(value)), std::move(value)};
    byText.emplace(sortKey_(choice.text), std::move(choice));
  }
  std::vector<Choice> choices;
  for (auto& [key, choice] : byText) choices.push_back(std::move(choice));
  return choices;
}

// Every node with the value counts: an entry may stand in several categories. The list may hold a station
// more than once, which a binary search does not mind.
const std::vector<std::int32_t>& StationFilter::Ids(Part placeOrGenre) const {
  auto& ids = ids_[static_cast<std::size_t>(placeOrGenre)];
  if (ids) return *ids;
  // A place that the guide has no longer leaves this empty, and the list with it: the filter says what it
  // does.
  ids.emplace();
  const BrowseTree tree = ReadTree(placeOrGenre);
  for (int node = 0; node < static_cast<int>(tree.NodeCount()); ++node) {
    if (ValueOf(tree, node) == Value(placeOrGenre)) AppendIds(tree, node, *ids);
  }
  std::sort(ids->begin(), ids->end());
  return *ids;
}

void StationFilter::GuideChanged() { ids_ = {}; }

// The parts that cost nothing come first, and leave the fewer stations to be read.
void StationFilter::Narrow(std::span<const StationKey> keys, std::vector<std::uint32_t>& rows) const {
  for (const Part part : {Part::Place, Part::Genre}) {
    if (Value(part).empty()) continue;
    const auto& ids = Ids(part);
    std::erase_if(rows, [&](std::uint32_t row) {
      return keys[row].IsOfGuide() && !std::binary_search(ids.begin(), ids.end(), keys[row].number);
    });
  }
  const std::int64_t bitRate = NumberValue(Value(Part::BitRate));
  const bool answers = !Value(Part::Answers).empty();
  if (bitRate <= 0 && !answers) return;
  std::vector<std::int32_t> asked;
  for (const std::uint32_t row : rows) {
    if (keys[row].IsOfGuide()) asked.push_back(keys[row].number);
  }
  std::vector<std::int32_t> passed;
  stations_.VisitStations(asked, [&](const StationView& station) {
    if (NumberValue(station[StationField::BitRate]) < bitRate) return;
    if (answers && NumberValue(station[StationField::Reliability]) < kAnswered) return;
    passed.push_back(station.StationId);
  });
  // The directory leaves out what it does not know, so that what passed is matched by key, not by place.
  std::sort(passed.begin(), passed.end());
  std::erase_if(rows, [&](std::uint32_t row) {
    return keys[row].IsOfGuide() && !std::binary_search(passed.begin(), passed.end(), keys[row].number);
  });
}

}  // namespace sonaro
