// Starting other programs. The caller has already checked what it hands over: texts reach the other program
// exactly as they are given here.
#pragma once

#include <string>

namespace sonaro {

struct FoundProgram {
  int code = 0;      // above 32: found; otherwise the platform's reason
  std::string path;  // as registered; at most 254 bytes
};

class Shell {
 public:
  virtual ~Shell() = default;
  // The program's main window as the platform's own handle: what the platform itself has to say about a
  // program that is opened stands before it. nullptr, as at the start: before no window.
  virtual void SetMainWindow(void* window) = 0;
  // The program registered for an existing file `name` in `folder` (the platform looks at the real file).
  virtual FoundProgram FindProgramFor(const std::string& name, const std::string& folder) = 0;
  // Verb "Open", normal window; a document opens in the program registered for it. `program` gets
  // `parameters` verbatim as its command line. True when started.
  virtual bool Open(const std::string& program, const std::string& parameters, const std::string& folder) = 0;
  // Starts a command line as it stands, its window minimised with focus, without waiting. True when started.
  virtual bool RunMinimised(const std::string& commandLine) = 0;
};

}  // namespace sonaro
