// The list is a text file in the site, beside what it speaks of: kept guides, the files of changes between
// them, and files that were in use until the last publication. Those are removed one publication later, so
// that an installation that was told of one can still fetch it.
#include "site/PublishedGuides.h"

#include <algorithm>
#include <utility>

#include "base/Text.h"

namespace sonaro {
namespace {

constexpr std::string_view kList = "\\published.txt";
constexpr std::string_view kGuide = "guide", kChanges = "changes", kLeft = "left";

// A path of the site as it stands in an address becomes a name in the folder that the server shows.
std::string PublicName(std::string_view path) {
  std::string name = "\\public" + std::string(path);
  std::replace(name.begin(), name.end(), '/', '\\');
  return name;
}

void AddLine(std::string& text, std::string_view kind, std::string_view first, std::string_view second = {}) {
  text.append(kind).append("\t").append(first).append("\t").append(second).append("\n");
}

}  // namespace

// A list that is missing or cut short costs somebody a whole update where changes would have done.
PublishedGuides::PublishedGuides(DataFolder& site) : site_(site) {
  const ReadResult file = site.Read(kList);
  std::string_view rest = file.bytes;
  while (!rest.empty()) {
    std::string_view line = NextField(rest, '\n');
    const std::string_view kind = NextField(line, '\t');
    const std::string first(NextField(line, '\t'));
    const std::string second(NextField(line, '\t'));
    if (kind == kGuide) guides_.push_back({first, second});
    if (kind == kChanges) others_.push_back(first);
    if (kind == kLeft) left_.push_back(first);
  }
}

std::vector<PublishedGuide> PublishedGuides::Before(std::string_view date) const {
  std::vector<PublishedGuide> before;
  for (const PublishedGuide& guide : guides_) {
    if (guide.date != date && before.size() < kKept) before.push_back(guide);
  }
  return before;
}

bool PublishedGuides::Add(const PublishedGuide& guide, const std::vector<std::string>& others) {
  std::vector<PublishedGuide> guides = Before(guide.date);
  guides.insert(guides.begin(), guide);
  // What the new publication needs.
  std::vector<std::string> present = others;
  for (const PublishedGuide& one : guides) present.push_back(one.update);
  const auto isPresent = [&present](const std::string& path) {
    return std::find(present.begin(), present.end(), path) != present.end();
  };
  // What the last one needed and this one does not: it stays until the next.
  std::vector<std::string> leaving = std::exchange(others_, others);
  for (const PublishedGuide& one : guides_) leaving.push_back(one.update);
  std::erase_if(leaving, isPresent);
  // A path may leave, come back and leave again before it is removed.
  for (const std::string& path : left_) {
    const bool again = std::find(leaving.begin(), leaving.end(), path) != leaving.end();
    if (!again && !isPresent(path)) site_.Remove(PublicName(path));
  }
  guides_ = std::move(guides);
  left_ = std::move(leaving);

  std::string text;
  for (const PublishedGuide& one : guides_) AddLine(text, kGuide, one.date, one.update);
  for (const std::string& path : others_) AddLine(text, kChanges, path);
  for (const std::string& path : left_) AddLine(text, kLeft, path);
  return site_.Save(kList, text);
}

}  // namespace sonaro
