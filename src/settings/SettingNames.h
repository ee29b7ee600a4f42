// Every setting of the program, one line each: its name, how its text is read and written, which unit owns it
// and what a missing value means. CReg::Get and CReg::Set take a line of this table and nothing else names a
// setting. All stand under kSettingsKey of HKEY_LOCAL_MACHINE unless the heading says otherwise. Dates are
// texts in the user's short form. The default of a text stands with its owner.
#pragma once

#include "settings/SettingTypes.h"

namespace sonaro {

// What closing the main window does.
enum class AfterClose { Ask, KeepInTray, Exit };

}  // namespace sonaro

namespace sonaro::setting {

// clang-format off

// Start-up (app/)                                                      owner, when missing
inline constexpr Switch kStartPlayer{"StartPlayer", "Yes", "No", true, true};          // Startup, StartUpInfo: check for a player
inline constexpr Switch kStartProxy{"StartProxy", "Yes", "No", true, true};            // Startup, StartUpInfo: look for a proxy
inline constexpr Switch kStartQuickStart{"StartQuickStart", "Yes", "No", true, true};  // Startup: offer the tutorial
inline constexpr Text kUpdateHold{"UpdateHold"};                        // DeferredSwap, net: nothing to swap in
inline constexpr Text kLocal{"sLocal"};                                 // RegionalSettings, net: 24-hour clock for every locale
inline constexpr Text kHelpUrl{"HelpURL"};                              // HelpPages, net: the default address, then stored
inline constexpr Text kLastEventUpdate{"LastEventUpdate"};              // LiveEventUpdate: no live update yet
inline constexpr Text kInstallId{"InstallId"};                          // InstallId: made at the first start

// Exchange with the service (net/). Missing addresses are stored with their default at start-up.
inline constexpr Text kLastUpdate{"LastUpdate"};                        // InetUpdate: a full update
inline constexpr Text kUpdateVersion{"UpdateVersion"};                  // InetUpdate: no update received yet
inline constexpr Text kUpdateHoldDate{"UpdateHoldDate"};                // DeferredSwap, net: "LastUpdate" stays when the held files are in place
inline constexpr Text kUpdateHoldVersion{"UpdateHoldVersion"};          // DeferredSwap, net: so does "UpdateVersion"
inline constexpr Number kUpdateSerial{"UpdateSerial"};                  // UpdateInstall: no signed update with a serial number was taken
inline constexpr Text kUpdateUrl{"UpdateURL"};                          // InetUpdate: default address
inline constexpr Text kNotifyUrl{"NotifyURL"};                          // background jobs: default address
inline constexpr Text kLiveUpdate{"LiveUpdate"};                        // background jobs: default address
inline constexpr Text kFacePlateUrl{"FacePlateURL"};                    // faceplate packages: default address
inline constexpr Text kSendComment{"SendComment"};                      // comments: default address
inline constexpr Text kSendFriend{"SendFriend"};                        // tell a friend: default address
inline constexpr Text kOwnUrl{"OwnURL"};                                // personal stations: default address
inline constexpr Text kOwnUrlGet{"OwnURLGet"};                          // extra links: default address
inline constexpr Text kProxyTest{"ProxyTest"};                          // TestProxy: default address
inline constexpr Text kProxyTestText{"ProxyTestText"};                  // TestProxy: default text
inline constexpr Text kTestRealUrl{"TestRealURL"};                      // options, StartUpInfo: default address
inline constexpr Text kPrivacyPolicy{"PriacyPol"};                      // mainwindow: default address; spelled so
inline constexpr Text kPersonalPage{"PersonalPage"};                    // personal start page: default address
inline constexpr Text kSchedOnNowInfoUrl{"SchedOnNowInfoURL"};          // background jobs: default address
inline constexpr Text kSchedStationInfoUrl{"SchedStationInfoURL"};      // background jobs: default address
inline constexpr Text kSearchShowUrl{"SearchShowURL"};                  // mainwindow: the search host's default page
inline constexpr Text kGetAdsHere{"GetAdsHere"};                        // ads: default address
inline constexpr Text kDoWhat{"DoWhat"};                                // background jobs: no pending work
inline constexpr Switch kProxyUse{"ProxyUse", "Yes", "No", false, false};  // Proxy, options: no proxy
inline constexpr Text kProxyAddress{"ProxyAddress"};                    // Proxy, options: no host
inline constexpr Text kProxyPort{"ProxyPort"};                          // Proxy, options: 80; as the user typed it

// Lists, playing and schedule
inline constexpr Text kPlayWith{"PlayWith"};                            // playback/Players: the kind of the link decides
inline constexpr Number kScanTime{"ScanTime"};                          // playback/StationScan: its default seconds
inline constexpr Text kSearchList{"SearchList"};                        // stations/SearchHistory: no earlier searches
inline constexpr Text kPinnedSearches{"PinnedSearches"};                // stations/SearchHistory: none
inline constexpr Switch kListValues{"ListValues", "Yes", "", false, true};  // mainwindow, the station list: no ratings beside the names
inline constexpr Text kListFilter{"ListFilter"};                        // mainwindow/StationFilter: no filter
inline constexpr Text kListColumns{"ListColumns"};                      // forms/HeaderEdges: four columns in thousandths of the list; as designed
inline constexpr Switch kNoShowDelete{"NoShowDelete", "Yes", "", false, true};  // mainwindow, favourite groups: ask
inline constexpr Switch kNoShowDeletePersonalStation{"NoShowDeletePersonalStation", "Yes", "", false, true};  // personal stations: ask
inline constexpr Switch kNoShowDeleteNotice{"NoShowDeleteNotice", "Yes", "", false, true};  // schedule: ask
inline constexpr Switch kSoundNotify{"SoundNotify", "True", "False", true, false};  // schedule/Notify, options: a sound
inline constexpr Switch kSoundClick{"SoundClick", "True", "False", true, true};     // Application, options: keys click
inline constexpr Text kMainPlace{"MainPlace"};                          // Application: "left,top" in pixels; the middle
inline constexpr Text kMainSize{"MainSize"};                            // forms/FormWindow: "width,height", ",Max" when maximised; as designed
inline constexpr Text kScanSize{"ScanSize"};                            // forms/FormWindow: the scan's, as kMainSize
inline constexpr Text kScheduleSize{"ScheduleSize"};                    // forms/FormWindow: the schedule's, as kMainSize
inline constexpr Text kPickSize{"PickSize"};                            // forms/FormWindow: that of the window that picks a station, as kMainSize
inline constexpr Choice<AfterClose, 3> kCloseToTray{"CloseToTray", {"", "Yes", "No"}, AfterClose::Exit};  // Application, options: ask at the first close
inline constexpr Text kScheduleLastSeen{"ScheduleLastSeen"};            // schedule: nothing was missed

// Faceplates (faceplate/). The names of the twenty colours stand beside their built-in values, in
// FaceplateColors; a missing one means the current faceplate's own.
inline constexpr Text kFacePlateName{"FacePlateName"};                  // Faceplate: the first built-in one

// Advertisements, under kAdsKey
inline constexpr Text kNumberOfAds{"NumberOfAds"};                      // ads: none

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

// HKEY_CLASSES_ROOT: the command of a class, the classes that a kind of file can be opened with, and what a
// program is called, by its file name.
inline constexpr const char* kApplications = "Applications\\";
inline constexpr const char* kFriendlyName = "FriendlyAppName";
inline constexpr const char* kOpenCommand = "\\shell\\open\\command";
inline constexpr const char* kOpenWith = "\\OpenWithProgids";

}  // namespace sonaro::systemkey
