// The browse tree: the lists of categories and the list of each category.
#include <map>
#include <set>

#include "base/Numbers.h"
#include "base/OwnFiles.h"
#include "base/Text.h"
#include "check/Checks.h"

namespace sonaro {
namespace {

constexpr std::size_t kCategoryColumns = 4;
constexpr std::size_t kEntryColumns = 5;

// Checks one list of categories and what it names. The keys of the tree's nodes must differ, since a node is
// found by its key.
// A list of categories is lines of code TAB name TAB file TAB key prefix. `files` and `prefixes` are shared
// by both trees: a list may be named once in each, but a prefix serves for one list only.
class TreeCheck {
 public:
  TreeCheck(CheckContext& context, std::string_view treeName, std::set<std::string>& files,
            std::map<std::string, std::string>& prefixes)
      : context_(context), treeName_(treeName), files_(files), prefixes_(prefixes) {}

  void Run() {
    const std::optional<std::string> text = context_.Read(treeName_, CheckContext::Need::Required);
    if (!text) return;
    std::size_t number = 0;
    for (const std::string_view line : SplitLines(*text)) {
      ++number;
      if (!line.empty()) CheckCategory(number, line);
    }
    if (keys_.empty()) context_.Add(treeName_, 0, "names no category");
  }

 private:
  void CheckCategory(std::size_t number, std::string_view line) {
    const std::vector<std::string_view> columns = SplitAtMost(line, '\t', kCategoryColumns);
    if (columns.size() < kCategoryColumns) {
      context_.Add(treeName_, number, "the line has less than three tabs");
      return;
    }
    const std::string code(columns[0]);
    const std::string file(columns[2]);
    const std::string prefix(columns[3]);
    if (columns[1].empty()) context_.Add(treeName_, number, "the category has no name");
    AddKey(treeName_, number, "M" + code);
    // The program joins code and file name and drops the first character, so the code must be exactly one.
    if (code.size() != 1) context_.Add(treeName_, number, "the code \"" + code + "\" is not one character");
    if (prefix.empty() || prefix[0] == 'M' || prefix[0] == 'O') {
      context_.Add(treeName_, number, "the key prefix \"" + prefix + "\" is empty or begins with M or O");
    }
    const auto [known, isNew] = prefixes_.emplace(FoldCase(prefix), file);
    if (!isNew)
      context_.Add(treeName_, number, "the key prefix \"" + prefix + "\" is used by " + known->second);
    const std::string name = "\\" + file + ".snr";
    files_.insert(FoldCase(name));
    if (!context_.data.Exists(name)) {
      context_.Add(treeName_, number, "the list file \"" + file + ".snr\" is missing");
    } else if (const auto text = context_.Read(name, CheckContext::Need::Required)) {
      CheckEntries(name, *text, prefix);
    }
  }

  // Entries are code TAB number of stations TAB name TAB parent's code or 0 TAB identifiers. The number is
  // not checked: the program counts the identifiers.
  void CheckEntries(const std::string& name, std::string_view text, const std::string& prefix) {
    std::set<std::string> codes;
    std::size_t number = 0;
    for (const std::string_view line : SplitLines(text)) {
      ++number;
      const std::vector<std::string_view> columns = SplitAtMost(line, '\t', kEntryColumns);
      if (columns.size() < kEntryColumns) {
        // The program stops at such a line, so nothing behind it matters.
        context_.Add(name, number, "the line has less than four tabs, which ends the reading of the file");
        return;
      }
      const std::string code(columns[0]);
      const std::string parent(columns[3]);
      if (columns[2].empty()) context_.Add(name, number, "the entry has no name");
      if (!IsNumeric(parent)) {
        context_.Add(name, number, "the parent's code \"" + parent + "\" is no number");
      } else if (NumberValue(parent) != 0 && codes.count(parent) == 0) {
        context_.Add(name, number, "the parent " + parent + " does not stand before the entry");
      }
      codes.insert(code);
      AddKey(name, number, prefix + code);
      context_.CheckIds(name, number, TrimBlanks(columns[4]));
    }
  }

  void AddKey(std::string_view name, std::size_t number, const std::string& key) {
    if (!keys_.insert(key).second) context_.Add(name, number, "the key \"" + key + "\" is used twice");
  }

  CheckContext& context_;
  std::string_view treeName_;
  std::set<std::string>& files_;
  std::map<std::string, std::string>& prefixes_;
  std::set<std::string> keys_;
};

}  // namespace

void CheckCategories(CheckContext& context) {
  std::set<std::string> files;
  std::map<std::string, std::string> prefixes;
  for (const std::string_view tree : {guide_file::kCategories, guide_file::kLocations})
    TreeCheck(context, tree, files, prefixes).Run();
  for (const std::string& name : context.data.FileSystem().List(context.data.Folder())) {
    const bool list = (name.starts_with("genre-") || name.starts_with("place-")) && name.ends_with(".snr");
    if (list && files.count(FoldCase("\\" + name)) == 0) context.Add(name, 0, "no category names this list");
  }
}

}  // namespace sonaro
