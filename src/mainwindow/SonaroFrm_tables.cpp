// The main window as tables: its controls in tab order and its keys. What they do stands with the panes.
#include <array>

#include "faceplate/Icon.h"
#include "forms/ControlIds.h"
#include "mainwindow/SonaroFrm.h"
#include "mainwindow/SonaroFrm_panes.h"
#include "resources/texts/mainwindow.h"
#include "settings/SettingNames.h"

namespace sonaro {
namespace {

// Rows of control arrays. `index` or `slot` counts from 0 in the order of the numbers; what a click is told
// is this index. Places are in pixels at 96 dpi: left, top, width, height.
constexpr ControlRow Tab(int index, int text) {
  return {.id = butTabs + index,
          .kind = ControlKind::TabButton,
          .text = text,
          .at = {15 + 190 * index, 43, 190, 42}};
}

// A group has a text only once it is in use; until then the button is drawn as an empty socket.
constexpr ControlRow Group(int slot) {
  return {.id = butFavs + slot,
          .kind = ControlKind::GroupButton,
          .at = {14 + 86 * slot, 94, 82, 28},
          .flags = kNoPrefix};
}

constexpr ControlRow RankingRow(int index, int text, Icon icon) {
  return {.id = butNewStations + index,
          .kind = ControlKind::RankingButton,
          .text = text,
          .at = {14, 164 + 40 * index, 200, 36},
          .icon = icon,
          .pane = kRankingPane};
}

// Six places for the kinds of search that the file of kinds names; those without a kind stay hidden.
constexpr ControlRow SearchKindRow(int index) {
  return {.id = optSearchType + index,
          .kind = ControlKind::RadioButton,
          .at = {16, 270 + 26 * index, 190, 22},
          .flags = index == 0 ? kGroup | kNoPrefix : kNoPrefix + 0U,
          .pane = kSearchPane};
}

constexpr ControlRow Header(int index, int text, int x, int width) {
  return {.id = butSplit1 + index,
          .kind = ControlKind::HeaderButton,
          .text = text,
          .at = {x, 164, width, 24},
          .pane = kListPane};
}

// A part of the filter: a box and the button behind it that takes the part away. The button is hidden while
// the part is off, and a stop of Tab although its kind is none.
constexpr ControlRow FilterBox(int index, int name, int x, int width) {
  return {.id = cmbListFilter + index,
          .kind = ControlKind::Combo,
          .text = name,
          .at = {x, 164, width, 26},
          .pane = kFilterPane};
}

constexpr ControlRow EndFilterButton(int index, int text, int x) {
  return {.id = butEndListFilter + index,
          .kind = ControlKind::StripButton,
          .text = text,
          .at = {x, 166, 22, 22},
          .icon = Icon::Close,
          .flags = kHidden | kTabStop,
          .pane = kFilterPane};
}

constexpr ControlRow RatingRow(int index, int image, int name) {
  return {.id = image,
          .kind = ControlKind::Rating,
          .text = name,
          .at = {738 + 54 * index, 286, 54, 62},
          .flags = kOnGlass,
          .pane = kStationPane};
}

constexpr ControlRow PlayRow(int index, int id) {
  return {.id = id,
          .kind = ControlKind::PlayButton,
          .at = {740, 368 + 45 * index, 212, 40},
          .icon = Icon::Play,
          .flags = kOnGlass | kNoPrefix | (index == 0 ? kNone : kSecondary),
          .pane = kStationPane};
}

constexpr ControlRow BottomButton(int index, int id, int text, Icon icon) {
  return {.id = id,
          .kind = ControlKind::PushButton,
          .text = text,
          .at = {580 + 95 * index, 600, 91, 30},
          .icon = icon};
}

constexpr ControlRow Strip(int index, int id, int text, Icon icon) {
  return {.id = id,
          .kind = ControlKind::StripButton,
          .text = text,
          .at = {838 + 32 * index, 14, 28, 22},
          .icon = icon};
}

// The middle of the window: of the list, the events and the web search one is shown at a time.
constexpr DesignRect kMiddle{224, 164, 492, 422};

// Panes share places: four of them lie on the left column, three on the middle (the filter's row belongs to
// the list), two on the detail at the right and two on the status line. Which is shown is decided by the
// panes' own files, never by the rows' flags; kHidden is for single controls that come and go within their
// pane.
const ControlRow kControls[] = {
    // The nameplate, the dial and the group bar.
    {.kind = ControlKind::Mark, .at = {20, 8, 22, 22}},
    {.id = lblTitle, .text = IDS_MAIN_CAPTION, .at = {50, 4, 88, 30}, .style = TextStyle::Wordmark},
    {.id = lblSubTitle, .text = IDS_MAIN_SUBTITLE, .at = {140, 7, 200, 26}, .color = TextColor::Muted},
    {.id = tabRightSide, .kind = ControlKind::Dial, .at = {14, 42, 952, 44}},
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
     .kind = ControlKind::PushButton,
     .text = IDS_MAIN_RECENT,
     .at = {876, 94, 90, 28},
     .icon = Icon::Recent},
    // The groups once more, for who works the window from outside: choosing one does what its key does.
    {.id = cmbFavs,
     .kind = ControlKind::Combo,
     .at = {14, 94, 82, 28},
     .flags = kHidden | kNoTabStop,
     .pane = kOutsidePane},
    {.kind = ControlKind::Groove, .at = {14, 130, 952, 2}},

    // The left column.
    // Names the left column, whichever of its panes is shown; its text changes with them.
    {.id = lblSide,
     .text = IDS_SIDE_RANKINGS,
     .at = {14, 137, 200, 24},
     .style = TextStyle::BodyStrong,
     .color = TextColor::Muted},
    RankingRow(0, IDS_RANKING_NEW_STATIONS, Icon::New),
    RankingRow(1, IDS_RANKING_MOST_POP, Icon::Popular),
    RankingRow(2, IDS_RANKING_BEST_OVERALL, Icon::Overall),
    RankingRow(3, IDS_RANKING_BEST_SOUND, Icon::Sound),
    RankingRow(4, IDS_RANKING_BEST_SPEED, Icon::Speed),
    RankingRow(5, IDS_RANKING_BEST_WEBSITE, Icon::Web),
    RankingRow(6, IDS_RANKING_MOST_RELIABLE, Icon::Reliable),
    {.kind = ControlKind::Slots, .at = {14, 456, 200, 130}, .pane = kRankingPane},
    {.id = treeBrowse, .kind = ControlKind::TreeView, .at = {14, 164, 200, 422}, .pane = kTreePane},
    {.id = txtQuickSearch, .kind = ControlKind::ComboEdit, .at = {14, 164, 200, 28}, .pane = kSearchPane},
    {.id = optSearch,
     .kind = ControlKind::RadioButton,
     .text = IDS_SEARCH_ALL_WORDS,
     .at = {16, 202, 92, 22},
     .flags = kGroup,
     .pane = kSearchPane},
    {.id = optSearch + 1,
     .kind = ControlKind::RadioButton,
     .text = IDS_SEARCH_ANY_WORD,
     .at = {116, 202, 92, 22},
     .pane = kSearchPane},
    {.kind = ControlKind::Groove, .at = {14, 236, 200, 2}, .pane = kSearchPane},
    {.id = lblSearchCap,
     .text = IDS_SEARCH_IN,
     .at = {14, 242, 200, 24},
     .style = TextStyle::BodyStrong,
     .color = TextColor::Muted,
     .pane = kSearchPane},
    SearchKindRow(0),
    SearchKindRow(1),
    SearchKindRow(2),
    SearchKindRow(3),
    SearchKindRow(4),
    SearchKindRow(5),
    {.id = butSearchList,
     .kind = ControlKind::PrimaryButton,
     .text = IDS_SEARCH_KEY,
     .at = {14, 440, 200, 36},
     .icon = Icon::Search,
     .pane = kSearchPane},
    {.id = butPinSearch,
     .kind = ControlKind::ToggleButton,
     .text = IDS_SEARCH_PIN,
     .at = {14, 482, 200, 28},
     .icon = Icon::Fav,
     .pane = kSearchPane},
    {.kind = ControlKind::Slots, .at = {14, 526, 200, 60}, .pane = kSearchPane},
    {.id = lstGroups, .kind = ControlKind::ListView, .at = {14, 164, 200, 234}, .pane = kYoursPane},
    {.id = butNewGroup,
     .kind = ControlKind::PushButton,
     .text = IDS_GROUPS_NEW_KEY,
     .at = {14, 406, 98, 30},
     .icon = Icon::Add,
     .pane = kYoursPane},
    {.id = butRemoveGroup,
     .kind = ControlKind::PushButton,
     .text = IDS_GROUPS_REMOVE_KEY,
     .at = {116, 406, 98, 30},
     .icon = Icon::Remove,
     .pane = kYoursPane},
    {.kind = ControlKind::Groove, .at = {14, 446, 200, 2}, .pane = kYoursPane},
    {.id = lblNextHeading,
     .text = IDS_NEXT_NOTICE,
     .at = {14, 452, 200, 22},
     .style = TextStyle::BodyStrong,
     .color = TextColor::Muted,
     .pane = kYoursPane},
    {.kind = ControlKind::Glass, .at = {14, 476, 200, 110}, .pane = kYoursPane, .cut = 12},
    {.id = lblNextNotice,
     .at = {26, 484, 176, 20},
     .flags = kOnGlass | kNoPrefix,
     .style = TextStyle::MessageStrong,
     .color = TextColor::TabText,
     .pane = kYoursPane},
    {.id = lblNextStation, .at = {26, 506, 176, 18}, .flags = kOnGlass | kNoPrefix, .pane = kYoursPane},
    {.id = lblNextOften,
     .at = {26, 524, 176, 18},
     .flags = kOnGlass | kNoPrefix,
     .style = TextStyle::Small,
     .color = TextColor::GlassMuted,
     .pane = kYoursPane},

    // The middle.
    Header(0, IDS_COLUMN_NAME, 224, 186),
    Header(1, IDS_COLUMN_LOCATION, 410, 112),
    Header(2, IDS_COLUMN_MEDIA_TYPE, 522, 82),
    Header(3, IDS_COLUMN_FORMAT, 604, 112),
    // Between the caption and the count, where the filter's edit stands as well: a layout makes the caption
    // shorter for either.
    {.id = butMissing,
     .kind = ControlKind::PushButton,
     .at = {356, 138, 180, 22},
     .flags = kHidden,
     .pane = kListPane},
    {.id = lblCount,
     .at = {596, 137, 120, 24},
     .flags = kRightAligned | kNoPrefix,
     .color = TextColor::Muted},
    {.id = lblListing,
     .kind = ControlKind::StateLabel,
     .at = {224, 137, 312, 24},
     .flags = kNoPrefix,
     .style = TextStyle::Title,
     .color = TextColor::TabText},
    {.id = lblFilter,
     .text = IDS_FILTER_BOX,
     .at = {340, 137, 40, 24},
     .flags = kHidden,
     .color = TextColor::Muted,
     .pane = kListPane},
    {.id = txtFilter,
     .kind = ControlKind::Edit,
     .at = {382, 136, 154, 26},
     .flags = kHidden,
     .pane = kListPane},
    {.id = butOwnOrder,
     .kind = ControlKind::StripButton,
     .text = IDS_OWN_ORDER_KEY,
     .at = {540, 138, 26, 22},
     .icon = Icon::OwnOrder,
     .flags = kHidden,
     .pane = kListPane},
    {.id = butFilter,
     .kind = ControlKind::StripButton,
     .text = IDS_FILTER_KEY,
     .at = {568, 138, 26, 22},
     .icon = Icon::Filter,
     .pane = kListPane},
    FilterBox(0, IDS_FILTER_PLACE, 224, 118),
    EndFilterButton(0, IDS_FILTER_END_PLACE, 344),
    FilterBox(1, IDS_FILTER_GENRE, 370, 118),
    EndFilterButton(1, IDS_FILTER_END_GENRE, 490),
    FilterBox(2, IDS_FILTER_LEAST_RATE, 516, 100),
    EndFilterButton(2, IDS_FILTER_END_RATE, 618),
    {.id = butOnlyAnswering,
     .kind = ControlKind::ToggleButton,
     .text = IDS_FILTER_ANSWERS,
     .at = {642, 164, 74, 26},
     .pane = kFilterPane},
    {.id = lstFavs, .kind = ControlKind::ListView, .at = {224, 188, 492, 398}, .pane = kListPane},
    {.id = lstEvents, .kind = ControlKind::ListView, .at = {224, 164, 492, 382}, .pane = kEventPane},
    {.id = butNotifyMe,
     .kind = ControlKind::PushButton,
     .text = IDS_NOTIFY_ME,
     .at = {224, 556, 130, 30},
     .icon = Icon::Bell,
     .pane = kEventPane},
    {.id = butPersonalShow,
     .kind = ControlKind::PushButton,
     .text = IDS_SHOW_ADD,
     .at = {362, 556, 200, 30},
     .pane = kEventPane},
    {.kind = ControlKind::Glass, .at = kMiddle, .pane = kWebPane, .cut = 12},
    {.id = lblWebAsked,
     .at = {244, 188, 452, 28},
     .flags = kOnGlass | kNoPrefix,
     .style = TextStyle::Title,
     .color = TextColor::TabText,
     .pane = kWebPane},
    {.id = lblWebAddress,
     .kind = ControlKind::ReadOnlyText,
     .at = {244, 222, 452, 92},
     .flags = kOnGlass | kTabStop,
     .pane = kWebPane},
    {.text = IDS_WEB_HELP,
     .at = {244, 320, 452, 24},
     .flags = kOnGlass,
     .color = TextColor::GlassMuted,
     .pane = kWebPane},
    {.id = butWebOpen,
     .kind = ControlKind::PushButton,
     .text = IDS_WEB_OPEN,
     .at = {244, 352, 190, 30},
     .icon = Icon::Web,
     .flags = kOnGlass,
     .pane = kWebPane},

    // The selected station.
    {.kind = ControlKind::Glass, .at = {726, 140, 240, 446}, .cut = 18},
    {.id = picNoStation,
     .kind = ControlKind::Picture,
     .at = {824, 290, 44, 44},
     .flags = kOnGlass,
     .pane = kNoStationPane},
    {.id = lblNoStation,
     .text = IDS_DETAIL_NONE,
     .at = {740, 350, 212, 22},
     .flags = kOnGlass | kCentred,
     .color = TextColor::GlassMuted,
     .pane = kNoStationPane},
    {.id = picPin,
     .kind = ControlKind::Picture,
     .at = {740, 181, 14, 14},
     .flags = kOnGlass,
     .pane = kStationPane},
    {.id = lblStationLocation,
     .at = {758, 178, 194, 20},
     .flags = kOnGlass | kNoPrefix,
     .color = TextColor::GlassMuted,
     .pane = kStationPane},
    {.id = lblStationName,
     .kind = ControlKind::StateLabel,
     .at = {740, 150, 212, 26},
     .flags = kOnGlass | kNoPrefix,
     .style = TextStyle::Heading,
     .pane = kStationPane},
    {.id = txtDescription,
     .kind = ControlKind::ReadOnlyText,
     .at = {740, 202, 224, 68},
     .flags = kOnGlass | kTabStop,
     .pane = kStationPane},
    {.id = picHairAbove,
     .kind = ControlKind::Picture,
     .at = {740, 276, 212, 2},
     .flags = kOnGlass,
     .pane = kStationPane},
    RatingRow(0, imgOverAll, IDS_RATING_OVERALL),
    RatingRow(1, imgSound, IDS_RATING_SOUND),
    RatingRow(2, imgSpeed, IDS_RATING_SPEED),
    RatingRow(3, imgWebSite, IDS_RATING_WEB_SITE),
    {.id = picHairBelow,
     .kind = ControlKind::Picture,
     .at = {740, 358, 212, 2},
     .flags = kOnGlass,
     .pane = kStationPane},
    PlayRow(0, butGoMediaLinkOneIt),
    PlayRow(1, butGoMediaLinkTwoIt),
    PlayRow(2, butGoMediaLinkThreeIt),
    {.id = butPlayExtraIt,
     .kind = ControlKind::PushButton,
     .at = {740, 503, 212, 30},
     .icon = Icon::Play,
     .flags = kOnGlass | kNoPrefix | kHidden,
     .pane = kStationPane},
    {.id = butGoWebPageIt,
     .kind = ControlKind::PushButton,
     .text = IDS_MAIN_WEB_SITE,
     .at = {740, 540, 120, 32},
     .icon = Icon::Web,
     .flags = kOnGlass,
     .pane = kStationPane},
    {.id = butAddToGroupIt,
     .kind = ControlKind::PushButton,
     .text = IDS_MAIN_ADD_TO_GROUP,
     .at = {864, 540, 88, 32},
     .flags = kOnGlass,
     .pane = kStationPane},

    // The status line and the keys of the other windows.
    {.kind = ControlKind::Groove, .at = {14, 592, 952, 2}},
    {.kind = ControlKind::Glass, .at = {14, 599, 546, 24}},
    {.id = lblStatus,
     .kind = ControlKind::StateLabel,
     .at = {26, 599, 448, 24},
     .flags = kOnGlass | kNoPrefix,
     .color = TextColor::GlassMuted,
     .pane = kStatusPane},
    {.id = butUndo,
     .kind = ControlKind::PushButton,
     .text = IDS_STATUS_UNDO,
     .at = {482, 600, 72, 22},
     .flags = kHidden,
     .pane = kStatusPane},
    {.id = lblProgress,
     .kind = ControlKind::StateLabel,
     .at = {26, 599, 92, 24},
     .flags = kOnGlass | kNoPrefix,
     .pane = kProgressPane},
    {.id = picProgress,
     .kind = ControlKind::Progress,
     .at = {126, 601, 366, 20},
     .flags = kOnGlass,
     .pane = kProgressPane},
    {.id = lblPercent,
     .at = {500, 599, 50, 24},
     .flags = kOnGlass | kRightAligned,
     .style = TextStyle::BodyStrong,
     .pane = kProgressPane},
    BottomButton(0, butUpdate, IDS_MAIN_UPDATE, Icon::Update),
    BottomButton(1, butScan, IDS_MAIN_SCAN, Icon::Scan),
    BottomButton(2, butSchedule, IDS_MAIN_SCHEDULE, Icon::Sched),
    BottomButton(3, butOptions, IDS_MAIN_OPTIONS, Icon::Options),
    {.id = butMenu,
     .kind = ControlKind::PushButton,
     .text = IDS_MAIN_MENU,
     .at = {738, 14, 92, 22},
     .icon = Icon::Menu},
    Strip(0, butHelp, IDS_MAIN_HELP, Icon::Help),
    Strip(1, butTray, IDS_MAIN_TRAY, Icon::Tray),
    Strip(2, butMin, IDS_MAIN_MINIMIZE, Icon::Min),
    Strip(3, butCloseIt, IDS_MAIN_CLOSE, Icon::Close),
};

// Layouts 1 to 4 name only what moves; all else stays as designed. They differ in what shares the caption's
// line (nothing, the count of missing stations, the words of the filter) and in whether the filter's row
// pushes the list down.
constexpr Bounds kWithMissing[] = {{lblListing, {224, 137, 128, 24}}};
// The list with its header buttons below the filter's row, and a caption of this width.
constexpr std::array<Bounds, 6> BelowFilterRow(int captionWidth) {
  return {{{lblListing, {224, 137, captionWidth, 24}},
           {butSplit1, {224, 196, 186, 24}},
           {butSplit2, {410, 196, 112, 24}},
           {butSplit3, {522, 196, 82, 24}},
           {butSplit4, {604, 196, 112, 24}},
           {lstFavs, {224, 220, 492, 366}}}};
}
constexpr auto kWithFilter = BelowFilterRow(112);
constexpr auto kWithFilterRow = BelowFilterRow(312);
constexpr auto kWithMissingAndFilterRow = BelowFilterRow(128);
constexpr Layout kLayouts[] = {{.places = kWithMissing, .others = Layout::Others::AsDesigned},
                               {.places = kWithFilter, .others = Layout::Others::AsDesigned},
                               {.places = kWithFilterRow, .others = Layout::Others::AsDesigned},
                               {.places = kWithMissingAndFilterRow, .others = Layout::Others::AsDesigned}};

constexpr unsigned char kLatePanes[] = {kTreePane,     kSearchPane,    kYoursPane,  kWebPane,    kEventPane,
                                        kProgressPane, kNoStationPane, kFilterPane, kOutsidePane};

// What the window gains goes to the list, most of it to its names, and some to the left column; the panel of
// the station keeps its width.
constexpr unsigned char kSide = 18;
constexpr Stretch kStretches[] = {
    // Title, dial and group bar.
    {{720, 8, 260, 30}, 100, 100, 0, 0},
    {{14, 42, 952, 92}, 0, 100, 0, 0},

    // The left column.
    {{14, 164, 200, 234}, 0, kSide, 0, 100, kYoursPane},
    {{14, 406, 200, 180}, 0, kSide, 100, 100, kYoursPane},
    {{14, 526, 200, 60}, 0, kSide, 100, 100, kSearchPane},
    {{14, 456, 200, 130}, 0, kSide, 100, 100, kRankingPane},
    {{14, 137, 200, 376}, 0, kSide, 0, 0},
    {{14, 164, 200, 422}, 0, kSide, 0, 100, kTreePane},

    // The line above the middle, then the header buttons and the filter's row.
    {{338, 136, 378, 26}, 100, 100, 0, 0},
    {{224, 137, 128, 24}, kSide, 100, 0, 0},
    {{224, 137, 312, 24}, kSide, 100, 0, 0},
    {{224, 164, 186, 56}, kSide, 66, 0, 0, kListPane},
    {{410, 164, 112, 56}, 66, 88, 0, 0, kListPane},
    {{522, 164, 82, 56}, 88, 92, 0, 0, kListPane},
    {{604, 164, 112, 56}, 92, 100, 0, 0, kListPane},
    {{224, 164, 118, 26}, kSide, 44, 0, 0, kFilterPane},
    {{344, 164, 22, 26}, 44, 44, 0, 0, kFilterPane},
    {{370, 164, 118, 26}, 44, 68, 0, 0, kFilterPane},
    {{490, 164, 22, 26}, 68, 68, 0, 0, kFilterPane},
    {{516, 164, 100, 26}, 68, 88, 0, 0, kFilterPane},
    {{618, 164, 22, 26}, 88, 88, 0, 0, kFilterPane},
    {{642, 164, 74, 26}, 88, 100, 0, 0, kFilterPane},

    // The middle.
    {{224, 220, 492, 366}, kSide, 100, 0, 100, kListPane},
    {{224, 188, 492, 398}, kSide, 100, 0, 100, kListPane},
    {{224, 556, 492, 30}, kSide, kSide, 100, 100, kEventPane},
    {{224, 164, 492, 382}, kSide, 100, 0, 100, kEventPane},
    {{244, 352, 190, 30}, kSide, kSide, 0, 0, kWebPane},
    {{244, 180, 452, 164}, kSide, 100, 0, 0, kWebPane},
    {kMiddle, kSide, 100, 0, 100, kWebPane},

    // The selected station.
    {{740, 290, 212, 82}, 100, 100, 50, 50, kNoStationPane},
    {{726, 140, 240, 60}, 100, 100, 0, 0, kStationPane},
    {{740, 202, 224, 68}, 100, 100, 0, 25, kStationPane},
    {{726, 272, 240, 264}, 100, 100, 25, 25, kStationPane},
    {{726, 536, 240, 50}, 100, 100, 100, 100, kStationPane},
    {{726, 140, 240, 446}, 100, 100, 0, 100},

    // The status line and the keys of the other windows.
    {{14, 592, 952, 2}, 0, 100, 100, 100},
    {{580, 598, 386, 34}, 100, 100, 100, 100},
    {{482, 599, 72, 24}, 100, 100, 100, 100},
    {{26, 599, 92, 24}, 0, 0, 100, 100},
    {{26, 599, 448, 24}, 0, 100, 100, 100, kStatusPane},
    {{126, 599, 366, 24}, 0, 100, 100, 100},
    {{500, 599, 54, 24}, 100, 100, 100, 100},
    {{14, 599, 546, 24}, 0, 100, 100, 100},
};

// Keys with a control in the last column work only while it has the focus: Del would else delete a station
// while the user edits words. Groups have no access keys, since a name may hold any character:
// digits with Alt or Ctrl are rows of this table.
constexpr KeyRow kKeys[] = {
    {'F', kCtrl, mnuViewSearch},
    {VK_F3, kPlain, mnuViewSearch},
    {'Z', kCtrl, mnuUndo},
    {'L', kCtrl, mnuFilter},
    {'R', kCtrl, mnuSomethingElse},
    {VK_ESCAPE, kPlain, mnuEndFilter, txtFilter},
    {VK_ESCAPE, kPlain, mnuEndFilter, lstFavs},
    {VK_DOWN, kPlain, mnuFiltered, txtFilter},
    {VK_F5, kPlain, butUpdate},
    {VK_TAB, kCtrl, mnuNextTab},
    {VK_TAB, kCtrl | kShift, mnuPreviousTab},
    {VK_F6, kPlain, mnuNextColumn},
    {VK_F6, kShift, mnuPreviousColumn},
    {VK_F2, kPlain, mnuFavRenameFav},
    {VK_RETURN, kShift, mnuActionPlayTwo, lstFavs},
    {VK_RETURN, kCtrl, mnuActionPlayThree, lstFavs},
    {VK_DELETE, kPlain, mnuRemoveRow, lstFavs},
    {VK_DELETE, kPlain, butRemoveGroup, lstGroups},
    // Ten rows in one: for each of the group buttons from butFavs on.
    {.key = VK_DELETE, .command = mnuRemoveFocusedGroup, .onlyIn = butFavs, .controls = 10},
    {VK_UP, kAlt, mnuActionMoveUp, lstFavs},
    {VK_DOWN, kAlt, mnuActionMoveDown, lstFavs},
    {'C', kCtrl, mnuActionCopyLink, lstFavs},
    {'D', kCtrl, mnuActionStar},
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
                                     .latePanes = kLatePanes,
                                     .firstFocus = lstFavs,
                                     .keptSize = &setting::kMainSize,
                                     .keptColumns = &setting::kListColumns,
                                     .stretches = kStretches};
  return kDesign;
}

}  // namespace sonaro
