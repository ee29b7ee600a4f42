#include "platform/win/FilesWin.h"

#include <windows.h>

#include <algorithm>
#include <string_view>
#include <utility>

#include "platform/win/Handle.h"

namespace sonaro {
namespace {

// The most that one call transfers.
constexpr std::size_t kMaxTransferSize = std::size_t{1} << 30;

// Virus scanners and indexers open a file for a moment just after it was written. Waiting for a quarter of a
// second in all gets past them without the user noticing.
constexpr int kTries = 10;
constexpr DWORD kPause = 30;  // milliseconds

// Does `act` until it is true, or fails otherwise than by somebody else's use of the file. Access is denied
// to a file that is on its way out, too.
template <typename Act>
bool WithPatience(const FilesWin::Pause& pause, Act act) {
  for (int tries = 1; !act(); ++tries) {
    const DWORD error = GetLastError();
    const bool inUse =
        error == ERROR_SHARING_VIOLATION || error == ERROR_LOCK_VIOLATION || error == ERROR_ACCESS_DENIED;
    if (tries == kTries || !inUse) return false;
    pause();
  }
  return true;
}

// A position for one transfer of a handle that was opened for waiting calls.
OVERLAPPED PositionAt(std::uint64_t offset) {
  OVERLAPPED position{};
  position.Offset = static_cast<DWORD>(offset & 0xFFFFFFFF);
  position.OffsetHigh = static_cast<DWORD>(offset >> 32);
  return position;
}

class InputFileWin : public InputFile {
 public:
  InputFileWin(FileHandle file, std::uint64_t size, FilesWin::Pause pause)
      : file_(std::move(file)), size_(size), pause_(std::move(pause)) {}

  std::uint64_t Size() const override { return size_; }

  bool ReadAt(std::uint64_t offset, char* buffer, std::size_t length) override {
    if (offset > size_ || length > size_ - offset) return false;
    while (length > 0) {
      OVERLAPPED position = PositionAt(offset);
      DWORD count = 0;
      // Transfers have 32-bit lengths.
      const auto wanted = static_cast<DWORD>(std::min(length, kMaxTransferSize));
      const bool read =
          WithPatience(pause_, [&] { return ReadFile(file_.Get(), buffer, wanted, &count, &position) != 0; });
      if (!read || count == 0) return false;
      buffer += count;
      offset += count;
      length -= count;
    }
    return true;
  }

 private:
  FileHandle file_;
  std::uint64_t size_;
  FilesWin::Pause pause_;
};

class OutputFileWin : public OutputFile {
 public:
  explicit OutputFileWin(FileHandle file) : file_(std::move(file)) {}

  bool Append(std::string_view bytes) override {
    const bool written = Write(size_, bytes);
    if (written) size_ += bytes.size();
    return written;
  }

  bool WriteAt(std::uint64_t offset, std::string_view bytes) override {
    if (offset > size_ || bytes.size() > size_ - offset) return false;
    return Write(offset, bytes);
  }

  bool Commit(Durability durability) override {
    if (!file_) return false;
    const bool flushed = durability == Durability::Cached || FlushFileBuffers(file_.Get());
    return file_.Reset() && flushed && !failed_;
  }

 private:
  bool Write(std::uint64_t offset, std::string_view bytes) {
    if (!file_) return false;
    while (!bytes.empty()) {
      OVERLAPPED position = PositionAt(offset);
      DWORD count = 0;
      const auto wanted = static_cast<DWORD>(std::min(bytes.size(), kMaxTransferSize));
      if (!WriteFile(file_.Get(), bytes.data(), wanted, &count, &position) || count == 0) {
        failed_ = true;
        return false;
      }
      offset += count;
      bytes.remove_prefix(count);
    }
    return true;
  }

  FileHandle file_;
  std::uint64_t size_ = 0;
  bool failed_ = false;
};

bool IsFolder(const std::string& path) {
  const DWORD attributes = GetFileAttributesA(path.c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

// A folder is denied like a file in use; nothing is worth waiting for there.
FileHandle OpenPatiently(const FilesWin::Pause& pause, const std::string& path, DWORD access, DWORD sharing,
                         DWORD disposition) {
  FileHandle file;
  WithPatience(pause, [&] {
    file.Reset(
        CreateFileA(path.c_str(), access, sharing, nullptr, disposition, FILE_ATTRIBUTE_NORMAL, nullptr));
    if (file) return true;
    const DWORD error = GetLastError();
    SetLastError(error == ERROR_ACCESS_DENIED && IsFolder(path) ? ERROR_DIRECTORY : error);
    return false;
  });
  return file;
}

bool SaysMissing(DWORD error) { return error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND; }

}  // namespace

FilesWin::FilesWin() : FilesWin([] { Sleep(kPause); }) {}

// Others may read at the same time but not write, rename or remove: an open file keeps its contents.
std::unique_ptr<InputFile> FilesWin::Open(const std::string& path) {
  FileHandle file = OpenPatiently(pause_, path, GENERIC_READ, FILE_SHARE_READ, OPEN_EXISTING);
  LARGE_INTEGER size{};
  if (!file || !GetFileSizeEx(file.Get(), &size)) return nullptr;
  return std::make_unique<InputFileWin>(std::move(file), static_cast<std::uint64_t>(size.QuadPart), pause_);
}

std::unique_ptr<OutputFile> FilesWin::Create(const std::string& path) {
  FileHandle file = OpenPatiently(pause_, path, GENERIC_WRITE, 0, CREATE_ALWAYS);
  return file ? std::make_unique<OutputFileWin>(std::move(file)) : nullptr;
}

// A move, not ReplaceFile: that one can fail half-way with the old file already renamed.
bool FilesWin::Replace(const std::string& from, const std::string& to, Durability durability) {
  const DWORD flush = durability == Durability::Flushed ? MOVEFILE_WRITE_THROUGH : 0;
  return WithPatience(
      pause_, [&] { return MoveFileExA(from.c_str(), to.c_str(), MOVEFILE_REPLACE_EXISTING | flush) != 0; });
}

bool FilesWin::Remove(const std::string& path) {
  return WithPatience(pause_, [&] { return DeleteFileA(path.c_str()) != 0 || SaysMissing(GetLastError()); });
}

// A file that may not even be looked at is there: taking it for missing would let it be overwritten.
bool FilesWin::Exists(const std::string& path) {
  if (GetFileAttributesA(path.c_str()) != INVALID_FILE_ATTRIBUTES) return true;
  const DWORD error = GetLastError();
  return error == ERROR_ACCESS_DENIED || error == ERROR_SHARING_VIOLATION;
}

std::vector<std::string> FilesWin::List(const std::string& folder) {
  std::vector<std::string> names;
  WIN32_FIND_DATAA entry{};
  const FindHandle search(FindFirstFileA((folder + "\\*").c_str(), &entry));
  if (!search) return names;
  do {
    const std::string_view name = entry.cFileName;
    if (name != "." && name != "..") names.emplace_back(name);
  } while (FindNextFileA(search.Get(), &entry));
  return names;
}

bool FilesWin::MakeFolder(const std::string& path) {
  const auto nextSeparator = [&](std::size_t from) { return path.find_first_of("\\/", from); };
  for (std::size_t cut = nextSeparator(1); cut != std::string::npos; cut = nextSeparator(cut + 1)) {
    CreateDirectoryA(path.substr(0, cut).c_str(), nullptr);
  }
  CreateDirectoryA(path.c_str(), nullptr);
  return IsFolder(path);
}

}  // namespace sonaro
