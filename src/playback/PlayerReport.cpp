#include "playback/PlayerReport.h"

#include "base/DataFolder.h"
#include "playback/Players.h"
#include "resources/texts/playback.h"
#include "settings/AppState.h"
#include "settings/Strings.h"

namespace sonaro {

namespace {

std::string FileNameOf(const std::string& path) { return path.substr(path.find_last_of("\\/") + 1); }

}  // namespace

std::string PlayerReporter::Figure(std::size_t figure) const {
  return FormatCount(figure, state_.decimalMode);
}

// A kind of link that no station has is not worth a line.
PlayerReport::Line PlayerReporter::OfKind(std::size_t stations, const std::string& program, int plays,
                                          int missing) const {
  if (stations == 0) return {};
  if (!program.empty()) return {FormatText(strings_.Load(plays), {Figure(stations), FileNameOf(program)})};
  return {FormatText(strings_.Load(missing), {Figure(stations)}), true};
}

// A chosen program gets every stream link, so one line says it all.
PlayerReport PlayerReporter::OfProgram(std::size_t stations, const std::string& program) const {
  if (!data_.FileSystem().Exists(program)) {
    return {PlayerReport::Plays::Nothing,
            {{{strings_.Load(IDS_NOPLAYER_CANT_FIND) + program, true}, {}, {}}}};
  }
  return {PlayerReport::Plays::Everything,
          {{{FormatText(strings_.Load(IDS_PLAYERS_ALL), {Figure(stations), FileNameOf(program)})}, {}, {}}}};
}

PlayerReport PlayerReporter::Report(const LinkCounts& counts, const std::string& program) const {
  PlayerReport report;
  if (!program.empty()) {
    report = OfProgram(counts.asxProgram + counts.realPlayer, program);
  } else {
    const std::string asx = players_.FindAsxProgram();
    // What opens .ram files need not be such a player; only one that is counts.
    const std::string found = players_.FindRealPlayer(false);
    const std::string real = Players::IsRealPlayer(found) ? found : std::string();
    report.lines[0] =
        OfKind(counts.asxProgram, asx, IDS_PLAYERS_ASX,
               counts.asxProgram > counts.realPlayer ? IDS_PLAYERS_ASX_NONE_MOST : IDS_PLAYERS_ASX_NONE);
    report.lines[1] = OfKind(counts.realPlayer, real, IDS_PLAYERS_REAL, IDS_PLAYERS_REAL_NONE);
    const bool nothing = asx.empty() && real.empty();
    report.plays = nothing                                              ? PlayerReport::Plays::Nothing
                   : report.lines[0].missing || report.lines[1].missing ? PlayerReport::Plays::Some
                                                                        : PlayerReport::Plays::Everything;
  }
  if (counts.webPage > 0)
    report.lines[2] = {FormatText(strings_.Load(IDS_PLAYERS_WEB), {Figure(counts.webPage)})};
  return report;
}

}  // namespace sonaro
