// A data folder is dozens of files that refer to one another by station identifier. They cannot be replaced
// in one step, so a mark is written before the first of them and removed after the last. While it is there,
// "check" reports the folder, "publish" refuses it, and another "make" repairs it. Each single file is
// replaced as a whole.
#include "output/DirectoryWriter.h"

#include <algorithm>
#include <numeric>
#include <set>
#include <vector>

#include "base/OwnFiles.h"
#include "base/Text.h"
#include "directory/EvList.h"
#include "directory/StatList.h"
#include "output/BrowseLists.h"
#include "settings/ServiceHosts.h"

namespace sonaro {
namespace {

std::string ListFileName(std::string_view file) { return "\\" + std::string(file) + ".snr"; }

// Saves files until one fails, and remembers which. After that Save does nothing, so that callers need to ask
// only once, at the end.
class Saver {
 public:
  explicit Saver(DataFolder& data) : data_(data) {}

  void Save(std::string_view name, std::string_view bytes) {
    if (failed_.empty() && !data_.Save(name, bytes)) failed_ = data_.Path(name);
  }
  const std::string& Failed() const { return failed_; }

 private:
  DataFolder& data_;
  std::string failed_;
};

// List files of genres and places that an earlier run wrote and this one did not. Only names that this
// program gives are touched: the folder may hold files of the user.
void RemoveStaleLists(DataFolder& data, const std::set<std::string>& written) {
  for (const std::string& name : data.FileSystem().List(data.Folder())) {
    const bool ours = (name.starts_with("genre-") || name.starts_with("place-")) && name.ends_with(".snr");
    if (ours && written.count("\\" + name) == 0) data.Remove("\\" + name);
  }
}

void SaveTree(Saver& saver, const CategoryTree& tree, const Directory& directory,
              std::set<std::string>& written) {
  for (const Category& category : tree.categories) {
    const std::string name = ListFileName(category.file);
    saver.Save(name, CategoryEntries(category, directory));
    written.insert(name);
  }
  saver.Save(tree.fileName, CategoryList(tree));
}

// A table is written even when there are no events, so that those of an earlier run do not stay.
bool WriteEventTable(EvList& events, EventSet set, const std::vector<EventRecord>& records) {
  if (!events.CreateEventTable(set)) return false;
  const EvList::Handle table = events.OpenEventTable(set, EvList::OpenMode::Write);
  if (table == 0) return false;
  bool written = true;
  for (const EventRecord& record : records) written = events.PutEvent(table, record) && written;
  // Closing is what writes the collected records, hence its status decides.
  events.CloseEventTable(table);
  return written && events.LastStatus() == TableStatus::Success;
}

std::string CannotWrite(const std::string& path) { return "Cannot write \"" + path + "\"."; }

}  // namespace

// The list is written in ascending order of the identifiers although stations are kept best first: building
// the table from a list in order is one pass without the whole list in memory.
std::string StationListText(const Directory& directory, const WriteOptions& options) {
  std::vector<std::size_t> order(directory.stations.size());
  std::iota(order.begin(), order.end(), std::size_t{0});
  std::sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) {
    return directory.stations[a].id < directory.stations[b].id;
  });
  std::string text;
  for (const std::size_t index : order) {
    const StationRecord record = RecordOf(directory.stations[index], options.player, options.alphabets);
    text += std::to_string(record.StationId);
    for (const std::string& field : record.fields) text.append(1, '\t').append(field);
    text += "\r\n";
  }
  return text;
}

// Lines of caption TAB name TAB address. The program fills in <<SearchWord>> and <<SearchOpt>>; the search
// for stations has no address, as it needs no service.
std::string SearchKindsText() {
  const auto webKind = [](std::string_view caption, std::string_view name, std::string_view path) {
    return std::string(caption) + '\t' + std::string(name) + '\t' +
           ServiceAddress(ServiceHost::Search,
                          std::string(path) + "?words=<<SearchWord>>&match=<<SearchOpt>>") +
           "\r\n";
  };
  return "Stations\tFindStation\t\r\n" + webKind("Shows and events", "FindShow", "/shows") +
         webKind("Artists and titles", "FindArtist", "/artists") + webKind("The web", "FindWeb", "/web");
}

std::string WriteDirectory(DataFolder& data, const Directory& directory, const EventRecords& events,
                           const WriteOptions& options) {
  if (!data.FileSystem().MakeFolder(data.Folder()))
    return "Cannot make the folder \"" + data.Folder() + "\".";
  Saver saver(data);
  const bool wasUnfinished = data.Exists(kUnfinishedMark);
  saver.Save(kUnfinishedMark, "These files belong to two directories. Run sonaro-directory make again.\r\n");
  if (!saver.Failed().empty()) return CannotWrite(saver.Failed());
  saver.Save(guide_file::kStations, StationListText(directory, options));
  // The mark of an earlier, interrupted run has to stay even so.
  if (!saver.Failed().empty() && !wasUnfinished) data.Remove(kUnfinishedMark);  // nothing was changed
  if (!saver.Failed().empty()) return CannotWrite(saver.Failed());
  StatList stations(data);
  if (!stations.RebuildStationTable()) return CannotWrite(data.Path(guide_file::kTable));
  EvList eventTables(data);
  if (!WriteEventTable(eventTables, EventSet::Current, events.current))
    return CannotWrite(data.Path("\\Eventorg.isd"));
  if (!WriteEventTable(eventTables, EventSet::Coming, events.coming))
    return CannotWrite(data.Path("\\Eventorg2.isd"));
  std::set<std::string> written;
  SaveTree(saver, GenreTree(directory), directory, written);
  SaveTree(saver, PlaceTree(directory), directory, written);
  saver.Save(guide_file::kRanking, RankingList(directory));
  saver.Save(guide_file::kReliable, ReliableList(directory));
  saver.Save(guide_file::kSearchKinds, SearchKindsText());
  if (!saver.Failed().empty()) return CannotWrite(saver.Failed());
  // Last, when no list of categories names the old files any more.
  RemoveStaleLists(data, written);
  return data.Remove(kUnfinishedMark) ? std::string() : CannotWrite(data.Path(kUnfinishedMark));
}

}  // namespace sonaro
