// The HTTP control on real sockets: what goes over the wire, and every way in which a server can misbehave.
#ifdef _WIN32

#include <gtest/gtest.h>

#include "contract/HttpListener.h"
#include "loopback/LoopbackServer.h"
#include "platform/win/HttpControlWin.h"

namespace sonaro {
namespace {

constexpr unsigned kLimit = 700;  // milliseconds of silence

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
  HttpControlFactoryWin maker_{"Contract/1.0", kLimit};
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
      {"silent from the start", script::Silent(), "Silent"},
      {"silent in the middle", script::HeldBody("123456789", 4), "Silent"},
      {"another protocol", script::Exactly("220 ready\r\n"), "NotHttp"},
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

// Never silent, and never over either.
TEST_F(HttpOnTheWire, AServerThatDripsIsNotWaitedFor) {
  HttpControlFactoryWin impatient("Contract/1.0", 60000, {.milliseconds = 300, .leastBytes = 4096});
  control_ = impatient.Make();
  EXPECT_EQ(Ask([](Conversation& talk) {
              talk.Send("HTTP/1.1 200 OK\r\n\r\n");
              while (talk.Send("x")) talk.Pause(std::chrono::milliseconds(20));
            }),
            Lines{"failed TooSlow"});
}

TEST_F(HttpOnTheWire, ThePortOfAnAddressIsNotPartOfTheName) {
  server_.Answer("/", script::Body("a"));
  EXPECT_EQ(Ask("127.0.0.1:8080", server_.Port(), "GET /"), (Lines{"body a", "ready"}));
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

}  // namespace
}  // namespace sonaro

#endif
