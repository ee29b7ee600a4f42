// A web server on 127.0.0.1 that a test scripts: what each request is answered with, byte by byte, and when.
// It listens on its own thread and has one more for each connection; a test talks to it from its own thread.
// Windows only. Ends every connection when it is destroyed.
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace sonaro {

// The server's end of one connection, whose request has been read. Used by scripts, on the connection's
// thread.
class Conversation {
 public:
  virtual ~Conversation() = default;
  // False when the other side is gone.
  virtual bool Send(std::string_view bytes) = 0;
  // Both return early when the other side is gone or the server ends; false then.
  virtual bool Pause(std::chrono::milliseconds time) = 0;
  virtual bool WaitForRelease() = 0;  // LoopbackServer::Release
  // The connection breaks instead of ending in order.
  virtual void Reset() = 0;
};

// Plays one answer; the connection ends in order when it returns.
using Script = std::function<void(Conversation&)>;

namespace script {
// "HTTP/1.1 200 OK" with the announced length and the body.
Script Body(std::string body);
Script Status(const std::string& line, const std::string& headers = "");
Script Redirect(const std::string& target);
Script Exactly(std::string bytes);
// Announces the whole body, sends `first` bytes of it, and the rest once it is released.
Script HeldBody(std::string body, std::size_t first);
// Announces the whole body and ends after `first` bytes.
Script CutBody(std::string body, std::size_t first);
Script Silent();  // until it is released
}  // namespace script

class LoopbackServer {
 public:
  // On any free port of 127.0.0.1, or on this one. Check Listens when another may have it.
  explicit LoopbackServer(std::uint16_t port = 0);
  ~LoopbackServer();
  LoopbackServer(const LoopbackServer&) = delete;
  LoopbackServer& operator=(const LoopbackServer&) = delete;

  bool Listens() const;
  std::uint16_t Port() const;
  // Of requests with this text in them. Later answers go first; without one the status is 404.
  void Answer(const std::string& partOfRequest, Script script);
  // Lets every script go on that waits for it, now or later.
  void Release();

  // What was received, to the byte, in the order of its arrival.
  std::vector<std::string> Requests() const;
  // Connections that are not over.
  int Open() const;

 private:
  class Running;
  std::unique_ptr<Running> running_;
};

// A port of 127.0.0.1 where nobody listens.
std::uint16_t UnusedPort();

}  // namespace sonaro
