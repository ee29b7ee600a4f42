#include <algorithm>
#include <chrono>
#include <optional>
#include <ostream>

#include "base/Dates.h"
#include "base/Numbers.h"
#include "base/Text.h"
#include "commands/Commands.h"
#include "commands/LocalFolder.h"
#include "commands/Progress.h"
#include "output/DirectoryWriter.h"
#include "site/WriteSite.h"

namespace sonaro {
namespace {

struct PublishOptions {
  std::string directory;
  std::string out;
  std::string keyFile;
  SiteOptions site;
};

// What may stand in the generated server configuration and in the addresses that installations are told. It
// is a guard against quotes, blanks and semicolons in a configuration file rather than a check of the name's
// syntax.
bool IsHostName(std::string_view text) {
  return !text.empty() && std::all_of(text.begin(), text.end(), [](char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '.' || c == '-';
  });
}

// A port, or an address and a port.
bool IsListenAddress(std::string_view text) {
  const std::size_t colon = text.rfind(':');
  if (colon != std::string_view::npos && !IsHostName(text.substr(0, colon))) return false;
  const std::string_view port = colon == std::string_view::npos ? text : text.substr(colon + 1);
  return !port.empty() && port.size() <= 5 &&
         std::all_of(port.begin(), port.end(), [](char c) { return c >= '0' && c <= '9'; }) &&
         NumberValue(port) >= 1 && NumberValue(port) <= 65535;
}

bool TakePublishOption(const std::string& name, const std::string& value, PublishOptions& options,
                       std::string& problem) {
  if (name == "--out") {
    options.out = value;
  } else if (name == "--date") {
    options.site.date = TrimBlanks(value);
    // The date is only compared, never computed with: installations send back the text that they were given.
    if (!ParseDate(value)) problem = "--date is a date such as 2026-11-23, not \"" + value + "\".";
  } else if (name == "--key") {
    options.keyFile = value;
  } else if (name == "--host") {
    options.site.host = value;
    if (!IsHostName(value)) problem = "--host is the name of a host, not \"" + value + "\".";
  } else if (name == "--listen") {
    options.site.listen = value;
    if (!IsListenAddress(value)) problem = "--listen is a port or address:port, not \"" + value + "\".";
  } else {
    problem = "publish has no option \"" + name + "\"; see sonaro-directory --help.";
  }
  return problem.empty();
}

std::optional<PublishOptions> ParsePublishOptions(Arguments arguments, std::string& problem) {
  PublishOptions options;
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const std::string& word = arguments[i];
    if (!word.starts_with('-')) {
      if (!options.directory.empty()) problem = "publish takes one data folder; see sonaro-directory --help.";
      options.directory = word;
      continue;
    }
    const std::size_t equals = word.find('=');
    if (equals == std::string::npos && i + 1 == arguments.size()) {
      problem = "\"" + word + "\" needs a value; see sonaro-directory --help.";
      return std::nullopt;
    }
    const std::string value = equals == std::string::npos ? arguments[++i] : word.substr(equals + 1);
    if (!TakePublishOption(word.substr(0, equals), value, options, problem)) return std::nullopt;
  }
  if (problem.empty() && (options.directory.empty() || options.out.empty() || options.site.date.empty()))
    problem = "publish needs a data folder, --out SITE and --date DATE; see sonaro-directory --help.";
  if (!problem.empty()) return std::nullopt;
  return options;
}

// The first line of a key file, without the blanks around it.
std::string ReadKey(LocalFolder& folder, const std::string& path, std::string& problem) {
  const ReadResult file = ReadWholeFile(folder.Data().FileSystem(), path);
  if (file.status != ReadStatus::Ok) problem = "The key \"" + path + "\" could not be read.";
  std::string_view rest = file.bytes;
  std::string_view line = NextField(rest, '\n');
  if (line.ends_with('\r')) line.remove_suffix(1);
  if (problem.empty() && TrimBlanks(line).empty()) problem = "The file \"" + path + "\" holds no key.";
  return std::string(TrimBlanks(line));
}

}  // namespace

int RunPublish(Arguments arguments, Console& console) {
  std::string problem;
  std::optional<PublishOptions> options = ParsePublishOptions(arguments, problem);
  if (!options) {
    console.err << problem << '\n';
    return kWrongUse;
  }
  LocalFolder directory(options->directory);
  LocalFolder site(options->out);
  if (!directory.IsThere()) problem = "There is no folder \"" + options->directory + "\".";
  if (directory.Data().Exists(kUnfinishedMark))
    problem = "\"" + options->directory + "\" is unfinished; run make again.";
  // Seconds since 1970: grows from one publication to the next without anything having to be remembered. An
  // installation refuses a signed update whose serial is below that of the last one it took.
  options->site.serial =
      std::chrono::duration_cast<std::chrono::seconds>(std::chrono::system_clock::now().time_since_epoch())
          .count();
  if (problem.empty() && !options->keyFile.empty())
    options->site.secretKey = ReadKey(directory, options->keyFile, problem);
  SiteResult result;
  if (problem.empty()) {
    Progress progress(console);
    progress.Show("Publishing " + options->directory);
    result = WriteSite(directory.Data(), site.Data(), options->site);
    problem = result.failure;
  }
  if (!problem.empty()) {
    console.err << problem << '\n';
    return kFailed;
  }
  // A warning, not a failure: a file that is left out stays as it is in the installations.
  for (const std::string& name : result.leftOut)
    console.err << name << " is left out: it is not made of lines that an update can carry.\n";
  console.out << options->out << ": " << result.files << " files, "
              << (options->site.secretKey.empty() ? "an unsigned" : "a signed") << " update of "
              << result.updateBytes << " bytes";
  if (result.changes > 0) console.out << ", and changes from earlier dates: " << result.changes;
  console.out << ".\n";
  return kDone;
}

}  // namespace sonaro
