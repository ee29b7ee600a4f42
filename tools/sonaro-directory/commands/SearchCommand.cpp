#include <ostream>

#include "commands/Commands.h"
#include "commands/LocalFolder.h"
#include "directory/StatList.h"

namespace sonaro {

int RunSearch(Arguments arguments, Console& console) {
  bool allWords = true;
  std::string folderName;
  std::string words;
  for (const std::string& argument : arguments) {
    if (argument == "--any" && words.empty()) {
      allWords = false;
    } else if (folderName.empty()) {
      folderName = argument;
    } else {
      words += (words.empty() ? "" : " ") + argument;
    }
  }
  if (folderName.empty() || words.empty()) {
    console.err << "search needs a data folder and a word; see sonaro-directory --help.\n";
    return kWrongUse;
  }
  LocalFolder folder(folderName);
  StatList stations(folder.Data());
  const std::vector<std::int32_t> found = stations.SearchStationIds(words, allWords);
  if (stations.LastStatus() == TableStatus::NoTable || stations.LastStatus() == TableStatus::Damaged) {
    console.err << "There is no readable station table in \"" << folderName << "\".\n";
    return kFailed;
  }
  std::string text;
  for (const std::int32_t id : found) text += std::to_string(id) + '\n';
  console.out << text;
  return kDone;
}

}  // namespace sonaro
