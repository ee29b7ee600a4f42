// The numbers of every named control and menu entry. A control array takes consecutive numbers (butFavs to
// butFavs + 9). Each window has a block of its own; names that several windows share stand first.
#pragma once

namespace sonaro {

// Every window.
inline constexpr int lblBringUp = 901;
inline constexpr int lblTitle = 902;
inline constexpr int butHelp = 903;
inline constexpr int butCloseIt = 904;
inline constexpr int butOKIt = 905;
inline constexpr int butCancelIt = 906;

// SonaroFrm: 1001 to 1499.
inline constexpr int butTabs = 1001;  // 5 numbers: Your Sonaro, List, Browse, By Location, Search
inline constexpr int tabRightSide = 1006;
inline constexpr int lblSubTitle = 1011;
inline constexpr int butMenu = 1012;
inline constexpr int butTray = 1013;
inline constexpr int butMin = 1014;
inline constexpr int butFavs = 1021;    // 10 numbers
inline constexpr int cmdFavHit = 1031;  // 10 numbers: choosing one does what choosing butFavs does
inline constexpr int butRecent = 1041;
inline constexpr int cmbFavs = 1042;
inline constexpr int lblListing = 1051;
inline constexpr int lblCount = 1052;
inline constexpr int butSplit1 = 1053;
inline constexpr int butSplit2 = 1054;
inline constexpr int butSplit3 = 1055;
inline constexpr int butSplit4 = 1056;
inline constexpr int lstFavs = 1057;
inline constexpr int butMissing = 1058;   // members of the group on show that the guide does not know
inline constexpr int butOwnOrder = 1059;  // there while the list is sorted
inline constexpr int butFilter = 1060;
inline constexpr int txtFilter = 1069;
inline constexpr int lblFilter = 1070;
inline constexpr int tmrTyped = 1079;
inline constexpr int cmbListFilter = 1043;     // 3 numbers: place, genre, bit rate
inline constexpr int butEndListFilter = 1046;  // 3 numbers: each takes that part of the filter away
inline constexpr int butOnlyAnswering = 1049;
inline constexpr int lblSide = 1061;
inline constexpr int butNewStations = 1062;
inline constexpr int butMostPop = 1063;
inline constexpr int butBestOverall = 1064;
inline constexpr int butBestSound = 1065;
inline constexpr int butBestSpeed = 1066;
inline constexpr int butBestWebSite = 1067;
inline constexpr int butMostReliable = 1068;
inline constexpr int treeBrowse = 1071;
inline constexpr int lblSearchCap = 1082;
inline constexpr int txtQuickSearch = 1083;
inline constexpr int optSearch = 1084;      // 2 numbers: all words, any word
inline constexpr int optSearchType = 1086;  // 6 numbers
inline constexpr int butSearchList = 1092;
inline constexpr int butPinSearch = 1093;
inline constexpr int lblWebAsked = 1101;
inline constexpr int lblWebAddress = 1102;
inline constexpr int butWebOpen = 1103;
inline constexpr int lstGroups = 1111;
inline constexpr int butNewGroup = 1112;
inline constexpr int butRemoveGroup = 1113;
inline constexpr int lblNextNotice = 1114;
inline constexpr int lstEvents = 1115;
inline constexpr int butNotifyMe = 1116;
inline constexpr int butPersonalShow = 1120;
inline constexpr int lblNextStation = 1117;
inline constexpr int lblNextOften = 1118;
inline constexpr int lblNextHeading = 1119;
inline constexpr int lblStationName = 1121;
inline constexpr int lblStationLocation = 1122;
inline constexpr int txtDescription = 1123;
inline constexpr int imgOverAll = 1124;
inline constexpr int imgSound = 1125;
inline constexpr int imgSpeed = 1126;
inline constexpr int imgWebSite = 1127;
inline constexpr int butGoMediaLinkOneIt = 1132;
inline constexpr int butGoMediaLinkTwoIt = 1133;
inline constexpr int butGoMediaLinkThreeIt = 1134;
inline constexpr int butGoWebPageIt = 1135;
inline constexpr int lblNoStation = 1136;
inline constexpr int picNoStation = 1128;
inline constexpr int picPin = 1137;
inline constexpr int picHairAbove = 1138;
inline constexpr int picHairBelow = 1139;
inline constexpr int lblStatus = 1141;
inline constexpr int lblProgress = 1142;
inline constexpr int picProgress = 1143;
inline constexpr int lblPercent = 1144;
inline constexpr int butUpdate = 1145;
inline constexpr int butScan = 1146;
inline constexpr int butSchedule = 1147;
inline constexpr int butOptions = 1148;
inline constexpr int butUndo = 1149;
inline constexpr int butPlayExtraIt = 1150;
inline constexpr int butAddToGroupIt = 1151;

// frmScan: 2001 to 2099.
inline constexpr int butStartIt = 2001;
inline constexpr int butMoveNextIt = 2002;
inline constexpr int butMoveUpIt = 2003;
inline constexpr int butMoveDownIt = 2004;
inline constexpr int butRemoveStationIt = 2005;
inline constexpr int butClearIt = 2006;
inline constexpr int butFullIt = 2007;
inline constexpr int butScanTimeIt = 2008;
inline constexpr int lstToScan = 2011;
inline constexpr int lstScanedAlready = 2012;
inline constexpr int lblCurrentScaning = 2013;
inline constexpr int lblTimeLeft = 2014;
inline constexpr int lblStationsAdd = 2015;
inline constexpr int picScan = 2016;
inline constexpr int lblQueue = 2017;
inline constexpr int lblQueueCount = 2018;
inline constexpr int lblHistory = 2019;
inline constexpr int tmrScan = 2020;
inline constexpr int panScanFull = 2021;
inline constexpr int panScanCompact = 2022;
inline constexpr int butQueueName = 2023;
inline constexpr int butQueueLocation = 2024;
inline constexpr int butHistoryName = 2025;
inline constexpr int butHistoryWhat = 2026;
inline constexpr int cmbScanTime = 2027;
inline constexpr int butDoneScanIt = 2028;
inline constexpr int butKeepIt = 2029;
inline constexpr int mnuScanPutBack = 2031;
inline constexpr int mnuScanRemove = 2032;
inline constexpr int mnuScanPlay = 2033;
inline constexpr int mnuScanToGroup = 2041;  // 10 numbers: one for each favourite group

// MsgboxFrm, frmSplash, frmStartUpInfo: 2101 to 2199.
inline constexpr int lblMsg = 2101;
inline constexpr int butMsg = 2102;  // 2 numbers
inline constexpr int chkDontAsk = 2104;
inline constexpr int lblStuff = 2105;
inline constexpr int picStuff = 2106;
inline constexpr int lblClose = 2121;
inline constexpr int lblLoading = 2122;
inline constexpr int lblVersion = 2123;
inline constexpr int picDial = 2124;
inline constexpr int picMark = 2125;
inline constexpr int lblHead = 2141;
inline constexpr int lblText = 2142;
inline constexpr int cmbPlayWith = 2143;
inline constexpr int butBrowseIt = 2144;
inline constexpr int butFindIt = 2145;
inline constexpr int butTestProgramIt = 2146;
inline constexpr int butPlayerWebSiteIt = 2147;
inline constexpr int lblProxyFound = 2150;
inline constexpr int optUseProxy = 2151;  // 2 numbers: use it, connect directly
inline constexpr int chkDontShow = 2153;
inline constexpr int butDoneIt = 2154;
inline constexpr int lblFound = 2161;  // 4 numbers: what plays which kind of link

// frmNewFavorite, frmRenameFav, dialogs of personal stations and extra links: 2201 to 2299.
inline constexpr int txtGroupName = 2201;
inline constexpr int cmbGroup = 2202;
inline constexpr int lblStation = 2203;
inline constexpr int txtStationName = 2211;
inline constexpr int txtLink = 2212;  // 3 numbers
inline constexpr int txtWebSite = 2215;
inline constexpr int txtType = 2216;
inline constexpr int txtStationNote = 2217;
inline constexpr int lblProblem = 2218;
inline constexpr int txtExtraName = 2221;
inline constexpr int txtExtraLink = 2222;

// frmNotify, frmschedtime, frmAboutEventTime: 2301 to 2399.
inline constexpr int lblEventName = 2301;
inline constexpr int lblNoticeInfo = 2302;
inline constexpr int lblNote = 2303;
inline constexpr int lstMissed = 2304;
inline constexpr int butPlay1It = 2305;
inline constexpr int butPlay2It = 2306;
inline constexpr int butPlay3It = 2307;
inline constexpr int butGoWebSiteIt = 2308;
inline constexpr int butCloselIt = 2309;
inline constexpr int Timer1 = 2310;
inline constexpr int lblCloseIt = 2311;
inline constexpr int butSnoozeIt = 2312;
inline constexpr int lblTimeInfo1 = 2321;
inline constexpr int lblTimeInfo2 = 2322;
inline constexpr int lblTimeInfo3 = 2323;
inline constexpr int lblTimeInfo4 = 2324;
inline constexpr int lblTimeInfo5 = 2325;
inline constexpr int lblName = 2326;
inline constexpr int lblChange = 2327;
inline constexpr int lblChangeIt = 2328;

// frmSched, frmSchedChange, frmSelectStation, frmDateFinder: 2401 to 2599.
inline constexpr int lstSched = 2401;
inline constexpr int lstShows = 2402;
inline constexpr int butAddIt = 2403;
inline constexpr int butChangeIt = 2404;
inline constexpr int butDeleteIt = 2405;
inline constexpr int butAboutTimeIt = 2406;
inline constexpr int butExportIt = 2407;
inline constexpr int butSchedSplit = 2408;  // 4 numbers: the header buttons of lstSched
inline constexpr int butShowSplit = 2412;   // 4 numbers: of lstShows
inline constexpr int lblStationToSched = 2421;
inline constexpr int butSchedIt = 2422;
inline constexpr int cmdHowOften = 2423;  // 3 numbers: Once, Daily, Weekly
inline constexpr int cmbTimeHour = 2426;
inline constexpr int cmbTimeMinute = 2427;
inline constexpr int cmbTimeAMPM = 2428;
inline constexpr int cmbThreeDay = 2429;
inline constexpr int txtOneDate = 2430;
inline constexpr int butPickDateIt = 2431;
inline constexpr int chkDay = 2432;  // 7 numbers: Monday to Sunday
inline constexpr int txtNote = 2439;
inline constexpr int chkWebSite = 2440;
inline constexpr int lblSummary = 2441;
inline constexpr int lblNextTime = 2442;
inline constexpr int cmbSelectGroup = 2461;
inline constexpr int txtFind = 2462;
inline constexpr int butSearchIt = 2463;
inline constexpr int lstResult = 2464;
inline constexpr int calDates = 2481;
inline constexpr int lblWeekday = 2482;
inline constexpr int lblDay = 2483;
inline constexpr int lblMonthYear = 2484;
inline constexpr int butToday = 2485;

// frmInetUpdate, the update dialog, frmTestProxy: 2601 to 2699.
inline constexpr int tmrInetStuff = 2601;
inline constexpr int prgUpdate = 2602;
inline constexpr int lblBytes = 2603;
inline constexpr int lblCheckAddress = 2611;
inline constexpr int lblCheckPort = 2612;
inline constexpr int lblStatusInfo = 2613;
inline constexpr int lblProxyStuff = 2614;
inline constexpr int tmrSock = 2615;
inline constexpr int tmrReport = 2616;
inline constexpr int imgProxyStep = 2616;      // 3 numbers
inline constexpr int lblProxyStep = 2619;      // 3 numbers
inline constexpr int lblProxyStepTime = 2622;  // 3 numbers
inline constexpr int prgProxyTest = 2625;
inline constexpr int butTestAgainIt = 2626;

// frmOptions: 2701 to 2799.
inline constexpr int chkStartWindows = 2701;
inline constexpr int cmbAfterClose = 2702;
inline constexpr int chkSoundNotice = 2703;
inline constexpr int butPlaySoundIt = 2704;
inline constexpr int chkSoundKeys = 2705;
inline constexpr int optProxy = 2706;  // 2 numbers: connect directly, by way of a proxy
inline constexpr int txtProxy = 2708;
inline constexpr int txtPort = 2709;
inline constexpr int butFindProxyIt = 2710;
inline constexpr int butTestProxyIt = 2711;
inline constexpr int lblOptionsInfo = 2712;
inline constexpr int chkLookForPlayer = 2713;
inline constexpr int chkLookForProxy = 2714;
inline constexpr int chkOfferTutorial = 2715;
inline constexpr int butPlayerIt = 2716;
inline constexpr int optFaceplate = 2717;  // 2 numbers: Graphite, Porcelain
inline constexpr int lblPlaying = 2719;
inline constexpr int tmrPlaying = 2720;
inline constexpr int butBackupIt = 2721;
inline constexpr int butRestoreIt = 2722;

// frmSysTrayMenu (menu entries): 3001 to 3099.
inline constexpr int mnuTrayOpen = 3001;
inline constexpr int mnuTrayBrowse = 3002;
inline constexpr int mnuTraySearch = 3003;
inline constexpr int mnuTrayYourSonaro = 3004;
inline constexpr int mnuTrayScan = 3005;
inline constexpr int mnuTraySchedule = 3006;
inline constexpr int mnuTrayUpdate = 3007;
inline constexpr int mnuTrayOptions = 3008;
inline constexpr int mnuTrayHelp = 3009;
inline constexpr int mnuTrayExit = 3010;
inline constexpr int mnuTrayGroup = 3021;    // 10 numbers
inline constexpr int mnuTrayStation = 3700;  // 200 numbers
inline constexpr int lblTrayText = 3041;
inline constexpr int tmrStartUp = 3042;
inline constexpr int tmrMinute = 3043;
inline constexpr int tmrFullMinute = 3044;
inline constexpr int tmrIcon = 3045;

// frmSonaroMenu (menu entries): 3101 to 3399.
// Sorting: the sort menu and the same entries of the action menu.
inline constexpr int mnuSortByName = 3101;
inline constexpr int mnuSortByLocation = 3102;
inline constexpr int mnuSortByMediaType = 3103;
inline constexpr int mnuSortByFormat = 3104;
inline constexpr int mnuSortByOverall = 3105;
inline constexpr int mnuSortBySound = 3106;
inline constexpr int mnuSortBySpeed = 3107;
inline constexpr int mnuSortByWebSite = 3108;
inline constexpr int mnuSortByReliable = 3109;
inline constexpr int mnuActionSortByName = 3110;
inline constexpr int mnuActionSortByLocation = 3111;
inline constexpr int mnuActionSortByMediaType = 3112;
inline constexpr int mnuActionSortByFormat = 3113;
inline constexpr int mnuActionSortByOverall = 3114;
inline constexpr int mnuActionSortBySound = 3115;
inline constexpr int mnuActionSortBySpeed = 3116;
inline constexpr int mnuActionSortByWebSite = 3117;
inline constexpr int mnuActionSortByMostReliable = 3118;
inline constexpr int mnuOwnOrder = 3121;   // of both menus
inline constexpr int mnuEndFilter = 3122;  // a key only
inline constexpr int mnuFilter = 3123;
inline constexpr int mnuFiltered = 3124;  // a key only: from the words to the rows
inline constexpr int mnuFilterByNode = 3125;
inline constexpr int mnuSomethingElse = 3126;
inline constexpr int mnuShowValues = 3127;  // of both menus that sort
// Keys only: to the next tab and back, to the next column and back.
inline constexpr int mnuNextTab = 3141;
inline constexpr int mnuPreviousTab = 3142;
inline constexpr int mnuNextColumn = 3143;
inline constexpr int mnuPreviousColumn = 3144;
// Rankings.
inline constexpr int mnuActionNewStations = 3131;
inline constexpr int mnuActionMostPoular = 3132;
inline constexpr int mnuActionLeastPopular = 3133;
inline constexpr int mnuActionBestOverall = 3134;
inline constexpr int mnuActionBestSound = 3135;
inline constexpr int mnuActionBestSpeed = 3136;
inline constexpr int mnuActionBestWebsite = 3137;
inline constexpr int mnuActionMostReliable = 3138;
// The selected station.
inline constexpr int mnuActionPlayOne = 3151;
inline constexpr int mnuActionPlayTwo = 3152;
inline constexpr int mnuActionPlayThree = 3153;
inline constexpr int mnuActionWebSite = 3155;
inline constexpr int mnuActionCopyLink = 3156;
inline constexpr int mnuActionStationToFavList = 3157;
inline constexpr int mnuActionRemoveFromFavList = 3158;
inline constexpr int mnuActionAddToScan = 3159;
inline constexpr int mnuActionAddListToScan = 3160;
inline constexpr int mnuActionSchedule = 3161;
inline constexpr int mnuActionExtraLink = 3162;
inline constexpr int mnuActionMoveUp = 3163;
inline constexpr int mnuActionMoveDown = 3164;
inline constexpr int mnuRemoveRow = 3175;             // a key only: what removing means for the list on show
inline constexpr int mnuRemoveFocusedGroup = 3176;    // a key only: on a button of the group bar
inline constexpr int mnuActionStationToGroup = 3165;  // 10 numbers: one for each group button
// Favourite groups: the group bar's own menu and the program menu.
inline constexpr int mnuAddFavGroupButton = 3191;
inline constexpr int mnuFavoritesAdd = 3192;
inline constexpr int mnuFavRenameFav = 3193;
inline constexpr int mnuItemRename = 3194;
inline constexpr int mnuFavDeleteFav = 3195;
inline constexpr int mnuItemDelete = 3196;
inline constexpr int mnuFavMoveLeft = 3197;
inline constexpr int mnuFavMoveRight = 3198;
inline constexpr int mnuFavScanGroup = 3199;
inline constexpr int mnuFavExport = 3200;
inline constexpr int mnuFavImport = 3201;
// Personal stations.
inline constexpr int mnuActionStar = 3202;  // into a group, or out of it
inline constexpr int mnuPersonalAdd = 3211;
inline constexpr int mnuPersonalChange = 3212;
inline constexpr int mnuPersonalDelete = 3213;
inline constexpr int mnuPersonalImport = 3214;
inline constexpr int mnuPersonalExport = 3215;
inline constexpr int mnuActionPlayExtra = 3271;  // 20 numbers: the user's own links of a station
// The program menu.
inline constexpr int mnuViewYourSonaro = 3231;
inline constexpr int mnuViewList = 3232;
inline constexpr int mnuViewBrowse = 3233;
inline constexpr int mnuViewByLocation = 3234;
inline constexpr int mnuViewSearch = 3235;
inline constexpr int mnuRecent = 3236;
inline constexpr int mnuUpdate = 3237;
inline constexpr int mnuScan = 3238;
inline constexpr int mnuSchedule = 3239;
inline constexpr int mnuOptions = 3240;
inline constexpr int mnuFullHelp = 3241;
inline constexpr int mnuQuickStart = 3242;
inline constexpr int mnuKeys = 3243;
inline constexpr int mnuHideToTray = 3244;
inline constexpr int mnuExit = 3245;
inline constexpr int mnuViewPersonalPage = 3246;
inline constexpr int mnuUndoUpdate = 3247;
inline constexpr int mnuUndo = 3248;
inline constexpr int mnuAbout = 3249;
// The menu of an event.
inline constexpr int mnuEventNotifyMe = 3251;
inline constexpr int mnuEventPersonalShow = 3252;
// The menu of a notice.
inline constexpr int mnuSnooze = 3253;  // 3 numbers

}  // namespace sonaro
