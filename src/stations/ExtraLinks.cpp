#include "stations/ExtraLinks.h"

#include "base/Numbers.h"
#include "base/Text.h"
#include "stations/OwnLink.h"
#include "stations/PersonalStations.h"

namespace sonaro {

namespace {

ExtraLink Cleaned(const ExtraLink& link) {
  return {CleanField(link.name, PersonalStation::kMaxName), CleanedLink(link.link)};
}

}  // namespace

// A line that is not understood is kept as it is, in its place, with the station 0, which no link belongs to.
ExtraLinks::Line ExtraLinks::ReadLine(std::string_view text) {
  const auto fields = Split(text, '\t');
  Line line;
  if (fields.size() == 3 && ParseStationId(fields[0], line.stationId) && line.stationId != 0) {
    line.link = Cleaned({std::string(fields[1]), std::string(fields[2])});
    if (!line.link.link.empty()) return line;
  }
  return {0, {}, std::string(text)};
}

bool ExtraLinks::Load() {
  if (file_.Look() == UserFile::Seen::Unreadable) return false;
  ReadFile();
  return true;
}

void ExtraLinks::ReadFile() {
  lines_.clear();
  for (const std::string_view text : SplitLines(file_.Text())) lines_.push_back(ReadLine(text));
}

std::vector<ExtraLink> ExtraLinks::Of(std::int32_t stationId) const {
  std::vector<ExtraLink> links;
  if (stationId == 0) return links;
  for (const Line& line : lines_) {
    if (line.stationId == stationId) links.push_back(line.link);
  }
  return links;
}

// All links of the station are replaced; their lines move to the end of the file. What is empty or too many
// is left out without a word, as the dialog does not let it get here.
bool ExtraLinks::Set(std::int32_t stationId, const std::vector<ExtraLink>& links) {
  const UserFile::Seen seen = file_.Look();
  if (stationId == 0 || seen == UserFile::Seen::Unreadable) return false;
  if (seen == UserFile::Seen::Changed) ReadFile();
  std::vector<Line> changed = lines_;
  std::erase_if(changed, [&](const Line& line) { return line.stationId == stationId; });
  std::size_t taken = 0;
  for (const ExtraLink& link : links) {
    Line line{stationId, Cleaned(link), {}};
    if (line.link.link.empty() || ++taken > ExtraLink::kMaxPerStation) continue;
    changed.push_back(std::move(line));
  }
  std::string text;
  for (const Line& line : changed) {
    if (line.stationId == 0) {
      text.append(line.kept);
    } else {
      text.append(std::to_string(line.stationId)).append(1, '\t');
      text.append(line.link.name).append(1, '\t').append(line.link.link);
    }
    text.append("\r\n");
  }
  // Memory follows the file, never the other way round.
  if (!file_.Save(text)) return false;
  lines_ = std::move(changed);
  return true;
}

}  // namespace sonaro
