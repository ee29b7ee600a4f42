// Opens web pages through the small program lweb, which lies beside the program. Owned by Application.
#pragma once

#include <string>

#include "settings/HelpPages.h"

namespace sonaro {

class DataFolder;
class Shell;
class StationSource;
class Strings;

enum class WebPageOutcome {
  Opened,
  NoAddress,
  Refused,    // not an address that may be opened
  NotStarted  // lweb is missing or did not start
};

// Tells the user in one sentence why something did not open or play.
class ErrorView {
 public:
  virtual ~ErrorView() = default;
  virtual void ShowErrorText(const std::string& sentence) = 0;
};

class WebPages : public WebBrowser {
 public:
  WebPages(const StationSource& stations, DataFolder& data, Shell& shell, const Strings& strings)
      : stations_(stations), data_(data), shell_(shell), strings_(strings) {}

  // Without a view nothing is said. Set late because of a circle: the message box that says it has a button
  // for the help, whose pages are opened here.
  void SetView(ErrorView* view) { view_ = view; }

  // A text that does not begin with "http" is a station's token, whose web site is opened. Says to the user
  // why nothing opens.
  void OpenWebPage(const std::string& textOrKey) override;
  // The same without a word, with the outcome.
  WebPageOutcome Open(const std::string& textOrKey);
  // Starts lweb with the address, which must be one that may be opened (IsWebAddress).
  WebPageOutcome RunBrowser(const std::string& url);
  // One sentence for the user; "" for an outcome that needs none.
  std::string ErrorText(WebPageOutcome outcome) const;

 private:
  const StationSource& stations_;
  DataFolder& data_;
  Shell& shell_;
  const Strings& strings_;
  ErrorView* view_ = nullptr;
};

}  // namespace sonaro
