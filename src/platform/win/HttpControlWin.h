// HTTP over non-blocking sockets whose events come as messages of a hidden window, so that everything happens
// on the GUI thread and a transfer can be dropped at any moment. Only names are looked up on another thread,
// which does nothing but report back. The bytes are read by HttpResponse.
#pragma once

#include <winsock2.h>

#include <windows.h>

#include <cstdint>
#include <memory>
#include <string>

#include "platform/HttpControl.h"

namespace sonaro {

// How fast a transfer has to be: a server that drips is no better than a silent one.
struct TransferPace {
  unsigned milliseconds = 60000;
  std::uint64_t leastBytes = 4096;  // within each of these spans, until the transfer is over
};

class HttpControlFactoryWin final : public HttpControlFactory {
 public:
  // A transfer ends after `silenceMilliseconds` without a byte, or when it does not keep the pace.
  explicit HttpControlFactoryWin(std::string userAgent, unsigned silenceMilliseconds = 30000,
                                 TransferPace pace = {});
  ~HttpControlFactoryWin() override;
  HttpControlFactoryWin(const HttpControlFactoryWin&) = delete;
  HttpControlFactoryWin& operator=(const HttpControlFactoryWin&) = delete;

  std::unique_ptr<HttpControl> Make() override;

 private:
  std::string userAgent_;
  unsigned silence_;
  TransferPace pace_;
};

}  // namespace sonaro
