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

// frmScan: 2001 to 2099.

// MsgboxFrm, frmSplash, frmStartUpInfo: 2101 to 2199.

// frmNewFavorite, frmRenameFav, dialogs of personal stations and extra links: 2201 to 2299.

// frmNotify, frmschedtime, frmAboutEventTime: 2301 to 2399.

// frmSched, frmSchedChange, frmSelectStation, frmDateFinder: 2401 to 2599.

// frmInetUpdate, frmTestProxy: 2601 to 2699.

// frmOptions: 2701 to 2799.

// frmSysTrayMenu (menu entries): 3001 to 3099.

// frmSonaroMenu (menu entries): 3101 to 3399.

}  // namespace sonaro
