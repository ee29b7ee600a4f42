#include "baselines/SqliteTable.h"

#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>
#include <fstream>

#include "directory/StationListFile.h"

namespace sonaro {
namespace {

constexpr const char* kSearched[] = {"f1", "f2", "f3", "f4", "f5"};

void Check(sqlite3* database, int result) {
  if (result == SQLITE_OK || result == SQLITE_DONE || result == SQLITE_ROW) return;
  std::fprintf(stderr, "SQLite: %s\n", sqlite3_errmsg(database));
  std::exit(1);
}

void Run(sqlite3* database, const char* sql) {
  Check(database, sqlite3_exec(database, sql, nullptr, nullptr, nullptr));
}

sqlite3_stmt* Prepare(sqlite3* database, const std::string& sql) {
  sqlite3_stmt* statement = nullptr;
  Check(database, sqlite3_prepare_v2(database, sql.c_str(), -1, &statement, nullptr));
  return statement;
}

void BindText(sqlite3_stmt* statement, int place, std::string_view text) {
  sqlite3_bind_text(statement, place, text.data(), static_cast<int>(text.size()), SQLITE_STATIC);
}

sqlite3* Open(const std::string& path) {
  sqlite3* database = nullptr;
  Check(database, sqlite3_open(path.c_str(), &database));
  Run(database,
      "pragma journal_mode=off; pragma synchronous=off; pragma mmap_size=1073741824; pragma "
      "cache_size=-65536");
  return database;
}

void BindFields(sqlite3_stmt* statement, std::string_view text) {
  for (int field = 1; field <= 16; ++field) {
    const std::size_t end = field == 16 ? text.size() : std::min(text.find('\t'), text.size());
    BindText(statement, field + 1, text.substr(0, end));
    text.remove_prefix(std::min(end + 1, text.size()));
  }
}

std::string_view TextAt(sqlite3_stmt* statement, int column) {
  const auto* const text = reinterpret_cast<const char*>(sqlite3_column_text(statement, column));
  return {text, static_cast<std::size_t>(sqlite3_column_bytes(statement, column))};
}

void ReadFields(sqlite3_stmt* statement, StationRecord& record) {
  record.StationId = sqlite3_column_int(statement, 0);
  for (int field = 1; field <= 16; ++field) {
    record.fields[static_cast<std::size_t>(field) - 1] = TextAt(statement, field);
  }
}

std::string LikeCondition(const Query& query) {
  std::string condition;
  for (std::size_t i = 1; i <= query.words.size(); ++i) {
    condition += i == 1 ? "" : query.allWords ? " and " : " or ";
    condition += '(';
    for (const char* field : kSearched) {
      condition += (field == kSearched[0] ? "" : " or ") + std::string(field) + " like ?" + std::to_string(i);
    }
    condition += ')';
  }
  return condition;
}

}  // namespace

void BuildSqliteTable(const std::string& path, const std::string& listPath, FullText fullText) {
  std::remove(path.c_str());
  sqlite3* const database = Open(path);
  std::string columns;
  std::string places;
  for (int field = 1; field <= 16; ++field) {
    columns += ", f" + std::to_string(field) + " text";
    places += ", ?";
  }
  Run(database, ("create table stations(id integer primary key" + columns + ")").c_str());
  Run(database, "begin");
  sqlite3_stmt* const insert = Prepare(database, "insert or replace into stations values(?" + places + ")");
  std::ifstream list(listPath, std::ios::binary);
  std::vector<char> buffer(256 * 1024);
  list.rdbuf()->pubsetbuf(buffer.data(), static_cast<std::streamsize>(buffer.size()));
  StationLine station;
  for (std::string line; std::getline(list, line);) {
    if (!ParseStationLine(line, station)) continue;
    sqlite3_bind_int(insert, 1, station.id);
    BindFields(insert, station.text);
    Check(database, sqlite3_step(insert));
    sqlite3_reset(insert);
  }
  sqlite3_finalize(insert);
  if (fullText == FullText::Trigrams) {
    Run(database,
        "create virtual table words using fts5(f1, f2, f3, f4, f5, content='stations', content_rowid='id',"
        " tokenize='trigram'); insert into words(words) values('rebuild')");
  }
  Run(database, "commit");
  sqlite3_close(database);
}

SqliteTable::SqliteTable(const std::string& path) : database_(Open(path)) {
  get_ = Prepare(database_, "select * from stations where id = ?");
}

SqliteTable::~SqliteTable() {
  sqlite3_finalize(get_);
  sqlite3_close(database_);
}

void SqliteTable::Begin() { Run(database_, "begin"); }

void SqliteTable::End() { Run(database_, "commit"); }

bool SqliteTable::Get(std::int32_t id, StationRecord& record) {
  sqlite3_bind_int(get_, 1, id);
  const bool found = sqlite3_step(get_) == SQLITE_ROW;
  if (found) ReadFields(get_, record);
  sqlite3_reset(get_);
  return found;
}

bool SqliteTable::Find(std::int32_t id, Fields& fields) {
  sqlite3_bind_int(get_, 1, id);
  if (sqlite3_step(get_) != SQLITE_ROW) return false;
  for (int field = 1; field <= 16; ++field) fields[static_cast<std::size_t>(field) - 1] = TextAt(get_, field);
  return true;
}

std::size_t SqliteTable::Scan() {
  sqlite3_stmt* const all = Prepare(database_, "select * from stations order by id");
  std::size_t count = 0;
  std::string_view fields[16];
  for (; sqlite3_step(all) == SQLITE_ROW; ++count) {
    for (int field = 1; field <= 16; ++field) fields[field - 1] = TextAt(all, field);
    benchmark::DoNotOptimize(&fields[0]);
  }
  sqlite3_finalize(all);
  return count;
}

std::vector<std::int32_t> SqliteTable::SearchByLike(const Query& query) {
  sqlite3_stmt* const search =
      Prepare(database_, "select id from stations where " + LikeCondition(query) + " order by id");
  std::vector<std::string> patterns;
  for (const std::string& word : query.words) patterns.push_back('%' + word + '%');
  for (std::size_t i = 0; i < patterns.size(); ++i) BindText(search, static_cast<int>(i) + 1, patterns[i]);
  return Ids(search);
}

std::vector<std::int32_t> SqliteTable::SearchByTrigrams(const Query& query) {
  std::string match;
  for (const std::string& word : query.words) {
    match += (match.empty() ? "\"" : query.allWords ? " AND \"" : " OR \"") + word + '"';
  }
  sqlite3_stmt* const search =
      Prepare(database_, "select rowid from words where words match ? order by rowid");
  BindText(search, 1, match);
  return Ids(search);
}

std::vector<std::int32_t> SqliteTable::Ids(sqlite3_stmt* statement) {
  std::vector<std::int32_t> ids;
  while (sqlite3_step(statement) == SQLITE_ROW) ids.push_back(sqlite3_column_int(statement, 0));
  sqlite3_finalize(statement);
  return ids;
}

}  // namespace sonaro
