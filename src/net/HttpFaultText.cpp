#include "net/HttpFaultText.h"

#include "resources/texts/net.h"
#include "settings/Strings.h"

namespace sonaro {

namespace {

int TextOf(HttpFault fault) {
  switch (fault) {
    case HttpFault::None:
    case HttpFault::BadRequest:
      return IDS_NET_FAULT_BAD_REQUEST;
    case HttpFault::NoSuchHost:
      return IDS_NET_FAULT_NO_HOST;
    case HttpFault::Refused:
      return IDS_NET_FAULT_REFUSED;
    case HttpFault::Lost:
      return IDS_NET_FAULT_LOST;
    case HttpFault::Silent:
      return IDS_NET_FAULT_SILENT;
    case HttpFault::NotHttp:
      return IDS_NET_FAULT_NOT_HTTP;
    case HttpFault::HeadTooLarge:
    case HttpFault::BodyTooLarge:
      return IDS_NET_FAULT_TOO_LARGE;
    case HttpFault::BadLength:
    case HttpFault::BadChunk:
      return IDS_NET_FAULT_BROKEN;
    case HttpFault::CutShort:
      return IDS_NET_FAULT_CUT_SHORT;
    case HttpFault::TooSlow:
      return IDS_NET_FAULT_TOO_SLOW;
  }
  return IDS_NET_FAULT_BROKEN;
}

}  // namespace

std::string HttpFaultText(HttpFault fault, const Strings& strings) { return strings.Load(TextOf(fault)); }

}  // namespace sonaro
