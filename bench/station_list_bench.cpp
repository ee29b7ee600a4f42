// How long a station list of 40,000 rows, or as many as are asked for, takes from its identifiers to rows
// that can be shown, and to sort. The directory is made up and lies in a folder of its own under the system's
// temporary folder.
#include <benchmark/benchmark.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <random>
#include <string>

#include "base/DataFolder.h"
#include "directory/Scrambling.h"
#include "directory/StatList.h"
#include "mainwindow/StationListFiller.h"
#include "platform/posix/FilesPosix.h"
#include "settings/Strings.h"
#include "stations/PersonalStations.h"
#include "stations/RecentList.h"
#include "stations/StationSource.h"

namespace sonaro {
namespace {

// SONARO_BENCH_STATIONS in the environment, else as many as the real directory has, nearly.
int StationsWanted() {
  const char* const wanted = std::getenv("SONARO_BENCH_STATIONS");
  return wanted != nullptr ? std::atoi(wanted) : 40000;
}

class NoStrings : public Strings {
 public:
  std::string Load(int) const override { return {}; }
};

std::string MadeUpName(std::mt19937& random) {
  static const char* const kWords[] = {"Radio", "Jazz", "FM", "Классика", "Música", "Night", "One", "Ö1"};
  std::string name;
  for (int word = 0; word < 3; ++word) name += std::string(kWords[random() % 8]) + " ";
  return name + std::to_string(random() % 1000);
}

// Everything that a list is filled from, built once.
class Guide {
 public:
  Guide() {
    std::filesystem::create_directories(folder_);
    std::ofstream list(folder_ + "/Station.snr");
    std::mt19937 random(1);
    for (int id = 1; id <= StationsWanted(); ++id) {
      list << id << '\t' << MadeUpName(random) << "\tMP3\tGhent, Belgium\tJazz & Blues\tOne of many stations."
           << "\tmhttp://stream" << id << ".example/live\t\t\t\thttp://station" << id << ".example/\t128\t"
           << random() % 10 << "\t5\t5\t5\t" << random() % 5 << '\n';
      ids_ += std::to_string(id) + ' ';
    }
    list.close();
    stations_.RebuildStationTable();
  }
  ~Guide() { std::filesystem::remove_all(folder_); }

  StationListFiller& Lists() { return lists_; }
  StationRows Rows() { return StationRows(source_); }
  const std::string& Ids() const { return ids_; }

 private:
  const std::string folder_ =
      (std::filesystem::temp_directory_path() / ("sonaro-bench-" + std::to_string(std::rand()))).string();
  FilesPosix files_;
  DataFolder data_{files_, folder_, '/'};
  StatList stations_{data_};
  PersonalStations personal_{data_};
  RecentList recent_{data_};
  NoStrings strings_;
  StationSource source_{stations_, personal_, BuiltInAlphabets(), strings_};
  StationListFiller lists_{stations_, source_, recent_, strings_};
  std::string ids_;
};

Guide& TheGuide() {
  static Guide guide;
  return guide;
}

void FillFromIds(benchmark::State& state) {
  StationRows rows = TheGuide().Rows();
  for (auto _ : state) TheGuide().Lists().FillListFromIds(TheGuide().Ids(), rows);
  state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(rows.Count()));
}
BENCHMARK(FillFromIds)->Unit(benchmark::kMillisecond);

void FillFromSearch(benchmark::State& state) {
  StationRows rows = TheGuide().Rows();
  for (auto _ : state) benchmark::DoNotOptimize(TheGuide().Lists().FillListFromSearch("MANY", true, rows));
  state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(rows.Count()));
}
BENCHMARK(FillFromSearch)->Unit(benchmark::kMillisecond);

// By name, where nearly all texts differ, and by a rating, where nearly none do.
void Sort(benchmark::State& state) {
  StationRows rows = TheGuide().Rows();
  TheGuide().Lists().FillListFromIds(TheGuide().Ids(), rows);
  const int key = static_cast<int>(state.range(0));
  for (auto _ : state) rows.SortBy(key, key < 4 ? SortOrder::Ascending : SortOrder::Descending);
}
BENCHMARK(Sort)->Arg(0)->Arg(4)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace sonaro
