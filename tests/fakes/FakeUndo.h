// Writes down what was removed and what came back.
#pragma once

#include <string>
#include <vector>

#include "settings/UndoList.h"

namespace sonaro {

class FakeUndoListener final : public UndoListener {
 public:
  std::vector<std::string> heard;

  void Removed(const std::string& sentence) override { heard.push_back(sentence); }
  void Undone(const std::string& sentence) override { heard.push_back("undone: " + sentence); }
  void NotUndone() override { heard.push_back("not undone"); }
};

}  // namespace sonaro
