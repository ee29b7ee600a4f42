// The ways of stations out to playlist files and in again, with the system's file dialogs. A path of "" is a
// dialog that was cancelled, after which nothing is said.
#include "mainwindow/PlaylistDialogs.h"

#include "forms/FileDialog.h"
#include "resources/texts/app.h"
#include "resources/texts/mainwindow.h"
#include "settings/Message.h"
#include "settings/Strings.h"

namespace sonaro {
namespace {

constexpr const char* kImportKey = "PlaylistImported";

// What was added, and of the rest only what there was: "3 stations added to Your Stations. 1 already there."
std::string DescribeImport(const ImportResult& result, const Strings& strings) {
  const auto sentence = [&strings](int textId, std::size_t count) {
    return FormatText(strings.Load(textId), {std::to_string(count)});
  };
  switch (result.status) {
    case ImportResult::Status::NotRead:
      return strings.Load(IDS_IMPORT_NOT_READ);
    case ImportResult::Status::NotAPlaylist:
      return strings.Load(IDS_IMPORT_NO_PLAYLIST);
    case ImportResult::Status::GroupNotSaved:
      return sentence(IDS_IMPORT_NOT_IN_GROUP, result.added);
    case ImportResult::Status::NotSaved:  // has its own message
    case ImportResult::Status::Ok:
      break;
  }
  std::string text = result.added == 0   ? strings.Load(IDS_IMPORT_NONE)
                     : result.added == 1 ? strings.Load(IDS_IMPORT_ONE)
                                         : sentence(IDS_IMPORT_DONE, result.added);
  if (result.known > 0) text += " " + sentence(IDS_IMPORT_KNOWN, result.known);
  if (result.skipped > 0) text += " " + sentence(IDS_IMPORT_SKIPPED, result.skipped);
  if (result.damaged) text += " " + strings.Load(IDS_IMPORT_DAMAGED);
  return text;
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

std::string PlaylistDialogs::AskPathToSave(std::string_view name) const {
  return AskSavePath(context_.form.Window(), context_.data.strings.Load(IDS_DLG_PLAYLIST_FILTER),
                     FileNameFor(name));
}

std::string PlaylistDialogs::AskPathToOpen() const {
  return AskOpenPath(context_.form.Window(), context_.data.strings.Load(IDS_DLG_PLAYLIST_FILTER));
}

void PlaylistDialogs::ExportGroup(std::size_t group) const {
  const std::string path = AskPathToSave(context_.data.favorites.Name(group));
  if (!path.empty() && !context_.models.transfer.ExportGroup(group, path)) SayNotSaved(path);
}

void PlaylistDialogs::ExportPersonalStations() const {
  const std::string path = AskPathToSave(context_.data.strings.Load(IDS_EXPORT_PERSONAL_NAME));
  if (!path.empty() && !context_.models.transfer.ExportPersonalStations(path)) SayNotSaved(path);
}

void PlaylistDialogs::ImportIntoGroup(std::size_t group) const {
  const std::string path = AskPathToOpen();
  if (!path.empty()) SayImported(context_.models.transfer.ImportIntoGroup(group, path));
}

void PlaylistDialogs::ImportPersonalStations() const {
  const std::string path = AskPathToOpen();
  if (!path.empty()) SayImported(context_.models.transfer.ImportPersonalStations(path));
}

// Each file is told of by itself: of several, one may be no playlist.
void PlaylistDialogs::ImportDropped(const std::vector<std::string>& paths,
                                    std::optional<std::size_t> group) const {
  PlaylistTransfer& transfer = context_.models.transfer;
  for (const std::string& path : paths)
    SayImported(group ? transfer.ImportIntoGroup(*group, path) : transfer.ImportPersonalStations(path));
}

void PlaylistDialogs::SayNotSaved(const std::string& path) const {
  context_.services.messages.Ask(NotSavedMessage(path, context_.data.strings));
}

void PlaylistDialogs::SayImported(const ImportResult& result) const {
  const Strings& strings = context_.data.strings;
  MessageBoxView& messages = context_.services.messages;
  const bool saved = result.status != ImportResult::Status::NotSaved;
  if (!SavedOrSaid(saved, strings.Load(IDS_IMPORT_WHAT), messages, strings)) return;
  messages.Ask({.key = kImportKey,
                .caption = strings.Load(IDS_TRANSFER_CAPTION),
                .text = DescribeImport(result, strings),
                .firstButton = strings.Load(IDS_GROUP_OK)});
  // After a partial failure too: the stations that did come in are shown.
  context_.models.listing.GroupsChanged();
  context_.view.PersonalStationsChanged();
}

}  // namespace sonaro
