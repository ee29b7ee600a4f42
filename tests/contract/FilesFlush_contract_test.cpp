// What survives a power cut cannot be seen without one, so this watches the calls that make it survive: the
// system's own functions are stood in for, counted, and carried out.
#include <gtest/gtest.h>

#include "base/DataFolder.h"
#include "contract/ScratchFolder.h"
#ifdef _WIN32
#include <windows.h>

#include <cstring>

#include "platform/win/FilesWin.h"
#include "platform/win/PlatformWin.h"
#else
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include "platform/posix/FilesPosix.h"
#endif

namespace {

struct Flushes {
  int files = 0;
  int keys = 0;
  int names = 0;  // of replacements: the folder, or the move itself
};
Flushes flushes;

}  // namespace

#ifdef _WIN32

namespace {

// The place in this module's import table that holds the address of `function`.
template <typename Function>
Function* ImportOf(Function function) {
  auto* const base = reinterpret_cast<char*>(GetModuleHandleA(nullptr));
  const auto* const dos = reinterpret_cast<IMAGE_DOS_HEADER*>(base);
  const auto* const headers = reinterpret_cast<IMAGE_NT_HEADERS*>(base + dos->e_lfanew);
  const IMAGE_DATA_DIRECTORY table = headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IAT];
  auto* const first = reinterpret_cast<Function*>(base + table.VirtualAddress);
  for (Function* entry = first; entry < first + table.Size / sizeof(Function); ++entry) {
    if (*entry == function) return entry;
  }
  return nullptr;
}

// Puts `standIn` in the place of an imported function for the length of a test.
template <typename Function>
class StandIn {
 public:
  StandIn(Function function, Function standIn) : function_(function), entry_(ImportOf(function)) {
    Put(standIn);
  }
  ~StandIn() { Put(function_); }
  bool InPlace() const { return entry_ != nullptr; }

 private:
  void Put(Function target) {
    DWORD before = 0;
    if (entry_ == nullptr || !VirtualProtect(entry_, sizeof target, PAGE_READWRITE, &before)) return;
    *entry_ = target;
    VirtualProtect(entry_, sizeof target, before, &before);
  }

  Function function_;
  Function* entry_;
};

const auto kFlushFileBuffers = reinterpret_cast<BOOL(WINAPI*)(HANDLE)>(
    reinterpret_cast<void*>(GetProcAddress(GetModuleHandleA("kernel32.dll"), "FlushFileBuffers")));
const auto kMoveFileEx = reinterpret_cast<BOOL(WINAPI*)(LPCSTR, LPCSTR, DWORD)>(
    reinterpret_cast<void*>(GetProcAddress(GetModuleHandleA("kernel32.dll"), "MoveFileExA")));
const auto kRegFlushKey = reinterpret_cast<LSTATUS(WINAPI*)(HKEY)>(
    reinterpret_cast<void*>(GetProcAddress(GetModuleHandleA("advapi32.dll"), "RegFlushKey")));

LSTATUS WINAPI CountFlushKey(HKEY key) {
  ++flushes.keys;
  return kRegFlushKey(key);
}

BOOL WINAPI CountFlush(HANDLE file) {
  ++flushes.files;
  return kFlushFileBuffers(file);
}

BOOL WINAPI CountMove(LPCSTR from, LPCSTR to, DWORD flags) {
  if ((flags & MOVEFILE_WRITE_THROUGH) != 0) ++flushes.names;
  return kMoveFileEx(from, to, flags);
}

}  // namespace

#else

// Found before the C library's.
extern "C" int fsync(int descriptor) {
  struct stat info {};
  ++(fstat(descriptor, &info) == 0 && S_ISDIR(info.st_mode) ? flushes.names : flushes.files);
  return static_cast<int>(syscall(SYS_fsync, descriptor));
}

#endif

namespace sonaro {
namespace {

TEST(FilesFlush, WhatIsSavedReachesTheDiskWithItsName) {
#ifdef _WIN32
  const StandIn flush(kFlushFileBuffers, &CountFlush);
  const StandIn move(kMoveFileEx, &CountMove);
  ASSERT_TRUE(flush.InPlace() && move.InPlace());
  FilesWin files;
  constexpr char kSeparator = '\\';
#else
  FilesPosix files;
  constexpr char kSeparator = '/';
#endif
  const ScratchFolder scratch;
  const std::string path = scratch.Path() + kSeparator + "favs.snr";
  flushes = {};
  ASSERT_TRUE(SaveWholeFile(files, path, "Jazz\t1 \r\n"));
  EXPECT_EQ(flushes.files, 1);
  EXPECT_EQ(flushes.names, 1);

  // A derived file is not worth the wait.
  flushes = {};
  const auto file = files.Create(path + "2");
  ASSERT_TRUE(file && file->Append("x") && file->Commit(Durability::Cached));
  ASSERT_TRUE(files.Replace(path + "2", path, Durability::Cached));
  EXPECT_EQ(flushes.files + flushes.names, 0);
}

#ifdef _WIN32
TEST(RegistryFlush, AFlushedKeyReachesTheDisk) {
  const StandIn flush(kRegFlushKey, &CountFlushKey);
  ASSERT_TRUE(flush.InPlace());
  flushes = {};
  EXPECT_TRUE(RegistryWin().Flush(RootKey::CurrentUser, "Software"));
  EXPECT_EQ(flushes.keys, 1);
}
#endif

}  // namespace
}  // namespace sonaro
