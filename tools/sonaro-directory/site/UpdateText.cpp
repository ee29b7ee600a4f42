// The update is one text. Lines "::Key::value::" tell the installation about the service; then comes a
// section for each file; then the date, for a signed update the serial number and the signature of everything
// before it; and last the sentinel, by which an installation knows that nothing was cut off on the way.
//
// A section is the file's bytes between a line that starts it and one that ends it, so only files of CR LF
// lines can travel (FitsInSection), and never tables, which are built from the list where they are used.
#include "site/UpdateText.h"

#include <algorithm>

#include "base/OwnFiles.h"
#include "base/Text.h"
#include "base/crypto/Signing.h"
#include "directory/StationListFile.h"
#include "net/UpdateFormat.h"
#include "net/UpdateSignature.h"
#include "site/TextChanges.h"

namespace sonaro {
namespace {

constexpr std::string_view kStationList = guide_file::kStations.substr(1);
constexpr std::string_view kLineEnd = "\r\n";

// A station table is made by the installation itself.
bool IsTable(std::string_view name) {
  constexpr std::string_view kEndings[] = {".isd", ".ism", ".isf", ".isl"};
  return std::any_of(std::begin(kEndings), std::end(kEndings),
                     [name](std::string_view ending) { return EndsWithIgnoringCase(name, ending); });
}

// Returns the files that an update may bring in the order of their names, the station list in front: should
// the rest not come through, the list is there.
std::vector<std::string> NamesOf(DataFolder& data) {
  std::vector<std::string> names;
  for (std::string& name : data.FileSystem().List(data.Folder())) {
    if (EqualIgnoringCase(name, kStationList)) name = kStationList;  // as installations compare it
    if (update::MayBringFile(name) && !IsTable(name)) names.push_back(std::move(name));
  }
  std::sort(names.begin(), names.end());
  const auto list = std::find(names.begin(), names.end(), kStationList);
  if (list != names.end()) std::rotate(names.begin(), list, list + 1);
  return names;
}

bool HoldsStation(std::string_view list) {
  StationLine station;
  while (!list.empty()) {
    if (ParseStationLine(NextField(list, '\n'), station)) return true;
  }
  return false;
}

void AddSection(std::string& text, std::string_view name, std::string_view bytes) {
  text.append(update::kFile).append(name).append(kLineEnd);
  text.append(name).append(update::kSectionStart).append(kLineEnd);
  text.append(bytes);
  text.append(name).append(update::kSectionEnd).append(kLineEnd);
}

// Carries a file by what changed in it since `before`, in the text of the section kChanges. False when the
// whole file is shorter.
bool AddChanges(const ReceivedFile& before, std::string_view bytes, std::string& changes) {
  if (before.bytes == bytes) return true;
  const std::string steps = StepsBetween(before.bytes, bytes);
  if (steps.size() >= bytes.size()) return false;
  changes.append(">").append(before.name).append("\t").append(Sha256Hex(before.bytes)).append("\t");
  changes.append(Sha256Hex(bytes)).append(kLineEnd).append(steps);
  return true;
}

bool AddAsChanges(const UpdateRequest& request, std::string_view name, std::string_view bytes,
                  std::string& changes) {
  if (!request.since) return false;
  const auto before =
      std::find_if(request.since->begin(), request.since->end(),
                   [&](const ReceivedFile& one) { return EqualIgnoringCase(one.name, name); });
  return before != request.since->end() && AddChanges(*before, bytes, changes);
}

void AddSections(DataFolder& data, const UpdateRequest& request, UpdateText& update) {
  std::string changes;
  for (const std::string& name : NamesOf(data)) {
    const ReadResult file = data.Read("\\" + name);
    if (file.status != ReadStatus::Ok) {
      update.failure = "\"" + name + "\" could not be read.";
      return;
    }
    const bool isList = name == kStationList;
    if (isList && !HoldsStation(file.bytes)) {
      update.failure = "\"" + name + "\" holds no station.";
    } else if (FitsInSection(name, file.bytes)) {
      if (!AddAsChanges(request, name, file.bytes, changes)) AddSection(update.bytes, name, file.bytes);
      update.carried.push_back(name);
    } else if (isList) {
      update.failure = "\"" + name + "\" is not made of lines ended by CR LF.";
    } else {
      update.leftOut.push_back(name);
    }
    if (!update.failure.empty()) return;
  }
  if (!changes.empty()) AddSection(update.bytes, update::kChanges, changes);
  if (update.carried.size() > update::kMaxSections)
    update.failure = "The folder has more files than an installation takes in one update.";
  if (update.carried.empty() || update.carried.front() != kStationList)
    update.failure = "\"" + data.Folder() + "\" has no station list.";
}

void AddSerial(std::int64_t serial, UpdateText& update) {
  update.bytes.append(update::kSerial).append(std::to_string(serial)).append("::").append(kLineEnd);
}

void AddSignature(const std::string& secretKey, UpdateText& update) {
  const std::string line = UpdateSignatureLine(update.bytes, secretKey);
  if (line.empty()) update.failure = "The key is not 128 hexadecimal digits.";
  update.bytes.append(line).append(kLineEnd);
}

}  // namespace

bool FitsInSection(std::string_view name, std::string_view bytes) {
  const std::string end = std::string(name).append(update::kSectionEnd);
  while (!bytes.empty()) {
    const std::size_t length = bytes.find('\n');
    if (length == std::string_view::npos || length < 2 || bytes[length - 1] != '\r') return false;
    if (EqualIgnoringCase(bytes.substr(0, length - 1), end)) return false;
    bytes.remove_prefix(length + 1);
  }
  return true;
}

UpdateText MakeUpdateText(DataFolder& data, const UpdateRequest& request) {
  UpdateText update;
  for (const ServiceLine& line : request.service)
    update.bytes.append(line.key).append(line.value).append("::").append(kLineEnd);
  AddSections(data, request, update);
  update.bytes.append(update::kDate).append(request.date).append("::").append(kLineEnd);
  const bool isSigned = !request.secretKey.empty();
  // The serial number before the signature, so that it is signed too: an old update could otherwise be played
  // back under a new number.
  if (isSigned) AddSerial(request.serial, update);
  if (update.failure.empty() && isSigned) AddSignature(request.secretKey, update);
  update.bytes.append(update::kSentinel);
  if (update.failure.empty() && update.bytes.size() > update::kMaxBytes)
    update.failure = "The update is larger than an installation takes.";
  // Never half an update: an installation could take it.
  if (!update.failure.empty()) update.bytes.clear();
  return update;
}

}  // namespace sonaro
