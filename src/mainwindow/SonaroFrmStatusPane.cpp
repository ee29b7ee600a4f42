// The status line. At rest it tells of the guide; a sentence about what was just done takes its place until
// the window changes again. While an update runs a progress scale lies over both.
#include "mainwindow/SonaroFrmStatusPane.h"

#include <algorithm>

#include "directory/StatList.h"
#include "forms/ControlIds.h"
#include "forms/controls/ProgressScale.h"
#include "mainwindow/SonaroFrm_panes.h"
#include "resources/texts/mainwindow.h"
#include "settings/AppState.h"
#include "settings/CReg.h"
#include "settings/SettingNames.h"
#include "settings/Strings.h"
#include "settings/UndoList.h"

namespace sonaro {

std::span<const EventRow> StatusPane::Events() const {
  static const EventRow kRows[] = {
      {butUpdate, Click, &StatusPane::butUpdate_Click},
      {mnuUpdate, Click, &StatusPane::butUpdate_Click},
      {butUndo, Click, &StatusPane::butUndo_Click},
      {mnuUndo, Click, &StatusPane::butUndo_Click},
      {mnuUndoUpdate, Click, &StatusPane::mnuUndoUpdate_Click},
      {mnuAbout, Click, &StatusPane::mnuAbout_Click},
      {butScan, Click, &StatusPane::butScan_Click},
      {mnuScan, Click, &StatusPane::butScan_Click},
      {butSchedule, Click, &StatusPane::butSchedule_Click},
      {mnuSchedule, Click, &StatusPane::butSchedule_Click},
      {butOptions, Click, &StatusPane::butOptions_Click},
      {mnuOptions, Click, &StatusPane::butOptions_Click},
  };
  return kRows;
}

std::string StatusPane::GuideSentence() const {
  const std::size_t count = context_.data.stations.StationCount();
  const std::string updated = context_.data.settings.Get(setting::kLastUpdate);
  int textId = IDS_STATUS_GUIDE;
  if (!updated.empty()) textId = IDS_STATUS_GUIDE_UPDATED;
  if (count == 0) textId = IDS_STATUS_NO_GUIDE;
  return FormatText(form_.LoadText(textId), {FormatCount(count, context_.data.state.decimalMode), updated});
}

void StatusPane::ShowGuide() {
  said_ = Said::Nothing;
  butUndo_.Show(false);
  lblStatus_.SetText(GuideSentence());
}

void StatusPane::mnuAbout_Click() {
  context_.services.messages.Ask(
      {.key = "About",
       .caption = form_.LoadText(IDS_ABOUT_CAPTION),
       .text = FormatText(form_.LoadText(IDS_ABOUT_TEXT), {kVersionText, GuideSentence()}),
       .firstButton = form_.LoadText(IDS_GROUP_OK)});
}

// An offer to undo belongs to the sentence before and goes with it.
void StatusPane::Say(const std::string& sentence) {
  lblStatus_.SetText(sentence);
  butUndo_.Show(false);
  said_ = Said::JustNow;
}

void StatusPane::SayRemoved(const std::string& sentence) {
  Say(sentence);
  butUndo_.Show();
}

void StatusPane::butUndo_Click() { context_.services.undo.Undo(); }

// The first change is the one that the sentence is about.
void StatusPane::WindowChanged() {
  if (said_ == Said::Before) ShowGuide();
  if (said_ == Said::JustNow) said_ = Said::Before;
}

// A percentage below 0: the length is not known, and the scale stays empty. The update button rests, since
// two updates would write the same files.
void StatusPane::ShowProgress(const std::string& what, int percent) {
  form_.ShowPane(kStatusPane, false);
  form_.ShowPane(kProgressPane);
  butUpdate_.Enable(false);
  lblProgress_.SetText(what);
  picProgress_->SetProgress(std::clamp(percent, 0, 100), 100);
  lblPercent_.SetText(percent < 0 ? std::string() : std::to_string(std::min(percent, 100)) + "%");
}

void StatusPane::EndProgress() {
  form_.ShowPane(kProgressPane, false);
  form_.ShowPane(kStatusPane);
  butUpdate_.Enable();
  ShowGuide();
}

}  // namespace sonaro
