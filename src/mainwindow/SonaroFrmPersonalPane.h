// The commands on the user's own stations: adding, changing and deleting one, playlists out and in. Part of
// SonaroFrm.
#pragma once

#include "mainwindow/MainPane.h"
#include "mainwindow/PlaylistDialogs.h"

namespace sonaro {

class PersonalPane final : public EventTarget {
 public:
  explicit PersonalPane(const MainContext& context) : context_(context), playlists_(context) {}

  // Asks, and deletes the station that the command is about.
  void Delete();

 private:
  std::span<const EventRow> Events() const override;
  void Edit(const PersonalStation& station);
  bool ConfirmDelete(const std::string& name);
  bool Saved(bool saved);                // says when not
  const PersonalStation* Meant() const;  // nullptr: the command is not about one of them

  void mnuPersonalAdd_Click();
  void mnuPersonalChange_Click();
  void mnuPersonalExport_Click() { playlists_.ExportPersonalStations(); }
  void mnuPersonalImport_Click() { playlists_.ImportPersonalStations(); }

  const MainContext& context_;
  PlaylistDialogs playlists_;
};

}  // namespace sonaro
