// Tells what will play on this computer, kind of link by kind of link, with the number of stations. For the
// player's pages and the options; owned by Application. Changes nothing.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "stations/StationSource.h"

namespace sonaro {

struct AppState;
class DataFolder;
class InstalledPlayers;
class Players;
class Strings;

struct PlayerReport {
  enum class Plays { Nothing, Some, Everything };
  struct Line {
    std::string text;
    bool missing = false;
  };
  static constexpr std::size_t kMaxLines = 4;

  Plays plays = Plays::Nothing;
  std::vector<Line> lines;  // a kind of link that no station has is not worth one
};

class PlayerReporter {
 public:
  PlayerReporter(const Players& players, const InstalledPlayers& installed, DataFolder& data,
                 const StationSource& stations, const Strings& strings, const AppState& state)
      : players_(players),
        installed_(installed),
        data_(data),
        stations_(stations),
        strings_(strings),
        state_(state) {}

  // One pass over the station table the first time, and after DirectoryChanged.
  const LinkCounts& CountLinks();
  void DirectoryChanged() { counts_.reset(); }
  // How it will be with `program` for every stream link, or, when that is "", by the kind of the link.
  PlayerReport Report(const LinkCounts& counts, const std::string& program) const;

 private:
  void AddKind(PlayerReport& report, std::size_t stations, const std::string& program, int plays,
               int missing) const;
  void AddProgram(PlayerReport& report, std::size_t stations, const std::string& program) const;
  void AddKinds(PlayerReport& report, const LinkCounts& counts) const;
  std::string Figure(std::size_t figure) const;

  const Players& players_;
  const InstalledPlayers& installed_;
  DataFolder& data_;
  const StationSource& stations_;
  const Strings& strings_;
  const AppState& state_;
  std::optional<LinkCounts> counts_;
};

}  // namespace sonaro
