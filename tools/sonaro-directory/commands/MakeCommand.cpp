// Reads everything, then builds, then writes: the three differ in what a failure means. A source that cannot
// be read ends the run, an entry that cannot be used is left out and counted, a file that cannot be written
// leaves the folder marked as unfinished.
#include <algorithm>
#include <charconv>
#include <optional>
#include <ostream>
#include <vector>

#include "base/OwnFiles.h"
#include "commands/Commands.h"
#include "commands/LocalFolder.h"
#include "commands/Progress.h"
#include "output/DirectoryWriter.h"
#include "readers/ReadSource.h"
#include "readers/Readers.h"
#include "site/WriteSite.h"
#include "stations/BuildDirectory.h"
#include "text/CleanText.h"

namespace sonaro {
namespace {

// What the command line asked for; limit 0 is none.
struct MakeOptions {
  std::vector<std::string> sources;
  std::string out;
  std::string previous;
  std::string events;
  LinkPlayer player = LinkPlayer::Asx;
  std::size_t limit = 0;
  bool verbose = false;
};

// The whole text is a number from 1 on.
// The whole word must be a number: "10k" is refused, not taken for 10.
bool ParseLimit(const std::string& text, std::size_t& limit) {
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), limit);
  return error == std::errc() && end == text.data() + text.size() && limit > 0;
}

// The option's value; a sentence in `problem` when it has none or a wrong one. Options are "--name value" or
// "--name=value"; everything else is a source, and so is "-", the standard input. Problems become one
// sentence for the user; the first one found is reported.
bool TakeOption(const std::string& name, const std::string& value, MakeOptions& options,
                std::string& problem) {
  if (name == "--out") {
    options.out = value;
  } else if (name == "--previous") {
    options.previous = value;
  } else if (name == "--events") {
    options.events = value;
  } else if (name == "--player" && (value == "asx" || value == "real")) {
    options.player = value == "asx" ? LinkPlayer::Asx : LinkPlayer::Real;
  } else if (name == "--player") {
    problem = "--player is asx or real, not \"" + value + "\".";
  } else if (name != "--limit") {
    problem = "make has no option \"" + name + "\"; see sonaro-directory --help.";
  } else if (!ParseLimit(value, options.limit)) {
    problem = "--limit is a number from 1 on, not \"" + value + "\".";
  }
  return problem.empty();
}

std::optional<MakeOptions> ParseOptions(Arguments arguments, std::string& problem) {
  MakeOptions options;
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const std::string& word = arguments[i];
    if (word == "-v" || word == "--verbose") {
      options.verbose = true;
    } else if (!word.starts_with('-') || word == "-") {
      options.sources.push_back(word);
    } else {
      const std::size_t equals = word.find('=');
      if (equals == std::string::npos && i + 1 == arguments.size()) {
        problem = "\"" + word + "\" needs a value; see sonaro-directory --help.";
        return std::nullopt;
      }
      const std::string value = equals == std::string::npos ? arguments[++i] : word.substr(equals + 1);
      if (!TakeOption(word.substr(0, equals), value, options, problem)) return std::nullopt;
    }
  }
  if (options.sources.empty()) problem = "make needs a station list; see sonaro-directory --help.";
  if (options.out.empty()) problem = "make needs --out DIR; see sonaro-directory --help.";
  if (!problem.empty()) return std::nullopt;
  return options;
}

// One run of "make": read all sources, build the directory in memory, write it. Nothing is written to the
// output folder before everything has been read, so a missing or damaged source leaves an older directory as
// it was. Damage inside a source is not a failure: the entry is counted in a log and left out.
class Maker {
 public:
  Maker(const MakeOptions& options, Console& console)
      : options_(options),
        console_(console),
        progress_(console),
        logs_{SkipLog(options.verbose ? &console.err : nullptr),
              SkipLog(options.verbose ? &console.err : nullptr)},
        eventLog_(options.verbose ? &console.err : nullptr) {}

  int Run();

 private:
  bool ReadSources();
  bool ReadEarlier(EarlierIds& earlier);
  bool ReadEventFile(std::vector<SourceEvent>& events);
  // The line of progress would else stand before the sentence.
  int Fail(const std::string& sentence) {
    progress_.Clear();
    console_.err << sentence << '\n';
    return kFailed;
  }
  void Summarise(const BuiltDirectory& built, const EventRecords& events);

  const MakeOptions& options_;
  Console& console_;
  Progress progress_;
  MakeLogs logs_;
  SkipLog eventLog_;
  std::vector<SourceStation> stations_;
  std::size_t entries_ = 0;
  std::string failure_;
};

bool Maker::ReadSources() {
  for (const std::string& path : options_.sources) {
    progress_.Show("Reading " + path);
    SourceResult source = ReadSource(path, logs_.entries);
    if (!source.failure.empty()) {
      failure_ = source.failure;
      return false;
    }
    std::move(source.stations.begin(), source.stations.end(), std::back_inserter(stations_));
  }
  // Counted before the cleaning, which logs further entries: the summary is to say how many entries the lists
  // had.
  entries_ = stations_.size() + logs_.entries.Total();
  if (stations_.empty()) failure_ = "There is no station in what was read.";
  return failure_.empty();
}

// The folder of --previous brings its own alphabets: its links are scrambled with them, whatever the new
// folder uses.
bool Maker::ReadEarlier(EarlierIds& earlier) {
  if (options_.previous.empty()) return true;
  LocalFolder folder(options_.previous);
  const ReadResult list = folder.Data().Read(guide_file::kStations);
  if (list.status != ReadStatus::Ok) {
    failure_ = "There is no readable Station.snr in \"" + options_.previous + "\".";
    return false;
  }
  earlier = EarlierIds(list.bytes, AlphabetsOf(folder.Data()));
  return true;
}

// Bad lines are counted in a log of their own and left out; only a file that cannot be read fails the run.
bool Maker::ReadEventFile(std::vector<SourceEvent>& events) {
  if (options_.events.empty()) return true;
  std::string bytes;
  if (!ReadFileBytes(options_.events, bytes)) {
    failure_ = "Cannot read \"" + options_.events + "\".";
    return false;
  }
  events = ReadEvents(std::filesystem::path(options_.events).filename().string(), DecodeFileText(bytes),
                      eventLog_);
  return true;
}

void Maker::Summarise(const BuiltDirectory& built, const EventRecords& events) {
  progress_.Clear();
  const auto brackets = [](const SkipLog& log) { return log.Total() == 0 ? "" : " (" + log.Summary() + ")"; };
  std::ostream& out = console_.out;
  out << built.directory.stations.size() << " stations in " << options_.out << " from " << entries_
      << " entries; " << built.joined << " joined with others, " << logs_.entries.Total() << " left out"
      << brackets(logs_.entries) << "; " << logs_.addresses.Total() << " addresses dropped"
      << brackets(logs_.addresses) << ".\n";
  if (options_.events.empty()) return;
  out << events.current.size() + events.coming.size() << " events; " << eventLog_.Total() << " left out"
      << brackets(eventLog_) << ".\n";
}

// Events come last of what is made, since they name stations by their names in the finished directory.
int Maker::Run() {
  EarlierIds earlier;
  std::vector<SourceEvent> sourceEvents;
  if (!ReadSources() || !ReadEarlier(earlier) || !ReadEventFile(sourceEvents)) return Fail(failure_);
  progress_.Show("Sorting " + std::to_string(stations_.size()) + " entries");
  const BuiltDirectory built = BuildDirectory(std::move(stations_), options_.limit, earlier, logs_);
  if (built.directory.stations.empty()) return Fail("No station is left: " + logs_.entries.Summary() + ".");
  const EventRecords events = MakeEventRecords(sourceEvents, built.directory, eventLog_);
  progress_.Show("Writing " + std::to_string(built.directory.stations.size()) + " stations");
  LocalFolder folder(options_.out);
  WriteOptions write;
  write.player = options_.player;
  // An alphabet that lies in the output folder already stays valid for what is written there.
  write.alphabets = AlphabetsOf(folder.Data());
  std::string problem = WriteDirectory(folder.Data(), built.directory, events, write);
  if (problem.empty()) problem = WriteHelpPages(folder.Data());
  if (!problem.empty()) return Fail(problem);
  Summarise(built, events);
  return kDone;
}

}  // namespace

int RunMake(Arguments arguments, Console& console) {
  std::string problem;
  const std::optional<MakeOptions> options = ParseOptions(arguments, problem);
  if (!options) {
    console.err << problem << '\n';
    return kWrongUse;
  }
  return Maker(*options, console).Run();
}

}  // namespace sonaro
