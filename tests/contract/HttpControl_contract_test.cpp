// What every HTTP control keeps to: the network of canned answers, and real sockets against a server in this
// process. How a transfer can go wrong on the wire is tried on the real ones alone.
#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "fakes/FakeHttpControl.h"
#ifdef _WIN32
#include "loopback/LoopbackServer.h"
#include "platform/win/HttpControlWin.h"
#endif

namespace sonaro {
namespace {

using Lines = std::vector<std::string>;

// Writes down what it hears; `then` runs inside the event.
class Listener final : public HttpEvents {
 public:
  Lines heard;
  std::uint64_t bytes = 0;
  std::uint64_t expected = 0;
  int progress = 0;
  std::function<void(const std::string& event)> then;

  bool Over() const { return over_; }

  void HTTPDataReceived(std::string_view body) override { Hear("body " + std::string(body)); }
  void HTTPDataTransferred(std::uint64_t now, std::uint64_t all) override {
    ++progress;
    EXPECT_GE(now, bytes);
    bytes = now;
    expected = all;
    if (then) then("progress");
  }
  void HTTPError(const std::string& status, const std::string& headers) override {
    Hear("status " + status +
         (headers.find("\nLocation: http://x/y\r\n") == std::string::npos ? "" : " to y"));
  }
  void HTTPObjectError(const std::string& reason) override {
    over_ = true;
    Hear("failed " + reason);
  }
  void HTTPReady() override {
    over_ = true;
    Hear("ready");
  }

 private:
  void Hear(std::string event) {
    heard.push_back(event.substr(0, 100));
    if (then) then(event);
  }

  bool over_ = false;
};

constexpr const char* kBody = "the whole body";

struct Canned {
  FakeHttp network;
  std::string host = "127.0.0.1";
  std::uint16_t port = 80;

  void Prepare() {
    network.Answer("/body", FakeAnswer::Body(kBody));
    network.Answer("/moved", FakeAnswer::Status("302", "HTTP/1.1 302 Found\r\nLocation: http://x/y\r\n\r\n"));
    network.Answer("/lost", FakeAnswer::ObjectError("why"));
  }
  HttpControlMaker& Maker() { return network; }
  void Run(const std::function<bool()>& until) {
    while (!until() && network.DeliverNext()) {
    }
  }
  void Settle() { network.DeliverAll(); }
};

#ifdef _WIN32
constexpr unsigned kLimit = 700;  // milliseconds of silence

std::string NameOf(HttpFault fault) {
  static constexpr const char* kNames[] = {"None",         "BadRequest", "NoSuchHost", "Refused",
                                           "Lost",         "Silent",     "NotHttp",    "HeadTooLarge",
                                           "BodyTooLarge", "BadLength",  "BadChunk",   "CutShort"};
  return kNames[static_cast<int>(fault)];
}

bool Dispatch() {
  MSG message{};
  if (!PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) return false;
  DispatchMessageA(&message);
  return true;
}

// The messages of this thread, until the condition holds or something has gone wrong.
void PumpUntil(const std::function<bool()>& condition) {
  const ULONGLONG end = GetTickCount64() + 20000;
  while (!condition() && GetTickCount64() < end) {
    if (!Dispatch()) MsgWaitForMultipleObjects(0, nullptr, FALSE, 10, QS_ALLINPUT);
  }
}

struct OnSockets {
  LoopbackServer server;
  HttpControlMakerWin maker{"Contract/1.0", [](HttpFault) { return std::string("why"); }};
  std::string host = "127.0.0.1";
  std::uint16_t port = server.Port();

  void Prepare() {
    server.Answer("/body", script::Body(kBody));
    server.Answer("/moved", script::Redirect("http://x/y"));
    server.Answer("/lost", script::Exactly(""));
  }
  HttpControlMaker& Maker() { return maker; }
  void Run(const std::function<bool()>& until) { PumpUntil(until); }
  // What is still on its way arrives.
  void Settle() {
    PumpUntil([&] { return server.Open() == 0; });
    const ULONGLONG end = GetTickCount64() + 50;
    PumpUntil([&] { return GetTickCount64() > end; });
  }
};
using Worlds = testing::Types<Canned, OnSockets>;
#else
using Worlds = testing::Types<Canned>;
#endif

template <typename World>
class HttpContract : public testing::Test {
 protected:
  HttpContract() { world_.Prepare(); }
  void Ask(HttpControl& control, const char* path, Listener& listener) {
    control.Request(world_.host, world_.port, std::string("GET ") + path, listener);
  }
  void RunUntilOver(const Listener& listener) {
    world_.Run([&] { return listener.Over(); });
  }

  World world_;
  std::unique_ptr<HttpControl> control_ = world_.Maker().Make();
};
TYPED_TEST_SUITE(HttpContract, Worlds);

struct Outcome {
  const char* path;
  Lines heard;
};
const Outcome kOutcomes[] = {
    {"/body", {std::string("body ") + kBody, "ready"}},
    {"/moved", {"status 302 to y", "ready"}},
    {"/lost", {"failed why"}},
};

TYPED_TEST(HttpContract, EveryRequestEndsOnceAndLater) {
  for (const Outcome& each : kOutcomes) {
    Listener listener;
    this->Ask(*this->control_, each.path, listener);
    EXPECT_EQ(listener.heard, Lines{}) << "an event within Request";
    this->RunUntilOver(listener);
    this->world_.Settle();
    EXPECT_EQ(listener.heard, each.heard);
    if (each.heard.size() == 2 && each.path == std::string("/body")) {
      EXPECT_EQ(listener.bytes, std::string(kBody).size());
      EXPECT_EQ(listener.expected, std::string(kBody).size());
    }
  }
}

TYPED_TEST(HttpContract, NothingComesAfterACancellation) {
  Listener listener;
  this->control_->Cancel();
  this->Ask(*this->control_, "/body", listener);
  this->control_->Cancel();
  this->world_.Settle();
  this->Ask(*this->control_, "/body", listener);
  this->control_.reset();
  this->world_.Settle();
  EXPECT_EQ(listener.heard, Lines{});
  EXPECT_EQ(listener.progress, 0);
}

TYPED_TEST(HttpContract, CancellingOrDestroyingWithinAnEventEndsTheRequestThere) {
  for (const Outcome& each : kOutcomes) {
    for (const std::string& last : each.heard) {
      for (const bool destroy : {false, true}) {
        SCOPED_TRACE(last + (destroy ? ", destroyed" : ", cancelled"));
        Listener listener;
        std::unique_ptr<HttpControl> control = this->world_.Maker().Make();
        listener.then = [&](const std::string& event) {
          if (event != last) return;
          control->Cancel();
          if (destroy) control.reset();
        };
        this->Ask(*control, each.path, listener);
        this->world_.Run([&] { return !listener.heard.empty() && listener.heard.back() == last; });
        this->world_.Settle();
        EXPECT_EQ(listener.heard.back(), last);
      }
    }
  }
}

TYPED_TEST(HttpContract, ARequestTakesThePlaceOfTheOneThatRuns) {
  Listener first;
  Listener second;
  this->Ask(*this->control_, "/moved", first);
  this->Ask(*this->control_, "/body", second);
  this->RunUntilOver(second);
  this->world_.Settle();
  EXPECT_EQ(first.heard, Lines{});
  EXPECT_EQ(second.heard, kOutcomes[0].heard);
}

TYPED_TEST(HttpContract, TheNextRequestMayStartWithinAnyEvent) {
  for (const Outcome& each : kOutcomes) {
    for (const std::string& last : each.heard) {
      SCOPED_TRACE(last);
      Listener first;
      Listener second;
      first.then = [&](const std::string& event) {
        if (event == last) this->Ask(*this->control_, "/body", second);
      };
      this->Ask(*this->control_, each.path, first);
      this->RunUntilOver(second);
      this->world_.Settle();
      EXPECT_EQ(first.heard.back(), last);
      EXPECT_EQ(second.heard, kOutcomes[0].heard);
    }
  }
}

TYPED_TEST(HttpContract, ManyAtOnceDoNotMixUp) {
  constexpr std::size_t kCount = 24;
  std::vector<std::unique_ptr<HttpControl>> controls;
  std::vector<Listener> listeners(kCount);
  for (std::size_t i = 0; i < kCount; ++i) {
    controls.push_back(this->world_.Maker().Make());
    this->Ask(*controls.back(), kOutcomes[i % 3].path, listeners[i]);
    if (i % 4 == 3) controls[i - 1]->Cancel();
  }
  for (std::size_t i = 0; i < kCount; ++i) {
    if (i % 4 != 2) this->RunUntilOver(listeners[i]);
  }
  this->world_.Settle();
  for (std::size_t i = 0; i < kCount; ++i) {
    EXPECT_EQ(listeners[i].heard, i % 4 == 2 ? Lines{} : kOutcomes[i % 3].heard) << i;
  }
}

#ifdef _WIN32

class HttpOnTheWire : public testing::Test {
 protected:
  // The outcome of one request with this answer.
  Lines Ask(Script answer) {
    server_.Answer("/", std::move(answer));
    return Ask("127.0.0.1", server_.Port(), "GET /x");
  }
  Lines Ask(const std::string& host, std::uint16_t port, const std::string& request) {
    listener_ = Listener();
    control_->Request(host, port, request, listener_);
    PumpUntil([&] { return listener_.Over(); });
    return listener_.heard;
  }

  LoopbackServer server_;
  HttpControlMakerWin maker_{"Contract/1.0", &NameOf, kLimit};
  std::unique_ptr<HttpControl> control_ = maker_.Make();
  Listener listener_;
};

TEST_F(HttpOnTheWire, TheRequestIsSentAsItWasBuilt) {
  const std::string port = std::to_string(server_.Port());
  const std::string rest = "\r\nUser-Agent: Contract/1.0\r\nConnection: close\r\n\r\n";
  Ask("127.0.0.1", server_.Port(), "GET /a b?ajfsfsr=x+%5%E9&LastUpdate=8%2F1%2F2000&Version=4.00.2");
  control_->SetProxy("http://127.0.0.1:" + port);
  Ask("127.0.0.1", server_.Port(), "GET http://www.sonaro.example/a/update.asp?Flush=No");
  Ask("localhost", server_.Port(), "GET /");
  EXPECT_EQ(
      server_.Requests(),
      (Lines{
          "GET /a b?ajfsfsr=x+%5%E9&LastUpdate=8%2F1%2F2000&Version=4.00.2 HTTP/1.0\r\nHost: 127.0.0.1:" +
              port + rest,
          "GET http://www.sonaro.example/a/update.asp?Flush=No HTTP/1.0\r\nHost: www.sonaro.example" + rest,
          "GET / HTTP/1.0\r\nHost: localhost:" + port + rest}));
}

TEST_F(HttpOnTheWire, AnyWellFormedAnswerIsRead) {
  const std::string large(3'000'000, 'L');
  const struct {
    const char* what;
    std::string answer;
    std::string body;
  } kCases[] = {
      {"until the end", "HTTP/1.0 200 OK\r\n\r\n" + large, large},
      {"announced, and more after it", "HTTP/1.1 200 OK\r\nContent-Length: 3\r\n\r\nabcdef", "abc"},
      {"chunked",
       "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n2\r\nab\r\n1;x\r\nc\r\n0\r\nA: b\r\n\r\n",
       "abc"},
      {"line feeds alone", "HTTP/1.0 200 OK\nContent-Length: 3\n\nabc", "abc"},
      {"an interim answer", "HTTP/1.1 100 Continue\r\n\r\nHTTP/1.1 200 OK\r\n\r\nabc", "abc"},
      {"nothing", "HTTP/1.1 204 No Content\r\n\r\n", ""},
      {"no body", "HTTP/1.0 200 OK\r\n\r\n", ""},
  };
  for (const auto& each : kCases) {
    EXPECT_EQ(Ask(script::Exactly(each.answer)), (Lines{("body " + each.body).substr(0, 100), "ready"}))
        << each.what;
    EXPECT_EQ(listener_.bytes, each.body.size()) << each.what;
  }
}

TEST_F(HttpOnTheWire, ABodyInManyPiecesIsDeliveredOnceAndItsProgressShown) {
  constexpr int kPieces = 20;  // longer than the limit in all, and never silent for so long
  const auto heard = Ask([](Conversation& talk) {
    for (const char* piece : {"HT", "TP/1.1 200", " OK\r", "\nContent-Le", "ngth: 60\r\n\r", "\n"}) {
      talk.Send(piece);
      talk.Pause(std::chrono::milliseconds(5));
    }
    for (int i = 0; i < kPieces; ++i) {
      talk.Send("abc");
      talk.Pause(std::chrono::milliseconds(50));
    }
  });
  ASSERT_EQ(heard.size(), 2u);
  EXPECT_EQ(heard[0].size(), 5u + 60u);
  EXPECT_EQ(heard[1], "ready");
  EXPECT_EQ(listener_.expected, 60u);
  EXPECT_GT(listener_.progress, kPieces / 2);
}

TEST_F(HttpOnTheWire, WhatGoesWrongIsNamed) {
  const std::string head = "HTTP/1.1 200 OK\r\n";
  const struct {
    const char* what;
    Script answer;
    const char* reason;
  } kCases[] = {
      {"closed at once", script::Exactly(""), "CutShort"},
      {"cut off", script::CutBody("123456789", 4), "CutShort"},
      {"cut off in a chunk", script::Exactly(head + "Transfer-Encoding: chunked\r\n\r\n9\r\nab"), "CutShort"},
      {"cut off in the headers", script::Exactly(head + "Conte"), "CutShort"},
      {"silent from the start", script::Silent(), "Silent"},
      {"silent in the middle", script::HeldBody("123456789", 4), "Silent"},
      {"another protocol", script::Exactly("220 ready\r\n"), "NotHttp"},
      {"nonsense", script::Exactly(std::string("\0\xFF\r\n\r\n", 6)), "NotHttp"},
      {"no length", script::Exactly(head + "Content-Length: 1x\r\n\r\n1"), "BadLength"},
      {"two lengths", script::Exactly(head + "Content-Length: 1\r\nContent-Length: 2\r\n\r\n12"),
       "BadLength"},
      {"no chunk", script::Exactly(head + "Transfer-Encoding: chunked\r\n\r\nxyz\r\n"), "BadChunk"},
      {"too much announced", script::Exactly(head + "Content-Length: 268435457\r\n\r\n1"), "BodyTooLarge"},
      {"endless headers",
       [&](Conversation& talk) {
         talk.Send(head);
         while (talk.Send("X-More: and more, and more, and more, and more, and more, and more\r\n")) {
         }
       },
       "HeadTooLarge"},
  };
  for (const auto& each : kCases) {
    EXPECT_EQ(Ask(each.answer), Lines{std::string("failed ") + each.reason}) << each.what;
  }
}

TEST_F(HttpOnTheWire, AConnectionThatBreaksIsAFailure) {
  const auto heard = Ask([](Conversation& talk) {
    talk.Send("HTTP/1.1 200 OK\r\nContent-Length: 9\r\n\r\n123");
    talk.Pause(std::chrono::milliseconds(50));
    talk.Reset();
  });
  ASSERT_EQ(heard.size(), 1u);
  // Wine does not tell a broken connection from one that was closed.
  EXPECT_TRUE(heard[0] == "failed Lost" || heard[0] == "failed CutShort") << heard[0];
}

TEST_F(HttpOnTheWire, AnEndlessBodyEndsAtTheLimit) {
  const std::string piece(1024 * 1024, 'x');
  EXPECT_EQ(Ask([&](Conversation& talk) {
              talk.Send("HTTP/1.0 200 OK\r\n\r\n");
              while (talk.Send(piece)) {
              }
            }),
            Lines{"failed BodyTooLarge"});
  EXPECT_LE(listener_.bytes, 256u * 1024 * 1024);
}

TEST_F(HttpOnTheWire, WhereNobodyAnswersIsSaid) {
  EXPECT_EQ(Ask("127.0.0.1", UnusedPort(), "GET /"), Lines{"failed Refused"});
  EXPECT_EQ(Ask("no such host.invalid", 80, "GET /"), Lines{"failed BadRequest"});
  EXPECT_EQ(Ask("", 80, "GET /"), Lines{"failed BadRequest"});
  EXPECT_EQ(Ask("127.0.0.1", server_.Port(), "GET /a\r\nX: y"), Lines{"failed BadRequest"});
  // No name server is asked for a name that cannot be one.
  EXPECT_EQ(Ask(std::string(70, 'a') + ".invalid", 80, "GET /"), Lines{"failed NoSuchHost"});
  EXPECT_EQ(server_.Requests(), Lines{});
}

TEST_F(HttpOnTheWire, DroppedInTheMiddleItHangsUpAtOnce) {
  const std::string body(500'000, 'b');
  for (const bool destroy : {false, true}) {
    server_.Answer("/", script::HeldBody(body, 200'000));
    Listener listener;
    control_ = maker_.Make();
    control_->Request("127.0.0.1", server_.Port(), "GET /", listener);
    PumpUntil([&] { return listener.bytes == 200'000; });
    EXPECT_EQ(server_.Open(), 1);
    if (destroy) {
      control_.reset();
    } else {
      control_->Cancel();
    }
    PumpUntil([&] { return server_.Open() == 0; });
    EXPECT_EQ(server_.Open(), 0);
    EXPECT_EQ(listener.heard, Lines{});
  }
}

// A fast server must not keep the program from its timers, its painting and its input.
TEST_F(HttpOnTheWire, AStreamOfDataLeavesTheThreadItsOtherWork) {
  const std::string piece(1024 * 1024, 'x');
  server_.Answer("/", [&](Conversation& talk) {
    talk.Send("HTTP/1.0 200 OK\r\n\r\n");
    while (talk.Send(piece)) {
    }
  });
  const UINT_PTR timer = SetTimer(nullptr, 0, 20, nullptr);
  int ticks = 0;
  Listener listener;
  control_->Request("127.0.0.1", server_.Port(), "GET /", listener);
  const ULONGLONG end = GetTickCount64() + 20000;
  MSG message{};
  while (ticks < 3 && !listener.Over() && GetTickCount64() < end && GetMessageA(&message, nullptr, 0, 0)) {
    if (message.hwnd == nullptr && message.message == WM_TIMER) {
      if (listener.bytes > 0) ++ticks;
    } else {
      DispatchMessageA(&message);
    }
  }
  KillTimer(nullptr, timer);
  EXPECT_EQ(ticks, 3);
  EXPECT_FALSE(listener.Over());
}

#endif

}  // namespace
}  // namespace sonaro
