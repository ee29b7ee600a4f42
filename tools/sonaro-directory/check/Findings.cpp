#include "check/Findings.h"

namespace sonaro {

void Findings::Add(std::string_view file, std::size_t line, std::string_view problem) {
  ++total_;
  // A file in the wrong format has a finding on every line; the first ones tell as much as all.
  if (++perFile_[std::string(file)] > kMaxPerFile) return;
  std::string text(file);
  if (line > 0) text += ":" + std::to_string(line);
  lines_.push_back(text.append(": ").append(problem));
}

std::vector<std::string> Findings::Lines() const {
  std::vector<std::string> lines = lines_;
  for (const auto& [file, count] : perFile_) {
    if (count > kMaxPerFile) lines.push_back(file + ": and " + std::to_string(count - kMaxPerFile) + " more");
  }
  return lines;
}

}  // namespace sonaro
