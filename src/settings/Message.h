// What the message box is asked to show, as a value: portable code builds one, MsgboxFrm shows it. Texts come
// from the string table (resources/texts) unless they are put together at run time.
#pragma once

#include <string>

namespace sonaro {

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

}  // namespace sonaro
