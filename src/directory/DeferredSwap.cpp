#include "directory/DeferredSwap.h"

#include "base/DataFolder.h"
#include "base/OwnFiles.h"
#include "base/Text.h"
#include "directory/HeldNames.h"
#include "settings/CReg.h"
#include "settings/SettingNames.h"

namespace sonaro {

namespace {

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

bool IsStationList(std::string_view name) { return EqualIgnoringCase(name, "Station.snr"); }

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
    listInPlace = rebuildStations() && listInPlace;
  }
  if (listInPlace && hold.find('\t') != std::string::npos) {
    StoreHeld(reg, setting::kUpdateHoldVersion, setting::kUpdateVersion);
    StoreHeld(reg, setting::kUpdateHoldDate, setting::kLastUpdate);
  }
  reg.Set(setting::kUpdateHold, "");
  ForgetHeldDate(reg);
  RemoveTemporaries(data, {});
  return listed;
}

}  // namespace sonaro
