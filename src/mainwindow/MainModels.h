// Everything of the main window that shows no window, in the order in which one needs the other. Owned by the
// main window; the data that it works on belongs to Application.
#pragma once

#include "base/DataFolder.h"
#include "base/Text.h"
#include "mainwindow/BrowseTree.h"
#include "mainwindow/CommandSubject.h"
#include "mainwindow/Rankings.h"
#include "mainwindow/SearchPanel.h"
#include "mainwindow/StationActions.h"
#include "mainwindow/StationDetailBuilder.h"
#include "mainwindow/StationFilter.h"
#include "mainwindow/StationListFiller.h"
#include "mainwindow/StationListState.h"
#include "playlists/PlaylistTransfer.h"
#include "resources/texts/mainwindow.h"
#include "settings/Strings.h"
#include "stations/FavoriteGroups.h"

namespace sonaro {

class CReg;
class ExtraLinks;
class PersonalStations;
class RecentList;
class StatList;
class StationSource;
class Strings;
struct AppState;

// The guide's data, as references.
struct GuideData {
  DataFolder& folder;
  CReg& settings;
  const Strings& strings;
  const AppState& state;
  StatList& stations;
  PersonalStations& personal;
  ExtraLinks& extra;
  RecentList& recent;
  FavoriteGroups& favorites;
  const StationSource& source;
  SortKeyOf sortKey = FoldCase;  // the order of the user's language
};

struct MainModels {
  MainModels(const GuideData& data, TrayMessages& tray)
      : tree(data.folder, data.sortKey, data.strings.Load(IDS_LISTING_YOUR_STATIONS)),
        rankings(data.folder),
        lists(data.stations, data.source, data.recent, data.strings),
        filter(data.folder, data.settings, data.stations, data.sortKey),
        listing(lists, rankings, data.favorites, tree, data.source, data.strings, data.sortKey, &filter),
        search(data.folder, data.settings, listing, tray),
        details(data.source, data.extra, data.strings, data.state),
        actions(listing, data.favorites, data.strings),
        subject(listing, data.favorites),
        transfer(data.folder.FileSystem(), data.favorites, data.personal, data.source) {}

  BrowseTree tree;
  Rankings rankings;
  StationListFiller lists;
  StationFilter filter;
  StationListState listing;
  SearchPanel search;
  StationDetailBuilder details;
  StationActions actions;
  CommandSubject subject;
  PlaylistTransfer transfer;
};

}  // namespace sonaro
