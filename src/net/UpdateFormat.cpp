#include "net/UpdateFormat.h"

#include <algorithm>

#include "base/OwnFiles.h"
#include "base/Text.h"

namespace sonaro::update {

namespace {

constexpr std::size_t kMaxNameLength = 64;

// What a directory consists of. Nothing that Windows would run is among them.
constexpr std::string_view kEndings[] = {".snr", ".vbt", ".pts", ".isd", ".ism", ".isf", ".isl"};

// Opening such a name talks to a device instead of a file.
constexpr std::string_view kDevices[] = {"con", "prn", "aux", "nul"};
constexpr std::string_view kNumberedDevices[] = {"com", "lpt"};

bool IsPlain(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == ' ' || c == '-' ||
         c == '_' || c == '.';
}

// A device keeps its meaning whatever extension follows it.
bool IsDevice(std::string_view name) {
  const std::string_view stem = TrimBlanks(name.substr(0, name.find('.')));
  const auto is = [stem](std::string_view device) { return EqualIgnoringCase(stem, device); };
  if (std::any_of(std::begin(kDevices), std::end(kDevices), is)) return true;
  return stem.size() == 4 && stem[3] >= '0' && stem[3] <= '9' &&
         std::any_of(
             std::begin(kNumberedDevices), std::end(kNumberedDevices),
             [stem](std::string_view device) { return EqualIgnoringCase(stem.substr(0, 3), device); });
}

}  // namespace

// A blank at an end is dropped by the file system, which would make two names one.
bool MayBringFile(std::string_view name) {
  if (name.empty() || name.size() > kMaxNameLength || !std::all_of(name.begin(), name.end(), IsPlain))
    return false;
  if (name.front() == '.' || TrimBlanks(name) != name || IsDevice(name)) return false;
  // The user's own files, and those that an update works with, must not come from outside; what tells how
  // links are to be read comes with the program.
  if (IsOwnFile(name) || EqualIgnoringCase(name, guide_file::kAlphabet.substr(1)) ||
      EqualIgnoringCase(name, kChanges)) {
    return false;
  }
  return std::any_of(std::begin(kEndings), std::end(kEndings),
                     [name](std::string_view ending) { return EndsWithIgnoringCase(name, ending); });
}

bool EndsWithSentinel(std::string_view body) {
  return body.size() >= kSentinel.size() &&
         EqualIgnoringCase(body.substr(body.size() - kSentinel.size()), kSentinel);
}

}  // namespace sonaro::update
