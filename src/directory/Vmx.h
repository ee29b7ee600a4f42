// Indexed tables: records of N texts under a 32-bit key, read by key or in key order. Keys order as signed
// numbers and are passed as decimal text. A StatList and an EvList own one Vmx each. Knows nothing of what
// the texts mean.
//
// A table is the files .isd and .ism (VmxFormat.h). What was read stays in memory after VmxClose and is used
// as long as the files on disk are of that generation; no file is open then, so that the table can be
// replaced. Changes are collected in memory; VmxClose writes them as a new generation beside the old one and
// puts it in place.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/Files.h"
#include "directory/OpenTable.h"
#include "directory/TableImage.h"
#include "directory/TableStatus.h"

namespace sonaro {

enum class VmxOpenMode { Read, Write };
enum class VmxReadMode : std::int16_t { Key = 0x1001, Next = 0x1002 };

struct VmxRecord {
  std::int32_t key = 0;
  std::vector<std::string_view> fields;  // as many as the table's definition says

  // Copies the fields to texts of their own, as many as both have.
  void CopyFields(std::span<std::string> texts) const;
};

class Vmx {
 public:
  using Handle = int;  // 0: not open

  explicit Vmx(Files& files) : files_(files) {}

  // The result of the last operation; each one overwrites it. What returns a TableStatus returns this one.
  TableStatus LastStatus() const { return status_; }

  // `path` is a table's path without an extension.

  // Deletes the table's files. Success also when there were none.
  TableStatus VmxKill(const std::string& path);
  // Puts an empty table in the place of whatever is there. "&,R16$" defines a key and sixteen texts, of which
  // the first `searchedFields` can be searched.
  TableStatus VmxCreate(const std::string& path, std::string_view definition, std::uint32_t searchedFields);

  // The handle, positioned before the first record, or 0. A table can be open for writing only once at a
  // time.
  Handle VmxOpen(const std::string& path, VmxOpenMode mode);
  // Of a table open for writing: Success when its changes are in place, otherwise the table is as it was.
  TableStatus VmxClose(Handle handle);

  // Position before the first and behind the last record.
  TableStatus VmxBOF(Handle handle);
  TableStatus VmxEOF(Handle handle);

  // Reads the record with the key or, whatever `key` is, the one behind the position; positions on it. The
  // fields' texts are valid until the next operation on the table. Without Success `record` and the position
  // stay as they are.
  TableStatus VmxGet(Handle handle, std::string_view key, VmxReadMode mode, VmxRecord& record);
  // Call `visit` with one record after the other, in whose place the next one is read: for all keys that are
  // there, in the order given, or for every record in key order. The position is behind the last one read.
  using Visitor = std::function<void(const VmxRecord&)>;
  TableStatus VmxVisit(Handle handle, std::span<const std::int32_t> keys, const Visitor& visit);
  TableStatus VmxVisitAll(Handle handle, const Visitor& visit);
  // Adds those of the keys that are there to `there`, in the order given, without reading their records.
  TableStatus VmxKnown(Handle handle, std::span<const std::int32_t> keys, std::vector<std::int32_t>& there);
  // `fields` are as many as the definition says. A tab inside one other than the last is stored as a blank.
  TableStatus VmxPut(Handle handle, std::string_view key, std::span<const std::string> fields);
  TableStatus VmxDelete(Handle handle, std::string_view key);

  // The records on disk, ready to be searched, valid until the table is closed; null when they are damaged.
  TableImage* SearchImage(Handle handle);
  std::uint32_t RecordCount(Handle handle);  // on disk
  // What the table says it was made of; reads the headers only.
  TableStatus Source(const std::string& path, TableSource& source);
  // Reads and checks every byte of the table.
  TableStatus Verify(const std::string& path);

 private:
  template <typename Operation>
  TableStatus Run(Operation operation);
  template <typename Operation>
  TableStatus RunOn(Handle handle, Operation operation);

  Files& files_;
  TableStatus status_ = TableStatus::Success;
  std::vector<std::unique_ptr<OpenTable>> tables_;             // handle - 1; null when closed
  std::map<std::string, std::shared_ptr<TableImage>> images_;  // by path
};

}  // namespace sonaro
