// What the user is told of his own files: the one place that words it when a change could not be saved, and
// what the start found. Portable; shown by whatever message box the caller has.
#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "settings/Message.h"

namespace sonaro {

class Strings;
struct FileNote;

// The sentence for a save that failed. `what` begins it: "Your schedule", or the path of an exported file.
Message NotSavedMessage(std::string_view what, const Strings& strings);
// Returns `saved`, having said so when it is false.
bool SavedOrSaid(bool saved, std::string_view what, MessageBoxView& box, const Strings& strings);
// All notes in one message; nothing when there are none.
std::optional<Message> NotesMessage(const std::vector<FileNote>& notes, const Strings& strings);

}  // namespace sonaro
