#include "exchange/SocketHttp.h"

#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <functional>
#include <utility>

#include "base/http/HttpRequest.h"
#include "base/http/HttpResponse.h"
#include "exchange/Servers.h"

namespace sonaro {

struct SocketHttp::Transfer {
  std::string host;
  std::uint16_t port;
  std::string requestText;
  HttpEvents* events;
  bool over = false;  // cancelled, or its last event has come
};

class SocketHttp::Control : public HttpControl {
 public:
  explicit Control(SocketHttp& maker) : maker_(maker) {}
  ~Control() override { Control::Cancel(); }
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  void SetProxy(const std::string&) override {}
  void Request(const std::string& host, std::uint16_t port, const std::string& requestText,
               HttpEvents& events) override {
    Cancel();
    current_ = std::make_shared<Transfer>(Transfer{host, port, requestText, &events});
    maker_.waiting_ = current_;
  }
  void Cancel() override {
    if (current_) current_->over = true;
    current_ = nullptr;
  }

 private:
  SocketHttp& maker_;
  std::shared_ptr<Transfer> current_;
};

namespace {

HttpFault Exchange(int connection, const std::string& request, std::chrono::milliseconds silence,
                   HttpResponse& response, const std::function<void()>& progress) {
  if (send(connection, request.data(), request.size(), MSG_NOSIGNAL) != static_cast<ssize_t>(request.size()))
    return HttpFault::Lost;
  for (;;) {
    pollfd readable{connection, POLLIN, 0};
    if (poll(&readable, 1, static_cast<int>(silence.count())) <= 0) return HttpFault::Silent;
    std::array<char, 4096> buffer;
    const ssize_t received = recv(connection, buffer.data(), buffer.size(), 0);
    if (received < 0) return HttpFault::Lost;
    const auto state = received == 0 ? response.EndOfStream()
                                     : response.Feed({buffer.data(), static_cast<std::size_t>(received)});
    if (state == HttpResponse::State::Failed) return response.Fault();
    if (state == HttpResponse::State::Complete) return HttpFault::None;
    if (state == HttpResponse::State::Body && !response.Succeeded()) return HttpFault::None;
    if (state == HttpResponse::State::Body) progress();
  }
}

}  // namespace

std::unique_ptr<HttpControl> SocketHttp::Make() { return std::make_unique<Control>(*this); }

bool SocketHttp::DeliverNext() {
  const std::shared_ptr<Transfer> transfer = std::exchange(waiting_, nullptr);
  if (!transfer || transfer->over) return false;
  ++transfers;
  Deliver(transfer);
  return true;
}

void SocketHttp::Deliver(std::shared_ptr<Transfer> transfer) {
  HttpEvents& events = *transfer->events;
  const auto request =
      HttpRequestBytes(transfer->host, transfer->port, transfer->requestText, "Exchange/1.0");
  const int connection = ConnectTo(transfer->port == 80 ? port80 : transfer->port);
  HttpResponse response;
  HttpFault fault = request && connection >= 0 ? HttpFault::None : HttpFault::Refused;
  if (fault == HttpFault::None) {
    fault = Exchange(connection, *request, silence, response, [&] {
      if (!transfer->over) events.HTTPDataTransferred(response.Body().size(), response.ExpectedLength());
    });
  }
  if (connection >= 0) close(connection);
  if (transfer->over) return;
  if (fault != HttpFault::None) {
    transfer->over = true;
    events.HTTPObjectError(fault);
    return;
  }
  if (response.Succeeded()) {
    events.HTTPDataReceived(response.Body());
  } else {
    events.HTTPError(response.StatusCode(), response.Headers());
  }
  if (transfer->over) return;
  transfer->over = true;
  events.HTTPReady();
}

}  // namespace sonaro
