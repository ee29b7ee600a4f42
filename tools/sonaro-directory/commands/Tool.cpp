// The way from the words of a command line to one of the commands. Each command reads its own options, so
// that a wrong one is answered with what that command takes.
#include <array>
#include <ostream>

#include "commands/Commands.h"

namespace sonaro {
namespace {

// The whole help. Every option of a command stands here; README.md explains what comes of them.
constexpr std::string_view kHelp =
    R"(sonaro-directory: real lists of internet radio stations in, a data folder for Sonaro out.

  sonaro-directory make SOURCE... --out DIR [options]
      Makes a data folder out of station lists: JSON Lines, radio-browser JSON,
      M3U, PLS and OPML, plain or gzip, told apart by content; "-" is standard
      input.
        --player asx|real  which player the links are for (asx: the program
                           for .asx files; that is the default)
        --limit N          only the N best stations
        --previous DIR     keep the station identifiers of that data folder
        --events FILE      broadcast events, JSON Lines
        -v, --verbose      explain everything that is left out
  sonaro-directory show DIR ID
      Shows one station, links in plain text.
  sonaro-directory search DIR [--any] WORD...
  sonaro-directory search DIR --queries FILE
      Lists the identifiers of stations that have all (any) of the words.
  sonaro-directory check DIR
      Verifies every file of a data folder and says what is wrong.
  sonaro-directory publish DIR --out SITE --date DATE [options]
      Makes a web site out of a data folder: the update, the help pages and the
      configuration of a web server. DATE (2026-11-23) is what tells an
      installation whether it has this directory already.
        --key FILE         sign the update with this secret key
        --host HOST        tell installations that the service is on this host
        --listen ADDRESS   where the server listens: port, or address:port
                           (80)
  sonaro-directory keygen DIR
      Makes a pair of keys in DIR: secret.key signs updates; publish.key beside
      Sonaro's data makes it refuse every update that the other did not sign.

Exit status: 0 done, 1 failed or something is wrong, 2 wrong use.
)";

// A table instead of a chain of comparisons: a new command is a line here and a function of its own.
struct Command {
  std::string_view name;
  int (*run)(Arguments, Console&);
};

constexpr std::array<Command, 6> kCommands = {{{"make", RunMake},
                                               {"show", RunShow},
                                               {"search", RunSearch},
                                               {"check", RunCheck},
                                               {"publish", RunPublish},
                                               {"keygen", RunKeygen}}};

}  // namespace

int RunTool(Arguments arguments, Console& console) {
  if (arguments.empty()) {
    console.err << kHelp;
    return kWrongUse;
  }
  const std::string& name = arguments.front();
  if (name == "--help" || name == "-h" || name == "help") {
    console.out << kHelp;
    return kDone;
  }
  for (const Command& command : kCommands) {
    if (name == command.name) return command.run(arguments.subspan(1), console);
  }
  console.err << "There is no command \"" << name << "\"; see sonaro-directory --help.\n";
  return kWrongUse;
}

}  // namespace sonaro
