// Sockets and the addresses of a name as values that close themselves.
#pragma once

#include <winsock2.h>

#include <ws2tcpip.h>

#include <cstdint>
#include <string>

#include "platform/win/Handle.h"

namespace sonaro {

struct SocketTraits {
  using Value = SOCKET;
  static Value None() { return INVALID_SOCKET; }
  static bool Close(Value value) { return closesocket(value) == 0; }
};
using Socket = Handle<SocketTraits>;

struct AddressListTraits {
  using Value = addrinfo*;
  static Value None() { return nullptr; }
  static bool Close(Value value) {
    freeaddrinfo(value);
    return true;
  }
};
using AddressList = Handle<AddressListTraits>;

// Empty when the name is not known. Waits as long as that takes, unless `flags` say that the name is a
// number.
inline AddressList FindAddresses(const std::string& host, std::uint16_t port, int flags) {
  addrinfo hints{};
  hints.ai_family = AF_UNSPEC;
  hints.ai_socktype = SOCK_STREAM;
  hints.ai_flags = flags;
  addrinfo* found = nullptr;
  const int failed = getaddrinfo(host.c_str(), std::to_string(port).c_str(), &hints, &found);
  return AddressList(failed == 0 ? found : nullptr);
}

}  // namespace sonaro
