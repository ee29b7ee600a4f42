#include "baselines/Ripgrep.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>

namespace sonaro {
namespace {

constexpr int kNothingFound = 1;

int Run(std::vector<std::string> arguments) {
  std::vector<char*> pointers;
  for (std::string& argument : arguments) pointers.push_back(argument.data());
  pointers.push_back(nullptr);
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
  pid_t child = 0;
  const int spawned = posix_spawnp(&child, "rg", &actions, nullptr, pointers.data(), environ);
  posix_spawn_file_actions_destroy(&actions);
  int status = 0;
  if (spawned != 0 || waitpid(child, &status, 0) != child || !WIFEXITED(status)) return -1;
  return WEXITSTATUS(status);
}

// All words in any order, as one pattern: "a.*b|b.*a".
std::string AllInAnyOrder(std::vector<std::string> words) {
  std::sort(words.begin(), words.end());
  std::string pattern;
  do {
    pattern += pattern.empty() ? "" : "|";
    for (const std::string& word : words) pattern += (&word == &words.front() ? "" : ".*") + word;
  } while (std::next_permutation(words.begin(), words.end()));
  return pattern;
}

}  // namespace

bool RipgrepIsThere() { return Run({"rg", "--version"}) == 0; }

bool SearchByRipgrep(const Query& query, const std::string& listPath) {
  std::vector<std::string> arguments = {"rg", "--ignore-case", "--no-config", "--count"};
  const bool oneByOne = !query.allWords || query.words.size() == 1;
  if (oneByOne) arguments.push_back("--fixed-strings");
  for (const std::string& word : oneByOne ? query.words : std::vector{AllInAnyOrder(query.words)}) {
    arguments.insert(arguments.end(), {"-e", word});
  }
  arguments.push_back(listPath);
  const int status = Run(std::move(arguments));
  return status == 0 || status == kNothingFound;
}

}  // namespace sonaro
