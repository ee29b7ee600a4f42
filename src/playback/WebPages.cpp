#include "playback/WebPages.h"

#include "base/DataFolder.h"
#include "base/Text.h"
#include "base/http/HttpRequest.h"
#include "platform/Shell.h"
#include "resources/texts/playback.h"
#include "settings/Strings.h"
#include "stations/StationSource.h"

namespace sonaro {

namespace {

bool BeginsLikeAddress(const std::string& text) { return StartsWithIgnoringCase(text, "http"); }

std::string WithScheme(const std::string& address) {
  return address.empty() || BeginsLikeAddress(address) ? address : "http://" + address;
}

}  // namespace

void WebPages::OpenWebPage(const std::string& textOrKey) {
  const std::string sentence = ErrorText(Open(textOrKey));
  if (!sentence.empty() && view_) view_->ShowErrorText(sentence);
}

std::string WebPages::ErrorText(WebPageOutcome outcome) const {
  switch (outcome) {
    case WebPageOutcome::NoAddress:
      return strings_.Load(IDS_WHYNOT_NO_PAGE);
    case WebPageOutcome::Refused:
      return strings_.Load(IDS_WHYNOT_REFUSED_PAGE);
    case WebPageOutcome::NotStarted:
      return strings_.Load(IDS_WHYNOT_PAGE_NOT_STARTED);
    case WebPageOutcome::Opened:
      break;
  }
  return {};
}

WebPageOutcome WebPages::Open(const std::string& textOrKey) {
  if (BeginsLikeAddress(textOrKey)) return RunBrowser(textOrKey);
  // A link written without its scheme is no station's token, so it is taken for the address that it is.
  const StationKey key = StationKey::FromToken(textOrKey);
  const std::string address(TrimBlanks(key ? stations_.WebSiteOf(key) : textOrKey));
  return address.empty() ? WebPageOutcome::NoAddress : RunBrowser(WithScheme(address));
}

WebPageOutcome WebPages::RunBrowser(const std::string& url) {
  if (!IsWebAddress(url)) return WebPageOutcome::Refused;
  std::string program = data_.Path("\\lweb.exe");
  // Without the quotes the system would try "C:\Program.exe" first for a folder below "C:\Program Files".
  if (program.find(' ') != std::string::npos) program = '"' + program + '"';
  return shell_.RunMinimised(program + ' ' + url) ? WebPageOutcome::Opened : WebPageOutcome::NotStarted;
}

}  // namespace sonaro
