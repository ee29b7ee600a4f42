// Opening a web page, for those who need no more of the player: help pages, the search panel, the start-up
// page. Implemented by playback/WebPages.
#pragma once

#include <string>

namespace sonaro {

class WebPageOpener {
 public:
  virtual ~WebPageOpener() = default;
  // An address, with or without its scheme. A station's web site is asked of StationSource.
  virtual void OpenWebPage(const std::string& address) = 0;
};

}  // namespace sonaro
