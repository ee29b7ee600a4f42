// Tries a proxy that the user has typed: fetches the service's test page by way of it and looks for the text
// that must stand there. The partner of frmTestProxy, which shows how far it came, how long each step took,
// and why it stopped. Changes no proxy setting. Owned by that window.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "platform/HttpControl.h"

namespace sonaro {

class Clock;
class CReg;
class Strings;

enum class ProxyTestState { Waiting, Running, Done, Failed };

struct ProxyTestStep {
  ProxyTestState state = ProxyTestState::Waiting;
  std::string text;  // what is being done, what was done, or why it failed
  std::string time;  // how long it took; "" unless it is done
};

// The window as the test sees it.
class ProxyTestView {
 public:
  virtual ~ProxyTestView() = default;
  virtual void StartTimer(int milliseconds) = 0;
  virtual void StopTimer() = 0;
  virtual void ShowStep(int step, const ProxyTestStep& shown) = 0;
  // Running, Done or Failed: the test as a whole.
  virtual void ShowResult(ProxyTestState state, const std::string& text) = 0;
};

class ProxyTest final : private HttpEvents {
 public:
  static constexpr int kStepCount = 3;
  static constexpr int kSoon = 100;  // milliseconds until the test begins, so that its window is seen first

  ProxyTest(CReg& reg, HttpControlFactory& http, Clock& clock, const Strings& strings, std::string address,
            std::string port);

  // Begins anew, whatever came before.
  void Begin(ProxyTestView& view);
  // The view's timer fired.
  void Timer();
  // Hangs up; the view hears no more.
  void Cancel() { http_->Cancel(); }

 private:
  void BeginStep(int step);
  // The step that runs is done, and the next one begins, if there is one.
  void StepDone();
  void StepFailed(const std::string& reason);
  void ShowResult();

  void HTTPStep(HttpStep) override { StepDone(); }
  void HTTPDataReceived(std::string_view body) override;
  void HTTPDataTransferred(std::uint64_t, std::uint64_t) override {}
  void HTTPError(const std::string& statusCode, const std::string& headers) override;
  void HTTPObjectError(HttpFault fault) override;
  void HTTPReady() override { ShowResult(); }

  CReg& reg_;
  std::unique_ptr<HttpControl> http_;
  Clock& clock_;
  const Strings& strings_;
  const std::string address_;
  const std::string port_;
  ProxyTestView* view_ = nullptr;
  std::string expected_;
  int step_ = 0;
  std::uint64_t stepBegan_ = 0;  // ticks of the clock
  bool works_ = false;
};

}  // namespace sonaro
