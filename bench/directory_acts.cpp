// Times what the directory's logic does for each act of a user, one act after the other.
//   directory_acts [--list STATION.SNR] [--stations N] [--rounds N]
// prints for each act its name, what it found and the best milliseconds of the rounds (9), in which all acts
// take turns, with tabs between. A list is repeated with other names until there are N stations; without one,
// stations are made up. Under callgrind, told to collect within RunAct only and to dump behind it, one round
// gives each act's instructions: scripts/measure-directory does that.
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <random>
#include <string>
#include <vector>

#include "base/DataFolder.h"
#include "baselines/SyntheticList.h"
#include "directory/StatList.h"
#include "platform/posix/FilesPosix.h"

extern "C" [[gnu::noinline]] void RunAct(const std::function<std::size_t()>& act, std::size_t& result) {
  result = act();
}

namespace sonaro {
namespace {

namespace fs = std::filesystem;

struct Act {
  std::string name;
  std::function<std::size_t()> run;
  std::size_t result = 0;
  double best = 1e9;
};

class Acts {
 public:
  Acts(const fs::path& folder, const std::vector<Query>& queries)
      : data_(files_, folder.string(), '/'), stations_(data_) {
    if (!stations_.RebuildStationTable()) std::exit(1);
    stations_.VisitAllStations([this](const auto& station) { ids_.push_back(station.StationId); });
    std::mt19937 random(1);
    for (int i = 0; i < 5000; ++i) some_.push_back(ids_[random() % ids_.size()]);
    AddReads();
    for (const Query& query : queries) AddSearch(query);
    AddTyping();
    AddSorting();
  }

  void Measure(int rounds) {
    for (int round = 0; round <= rounds; ++round) {
      for (Act& act : acts_) {
        const auto begin = std::chrono::steady_clock::now();
        if (round == 0) {
          act.result = act.run();  // not counted: brings what stays in memory
        } else {
          RunAct(act.run, act.result);
        }
        const std::chrono::duration<double, std::milli> took = std::chrono::steady_clock::now() - begin;
        if (round != 0) act.best = std::min(act.best, took.count());
      }
    }
    for (const Act& act : acts_) std::printf("%s\t%zu\t%.4f\n", act.name.c_str(), act.result, act.best);
  }

 private:
  std::size_t Visit(StatList& stations) {
    std::size_t bytes = 0;
    stations.VisitStations(some_, [&](const auto& station) { bytes += station.fields[0].size(); });
    return bytes;
  }
  void AddReads() {
    acts_.push_back({"5,000 stations", [this] { return Visit(stations_); }});
    acts_.push_back({"5,000 stations, nothing in memory", [this] {
                       StatList fresh(data_);
                       return Visit(fresh);
                     }});
    acts_.push_back({"scan of all fields", [this] {
                       std::size_t count = 0;
                       StatList(data_).VisitAllStations(
                           [&](const auto& station) { count += station.fields[0].size(); });
                       return count;
                     }});
    acts_.push_back({"a screen of 20 rows", [this] {
                       return stations_.GetStations(std::span(ids_).subspan(ids_.size() / 2, 20)).size();
                     }});
  }
  void AddSearch(const Query& query) {
    std::string text;
    for (const std::string& word : query.words) text += word + ' ';
    acts_.push_back({"search " + query.name, [this, text, all = query.allWords] {
                       return stations_.SearchStationIds(text, all).size();
                     }});
    if (query.words.size() > 1) return;
    acts_.push_back({"search " + query.name + ", first after the start",
                     [this, text] { return StatList(data_).SearchStationIds(text, true).size(); }});
  }

  void AddTyping() {
    acts_.push_back(
        {"first key typed after the start", [this] { return StatList(data_).BestMatches("j").size(); }});
    for (const char* typed : {"r", "ra", "rad", "radio", "ja", "jaz", "jazz", "jazz p", "jazz paris", "mp3",
                              "dio", "cafe", "qz", "xqz", "kbit", "radio mp3", "e n", "japan english"})
      acts_.push_back({std::string("typed \"") + typed + '"',
                       [this, typed] { return stations_.BestMatches(typed).size(); }});
    for (const char* typed : {"a", "radio", "jazz", "qz"})
      acts_.push_back({std::string("list of all stations filtered by \"") + typed + '"',
                       [this, typed] { return stations_.FilterStations(ids_, typed).size(); }});
  }

  // A list of all stations by a column: the ranks and the sort of whole numbers.
  std::size_t Sort(StatList& stations, StationField field) {
    const std::vector<std::uint32_t> ranks = stations.RanksOf(ids_, field, FoldCase);
    std::vector<std::uint64_t> order(ranks.size());
    for (std::size_t i = 0; i < ranks.size(); ++i) order[i] = std::uint64_t{ranks[i]} << 32 | i;
    std::sort(order.begin(), order.end());
    return order.size();
  }
  void AddSorting() {
    const struct {
      const char* name;
      StationField field;
    } columns[] = {{"name", StationField::Name},
                   {"location", StationField::Location},
                   {"overall rating", StationField::OverallRating}};
    for (const auto& column : columns) {
      acts_.push_back({std::string("sort of all stations by ") + column.name + ", first", [this, column] {
                         StatList fresh(data_);
                         return Sort(fresh, column.field);
                       }});
      acts_.push_back({std::string("sort of all stations by ") + column.name,
                       [this, column] { return Sort(stations_, column.field); }});
    }
  }

  FilesPosix files_;
  DataFolder data_;
  StatList stations_;
  std::vector<std::int32_t> ids_;
  std::vector<std::int32_t> some_;  // in no order
  std::vector<Act> acts_;
};

}  // namespace
}  // namespace sonaro

namespace {

// The lines of a list in ascending order, each as often as it takes to get `count`.
std::string Grown(const std::string& path, std::size_t count) {
  std::ifstream file(path, std::ios::binary);
  std::vector<std::string> lines;
  for (std::string line; std::getline(file, line);) lines.push_back(line);
  if (lines.empty()) return {};
  const std::size_t turns = (count + lines.size() - 1) / lines.size();
  std::string list;
  for (std::size_t i = 0; i < count; ++i) {
    const std::string& line = lines[i / turns];
    const std::size_t id = line.find('\t');
    const std::size_t name = line.find('\t', id + 1);
    const std::size_t turn = i % turns;
    list += std::to_string(std::atol(line.c_str()) + static_cast<long>(turn)) + line.substr(id, name - id);
    if (turn != 0) list += ' ' + std::to_string(turn);
    list += line.substr(name) + '\n';
  }
  return list;
}

}  // namespace

int main(int argc, char** argv) {
  namespace fs = std::filesystem;
  std::uint32_t count = 41'270;
  std::string list;
  int rounds = 9;
  for (int i = 1; i + 1 < argc; i += 2) {
    const std::string name = argv[i];
    if (name == "--stations") count = static_cast<std::uint32_t>(std::atoi(argv[i + 1]));
    if (name == "--list") list = argv[i + 1];
    if (name == "--rounds") rounds = std::atoi(argv[i + 1]);
  }
  const fs::path folder =
      fs::temp_directory_path() / ("directory_acts-" + std::to_string(std::random_device()()));
  fs::create_directories(folder);
  std::ofstream(folder / "station.snr", std::ios::binary)
      << (list.empty() ? sonaro::SyntheticList(count, sonaro::ListOrder::Ascending) : Grown(list, count));
  sonaro::Acts(folder, list.empty() ? sonaro::SyntheticQueries() : sonaro::RealQueries()).Measure(rounds);
  fs::remove_all(folder);
}
