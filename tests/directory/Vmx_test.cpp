#include "directory/Vmx.h"

#include <limits>
#include <random>

#include "directory/StationSearch.h"
#include "directory/VmxTest.h"

namespace sonaro {
namespace {

// A few thousand random operations against a map, with the table closed and opened again now and then.
class VmxModel : public testing::TestWithParam<unsigned> {};

TEST_P(VmxModel, BehavesLikeASortedMap) {
  std::mt19937 random(GetParam());
  const auto below = [&](std::uint32_t limit) { return static_cast<std::int32_t>(random() % limit); };
  const auto randomKey = [&] {
    constexpr std::int32_t kEnds[] = {std::numeric_limits<std::int32_t>::min(),
                                      std::numeric_limits<std::int32_t>::max(), 0, -1};
    return below(20) == 0 ? kEnds[below(4)] : below(1500) - 700;
  };
  const auto randomText = [&] {
    return std::string(static_cast<std::size_t>(below(30)), static_cast<char>('a' + below(26)));
  };

  Table table;
  Model model;
  std::int64_t position = std::numeric_limits<std::int64_t>::min();
  table.Open(VmxOpenMode::Write);
  for (int step = 0; step < 4000; ++step) {
    const std::int32_t key = randomKey();
    switch (below(below(40) == 0 ? 7 : 5)) {
      case 0:
      case 1: {
        const Fields fields = {randomText(), randomText(), randomText()};
        const bool replaces = model.contains(key);
        ASSERT_EQ(table.Put(key, fields), replaces ? TableStatus::ReplacedExisting : TableStatus::Success);
        model[key] = fields;
        break;
      }
      case 2: {
        const TableStatus expected = model.erase(key) != 0 ? TableStatus::Success : TableStatus::NotFound;
        ASSERT_EQ(table.vmx.VmxDelete(table.handle, std::to_string(key)), expected);
        break;
      }
      case 3: {
        const Read read = Get(table.vmx, table.handle, std::to_string(key));
        const auto found = model.find(key);
        ASSERT_EQ(read.status, found != model.end() ? TableStatus::Success : TableStatus::NotFound);
        if (found == model.end()) break;
        ASSERT_EQ(read.fields, found->second);
        position = key;
        break;
      }
      case 4: {
        const Read read = Next(table.vmx, table.handle);
        auto next = model.begin();
        while (next != model.end() && next->first <= position) ++next;
        ASSERT_EQ(read.status, next != model.end() ? TableStatus::Success : TableStatus::NotFound);
        if (next == model.end()) break;
        ASSERT_EQ(read.key, next->first);
        ASSERT_EQ(read.fields, next->second);
        position = next->first;
        break;
      }
      case 5: {
        const bool toEnd = below(2) == 0;
        ASSERT_EQ(toEnd ? table.vmx.VmxEOF(table.handle) : table.vmx.VmxBOF(table.handle),
                  TableStatus::Success);
        position =
            toEnd ? std::numeric_limits<std::int64_t>::max() : std::numeric_limits<std::int64_t>::min();
        break;
      }
      default:
        ASSERT_EQ(table.vmx.VmxClose(table.handle), TableStatus::Success);
        table.Open(VmxOpenMode::Write);
        ASSERT_EQ(table.vmx.RecordCount(table.handle), model.size());
        position = std::numeric_limits<std::int64_t>::min();
    }
  }
  ASSERT_GT(model.size(), std::size_t{kPageEntries}) << "the table should have more than one page";
}

INSTANTIATE_TEST_SUITE_P(Seeds, VmxModel, testing::Values(1u, 2u, 3u));

TEST(Vmx, StatusesOfWrongCalls) {
  Table table;
  Vmx& vmx = table.vmx;
  EXPECT_EQ(vmx.VmxOpen("/data/none", VmxOpenMode::Read), 0);
  EXPECT_EQ(vmx.LastStatus(), TableStatus::NoTable);
  for (const char* definition :
       {"", "&,R$", "&,R0$", "&,R-1$", "&,R65$", "R16$", "&,R16", "&,Rx$", "&,R1$"}) {
    EXPECT_EQ(vmx.VmxCreate("/data/other", definition, 2), TableStatus::BadCall) << definition;
  }
  for (const Vmx::Handle handle : {0, 1, -1, 99}) {
    EXPECT_EQ(vmx.VmxBOF(handle), TableStatus::BadCall) << handle;
    EXPECT_EQ(vmx.VmxClose(handle), TableStatus::BadCall) << handle;
  }

  table.Fill({{5, {"a", "b", "c"}}});
  table.Open(VmxOpenMode::Read);
  EXPECT_EQ(table.Put(6, {}), TableStatus::BadCall) << "open for reading only";
  EXPECT_EQ(vmx.VmxDelete(table.handle, "5"), TableStatus::BadCall);
  const char* const keys[] = {"", "x", "5x", "2147483648", "99999999999999999999", "6"};
  for (const char* key : keys) EXPECT_EQ(Get(vmx, table.handle, key).status, TableStatus::NotFound) << key;
  EXPECT_EQ(Get(vmx, table.handle, " +5 ").status, TableStatus::Success);

  const Vmx::Handle writer = vmx.VmxOpen(kTablePath, VmxOpenMode::Write);
  EXPECT_NE(writer, 0);
  EXPECT_EQ(vmx.VmxOpen(kTablePath, VmxOpenMode::Write), 0) << "one writer at a time";
  EXPECT_EQ(vmx.VmxPut(writer, "x", Fields{}), TableStatus::BadCall);
  EXPECT_EQ(vmx.VmxPut(writer, "1", std::array<std::string, 2>{}), TableStatus::BadCall);
  EXPECT_EQ(vmx.VmxPut(writer, "5", Fields{"a\tb", "\t", "c\td"}), TableStatus::ReplacedExisting);
  vmx.VmxClose(table.handle);
  EXPECT_EQ(vmx.VmxClose(writer), TableStatus::Success);
  EXPECT_EQ(vmx.VmxClose(writer), TableStatus::BadCall);
  table.Open(VmxOpenMode::Read);
  EXPECT_EQ(Get(vmx, table.handle, "5").fields, (Fields{"a b", " ", "c\td"}));
}

TEST(Vmx, KillRemovesTheTableAndWhatAWriterLeft) {
  Table table;
  table.Fill({{5, {"a", "b", "c"}}});
  for (const std::string& path : {kDataFile, kIndexFile})
    table.files.Put(path + ".new", *table.files.Get(path));
  EXPECT_EQ(table.vmx.VmxKill(kTablePath), TableStatus::Success);
  EXPECT_TRUE(table.files.AllPaths().empty());
  EXPECT_EQ(table.vmx.VmxKill(kTablePath), TableStatus::Success) << "no table is no failure";
  table.files.Put(kDataFile, "");
  table.files.Lock(kDataFile);
  EXPECT_EQ(table.vmx.VmxKill(kTablePath), TableStatus::NotWritten);
}

// What is in memory is used only for the generation that it was read from.
TEST(Vmx, SeesATableThatWasReplaced) {
  Table table;
  table.Fill({{1, {"old", "", ""}}});
  Vmx reader(table.files);
  const auto name = [&] {
    const Vmx::Handle handle = reader.VmxOpen(kTablePath, VmxOpenMode::Read);
    const Read read = Get(reader, handle, "1");
    EXPECT_NE(reader.SearchImage(handle), nullptr);
    reader.VmxClose(handle);
    return read.fields[0];
  };
  EXPECT_EQ(name(), "old");
  table.Fill({{1, {"new", "", ""}}});
  EXPECT_EQ(name(), "new");

  // A repaired table is of the same generation as the damaged one.
  const std::string sound = *table.files.Get(kDataFile);
  std::string damaged = sound;
  damaged.back() ^= 1;
  table.files.Put(kDataFile, damaged);
  Vmx other(table.files);
  Vmx::Handle handle = other.VmxOpen(kTablePath, VmxOpenMode::Read);
  EXPECT_EQ(Get(other, handle, "1").status, TableStatus::Damaged);
  other.VmxClose(handle);
  table.files.Put(kDataFile, sound);
  handle = other.VmxOpen(kTablePath, VmxOpenMode::Read);
  EXPECT_EQ(Get(other, handle, "1").status, TableStatus::Success);
}

// Opens the table in every way and compares whatever is read with the model. A failure must be a status.
void ExpectNothingWrong(FakeFiles& files, const Model& model, const std::string& what) {
  Vmx vmx(files);
  const Vmx::Handle handle = vmx.VmxOpen(kTablePath, VmxOpenMode::Read);
  if (handle == 0) {
    EXPECT_TRUE(vmx.LastStatus() == TableStatus::Damaged || vmx.LastStatus() == TableStatus::NoTable) << what;
    return;
  }
  for (const auto& [key, fields] : model) {
    const Read read = Get(vmx, handle, std::to_string(key));
    if (read.status != TableStatus::Damaged) {
      EXPECT_EQ(read.status, TableStatus::Success) << what;
      EXPECT_EQ(read.fields, fields) << what << " key " << key;
    }
    const TableStatus missing = Get(vmx, handle, std::to_string(key + 1)).status;
    EXPECT_TRUE(missing == TableStatus::NotFound || missing == TableStatus::Damaged) << what;
  }
  vmx.VmxBOF(handle);
  auto expected = model.begin();
  Read read = Next(vmx, handle);
  for (; read.status == TableStatus::Success && expected != model.end();
       read = Next(vmx, handle), ++expected) {
    EXPECT_EQ(read.key, expected->first) << what;
    EXPECT_EQ(read.fields, expected->second) << what;
  }
  EXPECT_TRUE(read.status == TableStatus::Damaged || expected == model.end()) << what;
  TableImage* const image = vmx.SearchImage(handle);
  if (image) {
    EXPECT_EQ(image->Column().starts.size(), model.size() + 1) << what;
    EXPECT_TRUE(image->Column().text.starts_with("name\t")) << what;
  }
}

TEST(VmxDamage, AnyByteOfAnyFile) {
  Table table;
  const Model model = SmallModel();
  table.Fill(model);
  for (const std::string& path : {kDataFile, kIndexFile}) {
    const std::string sound = *table.files.Get(path);
    for (std::size_t at = 0; at < sound.size(); ++at) {
      for (const int change : {0x01, 0x20, 0x80, 0xFF}) {
        std::string damaged = sound;
        damaged[at] = static_cast<char>(damaged[at] ^ change);
        table.files.Put(path, damaged);
        const std::string what = path + " byte " + std::to_string(at) + " ^ " + std::to_string(change);
        EXPECT_EQ(Vmx(table.files).Verify(kTablePath), TableStatus::Damaged) << what;
        ExpectNothingWrong(table.files, model, what);
      }
    }
    table.files.Put(path, sound);
  }
  EXPECT_EQ(Vmx(table.files).Verify(kTablePath), TableStatus::Success);
}

TEST(VmxDamage, AnyLength) {
  Table table;
  const Model model = SmallModel();
  table.Fill(model);
  for (const std::string& path : {kDataFile, kIndexFile}) {
    const std::string sound = *table.files.Get(path);
    for (std::size_t length = 0; length <= sound.size() + 1; ++length) {
      if (length == sound.size()) continue;
      table.files.Put(path, length < sound.size() ? sound.substr(0, length) : sound + '\0');
      const std::string what = path + " of length " + std::to_string(length);
      EXPECT_EQ(Vmx(table.files).Verify(kTablePath), TableStatus::Damaged) << what;
      ExpectNothingWrong(table.files, model, what);
    }
    table.files.Remove(path);
    EXPECT_EQ(Vmx(table.files).Verify(kTablePath), TableStatus::NoTable) << path;
    table.files.Put(path, sound);
  }
}

TEST(VmxDamage, FilesOfTwoGenerations) {
  Table table;
  table.Fill(SmallModel());
  const std::string oldIndex = *table.files.Get(kIndexFile);
  Model other = SmallModel();
  other[2] = {"Name", "Text 3", "x"};  // the same lengths
  table.Fill(other);
  table.files.Put(kIndexFile, oldIndex);
  EXPECT_EQ(table.vmx.VmxOpen(kTablePath, VmxOpenMode::Read), 0);
  EXPECT_EQ(table.vmx.LastStatus(), TableStatus::Damaged);
}

}  // namespace
}  // namespace sonaro
