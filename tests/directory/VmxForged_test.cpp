// Tables that somebody made up, with every checksum right.
#include <functional>
#include <random>

#include "directory/StationSearch.h"
#include "directory/VmxTest.h"
#include "fakes/ForgedTable.h"

namespace sonaro {
namespace {

class VmxForged : public testing::Test {
 protected:
  VmxForged() {
    table_.Fill(SmallModel());
    data_ = *table_.files.Get(kDataFile);
    index_ = *table_.files.Get(kIndexFile);
    header_ = PartAt<IndexHeader>(index_, 0);
    layout_ = LayoutOf(header_);
  }
  // Puts the files as they are now in place, with every checksum right.
  void Forge() {
    ResealTable(data_, index_);
    PutInPlace();
  }
  void PutInPlace() {
    table_.files.Put(kDataFile, data_);
    table_.files.Put(kIndexFile, index_);
  }
  TableStatus Verdict() { return Vmx(table_.files).Verify(kTablePath); }

  Table table_;
  std::string data_, index_;
  IndexHeader header_{};
  IndexLayout layout_{};
};

// Whatever the numbers in it say, nothing outside the file's own bytes is read.
TEST_F(VmxForged, AnyByteUnderRightChecksums) {
  const std::string soundData = data_;
  const std::string soundIndex = index_;
  Forge();
  ASSERT_EQ(Verdict(), TableStatus::Success);
  ASSERT_EQ(index_, soundIndex) << "the forger's checksums are those of the writer";
  std::mt19937 random(5);
  for (int round = 0; round < 3000; ++round) {
    data_ = soundData;
    index_ = soundIndex;
    index_[sizeof(IndexHeader) + random() % (index_.size() - sizeof(IndexHeader))] =
        static_cast<char>(random());
    if (round % 4 == 0) data_[random() % data_.size()] = static_cast<char>(random());
    if (round % 5 == 0) index_[random() % sizeof(IndexHeader)] = static_cast<char>(random());
    Forge();
    Vmx vmx(table_.files);
    const Vmx::Handle handle = vmx.VmxOpen(kTablePath, VmxOpenMode::Read);
    for (const auto& [key, fields] : SmallModel()) Get(vmx, handle, std::to_string(key));
    vmx.VmxBOF(handle);
    while (Next(vmx, handle).status == TableStatus::Success) {
    }
    if (TableImage* image = vmx.SearchImage(handle)) {
      for (const std::uint32_t index :
           FindRecords(image->Column(), image->Index(), {"t", "e"}, round % 2 == 0))
        image->KeyAt(index);
    }
    vmx.VmxClose(handle);
    const TableStatus verdict = vmx.Verify(kTablePath);
    EXPECT_TRUE(verdict == TableStatus::Damaged || verdict == TableStatus::Success);
  }
}

TEST_F(VmxForged, AnIndexThatIsNotLaidOutAsItSaysDoesNotOpen) {
  const std::pair<const char*, std::function<void(IndexHeader&)>> cases[] = {
      {"a byte behind the last section", [&](IndexHeader&) { index_ += '\0'; }},
      {"one record more", [](IndexHeader& header) { ++header.recordCount; }},
      {"every record there can be", [](IndexHeader& header) { header.recordCount = 0xFFFFFFFF; }},
      {"a shorter column", [](IndexHeader& header) { --header.columnSize; }},
      {"a column that wraps around",
       [](IndexHeader& header) { header.columnSize -= std::uint64_t{1} << 63, header.recordCount += 7; }},
      {"more searched fields than fields", [](IndexHeader& header) { header.searchedFields = 4; }},
      {"no fields", [](IndexHeader& header) { header.fieldCount = header.searchedFields = 0; }},
      {"too many fields", [](IndexHeader& header) { header.fieldCount = 65; }},
  };
  const std::string sound = index_;
  for (const auto& [what, change] : cases) {
    index_ = sound;
    IndexHeader header = header_;
    change(header);
    PutPart(index_, 0, header);
    Forge();
    Vmx vmx(table_.files);
    EXPECT_EQ(vmx.VmxOpen(kTablePath, VmxOpenMode::Read), 0) << what;
    EXPECT_EQ(vmx.LastStatus(), TableStatus::Damaged) << what;
  }
}

TEST_F(VmxForged, PositionsAndKeysInDisorderAreDamage) {
  const auto swapped = [&](std::uint32_t a, std::uint32_t b, auto member) {
    Entry first = PartAt<Entry>(index_, PlaceOfEntry(layout_, a));
    Entry second = PartAt<Entry>(index_, PlaceOfEntry(layout_, b));
    std::swap(first.*member, second.*member);
    PutPart(index_, PlaceOfEntry(layout_, a), first);
    PutPart(index_, PlaceOfEntry(layout_, b), second);
    Forge();
  };
  const std::string sound = index_;
  swapped(1, 3, &Entry::columnOffset);
  EXPECT_EQ(Verdict(), TableStatus::Damaged);
  Vmx vmx(table_.files);
  const Vmx::Handle handle = vmx.VmxOpen(kTablePath, VmxOpenMode::Read);
  EXPECT_EQ(Get(vmx, handle, "2").status, TableStatus::Success) << "the records themselves are sound";
  EXPECT_EQ(vmx.SearchImage(handle), nullptr);
  EXPECT_EQ(vmx.LastStatus(), TableStatus::Damaged);
  vmx.VmxClose(handle);

  index_ = sound;
  swapped(1, 3, &Entry::key);
  EXPECT_EQ(Verdict(), TableStatus::Damaged);

  index_ = sound;
  auto page = PartAt<PageItem>(index_, layout_.directory);
  ++page.firstKey;  // the first station would not be found
  PutPart(index_, layout_.directory, page);
  Forge();
  EXPECT_EQ(Verdict(), TableStatus::Damaged);
}

}  // namespace
}  // namespace sonaro
