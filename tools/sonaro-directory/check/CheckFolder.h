// Verifies a data folder: that every file the program reads can be read, says what its format allows, and
// fits the other files. Reads only.
#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "base/DataFolder.h"

namespace sonaro {

// What is wrong with a data folder, one line each: "cat.snr:3: the category has no list file".
class Findings {
 public:
  // A file in which everything is wrong fills no screens: what comes after so many is only counted.
  static constexpr std::size_t kMaxPerFile = 20;

  // `file` as the user names it, without a leading backslash; line 0: the file as a whole.
  void Add(std::string_view file, std::size_t line, std::string_view problem);

  bool Empty() const { return total_ == 0; }
  std::size_t Total() const { return total_; }
  // The lines in the order in which they were found, and last how many more each file has.
  std::vector<std::string> Lines() const;

 private:
  std::vector<std::string> lines_;
  std::map<std::string, std::size_t> perFile_;
  std::size_t total_ = 0;
};

// Adds what is wrong with the folder to `findings`.
void CheckFolder(DataFolder& data, Findings& findings);

}  // namespace sonaro
