// The main window as tables: its controls in tab order and its keys. What they do: SonaroFrm_events.cpp.
#include "faceplate/Icon.h"
#include "forms/ControlIds.h"
#include "mainwindow/SonaroFrm.h"
#include "mainwindow/SonaroFrm_panes.h"
#include "resources/texts/mainwindow.h"

namespace sonaro {
namespace {

constexpr ControlRow Tab(int index, int text) {
  return {.id = butTabs + index, .kind = Kind::TabKey, .text = text, .at = {15 + 190 * index, 43, 190, 42}};
}

constexpr ControlRow Group(int slot) {
  return {
      .id = butFavs + slot, .kind = Kind::GroupKey, .at = {14 + 86 * slot, 94, 82, 28}, .flags = kNoPrefix};
}

constexpr ControlRow RankingRow(int index, int text, Icon icon) {
  return {.id = butNewStations + index,
          .kind = Kind::RankingKey,
          .text = text,
          .at = {14, 164 + 40 * index, 200, 36},
          .icon = icon,
          .pane = kRankingPane};
}

constexpr ControlRow SearchKindRow(int index) {
  return {.id = optSearchType + index,
          .kind = Kind::RadioButton,
          .at = {16, 270 + 26 * index, 190, 22},
          .flags = index == 0 ? kGroup | kNoPrefix : kNoPrefix + 0U,
          .pane = kSearchPane};
}

constexpr ControlRow Header(int index, int text, int x, int width) {
  return {.id = butSplit1 + index,
          .kind = Kind::HeaderKey,
          .text = text,
          .at = {x, 164, width, 24},
          .pane = kListPane};
}

constexpr ControlRow RatingRow(int index, int image, int name) {
  return {.id = image,
          .kind = Kind::Rating,
          .text = name,
          .at = {738 + 54 * index, 306, 54, 62},
          .flags = kOnGlass,
          .pane = kStationPane};
}

constexpr ControlRow PlayRow(int index, int id) {
  return {.id = id,
          .kind = Kind::PlayKey,
          .at = {740, 390 + 46 * index, 212, 40},
          .icon = Icon::Play,
          .flags = kOnGlass | kNoPrefix | (index == 0 ? kNone : kSecondary),
          .pane = kStationPane};
}

constexpr ControlRow BottomKey(int index, int id, int text, Icon icon) {
  return {.id = id, .kind = Kind::PushKey, .text = text, .at = {580 + 95 * index, 600, 91, 30}, .icon = icon};
}

constexpr ControlRow Strip(int index, int id, int text, Icon icon) {
  return {.id = id, .kind = Kind::StripKey, .text = text, .at = {838 + 32 * index, 14, 28, 22}, .icon = icon};
}

constexpr DesignRect kMiddle{224, 164, 492, 422};

const ControlRow kControls[] = {
    // The nameplate, the dial and the group bar.
    {.kind = Kind::Mark, .at = {20, 8, 22, 22}},
    {.id = lblTitle, .text = IDS_MAIN_CAPTION, .at = {50, 4, 88, 30}, .type = Type::Wordmark},
    {.id = lblSubTitle, .text = IDS_MAIN_SUBTITLE, .at = {140, 7, 200, 26}, .ink = Ink::Muted},
    {.id = tabRightSide, .kind = Kind::Dial, .at = {14, 42, 952, 44}},
    Tab(0, IDS_TAB_YOUR_SONARO),
    Tab(1, IDS_TAB_LIST),
    Tab(2, IDS_TAB_BROWSE),
    Tab(3, IDS_TAB_BY_LOCATION),
    Tab(4, IDS_TAB_SEARCH),
    Group(0),
    Group(1),
    Group(2),
    Group(3),
    Group(4),
    Group(5),
    Group(6),
    Group(7),
    Group(8),
    Group(9),
    {.id = butRecent,
     .kind = Kind::PushKey,
     .text = IDS_MAIN_RECENT,
     .at = {876, 94, 90, 28},
     .icon = Icon::Recent},
    // The groups once more, for who works the window from outside: choosing one does what its key does.
    {.id = cmbFavs, .kind = Kind::Combo, .at = {14, 94, 82, 28}, .flags = kHidden | kNoTabStop},
    {.kind = Kind::Groove, .at = {14, 130, 952, 2}},

    // The left column.
    {.id = lblSide,
     .text = IDS_SIDE_RANKINGS,
     .at = {14, 137, 200, 24},
     .type = Type::BodyStrong,
     .ink = Ink::Muted},
    RankingRow(0, IDS_RANKING_NEW_STATIONS, Icon::New),
    RankingRow(1, IDS_RANKING_MOST_POP, Icon::Popular),
    RankingRow(2, IDS_RANKING_BEST_OVERALL, Icon::Overall),
    RankingRow(3, IDS_RANKING_BEST_SOUND, Icon::Sound),
    RankingRow(4, IDS_RANKING_BEST_SPEED, Icon::Speed),
    RankingRow(5, IDS_RANKING_BEST_WEBSITE, Icon::Web),
    RankingRow(6, IDS_RANKING_MOST_RELIABLE, Icon::Reliable),
    {.kind = Kind::Slots, .at = {14, 456, 200, 130}, .pane = kRankingPane},
    {.id = treeBrowse, .kind = Kind::TreeView, .at = {14, 164, 200, 422}, .pane = kTreePane},
    {.id = txtQuickSearch, .kind = Kind::ComboEdit, .at = {14, 164, 200, 28}, .pane = kSearchPane},
    {.id = optSearch,
     .kind = Kind::RadioButton,
     .text = IDS_SEARCH_ALL_WORDS,
     .at = {16, 202, 92, 22},
     .flags = kGroup,
     .pane = kSearchPane},
    {.id = optSearch + 1,
     .kind = Kind::RadioButton,
     .text = IDS_SEARCH_ANY_WORD,
     .at = {116, 202, 92, 22},
     .pane = kSearchPane},
    {.kind = Kind::Groove, .at = {14, 236, 200, 2}, .pane = kSearchPane},
    {.id = lblSearchCap,
     .text = IDS_SEARCH_IN,
     .at = {14, 242, 200, 24},
     .type = Type::BodyStrong,
     .ink = Ink::Muted,
     .pane = kSearchPane},
    SearchKindRow(0),
    SearchKindRow(1),
    SearchKindRow(2),
    SearchKindRow(3),
    SearchKindRow(4),
    SearchKindRow(5),
    {.id = butSearchList,
     .kind = Kind::PrimaryKey,
     .text = IDS_SEARCH_KEY,
     .at = {14, 440, 200, 36},
     .icon = Icon::Search,
     .pane = kSearchPane},
    {.kind = Kind::Slots, .at = {14, 496, 200, 90}, .pane = kSearchPane},
    {.id = lstGroups, .kind = Kind::ListView, .at = {14, 164, 200, 234}, .pane = kYoursPane},
    {.id = butNewGroup,
     .kind = Kind::PushKey,
     .text = IDS_GROUPS_NEW_KEY,
     .at = {14, 406, 98, 30},
     .icon = Icon::Add,
     .pane = kYoursPane},
    {.id = butRemoveGroup,
     .kind = Kind::PushKey,
     .text = IDS_GROUPS_REMOVE_KEY,
     .at = {116, 406, 98, 30},
     .icon = Icon::Remove,
     .pane = kYoursPane},
    {.kind = Kind::Groove, .at = {14, 446, 200, 2}, .pane = kYoursPane},
    {.id = lblNextHeading,
     .text = IDS_NEXT_NOTICE,
     .at = {14, 452, 200, 22},
     .type = Type::BodyStrong,
     .ink = Ink::Muted,
     .pane = kYoursPane},
    {.kind = Kind::Glass, .at = {14, 476, 200, 110}, .pane = kYoursPane, .cut = 12},
    {.id = lblNextNotice,
     .at = {26, 484, 176, 20},
     .flags = kOnGlass | kNoPrefix,
     .type = Type::MessageStrong,
     .ink = Ink::TabText,
     .pane = kYoursPane},
    {.id = lblNextStation, .at = {26, 506, 176, 18}, .flags = kOnGlass | kNoPrefix, .pane = kYoursPane},
    {.id = lblNextOften,
     .at = {26, 524, 176, 18},
     .flags = kOnGlass | kNoPrefix,
     .type = Type::Small,
     .ink = Ink::GlassMuted,
     .pane = kYoursPane},

    // The middle.
    Header(0, IDS_COLUMN_NAME, 224, 186),
    Header(1, IDS_COLUMN_LOCATION, 410, 112),
    Header(2, IDS_COLUMN_MEDIA_TYPE, 522, 82),
    Header(3, IDS_COLUMN_FORMAT, 604, 112),
    {.id = butMissing, .kind = Kind::PushKey, .at = {414, 138, 180, 22}, .flags = kHidden, .pane = kListPane},
    {.id = lblCount, .at = {596, 137, 120, 24}, .flags = kRightAligned | kNoPrefix, .ink = Ink::Muted},
    {.id = lblListing,
     .kind = Kind::StateLabel,
     .at = {224, 137, 370, 24},
     .flags = kNoPrefix,
     .type = Type::Title,
     .ink = Ink::TabText},
    {.id = lstFavs, .kind = Kind::ListView, .at = {224, 188, 492, 398}, .pane = kListPane},
    {.id = lstEvents, .kind = Kind::ListView, .at = {224, 164, 492, 382}, .pane = kEventPane},
    {.id = butNotifyMe,
     .kind = Kind::PushKey,
     .text = IDS_NOTIFY_ME,
     .at = {224, 556, 130, 30},
     .icon = Icon::Bell,
     .pane = kEventPane},
    {.id = butPersonalShow,
     .kind = Kind::PushKey,
     .text = IDS_SHOW_ADD,
     .at = {362, 556, 200, 30},
     .pane = kEventPane},
    {.kind = Kind::Glass, .at = kMiddle, .pane = kWebPane, .cut = 12},
    {.id = lblWebAsked,
     .at = {244, 188, 452, 28},
     .flags = kOnGlass | kNoPrefix,
     .type = Type::Title,
     .ink = Ink::TabText,
     .pane = kWebPane},
    {.id = lblWebAddress,
     .kind = Kind::ReadOnlyText,
     .at = {244, 222, 452, 92},
     .flags = kOnGlass | kTabStop,
     .pane = kWebPane},
    {.text = IDS_WEB_HELP,
     .at = {244, 320, 452, 24},
     .flags = kOnGlass,
     .ink = Ink::GlassMuted,
     .pane = kWebPane},
    {.id = butWebOpen,
     .kind = Kind::PushKey,
     .text = IDS_WEB_OPEN,
     .at = {244, 352, 190, 30},
     .icon = Icon::Web,
     .flags = kOnGlass,
     .pane = kWebPane},

    // The selected station.
    {.kind = Kind::Glass, .at = {726, 140, 240, 446}, .cut = 18},
    {.id = picNoStation,
     .kind = Kind::Picture,
     .at = {824, 290, 44, 44},
     .flags = kOnGlass,
     .pane = kNoStationPane},
    {.id = lblNoStation,
     .text = IDS_DETAIL_NONE,
     .at = {740, 350, 212, 22},
     .flags = kOnGlass | kCentred,
     .ink = Ink::GlassMuted,
     .pane = kNoStationPane},
    {.id = picPin, .kind = Kind::Picture, .at = {740, 181, 14, 14}, .flags = kOnGlass, .pane = kStationPane},
    {.id = lblStationLocation,
     .at = {758, 178, 194, 20},
     .flags = kOnGlass | kNoPrefix,
     .ink = Ink::GlassMuted,
     .pane = kStationPane},
    {.id = lblStationName,
     .kind = Kind::StateLabel,
     .at = {740, 150, 212, 26},
     .flags = kOnGlass | kNoPrefix,
     .type = Type::Heading,
     .pane = kStationPane},
    {.id = txtDescription,
     .kind = Kind::ReadOnlyText,
     .at = {740, 202, 224, 88},
     .flags = kOnGlass | kTabStop,
     .pane = kStationPane},
    {.id = picHairAbove,
     .kind = Kind::Picture,
     .at = {740, 296, 212, 2},
     .flags = kOnGlass,
     .pane = kStationPane},
    RatingRow(0, imgOverAll, IDS_RATING_OVERALL),
    RatingRow(1, imgSound, IDS_RATING_SOUND),
    RatingRow(2, imgSpeed, IDS_RATING_SPEED),
    RatingRow(3, imgWebSite, IDS_RATING_WEB_SITE),
    {.id = picHairBelow,
     .kind = Kind::Picture,
     .at = {740, 378, 212, 2},
     .flags = kOnGlass,
     .pane = kStationPane},
    PlayRow(0, butGoMediaLinkOneIt),
    PlayRow(1, butGoMediaLinkTwoIt),
    PlayRow(2, butGoMediaLinkThreeIt),
    {.id = butGoWebPageIt,
     .kind = Kind::PushKey,
     .text = IDS_MAIN_WEB_SITE,
     .at = {740, 534, 212, 34},
     .icon = Icon::Web,
     .flags = kOnGlass,
     .pane = kStationPane},

    // The status line and the keys of the other windows.
    {.kind = Kind::Groove, .at = {14, 592, 952, 2}},
    {.kind = Kind::Glass, .at = {14, 599, 546, 24}},
    {.id = lblStatus,
     .kind = Kind::StateLabel,
     .at = {26, 599, 520, 24},
     .flags = kOnGlass | kNoPrefix,
     .ink = Ink::GlassMuted,
     .pane = kStatusPane},
    {.id = lblProgress,
     .kind = Kind::StateLabel,
     .at = {26, 599, 92, 24},
     .flags = kOnGlass | kNoPrefix,
     .pane = kProgressPane},
    {.id = picProgress,
     .kind = Kind::Progress,
     .at = {126, 601, 366, 20},
     .flags = kOnGlass,
     .pane = kProgressPane},
    {.id = lblPercent,
     .at = {500, 599, 50, 24},
     .flags = kOnGlass | kRightAligned,
     .type = Type::BodyStrong,
     .pane = kProgressPane},
    BottomKey(0, butUpdate, IDS_MAIN_UPDATE, Icon::Update),
    BottomKey(1, butScan, IDS_MAIN_SCAN, Icon::Scan),
    BottomKey(2, butSchedule, IDS_MAIN_SCHEDULE, Icon::Sched),
    BottomKey(3, butOptions, IDS_MAIN_OPTIONS, Icon::Options),
    {.id = butMenu,
     .kind = Kind::PushKey,
     .text = IDS_MAIN_MENU,
     .at = {738, 14, 92, 22},
     .icon = Icon::Menu},
    Strip(0, butHelp, IDS_MAIN_HELP, Icon::Help),
    Strip(1, butTray, IDS_MAIN_TRAY, Icon::Tray),
    Strip(2, butMin, IDS_MAIN_MINIMIZE, Icon::Min),
    Strip(3, butCloseIt, IDS_MAIN_CLOSE, Icon::Close),
};

constexpr Place kWithMissing[] = {{lblListing, {224, 137, 186, 24}}};
constexpr Layout kLayouts[] = {{.places = kWithMissing, .others = Layout::Others::AsDesigned}};

constexpr KeyRow kKeys[] = {
    {'F', kCtrl, mnuViewSearch},
    {VK_F3, kPlain, mnuViewSearch},
    {VK_F5, kPlain, butUpdate},
    {VK_F2, kPlain, mnuFavRenameFav},
    {VK_RETURN, kShift, mnuActionPlayTwo, lstFavs},
    {VK_RETURN, kCtrl, mnuActionPlayThree, lstFavs},
    {VK_DELETE, kPlain, mnuRemoveRow, lstFavs},
    {VK_DELETE, kPlain, butRemoveGroup, lstGroups},
    {.key = VK_DELETE, .command = mnuRemoveFocusedGroup, .onlyIn = butFavs, .controls = 10},
    {VK_UP, kAlt, mnuActionMoveUp, lstFavs},
    {VK_DOWN, kAlt, mnuActionMoveDown, lstFavs},
    {'C', kCtrl, mnuActionCopyLink, lstFavs},
    {.key = '1', .modifiers = kCtrl, .command = butFavs, .keys = 9},
    {'0', kCtrl, butFavs + 9},
    {.key = '1', .modifiers = kAlt, .command = butFavs, .keys = 9},
    {'0', kAlt, butFavs + 9},
};

}  // namespace

const FormDesign& SonaroFrm::Design() {
  static const FormDesign kDesign = {.name = "SonaroFrm",
                                     .caption = IDS_MAIN_CAPTION,
                                     .size = {980, 640},
                                     .outline = "maf98",
                                     .controls = kControls,
                                     .titleGroove = 38,
                                     .layouts = kLayouts,
                                     .keys = kKeys,
                                     .firstFocus = lstFavs};
  return kDesign;
}

}  // namespace sonaro
