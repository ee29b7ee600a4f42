// What every station list of the main window is narrowed to: a place, a genre, a least bit rate, stations
// that answered when they were last tried. The parts hold together, over all lists and views and, kept in a
// setting, over restarts, until each is taken away. Stations of the user's own pass: the guide says nothing
// of them, and they stand in a list because he put them there. Owned by the main window.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/Text.h"
#include "mainwindow/BrowseTree.h"
#include "stations/StationKey.h"

namespace sonaro {

class CReg;
class DataFolder;
class StatList;

class StationFilter {
 public:
  // The parts in the order in which they are shown and kept.
  enum class Part : int { Place, Genre, BitRate, Answers };
  static constexpr int kParts = 4;
  static constexpr std::array kBitRates{64, 96, 128, 192, 256, 320};  // kbit/s that can be asked for

  // A place or a genre that can be asked for. Its value names the way to it in the browse tree by texts,
  // since the codes of entries are others in the next guide.
  struct Choice {
    std::string text;
    std::string value;
  };

  // Reads the setting, but no file.
  StationFilter(DataFolder& data, CReg& settings, StatList& stations, SortKeyOf sortKey);

  // The categories and their entries in the order of the user's language. Read when asked for.
  std::vector<Choice> Choices(Part placeOrGenre) const;
  // The value of a node of the browse tree; "" for one that stands for no stations of the guide.
  static std::string ValueOf(const BrowseTree& tree, int node);

  // A choice's value, a bit rate in kbit/s as text, "1" for Answers; "" takes the part away.
  void Set(Part part, std::string_view value);
  const std::string& Value(Part part) const { return values_[static_cast<std::size_t>(part)]; }
  bool IsOn() const;
  void TakeAllAway();
  // The last step of a place's or genre's way.
  static std::string_view ShortText(std::string_view value);

  // Takes those of `rows`, indices into `keys`, out that a part does not let through. Place and genre look at
  // the keys alone; the other parts read the stations that are left.
  void Narrow(std::span<const StationKey> keys, std::vector<std::uint32_t>& rows) const;
  // The files of the guide are new: its places and genres are read again before the next use.
  void GuideChanged();

 private:
  BrowseTree ReadTree(Part part) const;
  const std::vector<std::int32_t>& Ids(Part placeOrGenre) const;  // ascending

  DataFolder& data_;
  CReg& settings_;
  StatList& stations_;
  SortKeyOf sortKey_;
  std::array<std::string, kParts> values_;
  mutable std::array<std::optional<std::vector<std::int32_t>>, 2>
      ids_;  // of the place and the genre, once read
};

}  // namespace sonaro
