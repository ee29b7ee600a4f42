// The baseline: the station table in SQLite, with journal and flushing switched off. Every failure ends the
// program, since a comparison with something that failed would be worthless.
#pragma once

#include <sqlite3.h>

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "baselines/SyntheticList.h"
#include "directory/StationRecord.h"

namespace sonaro {

enum class FullText { None, Trigrams };

// Builds a new database at `path` from the station list.
void BuildSqliteTable(const std::string& path, const std::string& listPath, FullText fullText);

class SqliteTable {
 public:
  explicit SqliteTable(const std::string& path);
  ~SqliteTable();
  SqliteTable(const SqliteTable&) = delete;
  SqliteTable& operator=(const SqliteTable&) = delete;

  void Begin();
  void End();
  bool Get(std::int32_t id, StationRecord& record);
  // The same without copying: calls `visit` with the fields, valid meanwhile.
  template <typename Visit>
  void Look(std::int32_t id, Visit visit) {
    if (Fields fields; Find(id, fields)) visit(fields);
    sqlite3_reset(get_);
  }
  // Looks at all fields of all records in the order of their identifiers, without copying them; the number of
  // records.
  std::size_t Scan();
  std::vector<std::int32_t> SearchByLike(const Query& query);
  std::vector<std::int32_t> SearchByTrigrams(const Query& query);

 private:
  using Fields = std::array<std::string_view, StationRecord::kFieldCount>;
  bool Find(std::int32_t id, Fields& fields);
  std::vector<std::int32_t> Ids(sqlite3_stmt* statement);

  sqlite3* database_ = nullptr;
  sqlite3_stmt* get_ = nullptr;
};

}  // namespace sonaro
