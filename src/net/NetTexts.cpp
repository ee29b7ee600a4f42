#include "net/NetTexts.h"

#include "net/UpdateExchange.h"
#include "resources/texts/net.h"
#include "settings/Strings.h"

namespace sonaro {

namespace {

using Outcome = UpdateOutcome::Kind;

// Rounded up, so that something that has come never reads as 0.
std::string Kilobytes(std::uint64_t bytes) { return std::to_string((bytes + 1023) / 1024); }

// 0 where the reason says it all, and for a user who has cancelled.
int SentenceOf(Outcome kind) {
  switch (kind) {
    case Outcome::Updated:
      return IDS_NET_FINISHED;
    case Outcome::UpToDate:
      return IDS_NET_UP_TO_DATE;
    case Outcome::CantConnect:
      return IDS_NET_CANT_CONNECT_SERVER;
    case Outcome::NotComplete:
      return IDS_NET_NOT_ALL;
    case Outcome::Refused:
    case Outcome::Cancelled:
      break;
  }
  return 0;
}

// Several faults read the same: what is wrong with a body is of no use to the user. A request that cannot be
// sent comes of an address in the settings.
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

// What happened, what it did to the directory, and the reason, as paragraphs of their own.
std::string OutcomeText(const UpdateOutcome& outcome, const std::string& report, const Strings& strings) {
  const int sentence = SentenceOf(outcome.kind);
  std::string text = sentence == 0 ? std::string() : strings.Load(sentence);
  for (const std::string& more : {report, outcome.reason}) {
    if (!text.empty() && !more.empty()) text += "\r\n\r\n";
    text += more;
  }
  return text;
}

// An update that was refused may be a new one by the next try.
bool MayRetry(const UpdateOutcome& outcome) {
  return outcome.kind == Outcome::CantConnect || outcome.kind == Outcome::NotComplete ||
         outcome.kind == Outcome::Refused;
}

std::string BytesText(std::uint64_t bytes, std::uint64_t expected, const Strings& strings) {
  const int text = expected == 0 ? IDS_NET_BYTES : IDS_NET_BYTES_OF;
  return FormatText(strings.Load(text), {Kilobytes(bytes), Kilobytes(expected)});
}

std::string HttpFaultText(HttpFault fault, const Strings& strings) { return strings.Load(TextOf(fault)); }

}  // namespace sonaro
