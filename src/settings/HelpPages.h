// The help pages: which one belongs to a message, where they are, and opening one in the browser. Owned by
// Application.
#pragma once

#include <string>
#include <string_view>

namespace sonaro {

class CReg;

// Opening a web page, for those who need no more of the player: help pages, the search panel, the start-up
// page. Implemented by playback/WebPages.
class WebBrowser {
 public:
  virtual ~WebBrowser() = default;
  // An address that begins with "http" (any letter case) or the key of a station, whose web site is meant.
  virtual void OpenWebPage(const std::string& textOrKey) = 0;
};

// The page of a message key, compared exactly: "9070.html" for "QuickStart". "index.html" for any other key.
std::string_view HelpPageForMessage(std::string_view messageKey);

class HelpPages {
 public:
  HelpPages(CReg& reg, WebBrowser& browser) : reg_(reg), browser_(browser) {}

  // Opens a page of the help site, such as "9037.html". The first call stores the default base in "HelpURL".
  void OpenHelpPage(std::string_view page);

 private:
  CReg& reg_;
  WebBrowser& browser_;
};

}  // namespace sonaro
