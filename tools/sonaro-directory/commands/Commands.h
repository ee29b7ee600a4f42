// The commands of the tool. Each takes the words after its name and returns the exit status of the program.
#pragma once

#include <iosfwd>
#include <span>
#include <string>

namespace sonaro {

enum ExitStatus : int {
  kDone = 0,
  kFailed = 1,   // one sentence about it has been written to `err`; of check: something is wrong
  kWrongUse = 2  // the command line was not understood
};

// Where a command writes.
struct Console {
  std::ostream& out;  // results
  std::ostream& err;  // messages
  bool progress;      // `err` is a terminal: show what is being done
};

using Arguments = std::span<const std::string>;

// Runs the command that the first word names.
int RunTool(Arguments arguments, Console& console);

int RunMake(Arguments arguments, Console& console);
int RunShow(Arguments arguments, Console& console);
int RunSearch(Arguments arguments, Console& console);
int RunCheck(Arguments arguments, Console& console);
int RunPublish(Arguments arguments, Console& console);
int RunKeygen(Arguments arguments, Console& console);

}  // namespace sonaro
