// Takes groups and the user's own stations out to playlists and back in: asks for the file, and says what
// came of it. Part of the main window.
#pragma once

#include <optional>

#include "mainwindow/MainPane.h"

namespace sonaro {

class PlaylistDialogs {
 public:
  explicit PlaylistDialogs(const MainContext& context) : context_(context) {}

  void ExportGroup(std::size_t group) const;
  void ImportIntoGroup(std::size_t group) const;
  void ExportPersonalStations() const;
  void ImportPersonalStations() const;
  // Playlists that were dropped on the window: into the group, or into the user's own stations.
  void ImportDropped(const std::vector<std::string>& paths, std::optional<std::size_t> group) const;

 private:
  std::string AskPathToSave(std::string_view name) const;  // "" when the user gave none
  std::string AskPathToOpen() const;
  void SayNotSaved(const std::string& path) const;
  void SayImported(const ImportResult& result) const;

  const MainContext& context_;
};

}  // namespace sonaro
