#include "baselines/RatioReporter.h"

#include <algorithm>
#include <cstdio>

namespace sonaro {
namespace {

std::string TimeText(double seconds) {
  char text[32];
  if (seconds >= 1e-3) {
    std::snprintf(text, sizeof text, "%.3g ms", seconds * 1e3);
  } else {
    std::snprintf(text, sizeof text, "%.3g us", seconds * 1e6);
  }
  return text;
}

std::string FactorText(double factor) {
  char text[32];
  std::snprintf(text, sizeof text, factor < 10 ? "%.2f" : "%.0f", factor);
  return text;
}

std::string TargetText(const std::vector<Target>& targets, const std::string& operation,
                       const std::string& baseline, double ratio) {
  const auto target = std::find_if(targets.begin(), targets.end(), [&](const Target& t) {
    return t.operation == operation && t.baseline == baseline;
  });
  if (target == targets.end()) return " | |";
  const char* const verdict = ratio >= target->aim     ? "aim reached"
                              : ratio >= target->floor ? "floor reached"
                                                       : "MISSED";
  return " " + FactorText(target->floor) + " / " + FactorText(target->aim) + " | " + verdict + " |";
}

}  // namespace

bool RatioReporter::ReportContext(const Context&) { return true; }

void RatioReporter::ReportRuns(const std::vector<Run>& runs) {
  for (const Run& run : runs) {
    if (run.error_occurred) {
      std::fprintf(stderr, "%s: %s\n", run.benchmark_name().c_str(), run.error_message.c_str());
      continue;
    }
    if (run.run_type != Run::RT_Iteration) continue;
    const std::string& name = run.run_name.function_name;
    const std::size_t bar = name.find('|');
    const std::string operation = name.substr(0, bar);
    const auto count = static_cast<double>(run.iterations);
    const Times times{run.real_accumulated_time / count, run.cpu_accumulated_time / count};
    Operation& entry = operations_[run.family_index];
    entry.name = operation;
    Times& best = entry.best.try_emplace(name.substr(bar + 1), times).first->second;
    best = {std::min(best.real, times.real), std::min(best.processor, times.processor)};
  }
}

// The contenders of one operation stand beside each other, where the first of them was registered.
std::vector<RatioReporter::Operation> RatioReporter::Joined() const {
  std::vector<Operation> joined;
  for (const auto& [place, operation] : operations_) {
    auto same =
        std::find_if(joined.begin(), joined.end(),
                     [&wanted = operation.name](const Operation& other) { return other.name == wanted; });
    if (same == joined.end()) same = joined.insert(joined.end(), {operation.name, {}});
    same->best.insert(operation.best.begin(), operation.best.end());
  }
  return joined;
}

void RatioReporter::PrintTable(const std::string& heading, const std::vector<Target>& targets) const {
  std::printf(
      "\n### %s\n\n| Operation | Sonaro | Baseline | its time | times slower | by processor time | floor / "
      "aim | |\n"
      "|---|---|---|---|---|---|---|---|\n",
      heading.c_str());
  for (const Operation& operation : Joined()) {
    const auto own = operation.best.find(kSonaro);
    if (own == operation.best.end()) continue;
    for (const auto& [baseline, times] : operation.best) {
      if (baseline == kSonaro) continue;
      const bool inProcess = baseline != kRipgrep;
      const double ratio = times.real / own->second.real;
      const double byProcessor = times.processor / own->second.processor;
      const double smaller = inProcess ? std::min(ratio, byProcessor) : ratio;
      std::printf("| %s | %s | %s | %s | %s | %s |%s\n", operation.name.c_str(),
                  TimeText(own->second.real).c_str(), baseline.c_str(), TimeText(times.real).c_str(),
                  FactorText(ratio).c_str(), inProcess ? FactorText(byProcessor).c_str() : "",
                  TargetText(targets, operation.name, baseline, smaller).c_str());
    }
  }
  std::fflush(stdout);
}

}  // namespace sonaro
