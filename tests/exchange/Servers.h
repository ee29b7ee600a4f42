// Real servers on 127.0.0.1, as processes for the length of a test.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace sonaro {

// A port where nobody listens.
std::uint16_t FreePort();
// A connected socket, or -1.
int ConnectTo(std::uint16_t port);

// A server's process; it is ended by its number when this is destroyed.
class ServerProcess {
 public:
  // Returns once the port answers, or after some seconds.
  ServerProcess(const std::vector<std::string>& command, std::uint16_t port);
  ~ServerProcess();
  ServerProcess(const ServerProcess&) = delete;
  ServerProcess& operator=(const ServerProcess&) = delete;

  bool Answers() const { return answers_; }

 private:
  int process_ = -1;
  bool answers_ = false;
};

// nginx on a published site, whose configuration says where it listens.
std::vector<std::string> NginxCommand(const std::string& site);

// False when the other side is gone.
bool SendAll(int connection, const std::string& bytes);

}  // namespace sonaro
