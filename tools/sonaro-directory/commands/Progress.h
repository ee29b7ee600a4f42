// One line on a terminal that says what is being done. Writes nothing where there is no terminal.
#pragma once

#include <ostream>
#include <string>

#include "commands/Commands.h"
#include "text/CleanText.h"

namespace sonaro {

class Progress {
 public:
  explicit Progress(Console& console) : console_(console) {}
  ~Progress() { Clear(); }
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;

  void Show(const std::string& text) {
    if (console_.progress) console_.err << kStartOfLine << CleanText(text) << " ..." << std::flush;
    shown_ = console_.progress;
  }
  void Clear() {
    if (shown_) console_.err << kStartOfLine << std::flush;
    shown_ = false;
  }

 private:
  static constexpr const char* kStartOfLine = "\r\x1B[K";  // to the left, and erase the line

  Console& console_;
  bool shown_ = false;
};

}  // namespace sonaro
