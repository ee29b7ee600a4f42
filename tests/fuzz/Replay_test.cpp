#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <vector>

#include "fuzz/Targets.h"

namespace sonaro {
namespace {

class FuzzReplay : public testing::TestWithParam<FuzzTarget> {};

std::vector<std::string> CorpusOf(const char* target) {
  std::vector<std::string> inputs;
  for (const auto& entry :
       std::filesystem::directory_iterator(std::string(SONARO_CORPUS_FOLDER "/") + target)) {
    std::ifstream file(entry.path(), std::ios::binary);
    inputs.emplace_back(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
  }
  std::sort(inputs.begin(), inputs.end());
  return inputs;
}

// One to four bytes set, pieces cut out or doubled, or a part of another input put in.
std::string Mutated(std::string text, const std::string& other, std::mt19937& random) {
  const auto below = [&](std::size_t end) {
    return std::uniform_int_distribution<std::size_t>(0, std::max<std::size_t>(end, 1) - 1)(random);
  };
  for (std::size_t changes = 1 + below(4); changes > 0 && !text.empty(); --changes) {
    const std::size_t at = below(text.size());
    switch (below(4)) {
      case 0:
        text[at] = static_cast<char>(below(256));
        break;
      case 1:
        text.erase(at, 1 + below(20));
        break;
      case 2:
        text.insert(below(text.size()), text.substr(at, 1 + below(40)));
        break;
      default:
        text.insert(at, other.substr(below(other.size()), 1 + below(40)));
    }
  }
  return text;
}

// A broken promise ends the process and says which.
TEST_P(FuzzReplay, KeepsItsPromises) {
  const std::vector<std::string> corpus = CorpusOf(GetParam().name);
  ASSERT_FALSE(corpus.empty());
  GetParam().run("");
  std::mt19937 random(4002);
  for (const std::string& input : corpus) {
    GetParam().run(input);
    for (int round = 0; round < 100; ++round)
      GetParam().run(Mutated(input, corpus[random() % corpus.size()], random));
  }
}

INSTANTIATE_TEST_SUITE_P(Targets, FuzzReplay, testing::ValuesIn(kFuzzTargets),
                         [](const auto& target) { return std::string(target.param.name); });

}  // namespace
}  // namespace sonaro
