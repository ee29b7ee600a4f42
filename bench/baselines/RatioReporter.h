// Collects the best time of every benchmark and prints the quotients against the baselines as a Markdown
// table. A benchmark is named "operation|contender"; the contender "Sonaro" is what the others are compared
// with.
#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <string>
#include <vector>

namespace sonaro {

inline constexpr const char* kSonaro = "Sonaro";
inline constexpr const char* kRipgrep = "ripgrep";  // runs as a program of its own

// How many times faster than a baseline an operation should be.
struct Target {
  std::string operation;
  std::string baseline;
  double floor;
  double aim;
};

class RatioReporter : public benchmark::BenchmarkReporter {
 public:
  bool ReportContext(const Context& context) override;
  void ReportRuns(const std::vector<Run>& runs) override;

  void PrintTable(const std::string& heading, const std::vector<Target>& targets) const;

 private:
  struct Times {  // seconds
    double real;
    double processor;
  };
  struct Operation {
    std::string name;
    std::map<std::string, Times> best;  // of every contender
  };
  std::vector<Operation> Joined() const;

  std::map<std::int64_t, Operation> operations_;  // one of each benchmark, in the order of their registration
};

}  // namespace sonaro
