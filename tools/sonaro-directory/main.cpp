// sonaro-directory: makes, shows, searches, checks and publishes data folders.
#include <iostream>
#include <string>
#include <vector>

#include "commands/Commands.h"

#ifdef _WIN32
#include <io.h>
#else
#include <unistd.h>
#endif

namespace {

bool ErrorsGoToTerminal() {
#ifdef _WIN32
  return _isatty(2) != 0;
#else
  return isatty(STDERR_FILENO) != 0;
#endif
}

}  // namespace

int main(int argc, char** argv) {
  const std::vector<std::string> arguments(argv + (argc > 0 ? 1 : 0), argv + argc);
  std::ios::sync_with_stdio(false);
  sonaro::Console console{std::cout, std::cerr, ErrorsGoToTerminal()};
  const int status = sonaro::RunTool(arguments, console);
  std::cout.flush();
  // A result that could not be written, to a full disk for example, is no result.
  return std::cout.good() ? status : static_cast<int>(sonaro::kFailed);
}
