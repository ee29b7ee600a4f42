#include <gtest/gtest.h>

#include "fakes/FakeFiles.h"
#include "fakes/FakeRegistry.h"
#include "settings/SettingsRegistry.h"
#ifdef _WIN32
#include <windows.h>

#include "platform/win/PlatformWin.h"
#endif

namespace sonaro {
namespace {

constexpr const char* kTestKey = "SOFTWARE\\zumo\\SonaroContract";

struct RegistryInMemory {
  static constexpr const char* kKey = kTestKey;
  FakeRegistry registry;
};

// The program's own key in the portable file.
struct RegistryInFile {
  static constexpr const char* kKey = "SOFTWARE\\zumo\\Sonaro\\contract";
  RegistryInFile() { files.Put("/d/portable.ini", ""); }
  FakeRegistry system;
  FakeFiles files;
  SettingsRegistry registry{system, files, "/d/portable.ini"};
};

#ifdef _WIN32
struct RegistryOnMachine {
  static constexpr const char* kKey = kTestKey;
  RegistryOnMachine() { Clear(); }
  ~RegistryOnMachine() { Clear(); }
  static void Clear() {
    RegDeleteTreeA(HKEY_LOCAL_MACHINE, kTestKey);
    RegDeleteTreeA(HKEY_CURRENT_USER, kTestKey);
  }
  RegistryWin registry;
};
using RegistryWorlds = testing::Types<RegistryInMemory, RegistryInFile, RegistryOnMachine>;
#else
using RegistryWorlds = testing::Types<RegistryInMemory, RegistryInFile>;
#endif

template <typename World>
class RegistryContract : public testing::Test {
 protected:
  std::optional<std::string> Read(const std::string& name) { return Reg().ReadValue(kRoot, TestKey(), name); }
  bool Write(const std::string& name, std::string_view bytes, ValueType type = ValueType::Text) {
    return Reg().WriteValue(kRoot, TestKey(), name, type, bytes);
  }
  Registry& Reg() { return world_.registry; }
  static std::string TestKey() { return World::kKey; }

  static constexpr RootKey kRoot = RootKey::LocalMachine;
  World world_;
};

TYPED_TEST_SUITE(RegistryContract, RegistryWorlds);

TYPED_TEST(RegistryContract, NothingIsThereAndNothingIsMadeByLooking) {
  EXPECT_FALSE(this->Read("Value"));
  EXPECT_FALSE(this->Write("Value", "x"));
  EXPECT_FALSE(this->Reg().RemoveValue(this->kRoot, this->TestKey(), "Value"));
  EXPECT_FALSE(this->Reg().Flush(this->kRoot, this->TestKey()));
  EXPECT_FALSE(this->Reg().KeyExists(this->kRoot, this->TestKey()));
}

TYPED_TEST(RegistryContract, KeysAreMadeWithTheirParentsInTheirOwnRoot) {
  const std::string deep = this->TestKey() + "\\a\\b";
  EXPECT_TRUE(this->Reg().CreateKey(this->kRoot, deep));
  EXPECT_TRUE(this->Reg().CreateKey(this->kRoot, deep));
  EXPECT_TRUE(this->Reg().CanWrite(this->kRoot, deep));
  EXPECT_FALSE(this->Reg().CanWrite(this->kRoot, deep + "\\c"));
  EXPECT_TRUE(this->Reg().KeyExists(this->kRoot, FoldCase(this->TestKey()) + "\\A"));
  EXPECT_FALSE(this->Reg().KeyExists(RootKey::CurrentUser, this->TestKey()));
}

TYPED_TEST(RegistryContract, StoresExactlyTheBytes) {
  ASSERT_TRUE(this->Reg().CreateKey(this->kRoot, this->TestKey()));
  const std::string texts[] = {"abc",          "",         std::string("abc\0", 4),
                               "\u00E9\u96FB", "a\tb\r\n", std::string(10000, 'x')};
  for (const std::string& text : texts) {
    EXPECT_TRUE(this->Write("Text", text));
    EXPECT_TRUE(this->Reg().Flush(this->kRoot, this->TestKey()));
    EXPECT_EQ(this->Read("Text"), text) << text.size() << " bytes";
  }
  const std::string binary("\0\x01\xFF\0", 4);
  EXPECT_TRUE(this->Write("Binary", binary, ValueType::Binary));
  EXPECT_EQ(this->Read("Binary"), binary);
}

TYPED_TEST(RegistryContract, NamesIgnoreLetterCaseAndTheEmptyNameIsTheDefaultValue) {
  ASSERT_TRUE(this->Reg().CreateKey(this->kRoot, this->TestKey()));
  EXPECT_FALSE(this->Read(""));
  EXPECT_TRUE(this->Write("", "default"));
  EXPECT_TRUE(this->Write("Value", "one"));
  EXPECT_TRUE(this->Write("VALUE", "two"));
  EXPECT_EQ(this->Read(""), "default");
  EXPECT_EQ(this->Read("value"), "two");
  EXPECT_EQ(this->Reg().ValueNames(this->kRoot, this->TestKey()).size(), 2u);
  EXPECT_TRUE(this->Reg().RemoveValue(this->kRoot, this->TestKey(), "vALUE"));
  EXPECT_FALSE(this->Read("Value"));
  EXPECT_FALSE(this->Reg().RemoveValue(this->kRoot, this->TestKey(), "Value"));
  EXPECT_EQ(this->Read(""), "default");
  EXPECT_EQ(this->Reg().ValueNames(this->kRoot, this->TestKey()), std::vector<std::string>{""});
  EXPECT_TRUE(this->Reg().ValueNames(RootKey::CurrentUser, this->TestKey()).empty());
}

#ifdef _WIN32
// What reading through the same functions could hide: the number of bytes that lie in the registry.
TEST(RegistryWin, StoresNoTerminatingZero) {
  const RegistryOnMachine machine;
  RegistryWin registry;
  ASSERT_TRUE(registry.CreateKey(RootKey::LocalMachine, kTestKey));
  ASSERT_TRUE(registry.WriteValue(RootKey::LocalMachine, kTestKey, "Text", ValueType::Text, "abc"));
  HKEY key = nullptr;
  ASSERT_EQ(RegOpenKeyExA(HKEY_LOCAL_MACHINE, kTestKey, 0, KEY_QUERY_VALUE, &key), ERROR_SUCCESS);
  wchar_t stored[16] = {};
  DWORD size = sizeof stored;
  DWORD type = 0;
  EXPECT_EQ(RegQueryValueExW(key, L"Text", nullptr, &type, reinterpret_cast<BYTE*>(stored), &size),
            ERROR_SUCCESS);
  RegCloseKey(key);
  EXPECT_EQ(type, static_cast<DWORD>(REG_SZ));
  EXPECT_EQ(size, 3 * sizeof(wchar_t));
}
#endif

}  // namespace
}  // namespace sonaro
