// Servers on 127.0.0.1 for the length of a test: real ones as processes, and a plain socket that answers byte
// by byte as the test says.
#pragma once

#include <atomic>
#include <cstdint>
#include <functional>
#include <mutex>
#include <string>
#include <thread>
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

// Accepts one connection after the other, reads a request, and plays the next answer; the last one is for all
// that follow.
class PlainServer {
 public:
  using Answer = std::function<void(int connection)>;

  explicit PlainServer(std::vector<Answer> answers);
  ~PlainServer();
  PlainServer(const PlainServer&) = delete;
  PlainServer& operator=(const PlainServer&) = delete;

  std::uint16_t Port() const { return port_; }
  std::vector<std::string> Requests() const;

 private:
  void Serve();

  std::vector<Answer> answers_;
  int listener_ = -1;
  std::uint16_t port_ = 0;
  mutable std::mutex mutex_;
  std::vector<std::string> requests_;
  std::thread thread_;
};

// False when the other side is gone.
bool SendAll(int connection, const std::string& bytes);

}  // namespace sonaro
