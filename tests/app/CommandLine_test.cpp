// What the program reads from its command line, and the addresses that it is built with.
#include <gtest/gtest.h>

#include "app/Startup.h"
#include "settings/HelpPages.h"
#include "settings/ServiceHosts.h"

namespace sonaro {
namespace {

TEST(CommandLine, StartedWithWindowsOnlyByExactlyThatText) {
  for (const char* text : {"WinStart=Yes", "WINSTART=YES", "winstart=yes"})
    EXPECT_TRUE(IsStartWithWindows(text));
  for (const char* text : {"", "WinStart=Yes ", " WinStart=Yes", "WinStart=No", "WinStart=Yes x"}) {
    EXPECT_FALSE(IsStartWithWindows(text)) << text;
  }
}

TEST(CommandLine, ViewToShow) {
  const struct {
    const char* text;
    bool asks;
    const char* view;
  } kCases[] = {
      {"DoWhat=BringUp", true, ""},
      {"DoWhat=BringEvents", true, "YourSonaro"},
      {"dowhat=bringbrowse", true, "Browse"},
      {"DoWhat=BringSearch", true, "Search"},
      {"DoWhat=BringSearch ", true, ""},
      {"DoWhat=Bring", true, ""},
      {"DoWhat=Brin", false, ""},
      {" DoWhat=BringUp", false, ""},
      {"WinStart=Yes", false, ""},
      {"", false, ""},
  };
  for (const auto& c : kCases) {
    EXPECT_EQ(AsksForView(c.text), c.asks) << c.text;
    EXPECT_EQ(WhatToShow(c.text), c.view) << c.text;
  }
}

TEST(ServiceHosts, OtherHostsFollowTheWebHost) {
  EXPECT_EQ(HostOf(ServiceHost::Web), kWebHost);
#ifndef SONARO_SERVICE_HOST
  EXPECT_EQ(ServiceAddress(ServiceHost::Web, "/a"), "http://www.sonaro.example/a");
  EXPECT_EQ(ServiceAddress(ServiceHost::Database, "/a"), "http://db.sonaro.example/a");
  EXPECT_EQ(HostOf(ServiceHost::StationInformation), "stations.sonaro.example");
  EXPECT_EQ(HostOf(ServiceHost::Search), "search.sonaro.example");
#endif
}

TEST(HelpPage, BelongsToItsKeyExactly) {
  EXPECT_EQ(HelpPageForMessage("AlreadyHave10FavoriteGroups"), "9039.html");
  for (const char* key : {"quickstart", "QuickStart ", ""}) EXPECT_EQ(HelpPageForMessage(key), "index.html");
}

}  // namespace
}  // namespace sonaro
