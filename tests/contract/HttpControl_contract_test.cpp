// What every HTTP control keeps to: the network of canned answers, and real sockets against a server in this
// process.
#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "contract/HttpListener.h"
#include "fakes/FakeHttpControl.h"
#ifdef _WIN32
#include "loopback/LoopbackServer.h"
#include "platform/win/HttpControlWin.h"
#endif

namespace sonaro {
namespace {

constexpr const char* kBody = "the whole body";

struct HttpCanned {
  FakeHttp network;
  std::string host = "127.0.0.1";
  std::uint16_t port = 80;

  void Prepare() {
    network.Answer("/body", FakeAnswer::Body(kBody));
    network.Answer("/moved", FakeAnswer::Status("302", "HTTP/1.1 302 Found\r\nLocation: http://x/y\r\n\r\n"));
    network.Answer("/lost", FakeAnswer::ObjectError(HttpFault::CutShort));
  }
  HttpControlFactory& Factory() { return network; }
  void Run(const std::function<bool()>& until) {
    while (!until() && network.DeliverNext()) {
    }
  }
  void Settle() { network.DeliverAll(); }
};

#ifdef _WIN32
struct HttpOnSockets {
  LoopbackServer server;
  HttpControlFactoryWin factory{"Contract/1.0"};
  std::string host = "127.0.0.1";
  std::uint16_t port = server.Port();

  void Prepare() {
    server.Answer("/body", script::Body(kBody));
    server.Answer("/moved", script::Redirect("http://x/y"));
    server.Answer("/lost", script::Exactly(""));
  }
  HttpControlFactory& Factory() { return factory; }
  void Run(const std::function<bool()>& until) { PumpUntil(until); }
  // What is still on its way arrives.
  void Settle() {
    PumpUntil([&] { return server.Open() == 0; });
    const ULONGLONG end = GetTickCount64() + 50;
    PumpUntil([&] { return GetTickCount64() > end; });
  }
};
using HttpWorlds = testing::Types<HttpCanned, HttpOnSockets>;
#else
using HttpWorlds = testing::Types<HttpCanned>;
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
  std::unique_ptr<HttpControl> control_ = world_.Factory().Make();
};
TYPED_TEST_SUITE(HttpContract, HttpWorlds);

struct Outcome {
  const char* path;
  Lines heard;
};
const Outcome kOutcomes[] = {
    {"/body", {std::string("body ") + kBody, "ready"}},
    {"/moved", {"status 302 to y", "ready"}},
    {"/lost", {"failed CutShort"}},
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
      EXPECT_EQ(listener.steps, (std::vector{HttpStep::HostFound, HttpStep::Connected}));
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
        std::unique_ptr<HttpControl> control = this->world_.Factory().Make();
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

TYPED_TEST(HttpContract, NothingFollowsAStepThatCancelsOrDestroys) {
  for (const bool destroy : {false, true}) {
    Listener listener;
    std::unique_ptr<HttpControl> control = this->world_.Factory().Make();
    listener.then = [&](const std::string&) {
      control->Cancel();
      if (destroy) control.reset();
    };
    this->Ask(*control, "/body", listener);
    this->world_.Run([&] { return !listener.steps.empty(); });
    this->world_.Settle();
    EXPECT_EQ(listener.steps, std::vector{HttpStep::HostFound});
    EXPECT_EQ(listener.heard, Lines{});
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
    controls.push_back(this->world_.Factory().Make());
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

}  // namespace
}  // namespace sonaro
