// The user's own link for a station of the directory: its name and address.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "forms/ControlIds.h"
#include "forms/controls/Controls.h"
#include "stations/ExtraLinks.h"

namespace sonaro {

class MessageBoxView;

class frmExtraLink final : public Form {
 public:
  frmExtraLink(FormContext& context, ExtraLinks& links, MessageBoxView& messages, std::int32_t stationId,
               std::string station)
      : Form(context, Design()),
        context_(context),
        links_(links),
        messages_(messages),
        stationId_(stationId),
        station_(std::move(station)) {}

 private:
  static const FormDesign& Design();
  std::span<const EventRow> Events() const override;
  void OnLoad() override;
  void ShowError(const char* key, int text);
  void butOKIt_Click();
  void butCancelIt_Click() { Close(); }

  FormContext& context_;
  ExtraLinks& links_;
  MessageBoxView& messages_;
  const std::int32_t stationId_;
  const std::string station_;
  std::vector<ExtraLink> all_;  // of the station; the first one is edited, the others stay

  Edit txtExtraLink_{*this, txtExtraLink};
  Edit txtExtraName_{*this, txtExtraName};
  Label lblStation_{*this, lblStation};
};

}  // namespace sonaro
