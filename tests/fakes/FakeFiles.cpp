#include "fakes/FakeFiles.h"

#include <algorithm>
#include <utility>

namespace sonaro {
namespace {

// "" stands above the topmost folders and is always there.
std::string FolderOf(const std::string& path) {
  const std::size_t slash = path.rfind('/');
  return slash == std::string::npos ? "" : path.substr(0, slash);
}

const char* DurabilityText(Durability durability) {
  return durability == Durability::Flushed ? " flushed" : " cached";
}

}  // namespace

class FakeFiles::Reader : public InputFile {
 public:
  Reader(FakeFiles& owner, FilePtr file) : owner_(owner), file_(std::move(file)) { ++file_->openHandles; }
  ~Reader() override { --file_->openHandles; }

  std::uint64_t Size() const override { return file_->bytes.size(); }

  bool ReadAt(std::uint64_t offset, char* buffer, std::size_t length) override {
    const std::string& bytes = file_->bytes;
    if (owner_.Crashed() || file_->gone || offset > bytes.size() || length > bytes.size() - offset)
      return false;
    bytes.copy(buffer, length, static_cast<std::size_t>(offset));
    owner_.bytesRead_ += length;
    return true;
  }

 private:
  FakeFiles& owner_;
  FilePtr file_;
};

class FakeFiles::Writer : public OutputFile {
 public:
  Writer(FakeFiles& owner, FilePtr file, std::string path)
      : owner_(owner), file_(std::move(file)), path_(std::move(path)) {
    ++file_->openHandles;
  }
  ~Writer() override { Close(); }

  bool Append(std::string_view bytes) override {
    std::size_t taken = 0;
    switch (Begin("append " + path_ + ' ' + std::to_string(bytes.size()))) {
      case Step::Runs:
        taken = owner_.TakeSpace(bytes.size());
        break;
      case Step::CrashesNow:
        taken = bytes.size() / 2;
        break;
      case Step::Down:
        return false;
    }
    file_->bytes += bytes.substr(0, taken);
    failed_ = failed_ || taken < bytes.size() || owner_.Crashed();
    return !failed_;
  }

  bool WriteAt(std::uint64_t offset, std::string_view bytes) override {
    if (offset > file_->bytes.size() || bytes.size() > file_->bytes.size() - offset) return false;
    const std::string where = path_ + ' ' + std::to_string(offset) + ' ' + std::to_string(bytes.size());
    if (Begin("write " + where) != Step::Runs) return false;
    file_->bytes.replace(static_cast<std::size_t>(offset), bytes.size(), bytes);
    return true;
  }

  bool Commit(Durability durability) override {
    const bool flush = durability == Durability::Flushed;
    if (Begin("commit " + path_ + DurabilityText(durability)) != Step::Runs) return false;
    if (flush) file_->flushed = file_->bytes;
    Close();
    return !failed_;
  }

 private:
  Step Begin(const std::string& operation) {
    return open_ && !file_->gone ? owner_.Begin(operation) : Step::Down;
  }
  void Close() {
    if (open_) --file_->openHandles;
    open_ = false;
  }

  FakeFiles& owner_;
  FilePtr file_;
  std::string path_;
  bool open_ = true;
  bool failed_ = false;
};

void FakeFiles::Put(const std::string& path, std::string_view bytes) {
  AddFolders(FolderOf(path));
  files_[path] = std::make_shared<File>(File{std::string(bytes), std::string(bytes)});
}

std::optional<std::string> FakeFiles::Get(const std::string& path) const {
  const FilePtr file = Find(path);
  return file ? std::optional<std::string>(file->bytes) : std::nullopt;
}

std::vector<std::string> FakeFiles::AllPaths() const {
  std::vector<std::string> paths;
  for (const auto& [path, file] : files_) paths.push_back(path);
  return paths;
}

void FakeFiles::Restart(AfterCrash survival) {
  const bool losesUnflushed =
      survival == AfterCrash::LosesUnflushed || survival == AfterCrash::LosesUnflushedAndSettings;
  journal_.Revive();
  if (losesUnflushed) UndoReplacements();
  if (survival == AfterCrash::LosesLastSetting) journal_.UndoLastSetting();
  if (survival == AfterCrash::LosesSettings || survival == AfterCrash::LosesUnflushedAndSettings) {
    journal_.UndoSettings();
  }
  for (auto& [path, file] : files_) {
    file->gone = true;
    File left{file->bytes, file->flushed};
    if (left.bytes != left.flushed && losesUnflushed) left.bytes = left.flushed;
    if (left.bytes != left.flushed && survival == AfterCrash::TearsUnflushed) {
      const auto half = static_cast<std::ptrdiff_t>(left.bytes.size() / 2);
      std::fill(left.bytes.begin() + half, left.bytes.end(), '\0');
    }
    left.flushed = left.bytes;
    file = std::make_shared<File>(std::move(left));
  }
  Settle();
}

void FakeFiles::Settle() {
  unflushedReplacements_.clear();
  journal_.Settle();
  for (const auto& [path, file] : files_) file->flushed = file->bytes;
}

std::unique_ptr<InputFile> FakeFiles::Open(const std::string& path) {
  FilePtr file = Find(path);
  if (Crashed() || !file || locked_.contains(path)) return nullptr;
  return std::make_unique<Reader>(*this, std::move(file));
}

std::unique_ptr<OutputFile> FakeFiles::Create(const std::string& path) {
  if (Begin("create " + path) != Step::Runs || !IsFree(path) || folders_.contains(path)) return nullptr;
  const std::string folder = FolderOf(path);
  if (!folder.empty() && !folders_.contains(folder)) return nullptr;
  const FilePtr file = std::make_shared<File>();
  files_[path] = file;
  return std::make_unique<Writer>(*this, file, path);
}

bool FakeFiles::Replace(const std::string& from, const std::string& to, Durability durability) {
  const bool flush = durability == Durability::Flushed;
  if (Begin("replace " + from + ' ' + to + DurabilityText(durability)) != Step::Runs) return false;
  const FilePtr file = Find(from);
  if (!file || !IsFree(from) || !IsFree(to) || folders_.contains(to)) return false;
  unflushedReplacements_.push_back({from, to, file, Find(to)});
  if (flush) unflushedReplacements_.clear();
  files_.erase(from);
  files_[to] = file;
  return true;
}

bool FakeFiles::Remove(const std::string& path) {
  if (Begin("remove " + path) != Step::Runs || !IsFree(path) || folders_.contains(path)) return false;
  if (const FilePtr file = Find(path)) unflushedReplacements_.push_back({"", path, nullptr, file});
  files_.erase(path);
  return true;
}

bool FakeFiles::Exists(const std::string& path) {
  return !Crashed() && (files_.contains(path) || folders_.contains(path));
}

std::vector<std::string> FakeFiles::List(const std::string& folder) {
  std::vector<std::string> names;
  if (Crashed()) return names;
  const auto addIfInside = [&](const std::string& path) {
    if (FolderOf(path) == folder) names.push_back(path.substr(folder.size() + 1));
  };
  for (const auto& [path, file] : files_) addIfInside(path);
  for (const std::string& path : folders_) addIfInside(path);
  return names;
}

bool FakeFiles::MakeFolder(const std::string& path) {
  if (Begin("folder " + path) != Step::Runs || files_.contains(path)) return false;
  AddFolders(path);
  return true;
}

FakeFiles::FilePtr FakeFiles::Find(const std::string& path) const {
  const auto found = files_.find(path);
  return found == files_.end() ? nullptr : found->second;
}

bool FakeFiles::IsFree(const std::string& path) const {
  const FilePtr file = Find(path);
  return !file || (file->openHandles == 0 && !locked_.contains(path));
}

void FakeFiles::AddFolders(const std::string& folder) {
  for (std::string path = folder; !path.empty(); path = FolderOf(path)) folders_.insert(path);
}

std::size_t FakeFiles::TakeSpace(std::size_t wanted) {
  if (!spaceLeft_) return wanted;
  const std::size_t taken = std::min(wanted, static_cast<std::size_t>(*spaceLeft_));
  *spaceLeft_ -= taken;
  return taken;
}

void FakeFiles::UndoReplacements() {
  for (auto replacement = unflushedReplacements_.rbegin(); replacement != unflushedReplacements_.rend();
       ++replacement) {
    if (replacement->newFile) {
      files_[replacement->from] = replacement->newFile;
      files_.erase(replacement->to);
    } else if (files_.contains(replacement->to)) {
      continue;  // the name is in use again: its removal has reached the disk before
    }
    if (replacement->oldFile) files_[replacement->to] = replacement->oldFile;
  }
}

}  // namespace sonaro
