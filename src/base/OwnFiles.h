// The names of the files that the program makes in its folder: one list for the stores that write them, the
// start, which clears away what a crash left of them, the updates, which may not bring them, and the
// uninstaller (scripts/package reads this header, so each name stands on a line of its own). And the names of
// the guide's files that the program asks for; those of its other lists and copies come with the guide.
#pragma once

#include <string_view>

namespace sonaro {

class DataFolder;

// What the user made. A copy of one that is not understood lies beside it, see UserFile.
namespace user_file {
inline constexpr std::string_view kGroups = "\\favs.snr";
inline constexpr std::string_view kLinks = "\\ownlinks.snr";
inline constexpr std::string_view kStations = "\\personal.snr";
inline constexpr std::string_view kRecent = "\\recent.snr";
inline constexpr std::string_view kSchedule = "\\Sched.snr";
inline constexpr std::string_view kScheduleDropped = "\\Sched.old";
inline constexpr std::string_view kShows = "\\Shows.snr";
inline constexpr std::string_view kSettings = "\\portable.ini";
inline constexpr std::string_view kSettingsBefore = "\\portable.ini.old";
inline constexpr std::string_view kBeforeRestore = "\\before-restore.sonaro";  // all this, as a backup
inline constexpr std::string_view kAll[] = {kGroups,         kLinks,           kStations, kRecent,
                                            kSchedule,       kScheduleDropped, kShows,    kSettings,
                                            kSettingsBefore, kBeforeRestore};
}  // namespace user_file

// What the program needs for a while.
namespace work_file {
inline constexpr std::string_view kPrevious = "\\previous.snr";    // what the last update replaced
inline constexpr std::string_view kUndoing = "\\undo.snr";         // the same, while it is being put back
inline constexpr std::string_view kRestore = "\\restore.snr";      // a backup for the next start
inline constexpr std::string_view kRestoring = "\\restoring.snr";  // the same, while it is being put back
inline constexpr std::string_view kCopies = "\\unpacked.lst";      // which copies of an update lie about
inline constexpr std::string_view kUpdate = "\\update.txt";
inline constexpr std::string_view kEventUpdate = "\\eventup.txt";
// Empty files that Windows is asked about: which program opens such a file?
inline constexpr std::string_view kAsxMarker = "\\dummy.asx";
inline constexpr std::string_view kRamMarker = "\\dummy.ram";
inline constexpr std::string_view kM3uMarker = "\\dummy.m3u";
inline constexpr std::string_view kPlsMarker = "\\dummy.pls";
inline constexpr std::string_view kMp3Marker = "\\dummy.mp3";
inline constexpr std::string_view kAll[] = {kPrevious,  kUndoing,   kRestore,     kRestoring,
                                            kCopies,    kUpdate,    kEventUpdate, kAsxMarker,
                                            kRamMarker, kM3uMarker, kPlsMarker,   kMp3Marker};
}  // namespace work_file

// What the guide consists of, besides a list for each category. Not the program's own: updates bring them.
namespace guide_file {
inline constexpr std::string_view kStations = "\\Station.snr";
inline constexpr std::string_view kTable = "\\Statorg.isd";
inline constexpr std::string_view kTableIndex = "\\Statorg.ism";
inline constexpr std::string_view kCategories = "\\cat.snr";
inline constexpr std::string_view kLocations = "\\catloc.snr";
inline constexpr std::string_view kRanking = "\\fun.snr";
inline constexpr std::string_view kReliable = "\\reliable.snr";
inline constexpr std::string_view kSearchKinds = "\\searchst.snr";
inline constexpr std::string_view kAlphabet = "\\alphabet.snr";
inline constexpr std::string_view kSideFile = "\\sstz.vbt";
}  // namespace guide_file

// `name` without a backslash, in any letter case. Copies beside a file of the user's (".bad", ".bad2") count.
bool IsOwnFile(std::string_view name);

// Removes the temporary files (TemporaryPath) of all these that a crash left in the folder. Early in the
// start, before anything is saved.
void RemoveUnfinishedSaves(DataFolder& data);

}  // namespace sonaro
