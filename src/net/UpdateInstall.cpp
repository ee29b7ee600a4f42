#include "net/UpdateInstall.h"

#include <string_view>

#include "app/CReg.h"
#include "app/DeferredSwap.h"
#include "app/SettingNames.h"
#include "base/DataFolder.h"
#include "base/Text.h"
#include "directory/StatList.h"
#include "directory/StationListFile.h"
#include "net/UpdateFile.h"

namespace sonaro {

namespace {

constexpr std::string_view kStationList = "\\Station.snr";
constexpr std::string_view kReceivedList = "\\tStation.snr";
constexpr std::string_view kPreviousList = "\\previous.snr";
constexpr std::string_view kStationListOnly = "Station.snr\t";

bool HoldsStations(std::string_view list) {
  StationLine station;
  while (!list.empty()) {
    if (ParseStationLine(TakeUntil(list, '\n'), station)) return true;
  }
  return false;
}

bool NamesStationList(std::string_view received) {
  while (!received.empty()) {
    if (IsStationList(TakeUntil(received, '\t'))) return true;
  }
  return false;
}

bool NamesStationTable(std::string_view received) {
  while (!received.empty()) {
    if (StartsWithIgnoringCase(TakeUntil(received, '\t'), "statorg.")) return true;
  }
  return false;
}

}  // namespace

InstallStatus UpdateInstall::Install(const UpdateContents& contents, int code) {
  if (const InstallStatus kept = KeepPrevious(contents.received); kept != InstallStatus::Done) {
    DropReceived(data_, contents.received);
    return kept;
  }
  StoreValues(contents);
  reg_.SetSetting(setting::kUpdateHold, contents.received);
  if (code == kHoldFiles) return InstallStatus::Done;
  const bool inPlace = PutInPlace(contents.received, code == kInstallAndRebuild);
  if (inPlace && contents.version) reg_.SetSetting(setting::kUpdateVersion, *contents.version);
  if (inPlace && contents.date) reg_.SetSetting(setting::kLastUpdate, *contents.date);
  return inPlace ? InstallStatus::Done : InstallStatus::NotRebuilt;
}

// A list without a station is no directory, whoever sent it.
InstallStatus UpdateInstall::KeepPrevious(const std::string& received) {
  if (!NamesStationList(received)) return InstallStatus::Done;
  const ReadResult next = data_.Read(kReceivedList);
  if (next.status != ReadStatus::Ok) return InstallStatus::NotSaved;
  if (!HoldsStations(next.bytes)) return InstallStatus::NoStations;
  const ReadResult current = data_.Read(kStationList);
  if (current.status == ReadStatus::Missing || !HoldsStations(current.bytes)) return InstallStatus::Done;
  if (!data_.Save(kPreviousList, current.bytes)) return InstallStatus::NotSaved;
  reg_.SetSetting(setting::kPreviousUpdate, reg_.Setting(setting::kLastUpdate));
  return InstallStatus::Done;
}

// A file that is in use stays as it is, and its new copy waits for the next start. A list and its table
// belong together: when no table can be made of the new list, the one before comes back, whose table is still
// there.
bool UpdateInstall::PutInPlace(const std::string& received, bool rebuild) {
  bool rebuilt = true;
  std::string waiting;
  for (std::string_view rest = received; !rest.empty();) {
    const std::string_view name = TakeUntil(rest, '\t');
    const bool swapped = SwapInDownloaded(data_, name);
    if (!swapped) waiting.append(name).append("\t");
    if (swapped && rebuild && IsStationList(name)) rebuilt = stations_.RebuildStationTable();
  }
  if (!rebuilt) static_cast<void>(data_.Replace(kPreviousList, kStationList));  // the outcome is bad already
  if (NamesStationTable(received)) rebuilt = stations_.EnsureStationTable() != TableCare::NotMade && rebuilt;
  reg_.SetSetting(setting::kUpdateHold, waiting);
  return rebuilt;
}

void UpdateInstall::StoreValues(const UpdateContents& contents) {
  const SettingsBatch batch(reg_);
  for (const ServiceValue& value : contents.values) {
    reg_.CheckKeyIsThere(value.key);
    const MainKeyScope scope(reg_, RootKey::LocalMachine);
    reg_.SetData(value.key, value.setting, value.value);
  }
}

bool UpdateInstall::CanUndo() const { return data_.Exists(kPreviousList); }

bool UpdateInstall::UndoLastUpdate() {
  const ReadResult previous = data_.Read(kPreviousList);
  if (previous.status != ReadStatus::Ok || !HoldsStations(previous.bytes)) return false;
  const ReadResult current = data_.Read(kStationList);
  if (!data_.Save(kReceivedList, previous.bytes)) return false;
  reg_.SetSetting(setting::kUpdateHold, kStationListOnly);
  const bool swapped = SwapInDownloaded(data_, "Station.snr");
  const bool rebuilt = swapped && stations_.RebuildStationTable();
  if (swapped && !rebuilt) static_cast<void>(data_.Save(kStationList, current.bytes));  // it failed already
  if (rebuilt) {
    reg_.SetSetting(setting::kLastUpdate, reg_.Setting(setting::kPreviousUpdate));
    data_.Remove(kPreviousList);
  }
  data_.Remove(kReceivedList);
  reg_.SetSetting(setting::kUpdateHold, "");
  return rebuilt;
}

}  // namespace sonaro
