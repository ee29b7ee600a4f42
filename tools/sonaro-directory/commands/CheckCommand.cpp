// Findings go to the output, one a line, and say where in which file; problems with the call itself go to the
// error output. That a folder is whole is said as well, since silence could also mean that nothing was looked
// at.
#include <ostream>

#include "check/CheckFolder.h"
#include "commands/Commands.h"
#include "commands/LocalFolder.h"
#include "commands/Progress.h"

namespace sonaro {

int RunCheck(Arguments arguments, Console& console) {
  if (arguments.size() != 1 || arguments[0].empty()) {
    console.err << "check needs a data folder; see sonaro-directory --help.\n";
    return kWrongUse;
  }
  LocalFolder folder(arguments[0]);
  if (!folder.IsThere()) {
    console.err << "There is no folder \"" << arguments[0] << "\".\n";
    return kFailed;
  }
  Progress progress(console);
  progress.Show("Checking " + arguments[0]);
  Findings findings;
  CheckFolder(folder.Data(), findings);
  progress.Clear();
  for (const std::string& line : findings.Lines()) console.out << line << '\n';
  if (!findings.Empty()) return kFailed;
  console.out << arguments[0] << " is whole.\n";
  return kDone;
}

}  // namespace sonaro
