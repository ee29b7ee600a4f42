// Tries a proxy that the user has typed: fetches the service's test page by way of it and looks for the text
// that must stand there. Shows how far it came, how long each step took, and why it stopped. Changes no proxy
// setting.
#pragma once

#include <memory>
#include <string>

#include "forms/Form.h"
#include "platform/HttpControl.h"

namespace sonaro {

class Clock;
class CReg;

class frmTestProxy final : public Form, private HttpEvents {
 public:
  frmTestProxy(FormContext& context, CReg& reg, HttpControlFactory& http, Clock& clock, std::string address,
               std::string port);

 private:
  static const FormDesign& Design();
  std::span<const EventRow> Events() const override;
  std::span<const TimerRow> Timers() const override;
  void OnLoad() override;
  void OnUnload() override { http_->Cancel(); }

  void tmrSock_Timer();
  void butTestAgainIt_Click() { Begin(); }
  void butOKIt_Click() { Close(1); }

  void Begin();
  void BeginStep(int step);
  // The step that runs is done, and the next one begins, if there is one.
  void StepDone();
  void StepFailed(const std::string& reason);
  void ShowStep(Icon icon, TextColor color, const std::string& text);
  void ShowResult();

  void HTTPStep(HttpStep) override { StepDone(); }
  void HTTPDataReceived(std::string_view body) override;
  void HTTPDataTransferred(std::uint64_t, std::uint64_t) override {}
  void HTTPError(const std::string& statusCode, const std::string& headers) override;
  void HTTPObjectError(const std::string& reason) override;
  void HTTPReady() override { ShowResult(); }

  CReg& reg_;
  std::unique_ptr<HttpControl> http_;
  Clock& clock_;
  const std::string address_;
  const std::string port_;
  std::string expected_;
  int step_ = 0;
  std::uint64_t stepBegan_ = 0;  // ticks of the clock
  bool works_ = false;
};

}  // namespace sonaro
