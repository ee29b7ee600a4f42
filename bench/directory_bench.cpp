// Measures the station directory beside SQLite and ripgrep in one run and prints the quotients.
//   directory_bench [--stations N,N,...] [--list STATION.SNR] [--dir FOLDER] [Google Benchmark's own options]
// Every contender works on files in FOLDER (a new one beside the program unless given), which stay in the
// page cache.
#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <random>
#include <sstream>

#include "base/DataFolder.h"
#include "baselines/RatioReporter.h"
#include "baselines/Ripgrep.h"
#include "baselines/SyntheticList.h"
#include "directory/StatList.h"
#include "directory/StationListFile.h"
#include "directory/Vmx.h"
#include "platform/posix/FilesPosix.h"
#ifdef SONARO_SQLITE
#include "baselines/SqliteTable.h"
#endif

namespace sonaro {
namespace {

namespace fs = std::filesystem;
using benchmark::State;

constexpr std::size_t kBatch = 5000;

void WriteFile(const fs::path& path, const std::string& bytes) {
  std::ofstream(path, std::ios::binary).write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

// A data folder with a station list, its table, and the same in the baselines' forms.
struct Directory {
  Directory(const fs::path& where, const std::string& list) : folder(where) {
    fs::create_directories(folder);
    WriteFile(folder / "Station.snr", list);
    Require(stations.RebuildStationTable(), "building the table");
    RememberIds();
#ifdef SONARO_SQLITE
    BuildSqliteTable(Database(), List(), FullText::Trigrams);
#endif
  }
  static void Require(bool held, const std::string& what) {
    if (held) return;
    std::fprintf(stderr, "failed: %s\n", what.c_str());
    std::exit(1);
  }
  void RememberIds() {
    Vmx vmx(files);
    const Vmx::Handle handle = vmx.VmxOpen(folder / "statorg", VmxOpenMode::Read);
    VmxRecord record;
    while (vmx.VmxGet(handle, {}, VmxReadMode::Next, record) == TableStatus::Success)
      ids.push_back(record.key);
    std::mt19937 random(1);
    for (std::size_t i = 0; i < kBatch; ++i) someIds.push_back(ids[random() % ids.size()]);
  }
  std::string List() const { return folder / "Station.snr"; }
  std::string Database() const { return folder / "stations.db"; }
  bool IsLarge() const { return ids.size() > 200'000; }

  fs::path folder;
  FilesPosix files;
  DataFolder data{files, folder.string(), '/'};
  StatList stations{data};
  std::vector<std::int32_t> ids;
  std::vector<std::int32_t> someIds;  // in no order
};

// Slow measurements of large directories run once in every repetition.
enum class Cost { Normal, Slow };

template <typename Body>
void Add(const Directory& directory, const std::string& operation, const std::string& contender, Cost cost,
         Body body) {
  auto* const added = benchmark::RegisterBenchmark((operation + "|" + contender).c_str(),
                                                   [body](State& state) { body(state); });
  added->UseRealTime()->Unit(benchmark::kMicrosecond);
  if (cost == Cost::Slow && directory.IsLarge()) added->Iterations(1)->Repetitions(1);
}

// Measures `work` with `prepare` before each round left out of the time.
template <typename Prepare, typename Work>
auto Prepared(Prepare prepare, Work work) {
  return [=](State& state) {
    for ([[maybe_unused]] auto _ : state) {
      state.PauseTiming();
      prepare();
      state.ResumeTiming();
      work();
    }
  };
}

template <typename Work>
auto Plain(Work work) {
  return [=](State& state) {
    for ([[maybe_unused]] auto _ : state) benchmark::DoNotOptimize(work());
  };
}

// Calls `work` with one identifier after the other.
template <typename Work>
auto OverIds(const Directory& directory, Work work) {
  return [=, &directory](State& state) {
    std::size_t next = 0;
    for ([[maybe_unused]] auto _ : state) {
      benchmark::DoNotOptimize(work(directory.someIds[next]));
      next = (next + 1) % directory.someIds.size();
    }
  };
}

void CopyFile(Files& files, const std::string& from, const std::string& to) {
  const std::unique_ptr<InputFile> source = files.Open(from);
  const std::unique_ptr<OutputFile> target = files.Create(to);
  std::vector<char> buffer(256 * 1024);
  for (std::uint64_t at = 0; at < source->Size();) {
    const auto length = static_cast<std::size_t>(std::min<std::uint64_t>(buffer.size(), source->Size() - at));
    Directory::Require(source->ReadAt(at, buffer.data(), length) && target->Append({buffer.data(), length}),
                       "copy");
    at += length;
  }
  Directory::Require(target->Commit(Durability::Cached), "copy");
}

void AddRebuild(Directory& directory, const std::string& operation) {
  const auto removeTable = [&directory] {
    fs::remove(directory.folder / "statorg.isd");
    fs::remove(directory.folder / "statorg.ism");
  };
  const auto rebuild = [&directory] {
    Directory::Require(directory.stations.RebuildStationTable(), "rebuild");
  };
  Add(directory, operation, kSonaro, Cost::Normal, Prepared(removeTable, rebuild));

  const std::string copy = directory.folder / "copy";
  Add(directory, operation, "copy of the list", Cost::Normal,
      Prepared([copy] { fs::remove(copy); },
               [&directory, copy] { CopyFile(directory.files, directory.List(), copy); }));
#ifdef SONARO_SQLITE
  const std::string database = directory.folder / "rebuilt.db";
  Add(directory, operation, "SQLite", Cost::Slow,
      Prepared([database] { fs::remove(database); },
               [&directory, database] { BuildSqliteTable(database, directory.List(), FullText::None); }));
  Add(directory, operation, "SQLite with FTS5", Cost::Slow,
      Prepared([database] { fs::remove(database); },
               [&directory, database] { BuildSqliteTable(database, directory.List(), FullText::Trigrams); }));
#endif
}

void AddReplacingRebuild(Directory& directory) {
  const std::string operation = "rebuild over an old table";
  Add(directory, operation, kSonaro, Cost::Normal,
      Prepared([] {},
               [&directory] { Directory::Require(directory.stations.RebuildStationTable(), "rebuild"); }));
  const std::string copy = directory.folder / "copied";
  Add(directory, operation, "copy over an old copy", Cost::Normal,
      Prepared([] {},
               [&directory, copy] {
                 CopyFile(directory.files, directory.List(), copy + ".new");
                 directory.files.Replace(copy + ".new", copy, Durability::Cached);
               }));
}

void AddLookUp(Directory& directory) {
  StatList& stations = directory.stations;
  Add(directory, "open, get, close", kSonaro, Cost::Normal,
      OverIds(directory, [&stations](std::int32_t id) { return stations.FindStation(id); }));
  const auto findFresh = [&directory](std::int32_t id) { return StatList(directory.data).FindStation(id); };
  Add(directory, "open, get, close, nothing in memory", kSonaro, Cost::Normal, OverIds(directory, findFresh));
  Add(directory, "get", kSonaro, Cost::Normal, [&](State& state) {
    const StatList::Handle handle = stations.OpenStationTable("\\statorg", StatList::OpenMode::Read);
    OverIds(directory, [&](std::int32_t id) { return stations.GetStation(handle, id); })(state);
    stations.CloseStationTable(handle);
  });
  const auto visit = [&directory](StatList& list) {
    std::size_t bytes = 0;
    list.VisitStations(directory.someIds, [&](const StationView& station) {
      benchmark::DoNotOptimize(station.fields.data());
      bytes += station.fields[0].size();
    });
    return bytes;
  };
  Add(directory, "5,000 stations", kSonaro, Cost::Normal,
      Plain([&stations, visit] { return visit(stations); }));
  Add(directory, "5,000 stations, nothing in memory", kSonaro, Cost::Normal, Plain([&directory, visit] {
        StatList fresh(directory.data);
        return visit(fresh);
      }));
  Add(directory, "5,000 stations, all kept", kSonaro, Cost::Normal,
      Plain([&] { return stations.GetStations(directory.someIds).size(); }));
#ifdef SONARO_SQLITE
  const std::string database = directory.Database();
  const auto one = [database](std::int32_t id) {
    StationRecord record;
    SqliteTable(database).Get(id, record);
    return record;
  };
  Add(directory, "open, get, close", "SQLite", Cost::Normal, OverIds(directory, one));
  Add(directory, "open, get, close, nothing in memory", "SQLite", Cost::Normal, OverIds(directory, one));
  Add(directory, "get", "SQLite, open to close", Cost::Normal, OverIds(directory, one));
  Add(directory, "get", "SQLite, in a transaction", Cost::Normal, [&directory, database](State& state) {
    SqliteTable table(database);
    table.Begin();
    OverIds(directory, [&](std::int32_t id) {
      StationRecord record;
      table.Get(id, record);
      return record;
    })(state);
    table.End();
  });
  const auto many = [&directory, database] {
    std::size_t bytes = 0;
    SqliteTable table(database);
    table.Begin();
    for (const std::int32_t id : directory.someIds) {
      table.Look(id, [&](const auto& fields) {
        benchmark::DoNotOptimize(fields.data());
        bytes += fields[0].size();
      });
    }
    table.End();
    return bytes;
  };
  Add(directory, "5,000 stations", "SQLite", Cost::Normal, Plain(many));
  Add(directory, "5,000 stations, nothing in memory", "SQLite", Cost::Normal, Plain(many));
  Add(directory, "5,000 stations, all kept", "SQLite", Cost::Normal, Plain([&directory, database] {
        std::vector<StationRecord> records;
        records.reserve(directory.someIds.size());
        SqliteTable table(database);
        table.Begin();
        for (const std::int32_t id : directory.someIds) table.Get(id, records.emplace_back());
        table.End();
        return records.size();
      }));
#endif
}

void AddScan(Directory& directory) {
  Add(directory, "scan of all fields", kSonaro, Cost::Normal, Plain([&directory] {
        std::size_t count = 0;
        StatList(directory.data).VisitAllStations([&count](const StationView& station) {
          benchmark::DoNotOptimize(station.fields.data());
          ++count;
        });
        Directory::Require(count == directory.ids.size(), "scan");
        return count;
      }));
#ifdef SONARO_SQLITE
  Add(directory, "scan of all fields", "SQLite", Cost::Normal, Plain([&directory] {
        const std::size_t count = SqliteTable(directory.Database()).Scan();
        Directory::Require(count == directory.ids.size(), "SQLite scan");
        return count;
      }));
#endif
}

std::string TextOf(const Query& query) {
  std::string text;
  for (const std::string& word : query.words) text += word + ' ';
  return text;
}

// Every contender must find the same stations before any is measured.
void AddSearch(Directory& directory, const Query& query) {
  StatList& stations = directory.stations;
  const std::string text = TextOf(query);
  const std::vector<std::int32_t> found = stations.SearchStationIds(text, query.allWords);
  std::printf("%s: %zu of %zu stations\n", query.name.c_str(), found.size(), directory.ids.size());
  const std::string operation = "search " + query.name;
  Add(directory, operation, kSonaro, Cost::Normal,
      Plain([&stations, text, query] { return stations.SearchStationIds(text, query.allWords).size(); }));
  if (query.words.size() == 1) {
    Add(directory, operation + ", first after the start", kSonaro, Cost::Normal,
        Plain([&directory, text, query] {
          return StatList(directory.data).SearchStationIds(text, query.allWords).size();
        }));
  }
#ifdef SONARO_SQLITE
  const auto like = [&directory, query] { return SqliteTable(directory.Database()).SearchByLike(query); };
  const auto trigrams = [&directory, query] {
    return SqliteTable(directory.Database()).SearchByTrigrams(query);
  };
  Directory::Require(trigrams() == found, "FTS5 finds the same: " + query.name);
  if (!directory.IsLarge() || query.words.size() == 1)
    Directory::Require(like() == found, "LIKE finds the same: " + query.name);
  Add(directory, operation, "SQLite LIKE", Cost::Slow, Plain([like] { return like().size(); }));
  Add(directory, operation, "SQLite FTS5", Cost::Normal, Plain([trigrams] { return trigrams().size(); }));
#endif
  if (RipgrepIsThere()) {
    Add(directory, operation, kRipgrep, Cost::Normal, Plain([&directory, query] {
          Directory::Require(SearchByRipgrep(query, directory.List()), "ripgrep");
          return 0;
        }));
  }
}

std::vector<Target> Targets(bool large) {
  std::vector<Target> targets = {
      {"rebuild", "SQLite", 5, 8},
      {"rebuild, shuffled list", "SQLite", large ? 8.0 : 5.0, large ? 17.0 : 8.0},
      {"get", "SQLite, open to close", 100, 200},
      {"open, get, close", "SQLite", 8, 18},
      {"open, get, close, nothing in memory", "SQLite", 8, 18},
      {"5,000 stations", "SQLite", large ? 2.0 : 5.0, large ? 2.0 : 8.0},
      {"5,000 stations, nothing in memory", "SQLite", large ? 2.0 : 5.0, large ? 2.0 : 8.0},
      {"scan of all fields", "SQLite", 7, 10},
      {"search 100 words, any", "SQLite LIKE", 70, 500}};
  for (const char* word : {"absent", "rare", "common"}) {
    const std::string operation = std::string("search ") + word + " word";
    targets.push_back({operation, "SQLite LIKE", 35, large ? 400.0 : 140.0});
    targets.push_back({operation, kRipgrep, large ? 5.0 : 15.0, large ? 85.0 : 55.0});
    if (operation != "search absent word") targets.push_back({operation, "SQLite FTS5", 1.5, 2.6});
  }
  return targets;
}

void Measure(const fs::path& folder, const std::string& heading, const std::string& list,
             const std::string& shuffled, const std::vector<Query>& queries) {
  Directory directory(folder, list);
  std::unique_ptr<Directory> other;
  if (!shuffled.empty()) other = std::make_unique<Directory>(folder / "shuffled", shuffled);
  std::printf("\n%s: %zu bytes\n", heading.c_str(), list.size());
  AddRebuild(directory, "rebuild");
  AddReplacingRebuild(directory);
  if (other) AddRebuild(*other, "rebuild, shuffled list");
  AddLookUp(directory);
  AddScan(directory);
  for (const Query& query : queries) AddSearch(directory, query);

  RatioReporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
  benchmark::ClearRegisteredBenchmarks();
  reporter.PrintTable(heading, Targets(directory.IsLarge()));
  fs::remove_all(folder);
}

struct Options {
  std::vector<std::uint32_t> counts = {10'000, 50'000, 1'000'000};
  std::string list;  // a real one, or none
  fs::path folder = "directory_bench_files";
};

Options ParseOptions(int argc, char** argv) {
  Options options;
  for (int i = 1; i + 1 < argc; i += 2) {
    const std::string name = argv[i];
    const std::string value = argv[i + 1];
    if (name == "--list") options.list = value;
    if (name == "--dir") options.folder = fs::path(value) / options.folder;  // which is deleted at the end
    if (name != "--stations") continue;
    options.counts.clear();
    std::stringstream numbers(value);
    for (std::string number; std::getline(numbers, number, ',');) {
      options.counts.push_back(static_cast<std::uint32_t>(std::stoul(number)));
    }
  }
  return options;
}

}  // namespace
}  // namespace sonaro

int main(int argc, char** argv) {
  std::vector<std::string> defaults = {"--benchmark_repetitions=5",
                                       "--benchmark_enable_random_interleaving=true",
                                       "--benchmark_min_time=0.05"};
  std::vector<char*> arguments = {argv[0]};
  for (std::string& argument : defaults) arguments.push_back(argument.data());
  arguments.insert(arguments.end(), argv + 1, argv + argc);
  int count = static_cast<int>(arguments.size());
  benchmark::Initialize(&count, arguments.data());

  const sonaro::Options options = sonaro::ParseOptions(count, arguments.data());
  if (!options.list.empty()) {
    sonaro::FilesPosix files;
    const std::string list = sonaro::ReadWholeFile(files, options.list).bytes;
    sonaro::Measure(options.folder, "the list " + options.list, list, "", sonaro::RealQueries());
  }
  for (const std::uint32_t stations : options.counts) {
    sonaro::Measure(options.folder, std::to_string(stations) + " stations",
                    sonaro::SyntheticList(stations, sonaro::ListOrder::Ascending),
                    sonaro::SyntheticList(stations, sonaro::ListOrder::Shuffled), sonaro::SyntheticQueries());
  }
  return 0;
}
