// Hears what an HTTP control reports, for its contract, and runs the messages that bring it.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "platform/HttpControl.h"
#ifdef _WIN32
#include <windows.h>
#endif

namespace sonaro {

using Lines = std::vector<std::string>;

inline std::string NameOf(HttpFault fault) {
  static constexpr const char* kNames[] = {
      "None",         "BadRequest",   "NoSuchHost", "Refused",  "Lost",     "Silent", "NotHttp",
      "HeadTooLarge", "BodyTooLarge", "BadLength",  "BadChunk", "CutShort", "TooSlow"};
  return kNames[static_cast<int>(fault)];
}

// Writes down what it hears; `then` runs inside the event.
class Listener final : public HttpEvents {
 public:
  Lines heard;
  std::uint64_t bytes = 0;
  std::uint64_t expected = 0;
  int progress = 0;
  std::vector<HttpStep> steps;
  std::function<void(const std::string& event)> then;

  bool Over() const { return over_; }

  void HTTPStep(HttpStep step) override {
    steps.push_back(step);
    if (then) then("step");
  }
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
  void HTTPObjectError(HttpFault fault) override {
    over_ = true;
    Hear("failed " + NameOf(fault));
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

#ifdef _WIN32
inline bool Dispatch() {
  MSG message{};
  if (!PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) return false;
  DispatchMessageA(&message);
  return true;
}

// The messages of this thread, until the condition holds or something has gone wrong.
inline void PumpUntil(const std::function<bool()>& condition) {
  const ULONGLONG end = GetTickCount64() + 20000;
  while (!condition() && GetTickCount64() < end) {
    if (!Dispatch()) MsgWaitForMultipleObjects(0, nullptr, FALSE, 10, QS_ALLINPUT);
  }
}

#endif

}  // namespace sonaro
