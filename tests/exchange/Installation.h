// An installed program without its windows, in a folder of the real file system.
#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include "base/DataFolder.h"
#include "directory/StatList.h"
#include "exchange/SocketHttp.h"
#include "fakes/FakeRegistry.h"
#include "fakes/FakeStrings.h"
#include "net/ServiceUrlTable.h"
#include "net/UpdateExchange.h"
#include "net/UpdateInstall.h"
#include "platform/posix/FilesPosix.h"
#include "settings/CReg.h"
#include "settings/SettingNames.h"

namespace sonaro {

inline const std::string kUsersGroups = "Jazz\t1 \r\n";

class Installation : private UpdateView, private UpdateListener {
 public:
  // `folder` is copied by the caller; `registry` outlives this.
  Installation(const std::string& folder, Registry& registry) : reg(registry), data(files, folder, '/') {
    reg.CheckKeyIsThere(kSettingsKey);
    reg.SetSetting(setting::kInstallId.name, "0123abcd");
    WriteServiceDefaults(reg);
  }

  // One update for the dialog, until its outcome. The steps are bounded so that one that hangs fails here.
  UpdateOutcome Update() {
    outcome_.reset();
    UpdateExchange exchange({reg, data, strings_, install_, http}, *this, *this, CallerCode::UpdateDialog,
                            InstallMode::InstallAndRebuild);
    exchange.Load();
    for (int step = 0; step < 1000 && !outcome_; ++step) {
      if (timer_) {
        exchange.tmrInetStuff_Timer();
      } else if (!http.DeliverNext()) {
        break;
      }
    }
    return outcome_.value_or(UpdateOutcome{UpdateOutcome::Kind::Cancelled, {}, "it never ended"});
  }

  std::string Bytes(const std::string& name) { return data.Read("\\" + name).bytes; }

  CReg reg;
  FilesPosix files;
  DataFolder data;
  StatList stations{data};
  SocketHttp http;
  int progress = 0;  // how often bytes were shown

 private:
  void StartTimer(int) override { timer_ = true; }
  void StopTimer() override { timer_ = false; }
  void UpdateProgress(const std::string&) override {}
  void UpdateBytes(std::uint64_t, std::uint64_t) override { ++progress; }
  void Unload() override {}
  void UpdateFinished(const UpdateOutcome& outcome) override { outcome_ = outcome; }

  FakeStrings strings_;
  UpdateInstall install_{data, reg, stations};
  bool timer_ = false;
  std::optional<UpdateOutcome> outcome_;
};

}  // namespace sonaro
