// An update downloads files under other names while the program runs and puts them in place here, at once or
// at the next start. Three records make that safe at any moment of a crash:
//
//   UpdateHold  the setting that lists the files to put in place, "name TAB name TAB"; cleared last
//   the copies  "tStation.snr" beside "Station.snr"; moved in one step: a file is the old or the new one
//   kCopies     the file that lists the copies that may lie about, so that those of an abandoned update
//               can be removed; written before the first copy and removed after the last
//
// Repeating any step does no harm: a file without a copy has been swapped already.
#include "directory/DeferredSwap.h"

#include "base/DataFolder.h"
#include "base/OwnFiles.h"
#include "base/Text.h"
#include "directory/HeldNames.h"
#include "settings/CReg.h"
#include "settings/SettingNames.h"

namespace sonaro {

namespace {

// Names come from a setting that others can write. One with a separator or a drive would lead out of the data
// folder.
bool IsPlainFileName(std::string_view name) {
  return !name.empty() && name != "." && name != ".." && name.find_first_of("\\/:") == std::string_view::npos;
}

void StoreHeld(CReg& reg, const setting::Text& from, const setting::Text& to) {
  const std::string value = reg.Get(from);
  if (!value.empty()) reg.Set(to, value);
}

// A copy, and one that was being written.
bool RemoveCopy(DataFolder& data, std::string_view name) {
  const std::string copy = TemporaryName(name);
  return data.Remove(copy) && data.FileSystem().Remove(TemporaryPath(data.Path(copy)));
}

}  // namespace

std::string TemporaryName(std::string_view name) { return std::string("\\t").append(name); }

bool SwapInDownloaded(DataFolder& data, std::string_view name) {
  if (!IsPlainFileName(name)) return false;
  return data.Replace(TemporaryName(name), std::string("\\").append(name));
}

bool IsStationList(std::string_view name) { return EqualIgnoringCase(name, guide_file::kStations.substr(1)); }

bool NoteTemporaries(DataFolder& data, const HeldNames& names) {
  HeldNames noted = NotedTemporaries(data);
  noted.Add(names);
  return data.Save(work_file::kCopies, noted.Text());
}

HeldNames NotedTemporaries(DataFolder& data) { return HeldNames(data.Read(work_file::kCopies).bytes); }

void RemoveTemporaries(DataFolder& data, const HeldNames& waiting) {
  if (!data.Exists(work_file::kCopies)) return;
  const HeldNames noted = NotedTemporaries(data);
  HeldNames left;
  for (const std::string& name : noted) {
    // A copy that is still to be put in place stays, and so does one that could not be removed; a later start
    // tries again.
    const bool stays = IsPlainFileName(name) && (waiting.Contains(name) || !RemoveCopy(data, name));
    if (stays) left.Add(name);
  }
  if (left.Empty()) {
    data.Remove(work_file::kCopies);
  } else if (left.Text() != noted.Text()) {
    (void)data.Save(work_file::kCopies, left.Text());  // else more is noted than lies about
  }
}

void ForgetHeldDate(CReg& reg) {
  for (const setting::Text& held : {setting::kUpdateHoldDate, setting::kUpdateHoldVersion}) {
    if (!reg.Get(held).empty()) reg.Set(held, "");
  }
}

bool RunDeferredSwap(DataFolder& data, CReg& reg, const std::function<bool()>& rebuildStations) {
  const std::string hold = reg.Get(setting::kUpdateHold);
  if (hold.empty()) {
    RemoveTemporaries(data, {});
    return false;
  }
  bool listed = false;
  bool listInPlace = true;
  for (std::string_view rest = hold; rest.find('\t') != std::string_view::npos;) {
    const std::string_view name = NextField(rest, '\t');
    const bool swapped = SwapInDownloaded(data, name);
    if (!IsStationList(name)) continue;
    listed = true;
    // Without a copy it has been swapped before.
    listInPlace = swapped || !data.Exists(TemporaryName(name));
    // Rebuilt even when the list was swapped by an earlier run: that run may have died before the table was
    // made.
    listInPlace = rebuildStations() && listInPlace;
  }
  // The date tells the service what this installation has. It is taken over only with the station list in
  // place; otherwise the next update would be answered with "nothing is new".
  if (listInPlace && hold.find('\t') != std::string::npos) {
    StoreHeld(reg, setting::kUpdateHoldVersion, setting::kUpdateVersion);
    StoreHeld(reg, setting::kUpdateHoldDate, setting::kLastUpdate);
  }
  // From here on the swap is over. Until here a crash repeats all of it.
  reg.Set(setting::kUpdateHold, "");
  ForgetHeldDate(reg);
  RemoveTemporaries(data, {});
  return listed;
}

}  // namespace sonaro
