#include "platform/posix/FilesPosix.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <string_view>

namespace sonaro {
namespace {

// An open file that is closed on every way out.
class Descriptor {
 public:
  explicit Descriptor(int value) : value_(value) {}
  ~Descriptor() { Close(); }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;

  bool IsOpen() const { return value_ >= 0; }
  int Get() const { return value_; }
  bool Close() {
    const bool closed = value_ < 0 || ::close(value_) == 0;
    value_ = -1;
    return closed;
  }

 private:
  int value_;
};

class InputFilePosix : public InputFile {
 public:
  InputFilePosix(int descriptor, std::uint64_t size) : file_(descriptor), size_(size) {}

  std::uint64_t Size() const override { return size_; }

  bool ReadAt(std::uint64_t offset, char* buffer, std::size_t length) override {
    if (offset > size_ || length > size_ - offset) return false;
    while (length > 0) {
      // A read may bring less than was asked for, and a signal may interrupt it; neither is a failure. No
      // bytes at all means that the file has become shorter since it was opened.
      const ssize_t count = ::pread(file_.Get(), buffer, length, static_cast<off_t>(offset));
      if (count < 0 && errno == EINTR) continue;
      if (count <= 0) return false;
      const auto taken = static_cast<std::size_t>(count);
      buffer += taken;
      offset += taken;
      length -= taken;
    }
    return true;
  }

 private:
  Descriptor file_;
  std::uint64_t size_;
};

class OutputFilePosix : public OutputFile {
 public:
  explicit OutputFilePosix(int descriptor) : file_(descriptor) {}

  // The size counts what was written whole, so that a failed write is not taken for part of the file.
  bool Append(std::string_view bytes) override {
    const bool written = Write(size_, bytes);
    if (written) size_ += bytes.size();
    return written;
  }

  bool WriteAt(std::uint64_t offset, std::string_view bytes) override {
    if (offset > size_ || bytes.size() > size_ - offset) return false;
    return Write(offset, bytes);
  }

  // A failure may be reported at any of these steps, on network drives only when closing; all of them count.
  bool Commit(Durability durability) override {
    if (!file_.IsOpen()) return false;
    const bool flushed = durability == Durability::Cached || ::fsync(file_.Get()) == 0;
    return file_.Close() && flushed && !failed_;
  }

 private:
  bool Write(std::uint64_t offset, std::string_view bytes) {
    if (!file_.IsOpen()) return false;
    while (!bytes.empty()) {
      const ssize_t count = ::pwrite(file_.Get(), bytes.data(), bytes.size(), static_cast<off_t>(offset));
      if (count < 0 && errno == EINTR) continue;
      if (count <= 0) {
        failed_ = true;
        return false;
      }
      offset += static_cast<std::uint64_t>(count);
      bytes.remove_prefix(static_cast<std::size_t>(count));
    }
    return true;
  }

  Descriptor file_;
  std::uint64_t size_ = 0;
  bool failed_ = false;
};

bool IsFolder(const std::string& path) {
  struct stat info {};
  return ::stat(path.c_str(), &info) == 0 && S_ISDIR(info.st_mode);
}

// Makes a rename survive a power cut. Systems that cannot flush a folder have already renamed: not a failure.
void FlushFolderOf(const std::string& path) {
  const std::size_t slash = path.rfind('/');
  const std::string folder = slash == std::string::npos ? "." : path.substr(0, slash + 1);
  const Descriptor opened(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (opened.IsOpen()) ::fsync(opened.Get());
}

}  // namespace

std::unique_ptr<InputFile> FilesPosix::Open(const std::string& path) {
  const int descriptor = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
  if (descriptor < 0) return nullptr;
  struct stat info {};
  // A folder or a pipe can be opened too, but not read like a file.
  if (::fstat(descriptor, &info) != 0 || !S_ISREG(info.st_mode)) {
    ::close(descriptor);
    return nullptr;
  }
  return std::make_unique<InputFilePosix>(descriptor, static_cast<std::uint64_t>(info.st_size));
}

// An existing file is emptied. Whoever wants the old or the new one writes beside it and uses Replace.
std::unique_ptr<OutputFile> FilesPosix::Create(const std::string& path) {
  const int descriptor = ::open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
  return descriptor < 0 ? nullptr : std::make_unique<OutputFilePosix>(descriptor);
}

bool FilesPosix::Replace(const std::string& from, const std::string& to, Durability durability) {
  if (::rename(from.c_str(), to.c_str()) != 0) return false;
  if (durability == Durability::Flushed) FlushFolderOf(to);
  return true;
}

// A file that is not there counts as removed.
bool FilesPosix::Remove(const std::string& path) { return ::unlink(path.c_str()) == 0 || errno == ENOENT; }

bool FilesPosix::Exists(const std::string& path) { return ::access(path.c_str(), F_OK) == 0; }

std::vector<std::string> FilesPosix::List(const std::string& folder) {
  std::vector<std::string> names;
  DIR* const opened = ::opendir(folder.c_str());
  if (!opened) return names;
  while (const dirent* entry = ::readdir(opened)) {
    const std::string_view name = entry->d_name;
    if (name != "." && name != "..") names.emplace_back(name);
  }
  ::closedir(opened);
  return names;
}

bool FilesPosix::MakeFolder(const std::string& path) {
  for (std::size_t slash = path.find('/', 1); slash != std::string::npos; slash = path.find('/', slash + 1)) {
    // Fails for folders that exist, which is fine: only the result counts.
    ::mkdir(path.substr(0, slash).c_str(), 0777);
  }
  ::mkdir(path.c_str(), 0777);
  return IsFolder(path);
}

}  // namespace sonaro
