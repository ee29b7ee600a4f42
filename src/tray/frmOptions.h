// The user's options in one dialog. What they are and what is stored is OptionsModel's; a faceplate shows in
// every window as soon as its button is pressed and goes again with Cancel.
#pragma once

#include <functional>
#include <string>

#include "forms/Form.h"
#include "tray/OptionsModel.h"

namespace sonaro {

// What other folders do for the options.
struct OptionsCalls {
  std::function<void()> playNoticeSound;
  std::function<std::string()> findProxy;  // "host:port" that the computer is set to, or ""
  std::function<void(HWND owner, const ProxyServer& server)> testProxy;
  std::function<void(HWND owner)> choosePlayer;
  std::function<void(HWND owner)> aboutTimes;
  std::function<void()> help;
};

class frmOptions final : public Form {
 public:
  frmOptions(FormContext& context, OptionsModel& model, OptionsCalls calls)
      : Form(context, Design()), model_(model), calls_(std::move(calls)) {}

 private:
  static const FormDesign& Design();
  std::span<const EventRow> Events() const override;
  void OnLoad() override;
  void OnUnload() override;
  void Fill(const Options& options);
  Options Wanted() const;
  ProxyServer TypedProxy() const;
  void ShowProxyControls();
  void Inform(std::string_view sentence, TextColor color);
  bool ShowProxyError();

  void butPlaySoundIt_Click() { calls_.playNoticeSound(); }
  void optProxy_Click(int way);
  void txtProxy_Change();
  void butFindProxyIt_Click();
  void butTestProxyIt_Click();
  void butPlayerIt_Click() { calls_.choosePlayer(Window()); }
  void optFaceplate_Click(int faceplate);
  void butAboutTimeIt_Click() { calls_.aboutTimes(Window()); }
  void butOKIt_Click();
  void butCancelIt_Click() { Close(); }
  void butHelp_Click() { calls_.help(); }

  OptionsModel& model_;
  const OptionsCalls calls_;
  Options options_;  // with what the user has changed in so far as no control holds it
};

}  // namespace sonaro
