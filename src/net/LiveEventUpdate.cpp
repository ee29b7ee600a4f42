#include "net/LiveEventUpdate.h"

#include "base/DataFolder.h"
#include "base/Dates.h"
#include "base/OwnFiles.h"
#include "base/Text.h"
#include "settings/CReg.h"
#include "settings/SettingNames.h"

namespace sonaro {

namespace {

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
