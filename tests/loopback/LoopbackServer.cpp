#include "loopback/LoopbackServer.h"

#include <winsock2.h>

#include <ws2tcpip.h>

#include <array>
#include <atomic>
#include <list>
#include <mutex>
#include <thread>
#include <utility>

namespace sonaro {

namespace {

using std::chrono::milliseconds;

struct SocketsInUse {
  SocketsInUse() {
    WSADATA data{};
    WSAStartup(MAKEWORD(2, 2), &data);
  }
  ~SocketsInUse() { WSACleanup(); }
};

sockaddr_in Loopback(std::uint16_t port) {
  sockaddr_in result{};
  result.sin_family = AF_INET;
  result.sin_port = htons(port);
  inet_pton(AF_INET, "127.0.0.1", &result.sin_addr);
  return result;
}

SOCKET ListenOn(std::uint16_t port) {
  const SOCKET listener = socket(AF_INET, SOCK_STREAM, IPPROTO_TCP);
  const sockaddr_in place = Loopback(port);
  if (bind(listener, reinterpret_cast<const sockaddr*>(&place), sizeof place) == 0 &&
      listen(listener, SOMAXCONN) == 0) {
    return listener;
  }
  closesocket(listener);
  return INVALID_SOCKET;
}

std::uint16_t PortOf(SOCKET listener) {
  sockaddr_in place{};
  int size = sizeof place;
  getsockname(listener, reinterpret_cast<sockaddr*>(&place), &size);
  return ntohs(place.sin_port);
}

bool Readable(SOCKET socket, milliseconds wait) {
  fd_set set{};
  FD_SET(socket, &set);
  timeval time = {0, static_cast<long>(wait.count() * 1000)};
  return select(0, &set, nullptr, nullptr, &time) > 0;
}

constexpr milliseconds kGlance{10};

}  // namespace

class LoopbackServer::Running {
 public:
  explicit Running(std::uint16_t port) : listener_(ListenOn(port)) {
    if (listener_ == INVALID_SOCKET) return;
    port_ = PortOf(listener_);
    thread_ = std::thread([this] { Listen(); });
  }
  ~Running() {
    ends_ = true;
    if (thread_.joinable()) thread_.join();
    for (std::thread& connection : connections_) connection.join();
    if (listener_ != INVALID_SOCKET) closesocket(listener_);
  }
  Running(const Running&) = delete;
  Running& operator=(const Running&) = delete;

  class Connection;
  SocketsInUse sockets_;
  const SOCKET listener_;
  std::uint16_t port_ = 0;
  std::atomic<bool> ends_ = false;
  std::atomic<bool> released_ = false;
  std::atomic<int> open_ = 0;
  std::mutex mutex_;  // of what follows
  std::vector<std::pair<std::string, Script>> answers_;
  std::vector<std::string> requests_;

 private:
  void Listen();
  void Serve(SOCKET socket);
  Script Take(std::string request);

  std::thread thread_;
  std::list<std::thread> connections_;  // the listening thread's
};

class LoopbackServer::Running::Connection final : public Conversation {
 public:
  Connection(Running& server, SOCKET socket) : server_(server), socket_(socket) {}

  bool ReadRequest(std::string& request) {
    std::array<char, 4096> buffer;
    while (request.find("\r\n\r\n") == std::string::npos) {
      if (server_.ends_) return false;
      if (!Readable(socket_, kGlance)) continue;
      const int received = recv(socket_, buffer.data(), static_cast<int>(buffer.size()), 0);
      if (received <= 0) return false;
      request.append(buffer.data(), static_cast<std::size_t>(received));
    }
    return true;
  }

  // Never waits in the call: the server may end while the other side does not read.
  bool Send(std::string_view bytes) override {
    u_long on = 1;
    ioctlsocket(socket_, static_cast<long>(FIONBIO), &on);
    while (!bytes.empty()) {
      const int sent = send(socket_, bytes.data(), static_cast<int>(bytes.size()), 0);
      if (sent > 0) {
        bytes.remove_prefix(static_cast<std::size_t>(sent));
      } else if (WSAGetLastError() != WSAEWOULDBLOCK || server_.ends_) {
        return false;
      } else {
        Sleep(1);
      }
    }
    return true;
  }

  bool Pause(milliseconds time) override {
    const auto end = std::chrono::steady_clock::now() + time;
    while (std::chrono::steady_clock::now() < end) {
      if (IsOver()) return false;
    }
    return true;
  }

  bool WaitForRelease() override {
    while (!server_.released_) {
      if (IsOver()) return false;
    }
    return true;
  }

  void Reset() override {
    const linger hard = {1, 0};
    setsockopt(socket_, SOL_SOCKET, SO_LINGER, reinterpret_cast<const char*>(&hard), sizeof hard);
  }

 private:
  // Takes a moment.
  bool IsOver() {
    if (server_.ends_) return true;
    if (!Readable(socket_, kGlance)) return false;
    char byte = 0;
    return recv(socket_, &byte, 1, MSG_PEEK) <= 0;
  }

  Running& server_;
  const SOCKET socket_;
};

void LoopbackServer::Running::Listen() {
  while (!ends_) {
    if (!Readable(listener_, kGlance)) continue;
    const SOCKET accepted = accept(listener_, nullptr, nullptr);
    if (accepted != INVALID_SOCKET) connections_.emplace_back([this, accepted] { Serve(accepted); });
  }
}

void LoopbackServer::Running::Serve(SOCKET socket) {
  ++open_;
  Connection connection(*this, socket);
  std::string request;
  if (connection.ReadRequest(request)) Take(std::move(request))(connection);
  closesocket(socket);
  --open_;
}

Script LoopbackServer::Running::Take(std::string request) {
  const std::lock_guard lock(mutex_);
  requests_.push_back(std::move(request));
  for (const auto& [part, script] : answers_) {
    if (requests_.back().find(part) != std::string::npos) return script;
  }
  return script::Status("404 Not Found");
}

LoopbackServer::LoopbackServer(std::uint16_t port) : running_(std::make_unique<Running>(port)) {}

LoopbackServer::~LoopbackServer() = default;

bool LoopbackServer::Listens() const { return running_->listener_ != INVALID_SOCKET; }

std::uint16_t LoopbackServer::Port() const { return running_->port_; }

void LoopbackServer::Answer(const std::string& partOfRequest, Script script) {
  const std::lock_guard lock(running_->mutex_);
  running_->answers_.insert(running_->answers_.begin(), {partOfRequest, std::move(script)});
}

void LoopbackServer::Release() { running_->released_ = true; }

std::vector<std::string> LoopbackServer::Requests() const {
  const std::lock_guard lock(running_->mutex_);
  return running_->requests_;
}

int LoopbackServer::Open() const { return running_->open_; }

std::uint16_t UnusedPort() {
  const SocketsInUse sockets;
  const SOCKET listener = ListenOn(0);
  const std::uint16_t port = PortOf(listener);
  closesocket(listener);
  return port;
}

namespace script {

namespace {

std::string HeadOf(const std::string& body) {
  return "HTTP/1.1 200 OK\r\nContent-Length: " + std::to_string(body.size()) + "\r\n\r\n";
}

}  // namespace

Script Exactly(std::string bytes) {
  return [bytes = std::move(bytes)](Conversation& talk) { talk.Send(bytes); };
}

Script Body(std::string body) { return Exactly(HeadOf(body) + body); }

Script Status(const std::string& line, const std::string& headers) {
  return Exactly("HTTP/1.1 " + line + "\r\n" + headers + "Content-Length: 0\r\n\r\n");
}

Script Redirect(const std::string& target) { return Status("302 Found", "Location: " + target + "\r\n"); }

Script HeldBody(std::string body, std::size_t first) {
  return [body = std::move(body), first](Conversation& talk) {
    talk.Send(HeadOf(body) + body.substr(0, first));
    if (talk.WaitForRelease()) talk.Send(std::string_view(body).substr(first));
  };
}

Script CutBody(std::string body, std::size_t first) { return Exactly(HeadOf(body) + body.substr(0, first)); }

Script Silent() {
  return [](Conversation& talk) { talk.WaitForRelease(); };
}

}  // namespace script

}  // namespace sonaro
