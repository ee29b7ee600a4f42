// HTTP over non-blocking sockets whose events come as messages of a hidden window, so that everything happens
// on the GUI thread and a transfer can be dropped at any moment. Only names are looked up on another thread,
// which does nothing but report back. The bytes are read by HttpResponse.
#pragma once

#include <winsock2.h>

#include <windows.h>

#include <functional>
#include <memory>
#include <string>

#include "base/HttpFault.h"
#include "platform/HttpControl.h"

namespace sonaro {

// Gives the sentence for the user that a failed transfer ends with.
using HttpFaultSentence = std::function<std::string(HttpFault)>;

class HttpControlMakerWin final : public HttpControlMaker {
 public:
  // A transfer ends after `silenceMilliseconds` without a byte.
  HttpControlMakerWin(std::string userAgent, HttpFaultSentence sentence,
                      unsigned silenceMilliseconds = 30000);
  ~HttpControlMakerWin() override;
  HttpControlMakerWin(const HttpControlMakerWin&) = delete;
  HttpControlMakerWin& operator=(const HttpControlMakerWin&) = delete;

  std::unique_ptr<HttpControl> Make() override;

 private:
  std::string userAgent_;
  HttpFaultSentence sentence_;
  unsigned silence_;
};

}  // namespace sonaro
