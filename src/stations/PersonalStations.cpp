#include "stations/PersonalStations.h"

#include <algorithm>
#include <limits>

#include "base/Numbers.h"
#include "base/Text.h"

namespace sonaro {

namespace {

// Index, name, three links, web site, type and note.
constexpr std::size_t kFields = 8;

std::string LineText(const PersonalStation& station) {
  std::string text = std::to_string(station.index);
  for (const std::string* field : {&station.name, &station.links[0], &station.links[1], &station.links[2],
                                   &station.webSite, &station.type, &station.note}) {
    text.append(1, '\t').append(*field);
  }
  return text;
}

}  // namespace

// A tab or line end within a field would make another line of it.
PersonalStation Cleaned(const PersonalStation& station) {
  PersonalStation clean;
  clean.index = station.index;
  clean.name = CleanField(station.name, PersonalStation::kMaxName);
  for (std::size_t i = 0; i < clean.links.size(); ++i) {
    clean.links[i] = CleanedLink(station.links[i]);
  }
  clean.webSite = CleanField(station.webSite, PersonalStation::kMaxLink);
  clean.type = CleanField(station.type, PersonalStation::kMaxName);
  clean.note = CleanField(station.note, PersonalStation::kMaxNote);
  return clean;
}

// Links first: a wrong address is what a user is most likely to have to mend. The index is that of what was
// shown, so that a change never becomes a new station.
StationEntry ReadEntry(const PersonalStation& shown, PersonalStation typed) {
  bool anyLink = false;
  for (std::size_t link = 0; link < typed.links.size(); ++link) {
    const auto text = OwnLinkFromField(typed.links[link], shown.links[link]);
    if (!text) return {EntryFault::BadLink, link, {}};
    typed.links[link] = *text;
    anyLink = anyLink || !text->empty();
  }
  if (TrimBlanks(typed.name).empty()) return {EntryFault::NoName, 0, {}};
  if (!anyLink) return {EntryFault::NoLink, 0, {}};
  typed.index = shown.index;
  return {EntryFault::None, 0, std::move(typed)};
}

bool PersonalStations::Load() {
  if (file_.Look() == UserFile::Seen::Unreadable) return false;
  ReadFile();
  return true;
}

// Another Sonaro, or an editor, may have written the file; its lines are not lost to this one's copy.
bool PersonalStations::Refresh() {
  const UserFile::Seen seen = file_.Look();
  if (seen == UserFile::Seen::Changed) ReadFile();
  return seen != UserFile::Seen::Unreadable;
}

// No index that was ever given is forgotten, even if it has left the file.
void PersonalStations::ReadFile() {
  lineOf_.clear();
  std::vector<Line> lines;
  for (const std::string_view text : SplitLines(file_.Text())) lines.push_back(ReadLine(text));
  Adopt(std::move(lines));
}

// An index counts as given even when the rest of its line makes no sense.
PersonalStations::Line PersonalStations::ReadLine(std::string_view text) {
  const auto fields = Split(text, '\t');
  std::int32_t index = 0;
  const bool numbered = ParseStationId(fields[0], index) && index > 0;
  if (numbered) highestIndex_ = std::max(highestIndex_, index);
  if (!numbered || fields.size() != kFields || CleanField(fields[1], PersonalStation::kMaxName).empty() ||
      !lineOf_.emplace(index, 0).second) {
    // Kept word for word and written back: somebody may repair it, or a later version may understand it.
    return {{}, std::string(text)};
  }
  PersonalStation station;
  station.index = index;
  station.name = fields[1];
  for (std::size_t i = 0; i < station.links.size(); ++i) station.links[i] = fields[2 + i];
  station.webSite = fields[5];
  station.type = fields[6];
  station.note = fields[7];
  return {Cleaned(station), {}};
}

void PersonalStations::Adopt(std::vector<Line> lines) {
  lines_ = std::move(lines);
  lineOf_.clear();
  for (std::size_t i = 0; i < lines_.size(); ++i) {
    const std::int32_t index = lines_[i].station.index;
    if (index != 0) lineOf_[index] = i;
    highestIndex_ = std::max(highestIndex_, index);
  }
}

// Memory takes the change when the file has it, so that both always say the same.
bool PersonalStations::Save(std::vector<Line> changed) {
  std::string text;
  for (const Line& line : changed) {
    text.append(line.station.index != 0 ? LineText(line.station) : line.kept).append("\r\n");
  }
  if (!file_.Save(text)) return false;
  Adopt(std::move(changed));
  return true;
}

std::vector<PersonalStation> PersonalStations::All() const {
  std::vector<PersonalStation> stations;
  for (const Line& line : lines_) {
    if (line.station.index != 0) stations.push_back(line.station);
  }
  return stations;
}

const PersonalStation* PersonalStations::Find(std::int32_t index) const {
  const auto found = lineOf_.find(index);
  return found == lineOf_.end() ? nullptr : &lines_[found->second].station;
}

std::int32_t PersonalStations::Add(const PersonalStation& station) {
  const auto indices = AddAll({&station, 1});
  return indices.empty() ? 0 : indices[0];
}

std::vector<std::int32_t> PersonalStations::AddAll(std::span<const PersonalStation> stations) {
  if (!Refresh()) return {};
  std::vector<Line> changed = lines_;
  std::vector<std::int32_t> indices;
  std::int32_t highest = highestIndex_;
  for (const PersonalStation& station : stations) {
    Line line{Cleaned(station), {}};
    // A station that does not fit gets the index 0 in the result; the others are added all the same.
    const bool fits = !line.station.name.empty() && highest < std::numeric_limits<std::int32_t>::max();
    line.station.index = fits ? ++highest : 0;
    indices.push_back(line.station.index);
    if (fits) changed.push_back(std::move(line));
  }
  if (highest == highestIndex_ || !Save(std::move(changed))) return {};
  return indices;
}

bool PersonalStations::Change(const PersonalStation& station) {
  if (!Refresh()) return false;
  const auto found = lineOf_.find(station.index);
  PersonalStation clean = Cleaned(station);
  if (found == lineOf_.end() || clean.name.empty()) return false;
  std::vector<Line> changed = lines_;
  changed[found->second].station = std::move(clean);
  return Save(std::move(changed));
}

bool PersonalStations::DeleteAll(std::span<const std::int32_t> indices) {
  if (!Refresh()) return false;
  std::vector<Line> changed = lines_;
  bool any = false;
  for (const std::int32_t index : indices) {
    const auto found = lineOf_.find(index);
    if (found == lineOf_.end()) continue;
    // The index alone stays behind in the file: it is taken for ever, since groups or the schedule may still
    // name it.
    changed[found->second] = {{}, std::to_string(index)};
    any = true;
  }
  return any && Save(std::move(changed));
}

bool PersonalStations::PutBackAll(std::span<const PersonalStation> stations) {
  if (!Refresh()) return false;
  std::vector<Line> changed = lines_;
  for (const PersonalStation& station : stations) {
    if (lineOf_.contains(station.index)) continue;
    const std::string left = std::to_string(station.index);
    const auto place = std::find_if(changed.begin(), changed.end(), [&](const Line& line) {
      return line.station.index == 0 && line.kept == left;
    });
    if (place != changed.end()) {
      *place = {station, {}};
    } else {
      changed.push_back({station, {}});
    }
  }
  return Save(std::move(changed));
}

}  // namespace sonaro
