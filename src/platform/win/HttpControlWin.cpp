#include "platform/win/HttpControlWin.h"

#include <array>
#include <exception>
#include <thread>
#include <utility>

#include "base/http/HttpRequest.h"
#include "base/http/HttpResponse.h"
#include "platform/win/SocketHandles.h"

namespace sonaro {

namespace {

constexpr const char* kWindowClass = "SonaroHttp";
constexpr UINT_PTR kSilenceTimer = 1;
constexpr UINT_PTR kReadTimer = 2;
constexpr UINT_PTR kPaceTimer = 3;
constexpr UINT kReadPause = USER_TIMER_MINIMUM;  // milliseconds
constexpr int kReadsInARow = 16;
constexpr UINT kFailMessage = WM_APP;  // first parameter: the request; second: the fault
constexpr UINT kFirstSocketMessage = WM_APP + 1;
constexpr UINT kSocketMessages = 4096;  // in turn, so that a late message of an old socket is known

// Another number than any other part of the program uses: the message may come to whatever window has got
// the handle of a control's.
UINT NameFoundMessage() {
  static const UINT message = RegisterWindowMessageA("SonaroHttpNameFound");
  return message;
}

class HttpControlWin final : public HttpControl {
 public:
  HttpControlWin(std::string userAgent, unsigned silence, TransferPace pace);
  ~HttpControlWin() override;
  HttpControlWin(const HttpControlWin&) = delete;
  HttpControlWin& operator=(const HttpControlWin&) = delete;

  void SetProxy(const std::string&) override {}  // the caller names the proxy as host
  void Request(const std::string& host, std::uint16_t port, const std::string& requestText,
               HttpEvents& events) override;
  void Cancel() override;

 private:
  // Filled by the thread that looks a name up, then read on the GUI thread.
  struct Lookup {
    AddressList found;
  };

  static LRESULT CALLBACK WindowProcedure(HWND window, UINT message, WPARAM first, LPARAM second) noexcept;
  void OnMessage(UINT message, WPARAM first, LPARAM second);
  void OnSocket(WPARAM socket, LPARAM event);
  void StartLookup(const std::string& host, std::uint16_t port);
  void NameFound();
  void ConnectNext();
  bool TryConnect(const addrinfo& address);
  void SendRest();
  void ReceiveSome();
  void ReceiveRest();
  bool Take(int received);  // false when the transfer is over
  void Succeed();
  void AnsweredOtherwise();
  void FailSoon(HttpFault fault);
  void Fail(HttpFault fault);
  void RestartSilenceTimer() { SetTimer(window_, kSilenceTimer, silence_, nullptr); }
  void StopTimers() {
    KillTimer(window_, kReadTimer);
    KillTimer(window_, kSilenceTimer);
    KillTimer(window_, kPaceTimer);
  }
  UINT SocketMessage() const { return kFirstSocketMessage + static_cast<UINT>(request_ % kSocketMessages); }
  template <typename Event>
  bool Raise(Event event);
  template <typename Tell>
  void EndWith(Tell tell);

  std::string userAgent_;
  unsigned silence_;
  TransferPace pace_;
  std::uint64_t receivedInSpan_ = 0;  // of the pace
  HWND window_ = nullptr;
  std::shared_ptr<int> alive_ = std::make_shared<int>();  // ends with the control
  WPARAM request_ = 0;                                    // counts the requests and cancellations
  HttpEvents* events_ = nullptr;                          // null when nothing runs
  std::shared_ptr<Lookup> lookup_;
  const addrinfo* next_ = nullptr;  // of the found addresses, the next to try
  Socket socket_;
  std::string unsent_;
  HttpResponse response_;
};

HttpControlWin::HttpControlWin(std::string userAgent, unsigned silence, TransferPace pace)
    : userAgent_(std::move(userAgent)), silence_(silence), pace_(pace) {
  // A window for messages only. Sockets, timers and the lookup all report to it, so that everything but the
  // lookup itself happens on the GUI thread.
  WNDCLASSA windowClass{};
  windowClass.lpfnWndProc = &WindowProcedure;
  windowClass.hInstance = GetModuleHandleA(nullptr);
  windowClass.lpszClassName = kWindowClass;
  RegisterClassA(&windowClass);  // fails from the second control on
  window_ = CreateWindowExA(0, kWindowClass, "", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, windowClass.hInstance,
                            nullptr);
  SetWindowLongPtrA(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
}

HttpControlWin::~HttpControlWin() {
  Cancel();
  SetWindowLongPtrA(window_, GWLP_USERDATA, 0);
  DestroyWindow(window_);
}

LRESULT CALLBACK HttpControlWin::WindowProcedure(HWND window, UINT message, WPARAM first,
                                                 LPARAM second) noexcept {
  auto* const control = reinterpret_cast<HttpControlWin*>(GetWindowLongPtrA(window, GWLP_USERDATA));
  if (control == nullptr) return DefWindowProcA(window, message, first, second);
  const std::weak_ptr<int> alive = control->alive_;
  try {
    control->OnMessage(message, first, second);
  } catch (const std::exception&) {  // no memory: the transfer ends, the program goes on
    if (!alive.expired()) control->FailSoon(HttpFault::BodyTooLarge);
  }
  return message == WM_TIMER ? 0 : DefWindowProcA(window, message, first, second);
}

// Messages of a transfer that is over may still wait in the queue; the number of the request tells them
// apart.
void HttpControlWin::OnMessage(UINT message, WPARAM first, LPARAM second) {
  if (events_ == nullptr) return;
  if (message == SocketMessage()) {
    OnSocket(first, second);
  } else if (message == NameFoundMessage() && first == request_) {
    NameFound();
  } else if (message == kFailMessage && first == request_) {
    Fail(static_cast<HttpFault>(second));
  } else if (message == WM_TIMER && first == kReadTimer) {
    ReceiveSome();
  } else if (message == WM_TIMER && first == kSilenceTimer) {
    Fail(HttpFault::Silent);
  } else if (message == WM_TIMER && first == kPaceTimer) {
    if (std::exchange(receivedInSpan_, 0) < pace_.leastBytes) Fail(HttpFault::TooSlow);
  }
}

void HttpControlWin::Request(const std::string& host, std::uint16_t port, const std::string& requestText,
                             HttpEvents& events) {
  Cancel();
  events_ = &events;
  response_ = HttpResponse();
  std::optional<std::string> bytes = HttpRequestBytes(host, port, requestText, userAgent_);
  if (!bytes) {
    FailSoon(HttpFault::BadRequest);
    return;
  }
  unsent_ = std::move(*bytes);
  RestartSilenceTimer();
  receivedInSpan_ = 0;
  SetTimer(window_, kPaceTimer, pace_.milliseconds, nullptr);
  StartLookup(HostWithoutPort(host), port);
}

// Counting on makes every message that is under way a stranger.
void HttpControlWin::Cancel() {
  ++request_;
  events_ = nullptr;
  StopTimers();
  socket_.Reset();
  next_ = nullptr;
  lookup_.reset();
  unsent_.clear();
}

void HttpControlWin::StartLookup(const std::string& host, std::uint16_t port) {
  lookup_ = std::make_shared<Lookup>();
  // A number needs no look-up and therefore no thread.
  lookup_->found = FindAddresses(host, port, AI_NUMERICHOST);
  if (lookup_->found) {
    PostMessageA(window_, NameFoundMessage(), request_, 0);
    return;
  }
  try {
    // Looking a name up can take many seconds and cannot be cancelled, hence the thread. It shares nothing
    // with the control but the result and the handle of the window; a cancelled request leaves it to end by
    // itself.
    std::thread([lookup = lookup_, host, port, window = window_, request = request_] {
      lookup->found = FindAddresses(host, port, 0);
      PostMessageA(window, NameFoundMessage(), request, 0);
    }).detach();
  } catch (const std::exception&) {
    FailSoon(HttpFault::NoSuchHost);
  }
}

void HttpControlWin::NameFound() {
  next_ = lookup_->found.Get();
  if (next_ == nullptr) {
    Fail(HttpFault::NoSuchHost);
  } else if (Raise([](HttpEvents& events) { events.HTTPStep(HttpStep::HostFound); })) {
    ConnectNext();
  }
}

// One address after the other until one does not fail at once.
void HttpControlWin::ConnectNext() {
  while (next_ != nullptr) {
    const addrinfo& address = *next_;
    next_ = next_->ai_next;
    if (TryConnect(address)) return;
  }
  Fail(HttpFault::Refused);
}

// The events are asked for before connecting, which makes the socket non-blocking; the outcome comes as
// FD_CONNECT.
bool HttpControlWin::TryConnect(const addrinfo& address) {
  socket_.Reset(socket(address.ai_family, address.ai_socktype, address.ai_protocol));
  if (!socket_) return false;
  constexpr long kEvents = FD_CONNECT | FD_READ | FD_WRITE | FD_CLOSE;
  if (WSAAsyncSelect(socket_.Get(), window_, SocketMessage(), kEvents) != 0) return false;
  return connect(socket_.Get(), address.ai_addr, static_cast<int>(address.ai_addrlen)) == 0 ||
         WSAGetLastError() == WSAEWOULDBLOCK;
}

void HttpControlWin::OnSocket(WPARAM socket, LPARAM event) {
  if (!socket_ || socket != socket_.Get()) return;
  const int error = WSAGETSELECTERROR(event);
  switch (WSAGETSELECTEVENT(event)) {
    case FD_CONNECT:
      if (error != 0) {
        ConnectNext();
      } else {
        Raise([](HttpEvents& events) { events.HTTPStep(HttpStep::Connected); });
      }
      break;
    case FD_WRITE:
      SendRest();
      break;
    case FD_READ:
      SetTimer(window_, kReadTimer, kReadPause, nullptr);
      break;
    case FD_CLOSE:
      if (error != 0) {
        Fail(HttpFault::Lost);
      } else {
        ReceiveRest();
      }
      break;
    default:
      break;
  }
}

// What does not go now goes with the next FD_WRITE.
void HttpControlWin::SendRest() {
  while (!unsent_.empty()) {
    const int sent = send(socket_.Get(), unsent_.data(), static_cast<int>(unsent_.size()), 0);
    if (sent > 0) {
      unsent_.erase(0, static_cast<std::size_t>(sent));
    } else {
      if (WSAGetLastError() != WSAEWOULDBLOCK) Fail(HttpFault::Lost);
      return;
    }
  }
}

std::array<char, 65536>& ReceiveBuffer() {
  thread_local std::array<char, 65536> buffer;
  return buffer;
}

// In a timer's message and only so much: these yield to painting, input and other timers, whereas a fast
// server's messages, one brought about by each call, would not.
void HttpControlWin::ReceiveSome() {
  KillTimer(window_, kReadTimer);
  auto& buffer = ReceiveBuffer();
  for (int reads = 0; reads < kReadsInARow; ++reads) {
    const int received = recv(socket_.Get(), buffer.data(), static_cast<int>(buffer.size()), 0);
    if (received == 0 || (received < 0 && WSAGetLastError() == WSAEWOULDBLOCK))
      return;  // the end comes by itself
    if (!Take(received)) return;
  }
  SetTimer(window_, kReadTimer, kReadPause, nullptr);
}

// The other side has closed; what it sent before may still be waiting.
void HttpControlWin::ReceiveRest() {
  auto& buffer = ReceiveBuffer();
  for (;;) {
    const int received = recv(socket_.Get(), buffer.data(), static_cast<int>(buffer.size()), 0);
    if (received == 0) break;
    if (!Take(received)) return;
  }
  if (response_.EndOfStream() == HttpResponse::State::Complete) {
    Succeed();
  } else {
    Fail(response_.Fault());
  }
}

bool HttpControlWin::Take(int received) {
  if (received < 0) {
    Fail(HttpFault::Lost);
    return false;
  }
  RestartSilenceTimer();
  receivedInSpan_ += static_cast<std::uint64_t>(received);
  const auto state = response_.Feed({ReceiveBuffer().data(), static_cast<std::size_t>(received)});
  if (state == HttpResponse::State::Failed) {
    Fail(response_.Fault());
    return false;
  }
  if (state == HttpResponse::State::Head) return true;
  if (!response_.Succeeded()) {
    AnsweredOtherwise();
    return false;
  }
  const std::uint64_t bytes = response_.Body().size();
  const std::uint64_t expected = response_.ExpectedLength();
  if (!Raise([&](HttpEvents& events) { events.HTTPDataTransferred(bytes, expected); })) return false;
  if (state == HttpResponse::State::Complete) Succeed();
  return state != HttpResponse::State::Complete;
}

// Calls the listener. False when it cancelled the transfer, began another one or destroyed the control, none
// of whose members may be touched then.
template <typename Event>
bool HttpControlWin::Raise(Event event) {
  const std::weak_ptr<int> alive = alive_;
  const WPARAM request = request_;
  event(*events_);
  return !alive.expired() && request == request_;
}

// Tells the outcome and that it is over.
template <typename Tell>
void HttpControlWin::EndWith(Tell tell) {
  const HttpResponse response = std::move(response_);
  HttpEvents& events = *events_;
  socket_.Reset();
  StopTimers();
  if (!Raise([&](HttpEvents& listener) { tell(listener, response); })) return;
  Cancel();
  events.HTTPReady();
}

void HttpControlWin::Succeed() {
  EndWith(
      [](HttpEvents& listener, const HttpResponse& response) { listener.HTTPDataReceived(response.Body()); });
}

// The body of such an answer is of no interest.
void HttpControlWin::AnsweredOtherwise() {
  EndWith([](HttpEvents& listener, const HttpResponse& response) {
    listener.HTTPError(response.StatusCode(), response.Headers());
  });
}

// Not from within Request, whose caller expects events later.
void HttpControlWin::FailSoon(HttpFault fault) {
  PostMessageA(window_, kFailMessage, request_, static_cast<LPARAM>(fault));
}

void HttpControlWin::Fail(HttpFault fault) {
  HttpEvents& events = *events_;
  Cancel();
  events.HTTPObjectError(fault);
}

}  // namespace

HttpControlFactoryWin::HttpControlFactoryWin(std::string userAgent, unsigned silenceMilliseconds,
                                             TransferPace pace)
    : userAgent_(std::move(userAgent)), silence_(silenceMilliseconds), pace_(pace) {
  WSADATA data{};
  WSAStartup(MAKEWORD(2, 2), &data);  // without sockets every request fails by itself
}

HttpControlFactoryWin::~HttpControlFactoryWin() { WSACleanup(); }

std::unique_ptr<HttpControl> HttpControlFactoryWin::Make() {
  return std::make_unique<HttpControlWin>(userAgent_, silence_, pace_);
}

}  // namespace sonaro
