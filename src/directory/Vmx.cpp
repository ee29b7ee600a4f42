// Handles are places in tables_ plus one, so that 0 is free for "none"; a closed place is used again. images_
// keeps what is in memory of each table by its path, beyond closing, which makes opening a table anew nearly
// free.
#include "directory/Vmx.h"

#include <algorithm>
#include <new>

#include "base/Numbers.h"
#include "directory/ByteScan.h"
#include "directory/TableWriter.h"

namespace sonaro {
namespace {

// A tab within a field would shift all fields behind it and becomes a blank. The last field may hold tabs:
// reading it takes all that is left.
std::string JoinFields(std::span<const std::string> fields) {
  std::string text;
  for (const std::string& field : fields) {
    const std::size_t start = text.size();
    text += field;
    if (&field == &fields.back()) break;
    std::replace(text.begin() + static_cast<std::ptrdiff_t>(start), text.end(), kFieldSeparator, ' ');
    text += kFieldSeparator;
  }
  return text;
}

// The fields of a text where it lies. As many as the definition says, whatever the text holds.
void Split(const OpenTable& table, const TableImage::Record& found, VmxRecord& record) {
  record.fields.resize(table.FieldCount());
  SplitAtTabs(found.text, record.fields);
  record.key = found.key;
}

}  // namespace

void VmxRecord::CopyFields(std::span<std::string> texts) const {
  for (std::size_t i = 0; i < std::min(texts.size(), fields.size()); ++i) texts[i] = fields[i];
}

template <typename Operation>
// Every operation goes through here: running out of memory is a status like any other and leaves the table
// usable.
TableStatus Vmx::Run(Operation operation) {
  try {
    status_ = operation();
  } catch (const std::bad_alloc&) {
    status_ = TableStatus::NoMemory;
  }
  return status_;
}

template <typename Operation>
TableStatus Vmx::RunOn(Handle handle, Operation operation) {
  const auto place = static_cast<std::size_t>(handle) - 1;
  if (place >= tables_.size() || !tables_[place]) return status_ = TableStatus::BadCall;
  Run([&] { return operation(*tables_[place]); });
  // What is in memory of a damaged table must not be taken for the repaired one, whose generation is the
  // same.
  if (status_ == TableStatus::Damaged) images_.erase(tables_[place]->Path());
  return status_;
}

TableStatus Vmx::VmxKill(const std::string& path) {
  images_.erase(path);
  return Run([&] { return RemoveTableFiles(files_, path) ? TableStatus::Success : TableStatus::NotWritten; });
}

TableStatus Vmx::VmxCreate(const std::string& path, std::string_view definition,
                           std::uint32_t searchedFields) {
  const auto parsed = ParseDefinition(definition, searchedFields);
  if (!parsed) return status_ = TableStatus::BadCall;
  return Run([&] {
    TableWriter writer(files_, path, *parsed);
    return writer.Finish() && writer.PutInPlace() ? TableStatus::Success : TableStatus::NotWritten;
  });
}

Vmx::Handle Vmx::VmxOpen(const std::string& path, VmxOpenMode mode) {
  const bool forWriting = mode == VmxOpenMode::Write;
  const auto conflicts = [&](const auto& table) {
    return table && table->ForWriting() && table->Path() == path;
  };
  // Two writers of one table would each write the table as it was opened, and the second would undo the
  // first.
  if (forWriting && std::any_of(tables_.begin(), tables_.end(), conflicts)) {
    status_ = TableStatus::BadCall;
    return 0;
  }
  const auto free = std::find(tables_.begin(), tables_.end(), nullptr);
  const auto place = static_cast<std::size_t>(free - tables_.begin());
  Run([&] {
    // Within Run, since growing the list can run out of memory.
    if (free == tables_.end()) tables_.emplace_back();
    TableStatus status = TableStatus::Success;
    tables_[place] = OpenTable::Open(files_, path, forWriting, images_[path], status);
    return status;
  });
  return status_ == TableStatus::Success ? static_cast<Handle>(place + 1) : 0;
}

TableStatus Vmx::VmxClose(Handle handle) {
  const TableStatus status = RunOn(handle, [](OpenTable& table) { return table.Close(); });
  // A failed close ends the opening too; its changes are lost.
  if (status != TableStatus::BadCall) tables_[static_cast<std::size_t>(handle) - 1].reset();
  return status;
}

TableStatus Vmx::VmxBOF(Handle handle) {
  return RunOn(handle, [](OpenTable& table) {
    table.GoBeforeFirst();
    return TableStatus::Success;
  });
}

TableStatus Vmx::VmxEOF(Handle handle) {
  return RunOn(handle, [](OpenTable& table) {
    table.GoBehindLast();
    return TableStatus::Success;
  });
}

TableStatus Vmx::VmxGet(Handle handle, std::string_view key, VmxReadMode mode, VmxRecord& record) {
  return RunOn(handle, [&](OpenTable& table) {
    TableImage::Record found;
    std::int32_t wanted = 0;
    TableStatus status = TableStatus::NotFound;
    if (mode == VmxReadMode::Next) {
      status = table.ReadNext(found);
    } else if (ParseStationId(key, wanted)) {
      status = table.Read(wanted, found);
    }
    if (status == TableStatus::Success) Split(table, found, record);
    return status;
  });
}

TableStatus Vmx::VmxVisit(Handle handle, std::span<const std::int32_t> keys, const Visitor& visit) {
  return RunOn(handle, [&](OpenTable& table) {
    VmxRecord record;
    return table.Visit(keys, [&](const TableImage::Record& found) {
      Split(table, found, record);
      visit(record);
    });
  });
}

// One operation for all records: what an operation costs by itself is paid once, and the texts come in large
// steps.
TableStatus Vmx::VmxVisitAll(Handle handle, const Visitor& visit) {
  return RunOn(handle, [&](OpenTable& table) {
    VmxRecord record;
    TableImage::Record found;
    table.GoBeforeFirst();
    TableStatus status = TableStatus::Success;
    while ((status = table.ReadNext(found)) == TableStatus::Success) {
      Split(table, found, record);
      visit(record);
    }
    return status == TableStatus::NotFound ? TableStatus::Success : status;
  });
}

TableStatus Vmx::VmxKnown(Handle handle, std::span<const std::int32_t> keys,
                          std::vector<std::int32_t>& there) {
  return RunOn(handle, [&](OpenTable& table) {
    there.reserve(there.size() + keys.size());
    for (const std::int32_t key : keys) {
      bool contains = false;
      const TableStatus status = table.Contains(key, contains);
      if (status != TableStatus::Success) return status;
      if (contains) there.push_back(key);
    }
    return TableStatus::Success;
  });
}

// Nothing is written before VmxClose.
TableStatus Vmx::VmxPut(Handle handle, std::string_view key, std::span<const std::string> fields) {
  return RunOn(handle, [&](OpenTable& table) {
    std::int32_t id = 0;
    const bool fits = table.ForWriting() && fields.size() == table.FieldCount();
    if (!fits || !ParseStationId(key, id)) return TableStatus::BadCall;
    return table.Put(id, JoinFields(fields));
  });
}

TableStatus Vmx::VmxDelete(Handle handle, std::string_view key) {
  return RunOn(handle, [&](OpenTable& table) {
    std::int32_t id = 0;
    if (!table.ForWriting()) return TableStatus::BadCall;
    return ParseStationId(key, id) ? table.Delete(id) : TableStatus::NotFound;
  });
}

// The image outlives the call, since images_ holds it too, but a table that was replaced gets another one.
TableImage* Vmx::SearchImage(Handle handle) {
  TableImage* image = nullptr;
  RunOn(handle, [&](OpenTable& table) {
    image = table.SearchImage();
    return image ? TableStatus::Success : TableStatus::Damaged;
  });
  return image;
}

std::uint32_t Vmx::RecordCount(Handle handle) {
  std::uint32_t count = 0;
  RunOn(handle, [&](OpenTable& table) {
    count = table.RecordCount();
    return TableStatus::Success;
  });
  return count;
}

TableStatus Vmx::Source(const std::string& path, TableSource& source) {
  return Run([&] {
    TableFiles files;
    const TableStatus status = OpenTableFiles(files_, path, files);
    source = files.indexHeader.source;
    return status;
  });
}

// Not by way of images_: what is in memory says nothing of the disk.
TableStatus Vmx::Verify(const std::string& path) {
  return Run([&] {
    TableFiles files;
    const TableStatus status = OpenTableFiles(files_, path, files);
    return status == TableStatus::Success ? TableImage::Verify(files) : status;
  });
}

}  // namespace sonaro
