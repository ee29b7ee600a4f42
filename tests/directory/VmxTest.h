// What the tests of indexed tables share: a table of three fields in memory.
#pragma once

#include <gtest/gtest.h>

#include <array>
#include <map>
#include <string>

#include "directory/Vmx.h"
#include "fakes/FakeFiles.h"

namespace sonaro {

inline const std::string kTablePath = "/data/table";
inline const std::string kDataFile = kTablePath + ".isd";
inline const std::string kIndexFile = kTablePath + ".ism";

using Fields = std::array<std::string, 3>;
using Model = std::map<std::int32_t, Fields>;

// A table of three fields, two of them searched.
struct Table {
  FakeFiles files;
  Vmx vmx{files};
  Vmx::Handle handle = 0;

  Table() {
    files.MakeFolder("/data");
    EXPECT_EQ(vmx.VmxCreate(kTablePath, "&,R3$", 2), TableStatus::Success);
  }
  void Open(VmxOpenMode mode) { handle = vmx.VmxOpen(kTablePath, mode); }
  TableStatus Put(std::int32_t key, const Fields& fields) {
    return vmx.VmxPut(handle, std::to_string(key), fields);
  }
  void Fill(const Model& model) {
    Open(VmxOpenMode::Write);
    for (const auto& [key, fields] : model) Put(key, fields);
    EXPECT_EQ(vmx.VmxClose(handle), TableStatus::Success);
  }
};

struct Read {
  TableStatus status;
  std::int32_t key = 0;
  Fields fields;
};

inline Read ReadAs(Vmx& vmx, Vmx::Handle handle, const std::string& key, VmxReadMode mode) {
  VmxRecord record;
  Read read{vmx.VmxGet(handle, key, mode, record)};
  read.key = record.key;
  record.CopyFields(read.fields);
  return read;
}

inline Read Get(Vmx& vmx, Vmx::Handle handle, const std::string& key) {
  return ReadAs(vmx, handle, key, VmxReadMode::Key);
}

inline Read Next(Vmx& vmx, Vmx::Handle handle) { return ReadAs(vmx, handle, "", VmxReadMode::Next); }

inline Model SmallModel() {
  Model model;
  for (std::int32_t key : {-7, -5, 2, 40, 1'000'000})
    model[key] = {"Name", "Text " + std::to_string(key), "x"};
  return model;
}

}  // namespace sonaro
