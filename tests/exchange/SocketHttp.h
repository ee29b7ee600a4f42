// HTTP over real sockets of this machine, one transfer after the other, for native tests of the exchange with
// a service. Nothing happens before the test says so; every connection goes to 127.0.0.1.
#pragma once

#include <chrono>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "platform/HttpControl.h"

namespace sonaro {

class SocketHttp : public HttpControlFactory {
 public:
  // What stands in for port 80, which a test may not open.
  std::uint16_t port80 = 0;
  std::chrono::milliseconds silence{5000};
  int transfers = 0;

  // Performs the transfer that waits, with all its events; false when none does.
  bool DeliverNext();

  std::unique_ptr<HttpControl> Make() override;

 private:
  struct Transfer;
  class Control;
  void Deliver(std::shared_ptr<Transfer> transfer);

  std::shared_ptr<Transfer> waiting_;
};

}  // namespace sonaro
