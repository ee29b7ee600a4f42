// Tells what will play on this computer, kind of link by kind of link, with the number of stations. For the
// player's pages; owned by Application. Changes nothing.
#pragma once

#include <array>
#include <string>

#include "stations/StationSource.h"

namespace sonaro {

struct AppState;
class DataFolder;
class Players;
class Strings;

struct PlayerReport {
  enum class Plays { Nothing, Some, Everything };
  struct Line {
    std::string text;  // "" when there is nothing to tell
    bool missing = false;
  };
  Plays plays = Plays::Nothing;
  std::array<Line, 3> lines;
};

class PlayerReporter {
 public:
  PlayerReporter(const Players& players, DataFolder& data, const StationSource& stations,
                 const Strings& strings, const AppState& state)
      : players_(players), data_(data), stations_(stations), strings_(strings), state_(state) {}

  // One pass over the station table: once for a page that is opened.
  LinkCounts CountLinks() const { return stations_.CountLinks(); }
  // How it will be with `program` for every stream link, or, when that is "", by the kind of the link.
  PlayerReport Report(const LinkCounts& counts, const std::string& program) const;

 private:
  PlayerReport::Line OfKind(std::size_t stations, const std::string& program, int plays, int missing) const;
  PlayerReport OfProgram(std::size_t stations, const std::string& program) const;
  std::string Figure(std::size_t figure) const;

  const Players& players_;
  DataFolder& data_;
  const StationSource& stations_;
  const Strings& strings_;
  const AppState& state_;
};

}  // namespace sonaro
