// The window of the test of a proxy; ProxyTest does the testing.
#pragma once

#include <string>

#include "forms/ControlIds.h"
#include "forms/controls/Controls.h"
#include "net/ProxyTest.h"

namespace sonaro {

class frmTestProxy final : public Form, private ProxyTestView {
 public:
  frmTestProxy(FormContext& context, CReg& reg, HttpControlFactory& http, Clock& clock,
               const std::string& address, const std::string& port);

 private:
  static const FormDesign& Design();
  std::span<const EventRow> Events() const override;
  std::span<const TimerRow> Timers() const override;
  void OnLoad() override;
  void OnUnload() override { test_.Cancel(); }

  void tmrSock_Timer() { test_.Timer(); }
  void butTestAgainIt_Click() { test_.Begin(*this); }
  void butOKIt_Click() { Close(1); }

  void StartTimer(int milliseconds) override;
  void StopTimer() override;
  void ShowStep(int step, const ProxyTestStep& shown) override;
  void ShowResult(ProxyTestState state, const std::string& text) override;

  ProxyTest test_;
  const std::string address_;
  const std::string port_;

  ProgressHandle prgProxyTest_{*this, prgProxyTest};
  Label lblCheckAddress_{*this, lblCheckAddress};
  Label lblCheckPort_{*this, lblCheckPort};
  ControlArray<Label> imgProxyStep_{*this, imgProxyStep, ProxyTest::kStepCount};
  ControlArray<Label> lblProxyStep_{*this, lblProxyStep, ProxyTest::kStepCount};
  ControlArray<Label> lblProxyStepTime_{*this, lblProxyStepTime, ProxyTest::kStepCount};
  Label lblStatusInfo_{*this, lblStatusInfo};
  Button butOKIt_{*this, butOKIt};
  Button butTestAgainIt_{*this, butTestAgainIt};
};

}  // namespace sonaro
