#include "net/UpdateExchange.h"

#include <gtest/gtest.h>

#include <optional>

#include "base/Text.h"
#include "base/crypto/Signing.h"
#include "net/ExchangeRun.h"
#include "resources/texts/net.h"

namespace sonaro {
namespace {

using Kind = UpdateOutcome::Kind;

class UpdateExchangeTest : public testing::Test {
 protected:
  UpdateExchangeTest() {
    PrepareDirectory(files_);
    machine_.emplace(files_);
    machine_->reg.SetSetting(setting::kDoWhat.name, "/SF//SL//XX/");
    machine_->http.Answer("?Flush=", FakeAnswer::Body(kUpdate));
    machine_->http.Answer("/update.asp", Redirect(kFileAt));
  }

  std::string Request(std::size_t index) { return machine_->http.Requests().at(index)->requestText; }
  std::string File(const std::string& name) { return files_.Get("/d/" + name).value_or("(none)"); }
  std::string Setting(const char* name) { return machine_->reg.Setting(name); }
  bool NothingChanged() {
    return File("Station.snr") == kOldList && Setting("LastUpdate") == "8/1/2000" &&
           Setting("UpdateVersion").empty() && Setting("HelpURL").empty() && Setting("UpdateHold").empty() &&
           Setting("DoWhat") == "/SF//SL//XX/" && machine_->stations.FindStation(1).fields[0] == "Old One";
  }

  FakeFiles files_;
  std::optional<Machine> machine_;
};

TEST_F(UpdateExchangeTest, UpdatesForTheDialog) {
  Exchange exchange(*machine_, CallerCode::UpdateDialog, InstallMode::InstallAndRebuild);
  exchange.Run();
  ASSERT_TRUE(exchange.view.outcome);
  EXPECT_EQ(exchange.view.outcome->kind, Kind::Updated);
  EXPECT_EQ(exchange.view.outcome->callerCode, CallerCode::Finished);
  EXPECT_EQ(exchange.view.progress, Text(IDS_NET_GETTING_DATA) + Text(IDS_NET_FINISHED));
  ASSERT_EQ(machine_->http.Requests().size(), 2u);
  EXPECT_EQ(Request(0),
            "GET /sonaroapp/sonaro4vf/asp/appupdate/update.asp?ajfsfsr=id+1&LastUpdate=8%2F1%2F2000"
            "&Version=4.00.2");
  EXPECT_EQ(Request(1), "GET /u/update7.txt?Flush=No");
  EXPECT_EQ(machine_->http.Requests()[1]->host, "files.example");
  EXPECT_EQ(File("update.txt"), kUpdate);
  EXPECT_EQ(File("Station.snr"), kNewList);
  EXPECT_EQ(File("fun.snr"), "a new line\r\n");
  EXPECT_EQ(machine_->install.ReplacedStationList(), kOldList);
  EXPECT_EQ(File("favs.snr"), kFavorites);
  EXPECT_EQ(Setting("LastUpdate"), "9/1/2000");
  EXPECT_EQ(Setting("UpdateVersion"), "7");
  EXPECT_EQ(Setting("HelpURL"), "http://help.example/new");
  EXPECT_EQ(Setting("UpdateHold"), "");
  EXPECT_EQ(Setting("DoWhat"), "/SF//XX/");
  EXPECT_EQ(exchange.view.pendingWork, 1);
  EXPECT_EQ(machine_->stations.FindStation(3).fields[0], "Three");
}

// A table that comes with an update is believed only when it is that of the list.
TEST_F(UpdateExchangeTest, MakesATableAnewThatTheUpdateBroughtDamaged) {
  const std::string table = Section("Statorg.isd", "no table\r\n") + Section("Statorg.ism", "none\r\n");
  const struct {
    std::string sections;
    InstallMode code;
    const char* name;
  } cases[] = {{table, InstallMode::InstallAndRebuild, "Old One"},
               {table, InstallMode::Install, "Old One"},
               {Section("Station.snr", kNewList) + table, InstallMode::InstallAndRebuild, "New One"}};
  for (const auto& c : cases) {
    machine_->http.Answer("?Flush=", FakeAnswer::Body(Complete(c.sections + "date::9/1/2000::\r\n")));
    Exchange exchange(*machine_, CallerCode::UpdateDialog, c.code);
    exchange.Run();
    EXPECT_EQ(exchange.view.outcome->kind, Kind::Updated) << c.name;
    EXPECT_TRUE(machine_->stations.Verify()) << c.name;
    EXPECT_EQ(machine_->stations.FindStation(1).fields[0], c.name);
  }
}

TEST_F(UpdateExchangeTest, InstallsAsTheOpenerAsks) {
  const struct {
    InstallMode code;
    const char* hold;
    const std::string& list;
    const char* date;
    const char* firstName;
  } kCases[] = {
      {InstallMode::HoldFiles, "Station.snr\tfun.snr\t", kOldList, "8/1/2000", "Old One"},
      {InstallMode::Install, "", kNewList, "9/1/2000", "Old One"},
  };
  for (const auto& each : kCases) {
    Exchange exchange(*machine_, CallerCode::Background, each.code);
    exchange.Run();
    ASSERT_TRUE(exchange.view.outcome) << each.hold;
    EXPECT_EQ(exchange.view.outcome->kind, Kind::Updated) << each.hold;
    EXPECT_EQ(exchange.view.outcome->callerCode, CallerCode::Background) << each.hold;
    EXPECT_EQ(Request(machine_->http.Requests().size() - 1), "GET /u/update7.txt?Flush=Yes");
    EXPECT_EQ(Setting("UpdateHold"), each.hold) << each.hold;
    EXPECT_EQ(File("Station.snr"), each.list) << each.hold;
    EXPECT_EQ(Setting("LastUpdate"), each.date) << each.hold;
    EXPECT_EQ(machine_->stations.FindStation(1).fields[0], each.firstName) << each.hold;
  }
}

TEST_F(UpdateExchangeTest, TellsTheFaceplateDialogAsTheOther) {
  Exchange exchange(*machine_, CallerCode::FaceplateDialog, InstallMode::Install);
  exchange.Run();
  EXPECT_EQ(exchange.view.outcome->callerCode, CallerCode::Finished);
  EXPECT_EQ(Request(1), "GET /u/update7.txt?Flush=No");
}

TEST_F(UpdateExchangeTest, StopsWhenNothingIsNew) {
  machine_->http.Answer("/update.asp", Redirect("http://files.example/x/noupdate.txt"));
  Exchange dialog(*machine_, CallerCode::UpdateDialog, InstallMode::InstallAndRebuild);
  dialog.Run();
  EXPECT_EQ(dialog.view.outcome->kind, Kind::UpToDate);
  EXPECT_TRUE(NothingChanged());
  Exchange background(*machine_, CallerCode::Background, InstallMode::InstallAndRebuild);
  background.Run();
  EXPECT_EQ(background.view.outcome->callerCode, CallerCode::NoUpdate);
  EXPECT_EQ(background.view.progress, Text(IDS_NET_CANT_CONNECT));
  EXPECT_EQ(background.view.pendingWork, 1);
  EXPECT_EQ(Setting("DoWhat"), "/SF//XX/");
  EXPECT_EQ(machine_->http.Requests().size(), 2u);
}

TEST_F(UpdateExchangeTest, LeavesEverythingAloneWhenItFails) {
  const struct {
    const char* what;
    FakeAnswer first;
    FakeAnswer second;
    Kind kind;
    std::size_t requests;
  } kCases[] = {
      {"no connection", FakeAnswer::ObjectError(HttpFault::Lost), FakeAnswer::Body(kUpdate),
       Kind::CantConnect, 1},
      {"a body", FakeAnswer::Body(kUpdate), FakeAnswer::Body(kUpdate), Kind::CantConnect, 1},
      {"wrong status", FakeAnswer::Status("500"), FakeAnswer::Body(kUpdate), Kind::CantConnect, 1},
      {"no target", FakeAnswer::Status("302", "HTTP/1.1 302\r\n\r\n"), FakeAnswer::Body(kUpdate),
       Kind::CantConnect, 1},
      {"a file", Redirect("file:///c/x"), FakeAnswer::Body(kUpdate), Kind::NotComplete, 1},
      {"cut", Redirect(kFileAt), FakeAnswer::Body(kUpdate.substr(0, kUpdate.size() - 1)), Kind::NotComplete,
       2},
      {"too much", Redirect(kFileAt), FakeAnswer::Body(kUpdate + "\r\n"), Kind::NotComplete, 2},
      {"empty", Redirect(kFileAt), FakeAnswer::Body(""), Kind::NotComplete, 2},
      {"a loop", Redirect(kFileAt), Redirect(kFileAt), Kind::NotComplete, 2},
      {"broken", Redirect(kFileAt), FakeAnswer::ObjectError(HttpFault::Lost), Kind::NotComplete, 2},
      {"missing", Redirect(kFileAt), FakeAnswer::Status("404"), Kind::NotComplete, 2},
      {"empty list", Redirect(kFileAt),
       FakeAnswer::Body(Complete(Section("Station.snr", "x\r\n") + "date::1::\r\n")), Kind::Refused, 2},
  };
  for (const auto& each : kCases) {
    SCOPED_TRACE(each.what);
    machine_->http.Answer("/update.asp", each.first);
    machine_->http.Answer("?Flush=", each.second);
    const std::size_t before = machine_->http.Requests().size();
    Exchange exchange(*machine_, CallerCode::UpdateDialog, InstallMode::InstallAndRebuild);
    exchange.Run();
    ASSERT_TRUE(exchange.view.outcome);
    EXPECT_EQ(exchange.view.outcome->kind, each.kind);
    EXPECT_EQ(exchange.view.outcome->callerCode, CallerCode::Failed);
    EXPECT_NE(exchange.view.outcome->reason, "");
    EXPECT_EQ(machine_->http.Requests().size() - before, each.requests);
    EXPECT_EQ(exchange.view.pendingWork, 0);
    EXPECT_TRUE(NothingChanged());
  }
}

TEST_F(UpdateExchangeTest, TriesAgainByItselfOnlyWhenNobodyWatches) {
  machine_->http.Answer("/update.asp", FakeAnswer::ObjectError(HttpFault::Lost));
  Exchange exchange(*machine_, CallerCode::Background, InstallMode::InstallAndRebuild);
  exchange.Run();
  const int soon = UpdateExchange::kSoon;
  EXPECT_EQ(exchange.view.intervals, (std::vector<int>{soon, soon, 10000, soon, 10000, soon}));
  EXPECT_EQ(exchange.view.outcome->callerCode, CallerCode::NoUpdate);
  EXPECT_TRUE(NothingChanged());
}

std::string Changes(const std::string& was, std::string_view becomes, const std::string& steps) {
  return Complete(
      Section("changes.snr", ">Station.snr\t" + was + "\t" + Sha256Hex(becomes) + "\r\n" + steps) +
      "date::9/1/2000::\r\n");
}

TEST_F(UpdateExchangeTest, TakesChangesAndAsksForTheWholeGuideWhenTheyDoNotFit) {
  const std::string now = ReplaceFirst(kOldList, "Old", "New");
  const std::string steps = "2 3 New\r\n";
  machine_->http.Answer("?Flush=", FakeAnswer::Body(Changes(Sha256Hex(kOldList), now, steps)));
  Exchange fits(*machine_, CallerCode::UpdateDialog, InstallMode::InstallAndRebuild);
  fits.Run();
  EXPECT_EQ(fits.view.outcome.value().kind, Kind::Updated);
  EXPECT_EQ(File("Station.snr"), now);
  EXPECT_EQ(machine_->stations.FindStation(1).fields[0], "New One");

  // They start from the list of before: told of no date, the service sends the whole guide, or it does not.
  for (const bool sendsWhole : {false, true}) {
    machine_.emplace(files_);
    machine_->http.Answer("?Flush=", FakeAnswer::Body(Changes(Sha256Hex(kOldList), now, steps)));
    machine_->http.Answer("/update.asp", Redirect(kFileAt));
    if (sendsWhole) machine_->http.Answer("/whole.txt", FakeAnswer::Body(kUpdate));
    if (sendsWhole) machine_->http.Answer("LastUpdate=&", Redirect("http://files.example/whole.txt"));
    Exchange exchange(*machine_, CallerCode::UpdateDialog, InstallMode::InstallAndRebuild);
    exchange.Run();
    EXPECT_EQ(exchange.view.outcome.value().kind, sendsWhole ? Kind::Updated : Kind::Refused);
    EXPECT_EQ(File("Station.snr"), sendsWhole ? kNewList : now);
    ASSERT_EQ(machine_->http.Requests().size(), 4u);
    EXPECT_NE(Request(2).find("&LastUpdate=&Version="), std::string::npos) << Request(2);
  }
}

TEST_F(UpdateExchangeTest, CancelsAtOnce) {
  Exchange exchange(*machine_, CallerCode::UpdateDialog, InstallMode::InstallAndRebuild);
  exchange.Get().Load();
  exchange.Get().tmrInetStuff_Timer();
  exchange.Get().Cancel();
  EXPECT_EQ(exchange.view.outcome->kind, Kind::Cancelled);
  EXPECT_FALSE(machine_->http.DeliverNext());
  EXPECT_FALSE(exchange.view.timer);
  EXPECT_TRUE(NothingChanged());
}

// Cancelled in whichever slice: the update never was, with nothing left lying about, or it is finished.
TEST_F(UpdateExchangeTest, CancellingBetweenSlicesLeavesTheOldDirectoryOrTheNewOne) {
  int given = 0, finished = 0;
  for (int slices = 0; finished == 0 || slices < 5; ++slices) {
    FakeFiles files;
    PrepareDirectory(files);
    Machine machine(files);
    machine.http.Answer("?Flush=", FakeAnswer::Body(kUpdate));
    machine.http.Answer("/update.asp", Redirect(kFileAt));
    Exchange exchange(machine, CallerCode::UpdateDialog, InstallMode::InstallAndRebuild);
    exchange.Get().Load();
    for (int left = slices; !exchange.view.outcome;) {
      if (!exchange.view.timer) {
        ASSERT_TRUE(machine.http.DeliverNext());
      } else if (exchange.view.timer == UpdateExchange::kNextSlice && left-- == 0) {
        exchange.Get().Cancel();
      } else {
        exchange.Get().tmrInetStuff_Timer();
      }
    }
    const bool updated = exchange.view.outcome->kind == Kind::Updated;
    EXPECT_EQ(files.Get("/d/Station.snr"), updated ? kNewList : kOldList) << slices;
    EXPECT_EQ(machine.stations.FindStation(1).fields[0], updated ? "New One" : "Old One") << slices;
    EXPECT_EQ(machine.reg.Setting("UpdateHold"), "") << slices;
    for (const std::string& path : files.AllPaths()) EXPECT_FALSE(path.starts_with("/d/t")) << path;
    EXPECT_EQ(machine.install.CanUndo(), updated) << slices;
    ++(updated ? finished : given);
    ASSERT_LT(slices, 20);
  }
  EXPECT_GT(given, 2);
}

}  // namespace
}  // namespace sonaro
