#include "base/OwnFiles.h"

#include <gtest/gtest.h>

#include "base/DataFolder.h"
#include "fakes/FakeFiles.h"

namespace sonaro {
namespace {

TEST(OwnFiles, TheStartRemovesTheirUnfinishedSavesAndNothingElse) {
  FakeFiles files;
  const std::vector<std::string> stay = {
      "/d/.new",     "/d/Sched.snr",    "/d/Sched.snr.bad",  "/d/Statorg.ism.new",
      "/d/mine.new", "/d/tcat.snr.new", "/d/x/favs.snr.new", "/d/xfavs.snr.new"};
  for (const std::string& path : stay) files.Put(path, "x");
  for (const char* name : {"Sched.snr", "sched.OLD", "Sched.snr.bad", "favs.snr.BAD9", "portable.ini.old",
                           "previous.snr", "dummy.asx"}) {
    files.Put("/d/" + std::string(name) + ".new", "x");
  }
  DataFolder data(files, "/d", '/');
  RemoveUnfinishedSaves(data);
  EXPECT_EQ(files.AllPaths(), stay);
}

}  // namespace
}  // namespace sonaro
