// Counts and times what the directory's logic does for each act of a user, one act after the other.
//   directory_acts [--stations N | --list STATION.SNR] [--rounds N]
// prints "act, tab, milliseconds" with the best of the rounds (9), in which all acts take turns. Under
// callgrind, told to collect within RunAct only and to dump after it, one round gives an act's instructions:
// scripts/measure does that.
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
        std::size_t result = 0;
        const auto begin = std::chrono::steady_clock::now();
        if (round == 0) {
          result = act.run();  // not counted: brings what stays in memory
        } else {
          RunAct(act.run, result);
        }
        const std::chrono::duration<double, std::milli> took = std::chrono::steady_clock::now() - begin;
        if (round != 0) act.best = std::min(act.best, took.count());
      }
    }
    for (const Act& act : acts_) std::printf("%s\t%.4f\n", act.name.c_str(), act.best);
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
  if (list.empty()) {
    std::ofstream(folder / "station.snr", std::ios::binary)
        << sonaro::SyntheticList(count, sonaro::ListOrder::Ascending);
  } else {
    fs::copy_file(list, folder / "station.snr");
  }
  sonaro::Acts(folder, list.empty() ? sonaro::SyntheticQueries() : sonaro::RealQueries()).Measure(rounds);
  fs::remove_all(folder);
}
