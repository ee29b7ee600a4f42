#include "settings/Message.h"

#include <string>

#include "base/DataFolder.h"
#include "resources/texts/app.h"
#include "settings/Strings.h"

namespace sonaro {

namespace {

// All of these have one button and the warning sign: nothing is asked.
Message Told(const char* key, std::string text, const Strings& strings) {
  Message message;
  message.key = key;
  message.caption = strings.Load(IDS_FILE_CAPTION);
  message.text = std::move(text);
  message.firstButton = strings.Load(IDS_APP_OK);
  message.isTrouble = true;
  return message;
}

}  // namespace

Message NotSavedMessage(std::string_view what, const Strings& strings) {
  return Told("NotSaved", FormatText(strings.Load(IDS_FILE_NOT_SAVED), {what}), strings);
}

// So that a caller can return its result and no failure goes unsaid.
bool SavedOrSaid(bool saved, std::string_view what, MessageBoxView& box, const Strings& strings) {
  if (!saved) box.Ask(NotSavedMessage(what, strings));
  return saved;
}

// One message for all files: a disk that fails would otherwise bring a box for each.
std::optional<Message> NotesMessage(const std::vector<FileNote>& notes, const Strings& strings) {
  std::string unreadable;
  std::string kept;
  for (const FileNote& note : notes) {
    if (note.kind == FileNote::Kind::Unreadable) {
      unreadable.append(unreadable.empty() ? "" : ", ").append(note.name);
    } else {
      kept.append(kept.empty() ? "" : " ");
      kept += FormatText(strings.Load(IDS_FILE_KEPT_BESIDE), {note.name, note.beside});
    }
  }
  std::string text = unreadable.empty() ? "" : FormatText(strings.Load(IDS_FILE_UNREADABLE), {unreadable});
  if (!text.empty() && !kept.empty()) text += ' ';
  text += kept;
  if (text.empty()) return std::nullopt;
  return Told("FilesNotRead", std::move(text), strings);
}

}  // namespace sonaro
