#include "mainwindow/SonaroFrmStatusPane.h"

#include <algorithm>

#include "directory/StatList.h"
#include "forms/ControlIds.h"
#include "forms/Form.h"
#include "forms/controls/ProgressScale.h"
#include "mainwindow/MainModels.h"
#include "mainwindow/SonaroFrm_panes.h"
#include "resources/texts/mainwindow.h"
#include "settings/CReg.h"
#include "settings/FormatCount.h"
#include "settings/SettingNames.h"
#include "settings/Strings.h"

namespace sonaro {

void StatusPane::ShowGuide() {
  said_ = Said::Nothing;
  const std::size_t count = data_.stations.StationCount();
  const std::string updated = data_.settings.Get(setting::kLastUpdate);
  int textId = IDS_STATUS_GUIDE;
  if (!updated.empty()) textId = IDS_STATUS_GUIDE_UPDATED;
  if (count == 0) textId = IDS_STATUS_NO_GUIDE;
  form_.SetText(lblStatus,
                FormatText(form_.LoadText(textId), {FormatCount(count, data_.state.decimalMode), updated}));
}

void StatusPane::Say(const std::string& sentence) {
  form_.SetText(lblStatus, sentence);
  said_ = Said::JustNow;
}

// The first change is the one that the sentence is about.
void StatusPane::WindowChanged() {
  if (said_ == Said::Before) ShowGuide();
  if (said_ == Said::JustNow) said_ = Said::Before;
}

void StatusPane::ShowProgress(const std::string& what, int percent) {
  form_.ShowPane(kStatusPane, false);
  form_.ShowPane(kProgressPane);
  form_.Enable(butUpdate, false);
  form_.SetText(lblProgress, what);
  form_.Progress(picProgress).SetProgress(std::clamp(percent, 0, 100), 100);
  form_.SetText(lblPercent, percent < 0 ? std::string() : std::to_string(std::min(percent, 100)) + "%");
}

void StatusPane::EndProgress() {
  form_.ShowPane(kProgressPane, false);
  form_.ShowPane(kStatusPane);
  form_.Enable(butUpdate);
  ShowGuide();
}

}  // namespace sonaro
