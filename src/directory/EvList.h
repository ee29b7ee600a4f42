// The broadcast events: the tables "\Eventorg" and "\Eventorg2" (the coming period), read by identifier or in
// the order of the identifiers. Owned by whoever reads them; a table is open only for the length of an
// operation. Each set is the files .isd and .ism; the .isf and .isl of the set are never written, since
// events are not searched by words.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "directory/EventRecord.h"
#include "directory/TableStatus.h"

namespace sonaro {

class DataFolder;
class Vmx;
enum class VmxReadMode : std::int16_t;

enum class EventSet { Current, Coming };  // "\Eventorg", "\Eventorg2"

class EvList {
 public:
  using Handle = int;  // 0: not open
  enum class OpenMode { Read, Write };

  explicit EvList(DataFolder& data);
  ~EvList();

  // The result of the last operation on a table; each one overwrites it.
  TableStatus LastStatus() const;

  // Replaces the set by an empty table.
  bool CreateEventTable(EventSet set);
  // Opened before the first event.
  Handle OpenEventTable(EventSet set, OpenMode mode);
  // Closing a table opened for writing puts the new generation in place.
  void CloseEventTable(Handle handle);
  // An empty record when the handle is 0 or there is no such, or no further, event.
  EventRecord GetEvent(Handle handle, std::int32_t eventId);
  EventRecord NextEvent(Handle handle);
  // True when the last status is 0 or 2. A record whose identifier is 0 is not written and yields true.
  bool PutEvent(Handle handle, const EventRecord& record);

  // All events of a set in the order of their identifiers: open, read to the end, close. LastStatus is
  // Success when the table was read to its end.
  std::vector<EventRecord> AllEvents(EventSet set);

 private:
  std::string PathOf(EventSet set) const;
  EventRecord Read(Handle handle, std::string_view key, VmxReadMode mode);

  DataFolder& data_;
  std::unique_ptr<Vmx> vmx_;
  TableStatus status_ = TableStatus::Success;
};

}  // namespace sonaro
