// Opening a web page, for those who need no more of the player: help pages, the search panel, the start-up
// page. Implemented by playback/WebPages.
#pragma once

#include <string>

namespace sonaro {

class WebPageOpener {
 public:
  virtual ~WebPageOpener() = default;
  // An address that begins with "http" (any letter case) or the key of a station, whose web site is meant.
  virtual void OpenWebPage(const std::string& textOrKey) = 0;
};

}  // namespace sonaro
