// Tries a proxy that the user has typed: fetches the service's test page by way of it and looks for the text
// that must stand there. Changes no proxy setting.
#pragma once

#include <memory>
#include <string>

#include "forms/Form.h"
#include "platform/HttpControl.h"

namespace sonaro {

class CReg;

class frmTestProxy final : public Form, private HttpEvents {
 public:
  frmTestProxy(FormContext& context, CReg& reg, HttpControlMaker& http, std::string address,
               std::string port);

 private:
  static const FormDesign& Design();
  std::span<const EventRow> Events() const override;
  std::span<const TimerRow> Timers() const override;
  void OnLoad() override;
  void OnUnload() override { http_->Cancel(); }

  void tmrSock_Timer();
  void butOKIt_Click() { Close(1); }
  void ShowResult();

  void HTTPDataReceived(std::string_view body) override;
  void HTTPDataTransferred(std::uint64_t, std::uint64_t) override {}
  void HTTPError(const std::string&, const std::string&) override { failed_ = true; }
  void HTTPObjectError(const std::string& reason) override;
  void HTTPReady() override { ShowResult(); }

  CReg& reg_;
  std::unique_ptr<HttpControl> http_;
  const std::string address_;
  const std::string port_;
  std::string expected_;
  bool found_ = false;
  bool failed_ = false;
};

}  // namespace sonaro
