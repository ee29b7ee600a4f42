// What the search panel does: the kinds of search out of "\searchst.snr", the history of past searches, and
// what a search does. One kind searches the directory into the station list; the others are searches of the
// web. Owned by the main window.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "stations/SearchHistory.h"

namespace sonaro {

class CReg;
class DataFolder;
class StationListState;
class TrayMessages;

struct SearchKind {
  std::string caption;
  std::string name;         // "FindStation" searches the directory, any other name the web
  std::string urlTemplate;  // web kinds: an address with "<<SearchWord>>" and "<<SearchOpt>>"
  bool SearchesStations() const;
};

class SearchPanel {
 public:
  static constexpr std::size_t kMaxKinds = 6;

  enum class Outcome {
    Nothing /* no text */,
    Stations /* the list shows them */,
    Web /* open WebAddress() */
  };
  // What the last search of this run was.
  enum class LastKind { None, Web, Station };

  SearchPanel(DataFolder& data, CReg& settings, StationListState& listing, TrayMessages& tray)
      : data_(data), settings_(settings), listing_(listing), tray_(tray) {}

  // Reads the kinds. Without a file there is one: the directory, captioned `builtInCaption`.
  void LoadSearchKinds(std::string builtInCaption);
  const std::vector<SearchKind>& Kinds() const { return kinds_; }

  // Whether the kind at this index, as FindStation takes it, is the one that searches the directory.
  bool SearchesStations(std::size_t kind) const;

  // Past searches, oldest first.
  std::vector<std::string> History() const;
  // What the list of searches offers: the pinned ones, the newest first, then the past ones, oldest first.
  std::vector<std::string> Searches() const;
  bool IsPinned(std::string_view text) const;
  // Pins the search to the list of searches, or lets go of it. A text without a word changes nothing.
  void TogglePinned(std::string_view text);

  // Runs the search for `text` as the user typed it. `kind` is an index into Kinds(); one beyond the end
  // means the last.
  Outcome FindStation(std::string_view text, std::size_t kind, bool allWords);

  LastKind LastSearch() const { return last_; }
  // Of the last web search: its kind's caption, its words and the address that they made.
  const std::string& WebCaption() const { return webCaption_; }
  const std::string& WebWords() const { return webWords_; }
  const std::string& WebAddress() const { return webAddress_; }

 private:
  SearchHistory Pinned() const;
  void FindOnTheWeb(const std::string& text, const SearchKind& kind, bool allWords);
  void FindInTheDirectory(const std::string& text, bool allWords);

  DataFolder& data_;
  CReg& settings_;
  StationListState& listing_;
  TrayMessages& tray_;
  std::vector<SearchKind> kinds_;
  LastKind last_ = LastKind::None;
  std::string webCaption_;
  std::string webWords_;
  std::string webAddress_;
};

}  // namespace sonaro
