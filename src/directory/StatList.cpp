// Every operation opens the table and closes it (WithTable). That is cheap, since Vmx keeps what it read, and
// it is what makes an update visible at once: an opening notices that the files are another generation, and
// whatever was made of the old one goes with it.
#include "directory/StatList.h"

#include <algorithm>
#include <limits>
#include <new>

#include "base/DataFolder.h"
#include "base/OwnFiles.h"
#include "directory/ByteScan.h"
#include "directory/StationListFile.h"
#include "directory/StationSearch.h"
#include "directory/TypedSearch.h"
#include "directory/Vmx.h"

namespace sonaro {
namespace {

// Without an ending: two files of this name make the table.
constexpr std::string_view kTableName = "\\statorg";

// The `number`th searched field, from 1 on, as it stands in the search column. A forged table can have fewer
// tabs than fields.
std::string_view SearchedField(const SearchColumn& column, std::size_t record, std::size_t number) {
  std::string_view rest =
      column.text.substr(column.starts[record], column.starts[record + 1] - column.starts[record]);
  if (number > 1) rest.remove_prefix(std::min(FindTab(rest, number - 1) + 1, rest.size()));
  return rest.substr(0, FindByte(rest, kFieldSeparator));
}

}  // namespace

StatList::StatList(DataFolder& data) : data_(data), vmx_(std::make_unique<Vmx>(data.FileSystem())) {}

StatList::~StatList() = default;

TableStatus StatList::LastStatus() const { return status_; }

bool StatList::CreateStationTable(std::string_view fileName) {
  status_ = vmx_->VmxCreate(TablePath(data_, fileName), kStationTableDefinition, kSearchedStationFields);
  return status_ == TableStatus::Success;
}

StatList::Handle StatList::OpenStationTable(std::string_view fileName, OpenMode mode) {
  const Handle handle = vmx_->VmxOpen(TablePath(data_, fileName),
                                      mode == OpenMode::Write ? VmxOpenMode::Write : VmxOpenMode::Read);
  status_ = vmx_->LastStatus();
  return handle;
}

void StatList::CloseStationTable(Handle handle) {
  if (handle != 0) status_ = vmx_->VmxClose(handle);
}

// Counted: tests tell by the number of look-ups what a list on the screen costs.
StationRecord StatList::GetStation(Handle handle, std::int32_t stationId) {
  if (handle == 0) return {};
  ++lookUps_;
  VmxRecord record;
  status_ = vmx_->VmxGet(handle, std::to_string(stationId), VmxReadMode::Key, record);
  if (status_ != TableStatus::Success) return {};
  return StationView{record.key, record.fields}.Copy();
}

bool StatList::PutStation(Handle handle, const StationRecord& record) {
  if (record.Empty()) return true;
  status_ = vmx_->VmxPut(handle, std::to_string(record.StationId), record.fields);
  return Stored(status_);
}

bool StatList::RebuildStationTable() {
  try {
    status_ = BuildStationTable(data_.FileSystem(), data_.Path(guide_file::kStations),
                                TablePath(data_, kTableName));
  } catch (const std::bad_alloc&) {
    status_ = TableStatus::NoMemory;
  }
  return status_ == TableStatus::Success;
}

// Whether the table is whole and was made of this list. A list that cannot be read to its end is no reason to
// doubt the table.
bool StatList::MadeOf(InputFile& list, TableCheck check) {
  TableSource source{};
  if (vmx_->Source(TablePath(data_, kTableName), source) != TableStatus::Success) return false;
  // The size first: it costs nothing, and the checksum needs the whole list.
  if (source.size != list.Size()) return false;
  if (check == TableCheck::Lengths) return true;
  const auto found = SourceOf(list);
  return (!found || *found == source) && Verify();
}

// Called when there is no list to rebuild from. A table that works is kept; one that does not would fail at
// every use and is removed, so that the start offers to download a directory.
TableCare StatList::KeepWithoutList() {
  if (Verify() && StationCount() > 0) return TableCare::Sound;
  if (status_ != TableStatus::NoTable) vmx_->VmxKill(TablePath(data_, kTableName));
  return TableCare::NoDirectory;
}

// The list is what counts and the table is made from it. A list that exists but cannot be opened, since an
// update or a virus scanner holds it, is no reason to throw a table away.
TableCare StatList::EnsureStationTable(TableCheck check) {
  Files& files = data_.FileSystem();
  const std::string path = data_.Path(guide_file::kStations);
  try {
    const std::unique_ptr<InputFile> list = files.Open(path);
    if (!list && files.Exists(path)) return Verify() ? TableCare::Sound : TableCare::NotMade;
    if (list && MadeOf(*list, check) && StationCount() > 0) return TableCare::Sound;
    if (!list || !HoldsStation(*list)) return KeepWithoutList();
  } catch (const std::bad_alloc&) {
    status_ = TableStatus::NoMemory;
    return TableCare::NotMade;
  }
  return RebuildStationTable() ? TableCare::Made : TableCare::NotMade;
}

// Opens the station table for one operation, whose status stays the last one. Without a table, or without
// memory for the result, the result is empty.
template <typename Operation>
auto StatList::WithTable(Operation operation) -> decltype(operation(Handle{})) {
  decltype(operation(Handle{})) result{};
  const Handle handle = OpenStationTable(kTableName, OpenMode::Read);
  if (handle == 0) return result;
  try {
    result = operation(handle);
  } catch (const std::bad_alloc&) {
    status_ = TableStatus::NoMemory;
  }
  vmx_->VmxClose(handle);
  return result;
}

// Copies: what a visitor sees is gone with the next record.
std::vector<StationRecord> StatList::GetAll(Handle handle, std::span<const std::int32_t> ids) {
  std::vector<StationRecord> records;
  records.reserve(ids.size());
  Visit(handle, ids, [&](const StationView& station) { records.push_back(station.Copy()); });
  return records;
}

void StatList::Visit(Handle handle, std::span<const std::int32_t> ids, const Visitor& visit) {
  lookUps_ += ids.size();
  status_ = vmx_->VmxVisit(handle, ids, [&visit](const VmxRecord& record) {
    visit({record.key, record.fields});
  });
}

void StatList::VisitStations(std::span<const std::int32_t> ids, const Visitor& visit) {
  WithTable([&](Handle handle) {
    Visit(handle, ids, visit);
    return true;
  });
}

void StatList::VisitAllStations(const Visitor& visit) {
  WithTable([&](Handle handle) {
    status_ = vmx_->VmxVisitAll(handle, [&visit](const VmxRecord& record) {
      visit({record.key, record.fields});
    });
    return true;
  });
}

std::vector<StationRecord> StatList::GetStations(std::span<const std::int32_t> ids) {
  return WithTable([&](Handle handle) { return GetAll(handle, ids); });
}

std::vector<std::int32_t> StatList::KnownStations(std::span<const std::int32_t> ids) {
  return WithTable([&](Handle handle) {
    std::vector<std::int32_t> known;
    status_ = vmx_->VmxKnown(handle, ids, known);
    return known;
  });
}

StationRecord StatList::FindStation(std::int32_t stationId) {
  return WithTable([&](Handle handle) { return GetStation(handle, stationId); });
}

// Record numbers become identifiers here and nowhere else: they mean nothing once the table is closed.
std::vector<std::int32_t> StatList::Search(Handle handle, std::string_view text, bool allWords) {
  std::vector<std::int32_t> ids;
  TableImage* const image = vmx_->SearchImage(handle);
  status_ = vmx_->LastStatus();
  if (!image) return ids;
  const std::vector<std::uint32_t> found =
      FindRecords(image->Column(), image->Index(), SearchWords(text), allWords);
  ids.reserve(found.size());
  for (const std::uint32_t index : found) ids.push_back(image->KeyAt(index));
  return ids;
}

std::vector<std::int32_t> StatList::SearchStationIds(std::string_view text, bool allWords) {
  return WithTable([&](Handle handle) { return Search(handle, text, allWords); });
}

std::vector<StationRecord> StatList::SearchStations(std::string_view text, bool allWords) {
  return WithTable([&](Handle handle) { return GetAll(handle, Search(handle, text, allWords)); });
}

// Opens the table, ready to be searched, for one operation.
template <typename Operation>
auto StatList::WithSearchImage(Operation operation) {
  return WithTable([&](Handle handle) {
    TableImage* const image = vmx_->SearchImage(handle);
    status_ = vmx_->LastStatus();
    return image ? operation(handle, *image) : decltype(operation(handle, *image))();
  });
}

std::vector<std::int32_t> StatList::BestMatches(std::string_view typed, std::size_t max) {
  return WithSearchImage([&](Handle, TableImage& image) {
    std::vector<std::int32_t> ids;
    const TypedWords words(typed);
    for (const std::uint32_t record : BestRecords(image.Column(), image.Index(), image.Plain(), words, max))
      ids.push_back(image.KeyAt(record));
    return ids;
  });
}

// One search over all stations and one look at each of `ids`: no record is read.
std::vector<std::int32_t> StatList::FilterStations(std::span<const std::int32_t> ids,
                                                   std::string_view typed) {
  return WithSearchImage([&](Handle, TableImage& image) {
    const TypedWords words(typed);
    std::vector<bool> matches(image.RecordCount(), words.Empty());
    matches.push_back(false);  // of no record, which IndexOf gives for an unknown identifier
    for (const std::uint32_t record : TypedRecords(image.Column(), image.Index(), image.Plain(), words))
      matches[record] = true;
    std::vector<std::int32_t> left;
    std::uint32_t record = 0;
    for (const std::int32_t id : ids) {
      record = image.IndexOf(id, record);
      if (matches[record]) left.push_back(id);
    }
    return left;
  });
}

void StatList::PrepareTyping() {
  WithSearchImage([](Handle, TableImage& image) {
    image.Plain();
    return true;
  });
}

// Searched fields are taken from the search column, whose letter case does not count in a sort; others take a
// pass over all records.
void StatList::AddTexts(Handle handle, TableImage& image, StationField field, const SortKeyOf& sortKey,
                        std::size_t records) {
  const auto number = static_cast<std::size_t>(field);
  FieldRanks& ranks = image.Ranks(number);
  if (number <= kSearchedStationFields) {
    const std::size_t end = std::min<std::size_t>(image.RecordCount(), ranks.Count() + records);
    for (std::size_t record = ranks.Count(); record < end; ++record)
      ranks.Add(SearchedField(image.Column(), record, number), sortKey);
  } else {
    ranks = {};  // what a pass that ran out of memory has left
    status_ = vmx_->VmxVisitAll(handle, [&](const VmxRecord& record) {
      ranks.Add(StationView{record.key, record.fields}[field], sortKey);
    });
  }
  if (status_ == TableStatus::Success && ranks.Count() == image.RecordCount()) ranks.Finish();
}

// In parts of `records`, for a caller that must not keep the window waiting; true when there is nothing left
// to do, also when it failed and another call would fail as well.
bool StatList::MakeRanks(StationField field, const SortKeyOf& sortKey, std::size_t records) {
  bool more = false;
  WithSearchImage([&](Handle handle, TableImage& image) {
    const FieldRanks& ranks = image.Ranks(static_cast<std::size_t>(field));
    if (!ranks.Finished()) AddTexts(handle, image, field, sortKey, records);
    more = status_ == TableStatus::Success && !ranks.Finished();
    return true;
  });
  return !more;
}

// Ranks among themselves, of stations that are read one by one.
std::vector<std::uint32_t> StatList::RanksOfFew(std::span<const std::int32_t> ids, StationField field,
                                                const SortKeyOf& sortKey) {
  std::vector<std::uint32_t> result(ids.size());
  std::vector<std::size_t> known;  // places in `ids`
  FieldRanks ranks;
  VisitStations(ids, [&](const StationView& station) {
    // Unknown ones are left out of the visit: the next identifier that is this one is its place.
    std::size_t place = known.empty() ? 0 : known.back() + 1;
    while (ids[place] != station.StationId) ++place;
    known.push_back(place);
    ranks.Add(station[field], sortKey);
  });
  ranks.Finish();
  for (std::size_t i = 0; i < known.size(); ++i) result[known[i]] = ranks.Of(i);
  return result;
}

std::vector<std::uint32_t> StatList::RanksOf(std::span<const std::int32_t> ids, StationField field,
                                             const SortKeyOf& sortKey) {
  // So few records are read, and their keys made, within some milliseconds.
  constexpr std::size_t kFew = 2000;
  if (ids.size() <= kFew) return RanksOfFew(ids, field, sortKey);
  MakeRanks(field, sortKey, std::numeric_limits<std::uint32_t>::max());
  std::vector<std::uint32_t> result = WithSearchImage([&](Handle, TableImage& image) {
    const FieldRanks& ranks = image.Ranks(static_cast<std::size_t>(field));
    std::vector<std::uint32_t> found(ids.size());
    std::uint32_t record = 0;
    for (std::size_t i = 0; i < ids.size() && ranks.Finished(); ++i) {
      record = image.IndexOf(ids[i], record);
      if (record != image.RecordCount()) found[i] = ranks.Of(record);
    }
    return found;
  });
  result.resize(ids.size());  // also without a table
  return result;
}

std::uint32_t StatList::StationCount() {
  return WithTable([&](Handle handle) { return vmx_->RecordCount(handle); });
}

bool StatList::Verify() {
  status_ = vmx_->Verify(TablePath(data_, kTableName));
  return status_ == TableStatus::Success;
}

}  // namespace sonaro
