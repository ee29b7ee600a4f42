// Every setting of the program: its name, which unit owns it, and what a missing value means. All are texts
// under kSettingsKey of HKEY_LOCAL_MACHINE unless the heading says otherwise. Dates are texts in the user's
// short form, "Yes" and "No" are compared ignoring letter case. A new setting gets its line here; its default
// value stands with its owner.
#pragma once

namespace sonaro::setting {

// clang-format off

// Start-up (app/)                                                                  owner, when missing
inline constexpr const char* kStartPlayer = "StartPlayer";                       // Startup, StartUpInfo: check for a player
inline constexpr const char* kStartProxy = "StartProxy";                         // Startup, StartUpInfo: look for a proxy
inline constexpr const char* kStartQuickStart = "StartQuickStart";               // Startup: offer the tutorial
inline constexpr const char* kUpdateHold = "UpdateHold";                         // DeferredSwap, net: nothing to swap in
inline constexpr const char* kLocal = "sLocal";                                  // RegionalSettings, net: 24-hour clock for every locale
inline constexpr const char* kHelpUrl = "HelpURL";                               // HelpPages, net: the default address, then stored
inline constexpr const char* kLastEventUpdate = "LastEventUpdate";               // LiveEventUpdate: no live update yet
inline constexpr const char* kInstallId = "InstallId";                           // InstallId: made at the first start

// Exchange with the service (net/). Missing addresses are stored with their default at start-up.
inline constexpr const char* kLastUpdate = "LastUpdate";                         // InetUpdate: a full update
inline constexpr const char* kUpdateVersion = "UpdateVersion";                   // InetUpdate: no update received yet
inline constexpr const char* kUpdateHoldDate = "UpdateHoldDate";                 // DeferredSwap, net: "LastUpdate" stays when the held files are in place
inline constexpr const char* kUpdateHoldVersion = "UpdateHoldVersion";           // DeferredSwap, net: so does "UpdateVersion"
inline constexpr const char* kUpdateSerial = "UpdateSerial";                     // UpdateInstall: no signed update with a serial number was taken
inline constexpr const char* kUpdateUrl = "UpdateURL";                           // InetUpdate: default address
inline constexpr const char* kNotifyUrl = "NotifyURL";                           // background jobs: default address
inline constexpr const char* kLiveUpdate = "LiveUpdate";                         // background jobs: default address
inline constexpr const char* kFacePlateUrl = "FacePlateURL";                     // faceplate packages: default address
inline constexpr const char* kSendComment = "SendComment";                       // comments: default address
inline constexpr const char* kSendFriend = "SendFriend";                         // tell a friend: default address
inline constexpr const char* kOwnUrl = "OwnURL";                                 // personal stations: default address
inline constexpr const char* kOwnUrlGet = "OwnURLGet";                           // extra links: default address
inline constexpr const char* kProxyTest = "ProxyTest";                           // TestProxy: default address
inline constexpr const char* kProxyTestText = "ProxyTestText";                   // TestProxy: default text
inline constexpr const char* kTestRealUrl = "TestRealURL";                       // options, StartUpInfo: default address
inline constexpr const char* kPrivacyPolicy = "PriacyPol";                       // mainwindow: default address; spelled so
inline constexpr const char* kPersonalPage = "PersonalPage";                     // personal start page: default address
inline constexpr const char* kSchedOnNowInfoUrl = "SchedOnNowInfoURL";           // background jobs: default address
inline constexpr const char* kSchedStationInfoUrl = "SchedStationInfoURL";       // background jobs: default address
inline constexpr const char* kSearchShowUrl = "SearchShowURL";                   // mainwindow: the search host's default page
inline constexpr const char* kGetAdsHere = "GetAdsHere";                         // ads: default address
inline constexpr const char* kYourMachineLastUpdate = "YourMachineLastUpdate";   // background jobs: never updated
inline constexpr const char* kDoWhat = "DoWhat";                                 // background jobs: no pending work
inline constexpr const char* kDebugMe = "DebugMe";                               // background jobs: off
inline constexpr const char* kProxyUse = "ProxyUse";                             // Proxy, options: no proxy
inline constexpr const char* kProxyAddress = "ProxyAddress";                     // Proxy, options: no host
inline constexpr const char* kProxyPort = "ProxyPort";                           // Proxy, options: 80

// Lists, playing and schedule
inline constexpr const char* kPlayWith = "PlayWith";                             // playback/Players: the kind of the link decides
inline constexpr const char* kScanTime = "ScanTime";                             // playback/StationScan: its default seconds
inline constexpr const char* kSearchList = "SearchList";                         // mainwindow/SearchHistory: no earlier searches
inline constexpr const char* kNoShowDelete = "NoShowDelete";                     // mainwindow, favourite groups: ask
inline constexpr const char* kNoShowDeletePersonalStation = "NoShowDeletePersonalStation";  // personal stations: ask
inline constexpr const char* kTempOwnLink = "tempOwnLink";                       // personal stations: no link being sent
inline constexpr const char* kNeverShowMinInfo = "NeverShowMinInfo";             // mainwindow: show the notice
inline constexpr const char* kSideFrame = "SideFrame";                           // mainwindow: default panel
inline constexpr const char* kSideWhere = "SideWhere";                           // mainwindow: default panel
inline constexpr const char* kSoundNotify = "SoundNotify";                       // schedule/Notify, options: the options' default

inline constexpr const char* kSoundClick = "SoundClick";                         // Application, options: keys click
inline constexpr const char* kMainPlace = "MainPlace";                           // Application: "left,top" in pixels; the middle
inline constexpr const char* kCloseToTray = "CloseToTray";                       // Application, options: ask at the first close
inline constexpr const char* kScheduleLastSeen = "ScheduleLastSeen";             // schedule: nothing was missed

// Faceplates (faceplate/); a missing value means the current faceplate's own.
inline constexpr const char* kFacePlateName = "FacePlateName";
inline constexpr const char* kFacePlateNew = "FacePlateNew";
inline constexpr const char* kFacePlateSize = "FacePlateSize";
inline constexpr const char* kColorButtonEnabled = "FacePlateColorButtonEnabled";
inline constexpr const char* kColorButtonNotEnabled = "FacePlateColorButtonNotEnabled";
inline constexpr const char* kColorListBox = "FacePlateColorListBox";
inline constexpr const char* kColorTabAndText = "FacePlateColorTabAndTextColor";
inline constexpr const char* kColorText = "FacePlateColorText";
inline constexpr const char* kColorTextBoxAndListBoxText = "FacePlateColorTextBoxAndListBoxColorForText";
inline constexpr const char* kColorLeftSideNotSelected = "FacePlateMainScreenLeftSideNotSelected";
inline constexpr const char* kColorSecondaryCal = "FacePlateSecondaryColorCal";
inline constexpr const char* kColorPrefix = "Color";                             // "Color1" to "Color9"
inline constexpr const char* kColorBackground = "ColorBackground";
inline constexpr const char* kSellColorPrefix = "SellColor";                     // "SellColor1" to "SellColor4"

// Advertisements, under kAdsKey: missing values mean none
inline constexpr const char* kNumberOfAds = "NumberOfAds";
inline constexpr const char* kNextAdToShow = "NextAdToShow";
inline constexpr const char* kAdsShownButNotToldShown = "AdsShownButNotToldShown";
inline constexpr const char* kAdsNotify = "Notify";

// clang-format on

}  // namespace sonaro::setting

// Keys and values of the system and of the media player that the program reads.
namespace sonaro::systemkey {

// HKEY_CURRENT_USER, read while starting.
inline constexpr const char* kInternational = "Control Panel\\International";
inline constexpr const char* kTimeFormat = "sTimeFormat";
inline constexpr const char* kLocale = "Locale";
inline constexpr const char* kShortDate = "sShortDate";

// HKEY_CURRENT_USER, for the detection of a proxy.
inline constexpr const char* kInternetSettings =
    "Software\\Microsoft\\Windows\\CurrentVersion\\Internet Settings";
inline constexpr const char* kProxyEnable = "ProxyEnable";
inline constexpr const char* kProxyServer = "ProxyServer";

// HKEY_LOCAL_MACHINE (and, only to be deleted, HKEY_CURRENT_USER): starting with Windows.
inline constexpr const char* kRun = "Software\\Microsoft\\Windows\\CurrentVersion\\Run";
inline constexpr const char* kRunValue = "SonaroStartUp";

// The name of a key's default value.
inline constexpr const char* kDefaultValue = "";

// HKEY_LOCAL_MACHINE, default values: the installed player's version, and its program path under
// kPlayer + version + kPlayerMainApp.
inline constexpr const char* kPlayerVersion =
    "SOFTWARE\\Classes\\Software\\RealNetworks\\RealPlayer\\CurrentVersion";
inline constexpr const char* kPlayer = "SOFTWARE\\Classes\\Software\\RealNetworks\\RealPlayer\\";
inline constexpr const char* kPlayerMainApp = "\\Preferences\\MainApp";

// HKEY_LOCAL_MACHINE and HKEY_CURRENT_USER: a value for each registered application, the key of its
// capabilities; below that the classes of file that it opens, and its name.
inline constexpr const char* kRegisteredApplications = "SOFTWARE\\RegisteredApplications";
inline constexpr const char* kFileAssociations = "\\FileAssociations";
inline constexpr const char* kApplicationName = "ApplicationName";

// HKEY_CLASSES_ROOT: the command of a class, and the classes that a kind of file can be opened with.
inline constexpr const char* kOpenCommand = "\\shell\\open\\command";
inline constexpr const char* kOpenWith = "\\OpenWithProgids";

}  // namespace sonaro::systemkey
