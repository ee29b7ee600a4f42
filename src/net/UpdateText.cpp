#include "net/UpdateText.h"

#include "app/Strings.h"
#include "net/UpdateExchange.h"
#include "resources/ids.h"

namespace sonaro {

namespace {

using Kind = UpdateOutcome::Kind;

std::string Kilobytes(std::uint64_t bytes) { return std::to_string((bytes + 1023) / 1024); }

int SentenceOf(Kind kind) {
  switch (kind) {
    case Kind::Updated:
      return IDS_NET_FINISHED;
    case Kind::UpToDate:
      return IDS_NET_UP_TO_DATE;
    case Kind::CantConnect:
      return IDS_NET_CANT_CONNECT_SERVER;
    case Kind::NotComplete:
      return IDS_NET_NOT_ALL;
    case Kind::Refused:
    case Kind::Cancelled:
      break;
  }
  return 0;
}

}  // namespace

std::string OutcomeText(const UpdateOutcome& outcome, const std::string& report, const Strings& strings) {
  const int sentence = SentenceOf(outcome.kind);
  std::string text = sentence == 0 ? std::string() : strings.Load(sentence);
  const std::string& more = outcome.kind == Kind::Updated ? report : outcome.reason;
  if (!text.empty() && !more.empty()) text += "\r\n\r\n";
  return text + more;
}

bool MayRetry(const UpdateOutcome& outcome) {
  return outcome.kind == Kind::CantConnect || outcome.kind == Kind::NotComplete ||
         outcome.kind == Kind::Refused;
}

std::string BytesText(std::uint64_t bytes, std::uint64_t expected, const Strings& strings) {
  const int text = expected == 0 ? IDS_NET_BYTES : IDS_NET_BYTES_OF;
  return FillIn(strings.Load(text), {Kilobytes(bytes), Kilobytes(expected)});
}

}  // namespace sonaro
