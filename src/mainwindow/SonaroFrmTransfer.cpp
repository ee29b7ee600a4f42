// The handlers that take groups and the user's own stations out to playlists and back in.
#include "forms/ControlIds.h"
#include "mainwindow/SonaroFrm.h"
#include "resources/texts/app.h"
#include "resources/texts/mainwindow.h"
#include "settings/FileWords.h"
#include "settings/Strings.h"

namespace sonaro {
namespace {

constexpr const char* kImportKey = "PlaylistImported";

int SentenceOf(ImportResult::Status status) {
  switch (status) {
    case ImportResult::Status::NotRead:
      return IDS_IMPORT_NOT_READ;
    case ImportResult::Status::NotAPlaylist:
      return IDS_IMPORT_NO_PLAYLIST;
    case ImportResult::Status::GroupNotSaved:
      return IDS_IMPORT_NOT_IN_GROUP;
    case ImportResult::Status::NotSaved:  // has its own message
    case ImportResult::Status::Ok:
      break;
  }
  return IDS_IMPORT_DONE;
}

// What the dialog suggests: a name with what no file name may hold taken out would else be refused unseen.
std::string FileNameFor(std::string_view name) {
  std::string file(name);
  for (char& c : file) {
    if (std::string_view("\\/:*?\"<>|").find(c) != std::string_view::npos) c = '_';
  }
  return file + ".m3u";
}

}  // namespace

void SonaroFrm::mnuFavExport_Click() {
  const auto group = GroupMeant();
  if (!group || !calls_.askPlaylistToSave) return;
  const std::string path = calls_.askPlaylistToSave(FileNameFor(data_.favorites.Name(*group)));
  if (!path.empty() && !models_.transfer.ExportGroup(*group, path)) Ask(NotSavedMessage(path, data_.strings));
}

void SonaroFrm::mnuPersonalExport_Click() {
  if (!calls_.askPlaylistToSave) return;
  const std::string path = calls_.askPlaylistToSave(FileNameFor(LoadText(IDS_EXPORT_PERSONAL_NAME)));
  if (!path.empty() && !models_.transfer.ExportPersonalStations(path))
    Ask(NotSavedMessage(path, data_.strings));
}

void SonaroFrm::mnuFavImport_Click() {
  const auto group = GroupMeant();
  if (!group || !calls_.askPlaylistToOpen) return;
  const std::string path = calls_.askPlaylistToOpen();
  if (!path.empty()) SayImported(models_.transfer.ImportIntoGroup(*group, path));
}

void SonaroFrm::mnuPersonalImport_Click() {
  if (!calls_.askPlaylistToOpen) return;
  const std::string path = calls_.askPlaylistToOpen();
  if (!path.empty()) SayImported(models_.transfer.ImportPersonalStations(path));
}

void SonaroFrm::SayImported(const ImportResult& result) {
  const bool saved = result.status != ImportResult::Status::NotSaved;
  if (!SavedOrSaid(saved, LoadText(IDS_IMPORT_WHAT), *this, data_.strings)) return;
  std::string text = FormatText(
      LoadText(SentenceOf(result.status)),
      {std::to_string(result.added), std::to_string(result.known), std::to_string(result.skipped)});
  if (result.status == ImportResult::Status::Ok && result.damaged) text += " " + LoadText(IDS_IMPORT_DAMAGED);
  Say(kImportKey, text);
  models_.listing.GroupsChanged();
  PersonalStationsChanged();
}

void SonaroFrm::Say(const char* key, const std::string& text) {
  Message message;
  message.key = key;
  message.caption = LoadText(IDS_TRANSFER_CAPTION);
  message.text = text;
  message.firstButton = LoadText(IDS_GROUP_OK);
  Ask(message);
}

}  // namespace sonaro
