#include "schedule/PersonalShows.h"

#include <algorithm>

#include "app/Message.h"
#include "app/Strings.h"
#include "base/DataFolder.h"
#include "base/Text.h"
#include "resources/texts/app.h"
#include "resources/texts/schedule.h"

namespace sonaro {

namespace {

constexpr std::string_view kShowsFile = "\\Shows.snr";
constexpr std::string_view kLineEnd = "\r\n";

std::string_view IdentifyingPart(std::string_view showKey) { return showKey.substr(0, showKey.find('X')); }

std::string EachOnItsLine(const std::vector<std::string>& lines) {
  std::string text;
  for (const std::string& line : lines) text.append(line).append(kLineEnd);
  return text;
}

}  // namespace

std::string_view PersonalShows::DisplayName(std::string_view showKey) {
  const auto mark = showKey.find('X');
  return mark == std::string_view::npos ? showKey : showKey.substr(mark + 1);
}

std::vector<std::string> PersonalShows::List() {
  std::vector<std::string> lines;
  const ReadResult file = data_.Read(kShowsFile);
  for (std::string_view line : SplitLines(file.bytes)) {
    if (!line.empty()) lines.emplace_back(line);
  }
  return lines;
}

bool PersonalShows::Contains(std::string_view showKey) {
  const std::vector<std::string> lines = List();
  return std::any_of(lines.begin(), lines.end(), [&](const std::string& line) {
    return IdentifyingPart(line) == IdentifyingPart(showKey);
  });
}

void PersonalShows::AddPersonalShow(std::string_view showKey) {
  std::vector<std::string> lines = List();
  if (!Contains(showKey)) {
    lines.push_back(OnOneLine(showKey));
    WritePersonalShows(EachOnItsLine(lines));
  }
  Tell("AddPersonalShow", FillIn(strings_.Load(IDS_SCHED_SHOW_ADDED), {DisplayName(showKey)}));
}

void PersonalShows::RemovePersonalShow(std::string_view showKey) {
  std::vector<std::string> lines = List();
  std::erase_if(lines,
                [&](const std::string& line) { return IdentifyingPart(line) == IdentifyingPart(showKey); });
  WritePersonalShows(EachOnItsLine(lines));
  Tell("RemovePersonalShow", FillIn(strings_.Load(IDS_SCHED_SHOW_REMOVED), {DisplayName(showKey)}));
}

std::string PersonalShows::ReadPersonalShows() {
  std::string text = EachOnItsLine(List());
  if (!text.empty()) text.resize(text.size() - kLineEnd.size());
  return text;
}

bool PersonalShows::WritePersonalShows(std::string_view text) {
  const auto last = text.rfind(kLineEnd);
  return data_.Save(kShowsFile, last == std::string_view::npos ? "" : text.substr(0, last + kLineEnd.size()));
}

void PersonalShows::Tell(const char* key, const std::string& text) {
  messages_.Ask({.key = key,
                 .caption = strings_.Load(IDS_SCHED_SHOWS_CAPTION),
                 .text = text,
                 .firstButton = strings_.Load(IDS_APP_OK)});
}

}  // namespace sonaro
