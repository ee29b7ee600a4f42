#include "tray/Backup.h"

#include <algorithm>
#include <iterator>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

#include "base/DataFolder.h"
#include "base/Numbers.h"
#include "base/OwnFiles.h"
#include "base/Text.h"
#include "base/crypto/Signing.h"
#include "faceplate/FaceplateColors.h"
#include "platform/Clock.h"
#include "settings/CReg.h"
#include "settings/SettingNames.h"

namespace sonaro {
namespace {

// The first line is the version and the day, the last the digest of all before it. Between them each entry is
// a line, with the length of what follows it unless there was no such file or setting:
//   file TAB name TAB length, the bytes          absent TAB name
//   setting TAB name TAB length, the text        unset TAB name
constexpr std::string_view kHead = "Sonaro backup, ";
constexpr std::string_view kVersion = "1";
constexpr std::string_view kDigest = "sha256 ";
constexpr std::size_t kDigestLine = kDigest.size() + 64 + 1;
constexpr std::string_view kDay = "yyyy-MM-dd";
// More than anybody's groups and schedules: what is larger is not looked at.
constexpr std::uint64_t kMaxBytes = 64 << 20;

// Settings are kept one by one: where they lie, and what else is settled there, is the installation's.
std::vector<std::string_view> FilesOfTheUser() {
  std::vector<std::string_view> names(std::begin(user_file::kAll), std::end(user_file::kAll));
  for (const std::string_view other :
       {user_file::kSettings, user_file::kSettingsBefore, user_file::kBeforeRestore})
    std::erase(names, other);
  return names;
}

std::vector<std::string_view> SettingsOfTheUser() {
  std::vector<std::string_view> names = {
      setting::kStartPlayer.name,        setting::kStartProxy.name,
      setting::kStartQuickStart.name,    setting::kLocal.name,
      setting::kProxyUse.name,           setting::kProxyAddress.name,
      setting::kProxyPort.name,          setting::kScanTime.name,
      setting::kSearchList.name,         setting::kPinnedSearches.name,
      setting::kListValues.name,         setting::kListFilter.name,
      setting::kNoShowDelete.name,       setting::kNoShowDeletePersonalStation.name,
      setting::kNoShowDeleteNotice.name, setting::kSoundNotify.name,
      setting::kSoundClick.name,         setting::kCloseToTray.name,
      setting::kFacePlateName.name};
  for (const ColorSetting& color : ColorSettings()) names.push_back(color.setting.name);
  return names;
}

struct Kept {
  std::string name;                 // as in the lists above
  std::optional<std::string> text;  // nothing: there was none
};

struct Content {
  Date made;
  std::vector<Kept> files;
  std::vector<Kept> settings;
};

// False for a name that is none of `known`, or comes again.
bool Take(std::string_view name, std::optional<std::string> text, const std::vector<std::string_view>& known,
          std::vector<Kept>& kept) {
  const auto isIt = [name](const Kept& other) { return other.name == name; };
  if (std::find(known.begin(), known.end(), name) == known.end() ||
      std::any_of(kept.begin(), kept.end(), isIt))
    return false;
  kept.push_back({std::string(name), std::move(text)});
  return true;
}

bool TakeEntry(std::string_view& rest, Content& content) {
  const auto fields = Split(NextField(rest, '\n'), '\t');
  const bool isFile = fields[0] == "file" || fields[0] == "absent";
  if (!isFile && fields[0] != "setting" && fields[0] != "unset") return false;
  const bool holds = fields[0] == "file" || fields[0] == "setting";
  if (fields.size() != (holds ? 3 : 2)) return false;
  std::optional<std::string> text;
  if (holds && !(text = TakeCounted(rest, fields[2]))) return false;
  return isFile ? Take("\\" + std::string(fields[1]), std::move(text), FilesOfTheUser(), content.files)
                : Take(fields[1], std::move(text), SettingsOfTheUser(), content.settings);
}

// A backup cut off within its first line is a damaged one as well.
BackupFault Parse(std::string_view bytes, Content& content) {
  if (!bytes.starts_with(kHead)) return BackupFault::Foreign;
  std::string_view rest = bytes.substr(kHead.size());
  std::string_view head = NextField(rest, '\n');
  const std::string_view version = NextField(head, '\t');
  if (version != kVersion) return IsNumeric(version) ? BackupFault::LaterVersion : BackupFault::Damaged;
  if (rest.size() < kDigestLine) return BackupFault::Damaged;
  const std::string_view digested = bytes.substr(0, bytes.size() - kDigestLine);
  if (bytes.substr(digested.size()) != std::string(kDigest) + Sha256Hex(digested) + "\n")
    return BackupFault::Damaged;
  const std::optional<DateTime> made = ParseDate(head, kDay);
  if (!made) return BackupFault::Damaged;
  content.made = made->date;
  rest.remove_suffix(kDigestLine);
  while (!rest.empty())
    if (!TakeEntry(rest, content)) return BackupFault::Damaged;
  return BackupFault::None;
}

void Append(std::string& text, std::string_view name, const std::optional<std::string>& kept,
            std::string_view present, std::string_view missing) {
  text.append(kept ? present : missing).append("\t").append(name);
  if (kept) text.append("\t").append(std::to_string(kept->size()));
  text.append("\n").append(kept.value_or(""));
}

}  // namespace

std::string Backup::FileName() const {
  return "Sonaro backup " + FormatByPattern(clock_.LocalNow().date, kDay) + ".sonaro";
}

BackupSaved Backup::Save(const std::string& path) const {
  std::string text(kHead);
  text.append(kVersion).append("\t").append(FormatByPattern(clock_.LocalNow().date, kDay)).append("\n");
  for (const std::string_view name : FilesOfTheUser()) {
    ReadResult file = ReadWholeFile(data_.FileSystem(), data_.Path(name));
    if (file.status == ReadStatus::Unreadable) return BackupSaved::OwnFileUnreadable;
    std::optional<std::string> kept;
    if (file.status == ReadStatus::Ok) kept = std::move(file.bytes);
    Append(text, name.substr(1), kept, "file", "absent");
  }
  for (const std::string_view name : SettingsOfTheUser()) {
    std::optional<std::string> kept = reg_.Setting(std::string(name));
    if (kept->empty()) kept.reset();
    Append(text, name, kept, "setting", "unset");
  }
  text += std::string(kDigest) + Sha256Hex(text) + "\n";
  return SaveWholeFile(data_.FileSystem(), path, text) ? BackupSaved::Yes : BackupSaved::NotWritten;
}

BackupFile Backup::Read(const std::string& path) const {
  BackupFile backup;
  {
    const std::unique_ptr<InputFile> file = data_.FileSystem().Open(path);
    if (file && file->Size() > kMaxBytes) return {.fault = BackupFault::Foreign};
  }
  ReadResult file = ReadWholeFile(data_.FileSystem(), path);
  if (file.status != ReadStatus::Ok) return {.fault = BackupFault::Unreadable};
  Content content;
  backup.fault = Parse(file.bytes, content);
  backup.made = content.made;
  backup.bytes = std::move(file.bytes);
  return backup;
}

bool Backup::RestoreAtStart(const BackupFile& backup) {
  return backup.fault == BackupFault::None && data_.Save(work_file::kRestore, backup.bytes);
}

void Backup::FinishRestore() {
  if (data_.Exists(work_file::kRestore)) restored_.outcome = Begin();
  if (restored_.outcome == RestoreOutcome::NotKept) {
    data_.Remove(work_file::kRestore);
    return;
  }
  if (!data_.Exists(work_file::kRestoring)) return;
  const BackupFile backup = Read(data_.Path(work_file::kRestoring));
  restored_ = {Apply(backup.bytes), backup.made};
  data_.Remove(work_file::kRestoring);
}

// The name changes when the present is kept: from then on a start that died is gone on with, and what it left
// half replaced is not taken for the present.
RestoreOutcome Backup::Begin() {
  const bool begun = Read(data_.Path(work_file::kRestore)).fault == BackupFault::None &&
                     Save(data_.Path(user_file::kBeforeRestore)) == BackupSaved::Yes &&
                     data_.Replace(work_file::kRestore, work_file::kRestoring);
  return begun ? RestoreOutcome::NothingToDo : RestoreOutcome::NotKept;
}

// What the backup does not name stays. A file that cannot be replaced keeps no other from it, and it is not
// tried again by a later start: by then the user may have changed what would be replaced.
RestoreOutcome Backup::Apply(std::string_view bytes) {
  Content content;
  if (Parse(bytes, content) != BackupFault::None) return RestoreOutcome::InPart;
  bool whole = true;
  for (const Kept& file : content.files) {
    const bool done = file.text ? data_.Save(file.name, *file.text) : data_.Remove(file.name);
    whole = done && whole;
  }
  {
    const SettingsBatch batch(reg_);
    for (const Kept& kept : content.settings) {
      if (reg_.Setting(kept.name) == kept.text.value_or("")) continue;
      if (kept.text) {
        reg_.SetSetting(kept.name, *kept.text);
      } else {
        reg_.DeleteValue(kSettingsKey, kept.name);
      }
      whole = reg_.Setting(kept.name) == kept.text.value_or("") && whole;
    }
  }
  reg_.FlushSettings();
  return whole ? RestoreOutcome::Done : RestoreOutcome::InPart;
}

Restored Backup::TakeRestored() { return std::exchange(restored_, {}); }

}  // namespace sonaro
