// Commands on the user's own stations. Changing and deleting act on the station that the command is about,
// which an open menu fixes, and do nothing when that is none of the user's own.
#include "mainwindow/SonaroFrmPersonalPane.h"

#include "forms/ControlIds.h"
#include "mainwindow/frmPersonalStation.h"
#include "resources/texts/app.h"
#include "resources/texts/mainwindow.h"
#include "settings/CReg.h"
#include "settings/Message.h"
#include "settings/SettingNames.h"
#include "settings/Strings.h"
#include "settings/UndoList.h"

namespace sonaro {

std::span<const EventRow> PersonalPane::Events() const {
  static const EventRow kRows[] = {
      {mnuPersonalAdd, Click, &PersonalPane::mnuPersonalAdd_Click},
      {mnuPersonalChange, Click, &PersonalPane::mnuPersonalChange_Click},
      {mnuPersonalDelete, Click, &PersonalPane::Delete},
      {mnuPersonalExport, Click, &PersonalPane::mnuPersonalExport_Click},
      {mnuPersonalImport, Click, &PersonalPane::mnuPersonalImport_Click},
  };
  return kRows;
}

const PersonalStation* PersonalPane::Meant() const {
  const StationKey station = context_.models.subject.Station().station;
  return station.IsOfUser() ? context_.data.personal.Find(station.number) : nullptr;
}

// A station without an index is a new one. The windows are told also when the dialog was cancelled; that
// costs a refill.
void PersonalPane::Edit(const PersonalStation& station) {
  frmPersonalStation(context_.forms, context_.data.personal, context_.services.messages,
                     context_.services.help, station)
      .ShowModal(context_.form.Window());
  context_.view.PersonalStationsChanged();
}

void PersonalPane::mnuPersonalAdd_Click() { Edit({}); }

void PersonalPane::mnuPersonalChange_Click() {
  if (const PersonalStation* station = Meant()) Edit(*station);
}

void PersonalPane::Delete() {
  std::vector<PersonalStation> deleted;  // while the question stands the stations may be read anew
  std::vector<std::int32_t> indices;
  for (const StationKey& station : context_.models.subject.Stations()) {
    const PersonalStation* own = station.IsOfUser() ? context_.data.personal.Find(station.number) : nullptr;
    if (own == nullptr) continue;
    deleted.push_back(*own);
    indices.push_back(own->index);
  }
  if (deleted.empty()) return;
  const Strings& strings = context_.data.strings;
  const std::string what =
      deleted.size() == 1 ? deleted.front().name
                          : FormatText(strings.Load(IDS_COUNT_STATIONS), {std::to_string(deleted.size())});
  if (!ConfirmDelete(what)) return;
  const bool saved = Saved(context_.data.personal.DeleteAll(indices));
  context_.view.PersonalStationsChanged();
  if (!saved) return;
  context_.services.undo.Add(FormatText(strings.Load(IDS_PERSONAL_DELETED), {what}), [this, deleted] {
    const bool back = Saved(context_.data.personal.PutBackAll(deleted));
    context_.view.PersonalStationsChanged();
    return back ? UndoResult::Done : UndoResult::Kept;
  });
}

// Says the failure itself, so callers only have to stop.
bool PersonalPane::Saved(bool saved) {
  const Strings& strings = context_.data.strings;
  return SavedOrSaid(saved, strings.Load(IDS_FILE_STATIONS), context_.services.messages, strings);
}

bool PersonalPane::ConfirmDelete(const std::string& name) {
  CReg& settings = context_.data.settings;
  if (settings.Get(setting::kNoShowDeletePersonalStation)) return true;
  const Strings& strings = context_.data.strings;
  const MessageResult result =
      context_.services.messages.Ask({.key = "DeletePersonalStation",
                                      .caption = strings.Load(IDS_DLG_OWN_DELETE_CAPTION),
                                      .text = FormatText(strings.Load(IDS_DLG_OWN_DELETE_TEXT), {name}),
                                      .firstButton = strings.Load(IDS_DLG_OWN_DELETE),
                                      .secondButton = strings.Load(IDS_APP_CANCEL),
                                      .dontAskText = strings.Load(IDS_DONT_ASK_AGAIN)});
  if (result.answer != MessageAnswer::First) return false;
  if (result.dontAskAgain) settings.Set(setting::kNoShowDeletePersonalStation, true);
  return true;
}

}  // namespace sonaro
