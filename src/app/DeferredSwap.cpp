#include "app/DeferredSwap.h"

#include <string>

#include "app/CReg.h"
#include "app/SettingNames.h"
#include "base/DataFolder.h"
#include "base/Text.h"

namespace sonaro {

namespace {

bool IsPlainFileName(std::string_view name) {
  return !name.empty() && name != "." && name != ".." && name.find_first_of("\\/:") == std::string_view::npos;
}

std::string Joined(std::string_view prefix, std::string_view name) {
  return std::string(prefix).append(name);
}

}  // namespace

bool SwapInDownloaded(DataFolder& data, std::string_view name) {
  if (!IsPlainFileName(name)) return false;
  return data.Replace(Joined("\\t", name), Joined("\\", name));
}

bool IsStationList(std::string_view name) { return EqualIgnoringCase(name, "Station.snr"); }

bool RunDeferredSwap(DataFolder& data, CReg& reg, const std::function<void()>& rebuildStations) {
  const std::string hold = reg.Setting(setting::kUpdateHold);
  if (hold.empty()) return false;
  bool rebuilt = false;
  for (std::string_view rest = hold; rest.find('\t') != std::string_view::npos;) {
    const std::string_view name = TakeUntil(rest, '\t');
    SwapInDownloaded(data, name);
    if (IsStationList(name)) {
      rebuildStations();
      rebuilt = true;
    }
  }
  reg.SetSetting(setting::kUpdateHold, "");
  return rebuilt;
}

}  // namespace sonaro
