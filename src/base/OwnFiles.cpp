#include "base/OwnFiles.h"

#include <algorithm>
#include <iterator>
#include <string>

#include "base/DataFolder.h"
#include "base/Text.h"

namespace sonaro {

namespace {

constexpr std::string_view kBeside = ".bad";

bool IsOneOf(const auto& files, std::string_view name) {
  return std::any_of(std::begin(files), std::end(files),
                     [name](std::string_view file) { return EqualIgnoringCase(file.substr(1), name); });
}

// The file beside which a copy of this name lies: "Sched.snr" for "Sched.snr.bad2".
std::string_view WithoutBeside(std::string_view name) {
  if (!name.empty() && name.back() >= '2' && name.back() <= '9') name.remove_suffix(1);
  return EndsWithIgnoringCase(name, kBeside) ? name.substr(0, name.size() - kBeside.size()) : "";
}

}  // namespace

bool IsOwnFile(std::string_view name) {
  return IsOneOf(user_file::kAll, name) || IsOneOf(work_file::kAll, name) ||
         IsOneOf(user_file::kAll, WithoutBeside(name));
}

void RemoveUnfinishedSaves(DataFolder& data) {
  const std::string ending = TemporaryPath("");
  for (const std::string& name : data.FileSystem().List(data.Folder())) {
    const bool unfinished = EndsWithIgnoringCase(name, ending) &&
                            IsOwnFile(std::string_view(name).substr(0, name.size() - ending.size()));
    if (unfinished) data.Remove("\\" + name);
  }
}

}  // namespace sonaro
