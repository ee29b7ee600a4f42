// What plays how many stations of the guide. Counting reads every record, so it is done once and kept; which
// programs there are is asked anew with each report, since the user may install one meanwhile.
#include "playback/PlayerReport.h"

#include <algorithm>

#include "base/DataFolder.h"
#include "playback/InstalledPlayers.h"
#include "playback/Players.h"
#include "resources/texts/playback.h"
#include "settings/AppState.h"
#include "settings/Strings.h"

namespace sonaro {

const LinkCounts& PlayerReporter::CountLinks() {
  if (!counts_) counts_ = stations_.CountLinks();
  return *counts_;
}

std::string PlayerReporter::Figure(std::size_t figure) const {
  return FormatCount(figure, state_.decimalMode);
}

// A kind of link that no station has is not worth a line.
void PlayerReporter::AddKind(PlayerReport& report, std::size_t stations, const std::string& program,
                             int plays, int missing) const {
  if (stations == 0) return;
  if (program.empty()) {
    report.lines.push_back({FormatText(strings_.Load(missing), {Figure(stations)}), true});
  } else {
    report.lines.push_back(
        {FormatText(strings_.Load(plays), {Figure(stations), installed_.NameOf(program)})});
  }
}

// A chosen program gets every stream link, so one line says it all.
void PlayerReporter::AddProgram(PlayerReport& report, std::size_t stations,
                                const std::string& program) const {
  if (data_.FileSystem().Exists(program)) {
    report.plays = PlayerReport::Plays::Everything;
    AddKind(report, stations, program, IDS_PLAYERS_ALL, 0);
  } else {
    report.lines.push_back({strings_.Load(IDS_NOPLAYER_CANT_FIND) + program, true});
  }
}

void PlayerReporter::AddKinds(PlayerReport& report, const LinkCounts& counts) const {
  const std::string asx = players_.FindAsxProgram();
  const std::string found = players_.FindRealPlayer(false);
  const std::string real = Players::IsRealPlayer(found) ? found : std::string();
  const std::string pls = installed_.ForKind(kPls);
  // Without a reader of their own such playlists go where the other links go.
  const std::size_t plsOfAsx = pls.empty() ? 0 : counts.plsAmongAsx;
  const std::size_t plsOfReal = pls.empty() ? 0 : counts.plsAmongReal;
  AddKind(report, counts.asxProgram - plsOfAsx, asx, IDS_PLAYERS_ASX,
          counts.asxProgram > counts.realPlayer ? IDS_PLAYERS_ASX_NONE_MOST : IDS_PLAYERS_ASX_NONE);
  AddKind(report, counts.realPlayer - plsOfReal, real, IDS_PLAYERS_REAL, IDS_PLAYERS_REAL_NONE);
  AddKind(report, plsOfAsx + plsOfReal, pls, IDS_PLAYERS_PLS, 0);
  if (asx.empty() && real.empty()) return;
  const bool some = std::any_of(report.lines.begin(), report.lines.end(),
                                [](const PlayerReport::Line& line) { return line.missing; });
  report.plays = some ? PlayerReport::Plays::Some : PlayerReport::Plays::Everything;
}

PlayerReport PlayerReporter::Report(const LinkCounts& counts, const std::string& program) const {
  PlayerReport report;
  if (program.empty()) {
    AddKinds(report, counts);
  } else {
    AddProgram(report, counts.asxProgram + counts.realPlayer, program);
  }
  if (counts.webPage > 0)
    report.lines.push_back({FormatText(strings_.Load(IDS_PLAYERS_WEB), {Figure(counts.webPage)})});
  return report;
}

}  // namespace sonaro
