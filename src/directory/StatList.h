// The station directory: the table "\statorg" built from "\Station.snr", looked up by identifier and
// searched. Owned by Application. Opening is cheap: the table stays in memory between operations as long as
// the files on disk are still the generation that was read, and no file is held open, so that an update can
// replace them.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/Text.h"
#include "directory/StationRecord.h"
#include "directory/TableStatus.h"

namespace sonaro {

class DataFolder;
class FieldRanks;
class InputFile;
class TableImage;
class Vmx;

// How EnsureStationTable left the table.
enum class TableCare {
  Sound,       // as it was: whole, and made of the list that is there
  Made,        // made anew from the list
  NotMade,     // it ought to be made anew and could not be; what was there stays
  NoDirectory  // there is no table, and no list with a station to make one of
};

// How closely EnsureStationTable looks.
enum class TableCheck {
  Lengths,  // of table and list: what a start that died left behind shows in them. Reads a header
  Whole     // every byte of both
};

class StatList {
 public:
  static constexpr std::size_t kMaxBestMatches = 200;

  using Handle = int;  // 0: not open
  enum class OpenMode { Read, Write };

  explicit StatList(DataFolder& data);
  ~StatList();

  // The result of the last operation on the table; each one overwrites it.
  TableStatus LastStatus() const;

  // Deletes the table's files and creates an empty table. `fileName` is a name in the data folder,
  // "\statorg".
  bool CreateStationTable(std::string_view fileName);
  Handle OpenStationTable(std::string_view fileName, OpenMode mode);
  // Closing a table opened for writing puts the new generation in place.
  void CloseStationTable(Handle handle);
  // The record with this key; an empty record when the handle is 0 or nothing was found.
  StationRecord GetStation(Handle handle, std::int32_t stationId);
  // True when the last status is 0 or 2. A record whose identifier is 0 is not written and yields true.
  bool PutStation(Handle handle, const StationRecord& record);

  // Throws the table away and builds it anew from "\Station.snr". A crash at any moment leaves the old or the
  // new table. False when the list could not be read or the table not written; the old table then stays.
  bool RebuildStationTable();

  // The table that belongs to "\Station.snr": one that is missing, damaged or of another list is made anew.
  // Without a list that holds a station a whole table stays, and a damaged or empty one is removed, so that
  // the directory counts as missing. Compares lengths first, then reads list and table once each.
  [[nodiscard]] TableCare EnsureStationTable(TableCheck check = TableCheck::Whole);

  // A page of a list: opens the table once and looks each identifier up once (LookUps). Unknown identifiers
  // are left out; the order is that of `ids`.
  std::vector<StationRecord> GetStations(std::span<const std::int32_t> ids);
  // The same without a copy of any text: a view is good until `visit` returns, which must not ask the
  // directory for anything.
  using Visitor = std::function<void(const StationView&)>;
  void VisitStations(std::span<const std::int32_t> ids, const Visitor& visit);
  // The same for every station of the table, in key order.
  void VisitAllStations(const Visitor& visit);
  // Those of the identifiers that the table has, in their order. Reads no record, so it costs a small part of
  // what their texts cost.
  std::vector<std::int32_t> KnownStations(std::span<const std::int32_t> ids);
  // One look-up: open, get, close.
  StationRecord FindStation(std::int32_t stationId);

  // The identifiers of the matching stations in key order. Words are what stands between single blanks, at
  // most 100; a word matches when it occurs anywhere in one of the five searched fields (name, media type,
  // location, description, format), letter case ignored; all words or any word must match.
  std::vector<std::int32_t> SearchStationIds(std::string_view text, bool allWords);
  std::vector<StationRecord> SearchStations(std::string_view text, bool allWords);

  // While the user types: the best stations for the words so far, at most `max`. First those in whose name
  // every word begins a word, then those with all words in the name, then those with all words in the
  // searched fields, letter case and accents aside; each kind in key order, which is that of popularity. None
  // without words.
  std::vector<std::int32_t> BestMatches(std::string_view typed, std::size_t max = kMaxBestMatches);
  // What the filter box of a list leaves: those of `ids`, in their order, that have all words typed in their
  // searched fields, letter case and accents aside; without words all that are in the table.
  std::vector<std::int32_t> FilterStations(std::span<const std::int32_t> ids, std::string_view typed);
  // Reads and makes what the two need, so that the first key does not wait for it.
  void PrepareTyping();

  // For sorting: a number for each of `ids` whose order is the order of the field's texts by `sortKey`, which
  // is always the same function; equal for equal keys, 0 for a station that is not in the table. The numbers
  // of one call compare with each other only. A few stations are read for it. For many the ranks of all
  // stations are made, which takes a sort key for each text that differs, and kept as long as the table is
  // the same; from then on a station costs a look-up in memory.
  std::vector<std::uint32_t> RanksOf(std::span<const std::int32_t> ids, StationField field,
                                     const SortKeyOf& sortKey);
  // Makes the ranks of all stations beforehand, piece by piece: those of `records` more of them. True when
  // all are made, or cannot be.
  bool MakeRanks(StationField field, const SortKeyOf& sortKey, std::size_t records);

  // Identifiers looked up since this object was made: the work that an operation costs.
  std::uint64_t LookUps() const { return lookUps_; }
  // Records in the table; 0 when it cannot be opened.
  std::uint32_t StationCount();
  // True when the table's files exist, fit together and pass all their checks (reads them once).
  bool Verify();

 private:
  bool MadeOf(InputFile& list, TableCheck check);
  TableCare KeepWithoutList();
  std::vector<std::int32_t> Search(Handle handle, std::string_view text, bool allWords);
  template <typename Operation>
  auto WithSearchImage(Operation operation);
  std::vector<std::uint32_t> RanksOfFew(std::span<const std::int32_t> ids, StationField field,
                                        const SortKeyOf& sortKey);
  void AddTexts(Handle handle, TableImage& image, StationField field, const SortKeyOf& sortKey,
                std::size_t records);
  void Visit(Handle handle, std::span<const std::int32_t> ids, const Visitor& visit);
  std::vector<StationRecord> GetAll(Handle handle, std::span<const std::int32_t> ids);
  template <typename Operation>
  auto WithTable(Operation operation) -> decltype(operation(Handle{}));

  DataFolder& data_;
  std::unique_ptr<Vmx> vmx_;
  TableStatus status_ = TableStatus::Success;
  std::uint64_t lookUps_ = 0;
};

}  // namespace sonaro
