// Answers messages from a queue and records them. An empty queue closes the box.
#pragma once

#include <deque>
#include <string>
#include <vector>

#include "settings/Message.h"

namespace sonaro {

class FakeMessageBox : public MessageBoxView {
 public:
  std::deque<MessageResult> answers;
  std::vector<Message> asked;

  MessageResult Ask(const Message& message) override {
    asked.push_back(message);
    if (answers.empty()) return {};
    const MessageResult answer = answers.front();
    answers.pop_front();
    return answer;
  }
};

}  // namespace sonaro
