#include <gtest/gtest.h>
#include <sys/socket.h>

#include <chrono>

#include "exchange/ExchangeTest.h"

namespace sonaro {
namespace {

using Kind = UpdateOutcome::Kind;
using Answer = PlainServer::Answer;

class PlainSocketTest : public ExchangeTest {
 protected:
  std::string Update() const { return FileBytes(UpdatePath()); }

  UpdateOutcome UpdateFrom(PlainServer& server) {
    Installed().http.port80 = server.Port();
    return Installed().Update();
  }
};

Answer Bytes(std::string bytes) {
  return [bytes = std::move(bytes)](int connection) { SendAll(connection, bytes); };
}

Answer Redirect() {
  return Bytes("HTTP/1.0 302 Moved\r\nLocation: http://files.example:80/new/update.txt\r\n\r\n");
}

std::string Head(const std::string& body) {
  return "HTTP/1.0 200 OK\r\nContent-Length: " + std::to_string(body.size()) + "\r\n\r\n";
}

// Nothing more, until the other side hangs up.
void Wait(int connection) {
  char byte = 0;
  while (recv(connection, &byte, 1, 0) > 0) {
  }
}

TEST_F(PlainSocketTest, TheRequestLinesAreAsTheServiceExpects) {
  PlainServer server({Redirect(), Bytes(Head(Update()) + Update())});
  EXPECT_EQ(UpdateFrom(server).kind, Kind::Updated);
  const std::vector<std::string> requests = server.Requests();
  ASSERT_EQ(requests.size(), 2u);
  const auto line = [&](std::size_t index) { return requests[index].substr(0, requests[index].find('\r')); };
  EXPECT_EQ(line(0), std::string("GET ") + kScript +
                         "?ajfsfsr=0123abcd&LastUpdate=8%2F14%2F2000&Version=4.00.2 HTTP/1.0");
  EXPECT_EQ(line(1), "GET /new/update.txt?Flush=No HTTP/1.0");
  EXPECT_NE(requests[0].find("\r\nHost: www.sonaro.example\r\n"), std::string::npos);

  // By way of a proxy the whole address is asked for.
  Installed().reg.SetSetting(setting::kProxyUse.name, "yes ");
  Installed().reg.SetSetting(setting::kProxyAddress.name, " 127.0.0.1 ");
  PlainServer proxy({Redirect(), Bytes(Head(Update()) + Update())});
  Installed().reg.SetSetting(setting::kProxyPort.name, std::to_string(proxy.Port()));
  EXPECT_EQ(Installed().Update().kind, Kind::Updated);
  const std::vector<std::string> asked = proxy.Requests();
  ASSERT_EQ(asked.size(), 2u);
  EXPECT_TRUE(asked[0].starts_with("GET http://www.sonaro.example" + std::string(kScript) +
                                   "?ajfsfsr=0123abcd&LastUpdate=11%2F23%2F2026+8%3A04&"));
  EXPECT_TRUE(asked[1].starts_with("GET http://files.example:80/new/update.txt?Flush=No HTTP/1.0\r\n"));
}

TEST_F(PlainSocketTest, WhatBreaksOffLeavesEverythingAsItWas) {
  const std::string update = Update();
  const std::string half = update.substr(0, update.size() / 2);
  const struct {
    const char* what;
    std::vector<Answer> answers;
    Kind outcome;
  } kCases[] = {
      {"silent", {Wait}, Kind::CantConnect},
      {"hangs up", {Bytes("")}, Kind::CantConnect},
      {"silent after the redirect", {Redirect(), Wait}, Kind::NotComplete},
      {"silent in the middle",
       {Redirect(),
        [&](int connection) {
          SendAll(connection, Head(update) + half);
          Wait(connection);
        }},
       Kind::NotComplete},
      {"hangs up in the middle", {Redirect(), Bytes(Head(update) + half)}, Kind::NotComplete},
      {"half an update of no announced length",
       {Redirect(), Bytes("HTTP/1.0 200 OK\r\n\r\n" + half)},
       Kind::NotComplete},
  };
  Installed().http.silence = std::chrono::milliseconds(1000);
  for (const auto& one : kCases) {
    SCOPED_TRACE(one.what);
    PlainServer server(one.answers);
    EXPECT_EQ(UpdateFrom(server).kind, one.outcome);
    ExpectNothingChanged();
  }
}

}  // namespace
}  // namespace sonaro
