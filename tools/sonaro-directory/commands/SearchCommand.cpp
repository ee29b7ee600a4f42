#include <fstream>
#include <ostream>

#include "base/Text.h"
#include "commands/Commands.h"
#include "commands/LocalFolder.h"
#include "directory/StatList.h"

namespace sonaro {
namespace {

struct SearchOrder {
  std::string folder;
  std::string queries;  // a file of searches; "" = one search for `words`
  std::string words;
  bool allWords = true;
};

// Options count only before the first word, so that a search for "--any" itself is possible behind another
// word.
SearchOrder ReadOrder(Arguments arguments) {
  SearchOrder order;
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const std::string& argument = arguments[i];
    if (argument == "--any" && order.words.empty()) {
      order.allWords = false;
    } else if (argument == "--queries" && order.words.empty() && i + 1 < arguments.size()) {
      order.queries = arguments[++i];
    } else if (order.folder.empty()) {
      order.folder = argument;
    } else {
      order.words += (order.words.empty() ? "" : " ") + argument;
    }
  }
  return order;
}

std::string Joined(const std::vector<std::int32_t>& ids, char separator) {
  std::string text;
  for (const std::int32_t id : ids) text += std::to_string(id) + separator;
  return text;
}

// For comparing with another program: many searches in one run, each answered on a line of its own.
// Each line is "all" or "any", a TAB and the words; for each, a line of identifiers.
bool RunQueries(StatList& stations, const std::string& path, std::ostream& out) {
  std::ifstream file(path, std::ios::binary);
  for (std::string line; std::getline(file, line);) {
    std::string_view words = line;
    const bool allWords = NextField(words, '\t') != "any";
    out << Joined(stations.SearchStationIds(words, allWords), ' ') << '\n';
  }
  return file.eof();
}

}  // namespace

int RunSearch(Arguments arguments, Console& console) {
  const SearchOrder order = ReadOrder(arguments);
  if (order.folder.empty() || (order.words.empty() && order.queries.empty())) {
    console.err << "search needs a data folder and a word; see sonaro-directory --help.\n";
    return kWrongUse;
  }
  LocalFolder folder(order.folder);
  StatList stations(folder.Data());
  // Run for --queries as well, with no words: it opens the table once and thereby tells whether there is one.
  const std::vector<std::int32_t> found = stations.SearchStationIds(order.words, order.allWords);
  if (stations.LastStatus() == TableStatus::NoTable || stations.LastStatus() == TableStatus::Damaged) {
    console.err << "There is no readable station table in \"" << order.folder << "\".\n";
    return kFailed;
  }
  if (order.queries.empty()) {
    console.out << Joined(found, '\n');
  } else if (!RunQueries(stations, order.queries, console.out)) {
    console.err << "The searches in \"" << order.queries << "\" could not be read.\n";
    return kFailed;
  }
  return kDone;
}

}  // namespace sonaro
