#include "mainwindow/SortEntries.h"

#include "forms/ControlIds.h"
#include "resources/texts/mainwindow.h"

namespace sonaro {
namespace {

constexpr auto kUp = SortOrder::Ascending;
constexpr auto kDown = SortOrder::Descending;

constexpr SortEntry kEntries[] = {
    {0, kUp, butSplit1, mnuSortByName, mnuActionSortByName, IDS_SORT_NAME},
    {1, kUp, butSplit2, mnuSortByLocation, mnuActionSortByLocation, IDS_SORT_LOCATION},
    {2, kUp, butSplit3, mnuSortByMediaType, mnuActionSortByMediaType, IDS_SORT_MEDIA_TYPE},
    {3, kUp, butSplit4, mnuSortByFormat, mnuActionSortByFormat, IDS_SORT_FORMAT},
    {4, kDown, 0, mnuSortByOverall, mnuActionSortByOverall, IDS_SORT_OVERALL},
    {5, kDown, 0, mnuSortBySound, mnuActionSortBySound, IDS_SORT_SOUND},
    {6, kDown, 0, mnuSortBySpeed, mnuActionSortBySpeed, IDS_SORT_SPEED},
    {7, kDown, 0, mnuSortByWebSite, mnuActionSortByWebSite, IDS_SORT_WEB_SITE},
    {8, kDown, 0, mnuSortByReliable, mnuActionSortByMostReliable, IDS_SORT_RELIABLE},
};

}  // namespace

std::span<const SortEntry> SortEntries() { return kEntries; }

std::optional<SortEntry> SortEntryOf(int command) {
  if (command == 0) return std::nullopt;
  for (const SortEntry& entry : kEntries) {
    if (command == entry.headerButton || command == entry.sortMenu || command == entry.actionMenu)
      return entry;
  }
  return std::nullopt;
}

}  // namespace sonaro
