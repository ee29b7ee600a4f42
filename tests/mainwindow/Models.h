// A small directory with everything of the main window that shows no window.
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "app/CReg.h"
#include "app/Strings.h"
#include "base/DataFolder.h"
#include "directory/StatList.h"
#include "fakes/FakeFiles.h"
#include "fakes/FakeRegistry.h"
#include "mainwindow/BrowseTree.h"
#include "mainwindow/FavoriteGroups.h"
#include "mainwindow/Rankings.h"
#include "mainwindow/StationListing.h"
#include "mainwindow/StationLists.h"
#include "playback/PersonalStations.h"
#include "playback/RecentList.h"

namespace sonaro {

// Gives the number and shows what was filled in: "11011(rock)()".
class MarkedStrings : public Strings {
 public:
  std::string Load(int id) const override { return std::to_string(id) + "({0})({1})"; }
};

class Models : public testing::Test {
 protected:
  Models() {
    files.Put("/d/station.snr",
              "1\tAcid Jazz\tMP3\tGhent\tJazz\t\tl1\tl2\t\t\tw\t128\t9\t1\t5\t0\t4\n"
              "2\tRock One\tAAC\tOslo\tRock\t\tl1\t\t\t\t\t64\t0\t0\t0\t0\t1\n"
              "3\tblues bar\tMP3\tRock City\tBlues\t\t\t\t\talt\t\t\t3\t0\t0\t0\t0\n"
              "4\tRock and Jazz\tOGG\tParis\tMix\t\t\t\t\t\t\t\t5\t0\t0\t0\t2\n");
    files.Put("/d/cat.snr", "1\tMusic\tmusic\tE\n");
    files.Put("/d/music.snr", "1\t\tJazz\t0\t4 1 77 2\n2\t\tEmpty\t0\t\n");
    files.Put("/d/catloc.snr", "1\tEurope\teu\tL\n");
    files.Put("/d/fun.snr", "New Stations\t3 1\nMost Pop\t2 77 4 2\n");
    files.Put("/d/reliable.snr", "4 3\n");
    files.Put("/d/favs.snr", "Jazz\t4 77 P1 1\nEmpty\t\nRock\t2\n");
    files.Put("/d/recent.snr", "3 P1 88 1\n");
    registry.CreateKey(RootKey::LocalMachine, kSettingsKey);
    EXPECT_TRUE(stations.RebuildStationTable());
    personal.Load();
    PersonalStation garage;
    garage.name = "Garage";
    garage.type = "MP3";
    garage.links[0] = "mhttp://garage.example/";
    personal.Add(garage);
    recent.Load();
    groups.LoadFavoriteGroups();
  }

  // The keys of the rows as shown, each followed by a blank.
  std::string Shown() const {
    std::string keys;
    for (const std::string& key : listing.Rows().Keys()) keys += key + " ";
    return keys;
  }
  const BrowseNode& NodeWithKey(std::string_view key) const { return tree.Node(tree.Find(key)); }

  FakeFiles files;
  DataFolder data{files, "/d", '/'};
  FakeRegistry registry;
  CReg settings{registry};
  MarkedStrings strings;
  StatList stations{data};
  PersonalStations personal{data};
  RecentList recent{data};
  FavoriteGroups groups{data};
  BrowseTree tree{data};
  Rankings rankings{data};
  StationLists lists{stations, personal, recent, strings};
  StationListing listing{lists, rankings, groups, tree, strings, FoldCase};
};

}  // namespace sonaro
