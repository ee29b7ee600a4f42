#include "net/WhatIsNew.h"

#include <algorithm>
#include <cstdint>
#include <memory>
#include <optional>

#include "base/DataFolder.h"
#include "base/Dates.h"
#include "base/Numbers.h"
#include "base/OwnFiles.h"
#include "base/Text.h"
#include "settings/CReg.h"
#include "settings/SettingNames.h"

namespace sonaro {

namespace {

// The answer is a page; what is between these marks counts and all else is ignored.
constexpr std::string_view kDateBegin = "<--LastStationUpdateStart-->";
constexpr std::string_view kDateEnd = "<--LastStationUpdateEnd-->";
constexpr std::string_view kSideFileBegin = "<--SideFileBegin-->";
constexpr std::string_view kSideFileEnd = "<--SideFileEnd-->";

std::optional<std::string_view> Between(std::string_view text, std::string_view begin, std::string_view end) {
  const std::size_t from = text.find(begin);
  if (from == std::string_view::npos) return std::nullopt;
  const std::string_view rest = text.substr(from + begin.size());
  const std::size_t length = rest.find(end);
  if (length == std::string_view::npos) return std::nullopt;
  return rest.substr(0, length);
}

// A missing file has no bytes.
std::int64_t SideFileSize(const DataFolder& data) {
  const std::unique_ptr<InputFile> file = data.FileSystem().Open(data.Path(guide_file::kSideFile));
  return file ? static_cast<std::int64_t>(file->Size()) : 0;
}

bool HoldsControlOrBlank(std::string_view text) {
  return std::any_of(text.begin(), text.end(), [](unsigned char c) { return c <= ' ' || c == 0x7F; });
}

// The entry is a size, an address that begins with "http", "::" and a value. What holds a line break or a
// blank is no address.
void CheckSideFile(std::string_view entry, const DataFolder& data, WhatIsNew& found) {
  const std::size_t address = entry.find("http");
  if (address == std::string_view::npos) return;
  const std::string_view size = entry.substr(0, address);
  if (!IsNumeric(size) || NumberValue(size) == SideFileSize(data)) return;
  entry.remove_prefix(address);
  const std::size_t cut = entry.find("::");
  if (HoldsControlOrBlank(entry.substr(0, cut))) return;
  found.toDo += kToDoSideFile;
  found.sideFileUrl = entry.substr(0, cut);
  if (cut != std::string_view::npos) found.sideFileValue = entry.substr(cut + 2);
}

constexpr std::string_view kEndOfBody = "\r\n<<<Cool End Off Live Stuff>>>";
constexpr std::string_view kStampBegin = "LastLiveUpdate>>";
constexpr std::string_view kStampEnd = "<<LastLiveUpdate";
constexpr std::size_t kHeadLength = 500;  // the date stamp stands in here

// The text between the two markers; empty when one of them is missing.
std::string_view DateStamp(std::string_view head) {
  const std::size_t begin = head.find(kStampBegin);
  if (begin == std::string_view::npos) return {};
  head.remove_prefix(begin + kStampBegin.size());
  const std::size_t end = head.find(kStampEnd);
  return end == std::string_view::npos ? std::string_view() : head.substr(0, end);
}

}  // namespace

// Dates are compared as texts: another date means that there is something new, be it an older one.
WhatIsNew CheckWhatIsNew(std::string_view answer, std::string_view shortDatePattern, DataFolder& data,
                         CReg& reg) {
  WhatIsNew found;
  const auto date = Between(answer, kDateBegin, kDateEnd);
  if (date && ParseDate(*date, shortDatePattern) &&
      !EqualIgnoringCase(*date, reg.Get(setting::kLastUpdate))) {
    found.toDo += kToDoStationList;
  }
  if (const auto entry = Between(answer, kSideFileBegin, kSideFileEnd)) CheckSideFile(*entry, data, found);
  reg.Set(setting::kDoWhat, TrimBlanks(found.toDo));
  return found;
}

bool StationListIsDue(const CReg& reg) {
  return reg.Get(setting::kDoWhat).find(kToDoStationList) != std::string::npos;
}

void StationListIsDone(CReg& reg) {
  const std::string toDo = reg.Get(setting::kDoWhat);
  if (toDo.find(kToDoStationList) == std::string::npos) return;
  reg.Set(setting::kDoWhat, ReplaceFirst(toDo, kToDoStationList, ""));
}

// The end mark tells that the transfer was whole, and the stamp that it is what was asked for. The stamp is
// stored only once the file is saved: without the file it would claim what is not there.
std::string SaveLiveEventUpdate(std::string_view body, std::string_view shortDatePattern, DataFolder& data,
                                CReg& reg) {
  if (body.size() < kEndOfBody.size()) return {};
  if (!EqualIgnoringCase(body.substr(body.size() - kEndOfBody.size()), kEndOfBody)) return {};
  const std::string_view stamp = DateStamp(body.substr(0, kHeadLength));
  if (!ParseDate(stamp, shortDatePattern)) return {};
  if (!data.Save(work_file::kEventUpdate, body)) return {};
  reg.Set(setting::kLastEventUpdate, stamp);
  return std::string(stamp);
}

}  // namespace sonaro
