// The help pages: which one belongs to a message, where they are, and opening one in the browser. Owned by
// Application.
#pragma once

#include <string>
#include <string_view>

namespace sonaro {

class CReg;
class DataFolder;
class Shell;

// The folder of the pages that came with the program, in the data folder. Like their addresses it carries the
// edition, so that a newer program can have pages of its own.
inline constexpr std::string_view kHelpFolder = "\\help\\2\\";

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
  HelpPages(CReg& reg, WebBrowser& browser, DataFolder& data, Shell& shell)
      : reg_(reg), browser_(browser), data_(data), shell_(shell) {}

  // Opens a page of the help, such as "9037.html": the file that came with the program, unless a service has
  // told another address, there is no such file, or nothing opens it; else the page of the help site. The
  // first call stores the default base in "HelpURL". `page` is one of the program's own names.
  void OpenHelpPage(std::string_view page);

 private:
  bool OpenOnDisk(std::string_view page);

  CReg& reg_;
  WebBrowser& browser_;
  DataFolder& data_;
  Shell& shell_;
};

}  // namespace sonaro
