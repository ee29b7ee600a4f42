// "\Shows.snr" is read and written by every operation: another session may have changed it, and it is small.
// A line is KEYXNAME. The key is the number of an event and so holds no capital X; the name may.
#include "schedule/PersonalShows.h"

#include <algorithm>

#include "base/Text.h"
#include "resources/texts/app.h"
#include "resources/texts/schedule.h"
#include "settings/Message.h"
#include "settings/Strings.h"

namespace sonaro {

namespace {

constexpr std::string_view kLineEnd = "\r\n";

std::string_view IdentifyingPart(std::string_view showKey) { return showKey.substr(0, showKey.find('X')); }

// The form that WritePersonalShows takes: a piece counts when its line is ended.
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
  static_cast<void>(file_.Look());  // an unreadable file is noted there, and what was read last still counts
  for (std::string_view line : SplitLines(file_.Text())) {
    if (!line.empty()) lines.emplace_back(line);
  }
  return lines;
}

// A show keeps its number while its name may be written in another way, so the number decides.
bool PersonalShows::Holds(const std::vector<std::string>& lines, std::string_view showKey) {
  return std::any_of(lines.begin(), lines.end(), [&](const std::string& line) {
    return IdentifyingPart(line) == IdentifyingPart(showKey);
  });
}

void PersonalShows::AddPersonalShow(std::string_view showKey) {
  std::vector<std::string> lines = List();
  bool saved = true;
  if (!Holds(lines, showKey)) {
    lines.push_back(OnOneLine(showKey));
    saved = WritePersonalShows(EachOnItsLine(lines));
  }
  Tell(saved, "AddPersonalShow", IDS_SCHED_SHOW_ADDED, showKey);
}

// Told even when the show was gone already: the user asked for it not to be there.
void PersonalShows::RemovePersonalShow(std::string_view showKey) {
  std::vector<std::string> lines = List();
  std::erase_if(lines,
                [&](const std::string& line) { return IdentifyingPart(line) == IdentifyingPart(showKey); });
  const bool saved = WritePersonalShows(EachOnItsLine(lines));
  Tell(saved, "RemovePersonalShow", IDS_SCHED_SHOW_REMOVED, showKey);
}

bool PersonalShows::PutBack(const std::string& line) {
  std::vector<std::string> lines = List();
  if (Holds(lines, line)) return true;
  lines.push_back(line);
  return WritePersonalShows(EachOnItsLine(lines));
}

// Without a line break behind the last line, unlike the file.
std::string PersonalShows::ReadPersonalShows() {
  std::string text = EachOnItsLine(List());
  if (!text.empty()) text.resize(text.size() - kLineEnd.size());
  return text;
}

bool PersonalShows::WritePersonalShows(std::string_view text) {
  const auto last = text.rfind(kLineEnd);
  // A file that is held by another program is not written over: it may hold more than was read of it.
  return file_.Look() != UserFile::Seen::Unreadable &&
         file_.Save(last == std::string_view::npos ? "" : text.substr(0, last + kLineEnd.size()));
}

void PersonalShows::Tell(bool saved, const char* key, int text, std::string_view showKey) {
  if (!SavedOrSaid(saved, strings_.Load(IDS_FILE_SHOWS), messages_, strings_)) return;
  messages_.Ask({.key = key,
                 .caption = strings_.Load(IDS_SCHED_SHOWS_CAPTION),
                 .text = FormatText(strings_.Load(text), {DisplayName(showKey)}),
                 .firstButton = strings_.Load(IDS_APP_OK)});
}

}  // namespace sonaro
