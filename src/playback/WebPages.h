// Opens web pages through the small program lweb, which lies beside the program. Owned by Application.
#pragma once

#include <string>

#include "app/WebPageOpener.h"

namespace sonaro {

class DataFolder;
class Shell;
class StationSource;

enum class WebPageOutcome { Opened, NoAddress, Refused /* not an address that may be opened */, NotStarted };

class WebPages : public WebPageOpener {
 public:
  WebPages(const StationSource& stations, DataFolder& data, Shell& shell)
      : stations_(stations), data_(data), shell_(shell) {}

  // A text that does not begin with "http" is a station's token, whose web site is opened.
  void OpenWebPage(const std::string& textOrKey) override { Open(textOrKey); }
  // The same, with the outcome.
  WebPageOutcome Open(const std::string& textOrKey);
  // Starts lweb with the address, which must be one that may be opened (IsWebAddress).
  WebPageOutcome RunBrowser(const std::string& url);

 private:
  const StationSource& stations_;
  DataFolder& data_;
  Shell& shell_;
};

}  // namespace sonaro
