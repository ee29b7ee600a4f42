// A small directory and what the user keeps of it: own stations, the recent list, groups.
#pragma once

#include <gtest/gtest.h>

#include "base/DataFolder.h"
#include "base/Text.h"
#include "directory/Scrambling.h"
#include "directory/StatList.h"
#include "fakes/FakeFiles.h"
#include "fakes/FakeStrings.h"
#include "stations/FavoriteGroups.h"
#include "stations/PersonalStations.h"
#include "stations/RecentList.h"
#include "stations/StationSource.h"

namespace sonaro {

// Keys as the user's files hold them: "1204", "P3".
inline StationKey Key(std::string_view token) { return StationKey::FromToken(token); }
inline std::vector<StationKey> KeysOf(std::string_view tokens) {
  std::vector<StationKey> keys;
  for (const std::string_view token : SplitWords(tokens)) keys.push_back(Key(token));
  return keys;
}
inline std::string TextOf(const std::vector<StationKey>& keys) {
  std::string text;
  for (const StationKey& key : keys) text += (key ? key.Token() : "?") + " ";
  return text;
}

class StationModels : public testing::Test {
 protected:
  StationModels() {
    files.Put("/d/Station.snr",
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

  FakeFiles files;
  DataFolder data{files, "/d", '/'};
  StatList stations{data};
  PersonalStations personal{data};
  RecentList recent{data};
  FavoriteGroups groups{data};
  FakeStrings numbers;
  StationSource source{stations, personal, BuiltInAlphabets(), numbers};
};

}  // namespace sonaro
