// Installing goes through these steps, in an order in which a crash at any point leaves a directory that
// works:
//
//   1  check everything that can be checked before anything is written
//   2  write all files under temporary names (the copies)
//   3  keep what they will replace, in one file, for undoing
//   4  store the settings that the update brings, and last the list of waiting files: from here on the next
//      start finishes what is not finished now
//   5  move each copy into its place and rebuild the station table
//   6  store the date, by which the service knows what this installation has
//
// Between the steps, and between two files, the window has its turn. Until 3 the work can be given up at any
// of these moments, with nothing but copies to remove; from there on it goes on to its end.
//
// Undoing renames the kept file first; from then on the next start goes on with it until everything is back.
#include "net/UpdateInstall.h"

#include <algorithm>
#include <set>
#include <string_view>

#include "base/DataFolder.h"
#include "base/Numbers.h"
#include "base/OwnFiles.h"
#include "base/Text.h"
#include "directory/CheckDataFiles.h"
#include "directory/DeferredSwap.h"
#include "directory/HeldNames.h"
#include "directory/StatList.h"
#include "directory/StationListFile.h"
#include "net/PreviousGuide.h"
#include "net/UpdateFile.h"
#include "settings/CReg.h"
#include "settings/SettingNames.h"

namespace sonaro {

namespace {

// What is copied in one slice: small files together, a large one alone.
constexpr std::size_t kSliceBytes = std::size_t{1} << 20;

bool HoldsStations(std::string_view list) {
  StationLine station;
  while (!list.empty()) {
    if (ParseStationLine(NextField(list, '\n'), station)) return true;
  }
  return false;
}

std::string PlaceOf(std::string_view name) { return std::string("\\").append(name); }

HeldNames NamesOf(const UpdateContents& contents) {
  HeldNames names;
  for (const ReceivedFile& file : contents.files) names.Add(file.name);
  return names;
}

const ReceivedFile* Find(const UpdateContents& contents, std::string_view name) {
  for (const ReceivedFile& file : contents.files) {
    if (EqualIgnoringCase(file.name, name)) return &file;
  }
  return nullptr;
}

bool IsStationTable(std::string_view name) { return StartsWithIgnoringCase(name, "statorg."); }

bool BringsTable(const UpdateContents& contents) {
  return std::any_of(contents.files.begin(), contents.files.end(),
                     [](const ReceivedFile& file) { return IsStationTable(file.name); });
}

bool HasStationList(const HeldNames& names) {
  return std::any_of(names.begin(), names.end(), [](const std::string& name) { return IsStationList(name); });
}

}  // namespace

HeldNames UpdateInstall::Waiting() const { return HeldNames(reg_.Get(setting::kUpdateHold)); }

Sliced<InstallStatus> UpdateInstall::Install(const UpdateContents& contents, InstallMode mode) {
  mayGiveUp_ = true;
  InstallStatus status = Check(contents);
  if (status == InstallStatus::Done) status = co_await Unpack(contents);
  if (status != InstallStatus::Done) co_return status;
  const HeldNames earlier = Waiting();
  HeldNames held = earlier;
  held.Add(NamesOf(contents));
  StoreValues(contents, HasStationList(earlier));
  reg_.Set(setting::kUpdateHold, held.Text());
  // The registry writes to disk when it likes; the list of waiting files has to be there before files are
  // moved.
  reg_.FlushSettings();
  if (mode == InstallMode::HoldFiles) co_return InstallStatus::Done;
  co_await NextSlice();
  co_return co_await PutInPlace(contents, earlier, mode == InstallMode::InstallAndRebuild);
}

void UpdateInstall::GiveUp() { RemoveTemporaries(data_, Waiting()); }

// A list without a station is no directory, whoever sent it.
InstallStatus UpdateInstall::Check(const UpdateContents& contents) {
  if (contents.serial && *contents.serial < reg_.Get(setting::kUpdateSerial)) {
    return InstallStatus::Older;
  }
  if (!NamesAreFree(contents) || !CategoriesHaveLists(contents)) return InstallStatus::NotFitting;
  const ReceivedFile* const list = Find(contents, guide_file::kStations.substr(1));
  return list == nullptr || HoldsStations(list->bytes) ? InstallStatus::Done : InstallStatus::NoStations;
}

// The copy of "rap.snr" is called "trap.snr": it may not take the place of a file of that name, one of this
// update, one that waits, or one that is there, unless that is a copy as well.
bool UpdateInstall::NamesAreFree(const UpdateContents& contents) {
  const HeldNames waiting = Waiting();
  HeldNames copies = NotedTemporaries(data_);
  copies.Add(waiting);
  std::set<std::string> received;
  for (const ReceivedFile& file : contents.files) received.insert(FoldCase(file.name));
  const auto isCopyOf = [&](const std::string& name) { return received.contains(FoldCase("t" + name)); };
  if (std::any_of(waiting.begin(), waiting.end(), isCopyOf)) return false;
  return std::none_of(contents.files.begin(), contents.files.end(), [&](const ReceivedFile& file) {
    if (isCopyOf(file.name) || waiting.Contains("t" + file.name)) return true;
    return !copies.Contains(file.name) && data_.Exists(TemporaryName(file.name));
  });
}

// Otherwise every start would ask for files that no update brings.
bool UpdateInstall::CategoriesHaveLists(const UpdateContents& contents) {
  const ReceivedFile* const categories = Find(contents, guide_file::kCategories.substr(1));
  if (categories == nullptr) return true;
  std::set<std::string> there;
  for (const std::string& name : data_.FileSystem().List(data_.Folder())) there.insert(FoldCase(name));
  for (const ReceivedFile& file : contents.files) there.insert(FoldCase(file.name));
  return !CategoryListMissing(categories->bytes, [&](const std::string& name) {
    return there.contains(FoldCase(std::string_view(name).substr(1)));
  });
}

// The copies first: while they cannot be written, what the update before replaced stays kept.
Sliced<InstallStatus> UpdateInstall::Unpack(const UpdateContents& contents) {
  bool saved = contents.files.empty() || NoteTemporaries(data_, NamesOf(contents));
  std::size_t copied = 0;
  for (const ReceivedFile& file : contents.files) {
    if (copied > 0 && copied + file.bytes.size() > kSliceBytes) {
      copied = 0;
      co_await NextSlice();
    }
    copied += file.bytes.size();
    saved = saved && data_.Save(TemporaryName(file.name), file.bytes);
  }
  co_await NextSlice();
  mayGiveUp_ = false;
  const InstallStatus status = saved ? KeepPrevious(contents) : InstallStatus::NotSaved;
  if (status != InstallStatus::Done) RemoveTemporaries(data_, Waiting());
  co_return status;
}

InstallStatus UpdateInstall::KeepPrevious(const UpdateContents& contents) {
  PreviousGuide previous;
  for (const ReceivedFile& file : contents.files) {
    ReadResult present = data_.Read(PlaceOf(file.name));
    // A file that cannot be kept must not be replaced either.
    if (present.status == ReadStatus::Unreadable) return InstallStatus::NotKept;
    KeptFile& kept = previous.files.emplace_back(KeptFile{file.name, std::nullopt});
    if (present.status == ReadStatus::Ok) kept.bytes = std::move(present.bytes);
  }
  for (const char* name :
       {setting::kLastUpdate.name, setting::kUpdateVersion.name, setting::kUpdateSerial.name}) {
    previous.settings.push_back({kSettingsKey, name, reg_.Setting(name)});
  }
  for (const ServiceValue& value : contents.values) {
    previous.settings.push_back({value.key, value.setting, reg_.GetData(value.key, value.setting)});
  }
  const KeptFile* const list = previous.Find(guide_file::kStations.substr(1));
  if (list != nullptr && !HoldsStations(list->bytes.value_or(""))) {  // nothing that one could want back
    data_.Remove(work_file::kPrevious);
  } else if (!SavePreviousGuide(data_, work_file::kPrevious, previous)) {
    return InstallStatus::NotSaved;
  }
  data_.Remove(work_file::kUndoing);  // an undoing that waits is overtaken
  return InstallStatus::Done;
}

// The date is written down before the names of the files: whoever finds the names finds its date. That of a
// list that waits already stays unless this update has one.
void UpdateInstall::StoreValues(const UpdateContents& contents, bool listWaits) {
  const SettingsBatch batch(reg_);
  const MainKeyScope scope(reg_, RootKey::LocalMachine);
  for (const ServiceValue& value : contents.values) {
    reg_.CheckKeyIsThere(value.key);
    reg_.SetData(value.key, value.setting, value.value);
  }
  if (contents.serial) reg_.Set(setting::kUpdateSerial, *contents.serial);
  const auto wait = [&](const setting::Text& setting, const std::optional<std::string>& value) {
    if (value || !listWaits) reg_.Set(setting, value.value_or(""));
  };
  wait(setting::kUpdateHoldDate, contents.date);
  wait(setting::kUpdateHoldVersion, contents.version);
}

// A file that is in use stays as it is, and its copy waits for the next start. A list and its table belong
// together: when no table can be made of the new list, everything of before comes back.
Sliced<InstallStatus> UpdateInstall::PutInPlace(const UpdateContents& contents, const HeldNames& earlier,
                                                bool rebuild) {
  HeldNames waiting = earlier;
  bool allInPlace = true;
  bool rebuilt = true;
  for (const ReceivedFile& file : contents.files) {
    const bool swapped = SwapInDownloaded(data_, file.name);
    allInPlace = allInPlace && swapped;
    if (swapped) {
      waiting.Remove(file.name);
    } else {
      waiting.Add(file.name);
    }
    if (swapped && rebuild && IsStationList(file.name)) rebuilt = stations_.RebuildStationTable();
    // The files behind the list stay unmoved; undoing brings the moved ones back.
    if (!rebuilt) break;
  }
  if (rebuilt && BringsTable(contents)) {
    rebuilt = stations_.EnsureStationTable() != TableCare::NotMade;
  }
  if (!rebuilt) {
    (void)UndoLastUpdate();  // what is in use is put back at the next start
    co_return InstallStatus::NotRebuilt;
  }
  co_await NextSlice();
  StoreDates(contents, HasStationList(waiting));
  Wait(waiting);
  co_return allInPlace ? InstallStatus::Done : InstallStatus::Waits;
}

void UpdateInstall::StoreDates(const UpdateContents& contents, bool listWaits) {
  // The date belongs to the list that is in place; it waits in UpdateHoldDate (StoreValues).
  if (listWaits) return;
  if (contents.version) reg_.Set(setting::kUpdateVersion, *contents.version);
  if (contents.date) reg_.Set(setting::kLastUpdate, *contents.date);
}

bool UpdateInstall::CanUndo() const { return IsPreviousGuide(data_, work_file::kPrevious); }

std::optional<std::string> UpdateInstall::ReplacedStationList() {
  const auto previous = LoadPreviousGuide(data_, work_file::kPrevious);
  const KeptFile* const list = previous ? previous->Find(guide_file::kStations.substr(1)) : nullptr;
  return list == nullptr ? std::nullopt : list->bytes;
}

// From the moment that the file has its other name the next start goes on with it.
UndoStatus UpdateInstall::UndoLastUpdate() {
  if (!LoadPreviousGuide(data_, work_file::kPrevious) ||
      !data_.Replace(work_file::kPrevious, work_file::kUndoing)) {
    return UndoStatus::Impossible;
  }
  return Restore();
}

void UpdateInstall::FinishUndo() {
  if (data_.Exists(work_file::kUndoing)) (void)Restore();  // what does not succeed is tried at the next start
}

UndoStatus UpdateInstall::Restore() {
  const auto previous = LoadPreviousGuide(data_, work_file::kUndoing);
  if (!previous) {
    data_.Remove(work_file::kUndoing);
    return UndoStatus::Impossible;
  }
  RestoreSettings(*previous);
  if (!RestoreFiles(*previous)) return UndoStatus::Waits;
  reg_.FlushSettings();
  data_.Remove(work_file::kUndoing);
  return UndoStatus::Done;
}

// Before the files: an old date with the new list only asks for the update again, a new date with the old
// list would hold it back. Copies that wait for the next start are not wanted any more.
void UpdateInstall::RestoreSettings(const PreviousGuide& previous) {
  HeldNames waiting = Waiting();
  for (const KeptFile& file : previous.files) waiting.Remove(file.name);
  {
    const SettingsBatch batch(reg_);
    const MainKeyScope scope(reg_, RootKey::LocalMachine);
    for (const KeptSetting& kept : previous.settings) reg_.SetData(kept.key, kept.name, kept.value);
  }
  Wait(waiting);
}

// What waits from now on; the date waits with the station list.
void UpdateInstall::Wait(const HeldNames& names) {
  reg_.Set(setting::kUpdateHold, names.Text());
  if (!HasStationList(names)) ForgetHeldDate(reg_);
  RemoveTemporaries(data_, names);
}

bool UpdateInstall::RestoreFiles(const PreviousGuide& previous) {
  bool restored = true;
  bool needsTable = false;
  for (const KeptFile& file : previous.files) {
    const std::string place = PlaceOf(file.name);
    needsTable = needsTable || IsStationList(file.name) || IsStationTable(file.name);
    if (!file.bytes) {
      restored = data_.Remove(place) && restored;
      // A file that is right already is not written again: a repeated attempt touches only what is left.
    } else if (data_.Read(place).bytes != *file.bytes || !data_.Exists(place)) {
      restored = data_.Save(place, *file.bytes) && restored;
    }
  }
  if (needsTable) restored = stations_.EnsureStationTable() != TableCare::NotMade && restored;
  return restored;
}

}  // namespace sonaro
