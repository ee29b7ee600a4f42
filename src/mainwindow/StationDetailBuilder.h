// What the detail area shows of the selected station, ready to be drawn and read out.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "settings/AppState.h"
#include "stations/StationKey.h"
#include "stations/StationSource.h"

namespace sonaro {

class ExtraLinks;
class Strings;

struct PlayButton {
  bool shown = false;
  std::string caption;  // "Play MP3"
  std::string detail;   // "128 kbit/s", or what tells it from another button; "" when not known
  std::string address;  // what is handed over
  PlayRequest request;
};

struct RatingFigure {
  int halves = 0;      // 0 = not rated, up to 10
  std::string figure;  // "4.5", with the user's decimal sign; a dash when not rated
  std::string spoken;  // "Sound 4.5 of 5"
};

struct StationDetail {
  static constexpr std::size_t kRatings = 4;  // overall, sound, speed, web site
  static constexpr std::size_t kPlayButtons = 3;

  // None: nothing is selected, or the station is not there any more; all else is empty.
  StationKey station;
  std::string name;
  std::string location;
  std::string description;
  std::array<RatingFigure, kRatings> ratings;
  std::array<PlayButton, kPlayButtons> playButtons;
  std::vector<PlayButton> extraButtons;  // the user's own links for a directory station
  bool hasWebSite = false;
  std::string firstLink;  // the address that "copy link" takes; "" when there is none
};

// Makes the details. Owned by the main window; changes nothing.
class StationDetailBuilder {
 public:
  StationDetailBuilder(const StationSource& source, const ExtraLinks& extra, const Strings& strings,
                       const AppState& state)
      : source_(source), extra_(extra), strings_(strings), state_(state) {}

  // "4.5" for a rating's digit, with the user's decimal sign; a dash when there is none.
  std::string RatingText(std::string_view digit) const;
  StationDetail Of(const StationKey& key) const;
  // A rating stored as one digit: half as much, in halves. Anything but 1 to 9 is not rated. `nameId` is the
  // number of the rating's name in the string table.
  RatingFigure Rating(const std::string& digit, int nameId) const;

 private:
  void AddPlayButtons(const Station& station, StationDetail& detail) const;
  PlayButton ButtonFor(const PlayableLink& playable, const Station& station) const;

  const StationSource& source_;
  const ExtraLinks& extra_;
  const Strings& strings_;
  const AppState& state_;
};

}  // namespace sonaro
