#include "net/UpdateText.h"

#include "net/UpdateExchange.h"
#include "resources/texts/net.h"
#include "settings/Strings.h"

namespace sonaro {

namespace {

using Outcome = UpdateOutcome::Kind;

std::string Kilobytes(std::uint64_t bytes) { return std::to_string((bytes + 1023) / 1024); }

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

}  // namespace

std::string OutcomeText(const UpdateOutcome& outcome, const std::string& report, const Strings& strings) {
  const int sentence = SentenceOf(outcome.kind);
  std::string text = sentence == 0 ? std::string() : strings.Load(sentence);
  for (const std::string& more : {report, outcome.reason}) {
    if (!text.empty() && !more.empty()) text += "\r\n\r\n";
    text += more;
  }
  return text;
}

bool MayRetry(const UpdateOutcome& outcome) {
  return outcome.kind == Outcome::CantConnect || outcome.kind == Outcome::NotComplete ||
         outcome.kind == Outcome::Refused;
}

std::string BytesText(std::uint64_t bytes, std::uint64_t expected, const Strings& strings) {
  const int text = expected == 0 ? IDS_NET_BYTES : IDS_NET_BYTES_OF;
  return FormatText(strings.Load(text), {Kilobytes(bytes), Kilobytes(expected)});
}

}  // namespace sonaro
