// What the message box is asked to show, as a value: portable code builds one, MsgboxFrm shows it. Texts come
// from the string table (resources/texts) unless they are put together at run time.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace sonaro {

class Strings;
struct FileNote;

// What the user answered. Closing the box, Esc, Cancel and the end of the program are 0: nothing is decided.
enum class MessageAnswer : int { Closed = 0, First = 1, Second = 2 };

struct Message {
  std::string key;  // message key, selects the help page: "QuickStart"
  std::string caption;
  std::string text;
  std::string firstButton;
  std::string secondButton;  // "" = one button
  std::string cancelButton;  // a third one that leaves the question open; "" = none
  std::string dontAskText;   // "" = no "do not ask again" box
  bool isTrouble = false;    // something went wrong: shown with the warning sign
};

struct MessageResult {
  MessageAnswer answer = MessageAnswer::Closed;
  bool dontAskAgain = false;  // never with an answer that decides nothing
};

// Shows a message and waits for the answer. Implemented by MsgboxFrm; tests answer from a list.
class MessageBoxView {
 public:
  virtual ~MessageBoxView() = default;
  virtual MessageResult Ask(const Message& message) = 0;
};

// What the user is told of his own files is worded in one place: when a change could not be saved, and what
// the start found.

// The sentence for a save that failed. `what` begins it: "Your schedule", or the path of an exported file.
Message NotSavedMessage(std::string_view what, const Strings& strings);
// Returns `saved`, having said so when it is false.
bool SavedOrSaid(bool saved, std::string_view what, MessageBoxView& box, const Strings& strings);
// All notes in one message; nothing when there are none.
std::optional<Message> NotesMessage(const std::vector<FileNote>& notes, const Strings& strings);

}  // namespace sonaro
