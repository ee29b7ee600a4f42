// Each operation goes straight to Vmx. Events are not searched by words, so their tables are created without
// searched fields, and their images never grow a search column.
#include "directory/EvList.h"

#include <new>
#include <string_view>

#include "base/DataFolder.h"
#include "directory/Vmx.h"

namespace sonaro {
namespace {

// A 32-bit key and eight texts.
constexpr std::string_view kEventTableDefinition = "&,R8$";
static_assert(EventRecord::kFieldCount == 8);

}  // namespace

EvList::EvList(DataFolder& data) : data_(data), vmx_(std::make_unique<Vmx>(data.FileSystem())) {}

EvList::~EvList() = default;

TableStatus EvList::LastStatus() const { return status_; }

std::string EvList::PathOf(EventSet set) const {
  return TablePath(data_, set == EventSet::Current ? "\\Eventorg" : "\\Eventorg2");
}

bool EvList::CreateEventTable(EventSet set) {
  status_ = vmx_->VmxCreate(PathOf(set), kEventTableDefinition, 0);
  return status_ == TableStatus::Success;
}

EvList::Handle EvList::OpenEventTable(EventSet set, OpenMode mode) {
  const Handle handle =
      vmx_->VmxOpen(PathOf(set), mode == OpenMode::Write ? VmxOpenMode::Write : VmxOpenMode::Read);
  status_ = vmx_->LastStatus();
  return handle;
}

void EvList::CloseEventTable(Handle handle) {
  if (handle != 0) status_ = vmx_->VmxClose(handle);
}

EventRecord EvList::Read(Handle handle, std::string_view key, VmxReadMode mode) {
  EventRecord record;
  VmxRecord found;
  if (handle == 0) return record;
  status_ = vmx_->VmxGet(handle, key, mode, found);
  if (status_ != TableStatus::Success) return record;
  record.EventId = found.key;
  found.CopyFields(record.fields);
  return record;
}

EventRecord EvList::GetEvent(Handle handle, std::int32_t eventId) {
  return Read(handle, std::to_string(eventId), VmxReadMode::Key);
}

EventRecord EvList::NextEvent(Handle handle) { return Read(handle, {}, VmxReadMode::Next); }

bool EvList::PutEvent(Handle handle, const EventRecord& record) {
  if (record.Empty()) return true;
  status_ = vmx_->VmxPut(handle, std::to_string(record.EventId), record.fields);
  return Stored(status_);
}

std::vector<EventRecord> EvList::AllEvents(EventSet set) {
  std::vector<EventRecord> events;
  // Reading in key order: an opened table stands before its first record.
  const Handle handle = OpenEventTable(set, OpenMode::Read);
  if (handle == 0) return events;
  try {
    EventRecord event = NextEvent(handle);
    for (; status_ == TableStatus::Success; event = NextEvent(handle)) events.push_back(std::move(event));
    if (status_ == TableStatus::NotFound) status_ = TableStatus::Success;  // read to the end
  } catch (const std::bad_alloc&) {
    status_ = TableStatus::NoMemory;
  }
  vmx_->VmxClose(handle);
  return events;
}

}  // namespace sonaro
