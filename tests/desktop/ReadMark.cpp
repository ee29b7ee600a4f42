#include "ReadMark.h"

#include <windows.h>

#include <fstream>

#include "Probe.h"

namespace sonaro::desktop {

ReadMark::ReadMark(std::string path) : path_(std::move(path)) {
  // Older than the file itself: where not every read is noted, the first one after a change still is.
  const FILETIME longAgo{0, 29000000};
  HANDLE file = CreateFileA(path_.c_str(), FILE_WRITE_ATTRIBUTES, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                            OPEN_EXISTING, 0, nullptr);
  if (file != INVALID_HANDLE_VALUE) {
    SetFileTime(file, nullptr, &longAgo, nullptr);
    CloseHandle(file);
  }
  marked_ = LastRead();
}

bool ReadMark::Works(const std::string& scratchFile) {
  std::ofstream(scratchFile) << "x";
  const ReadMark mark(scratchFile);
  char read = 0;
  std::ifstream(scratchFile) >> read;
  return mark.IsRead();
}

std::uint64_t ReadMark::LastRead() const {
  WIN32_FILE_ATTRIBUTE_DATA data{};
  GetFileAttributesExA(path_.c_str(), GetFileExInfoStandard, &data);
  return (std::uint64_t{data.ftLastAccessTime.dwHighDateTime} << 32) | data.ftLastAccessTime.dwLowDateTime;
}

bool ReadMark::IsRead() const { return LastRead() != marked_; }

bool ReadMark::WasRead() const {
  return WaitUntil([this] { return IsRead(); });
}

}  // namespace sonaro::desktop
