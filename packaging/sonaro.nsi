; The installer: makensis -DVERSION=4.0.2 -DSTAGE=folder -DFILES=list.nsh -DOWN=own.nsh -DOUT=setup.exe sonaro.nsi
; STAGE holds the data folder with the programs; list.nsh deletes just these files again, own.nsh the user's own. For the
; user who starts it, without other rights than his: README.md says why there is none for all users.
; Silent: setup.exe /S [/D=C:\folder]; Uninstall.exe /S [/REMOVEALL]
Unicode true
Target amd64-unicode
SetCompressor /SOLID lzma

!include MUI2.nsh
!include LogicLib.nsh
!include FileFunc.nsh

!define SETTINGS "SOFTWARE\zumo\Sonaro"
!define UNINSTALL "Software\Microsoft\Windows\CurrentVersion\Uninstall\Sonaro"
!define RUN "Software\Microsoft\Windows\CurrentVersion\Run"

Name "Sonaro"
OutFile "${OUT}"
RequestExecutionLevel user
InstallDir "$LOCALAPPDATA\Programs\Sonaro"
InstallDirRegKey HKCU "${UNINSTALL}" "InstallLocation"
BrandingText "Sonaro ${VERSION}"
VIProductVersion "${VERSION}.0"
VIAddVersionKey ProductName "Sonaro"
VIAddVersionKey LegalCopyright "The makers of Sonaro"
VIAddVersionKey FileDescription "Sonaro installer"
VIAddVersionKey FileVersion "${VERSION}"
VIAddVersionKey ProductVersion "${VERSION}"

!define MUI_ICON "..\src\resources\sonaro.ico"
!define MUI_UNICON "..\src\resources\sonaro.ico"
!define MUI_FINISHPAGE_RUN "$INSTDIR\Sonaro.exe"
!define MUI_FINISHPAGE_RUN_TEXT "Open Sonaro"
!insertmacro MUI_PAGE_WELCOME
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "English"

; A running Sonaro holds its files; its hidden tray window tells.
!macro RefuseWhileRunning un
Function ${un}RefuseWhileRunning
  again:
  FindWindow $0 "" "frmSysTrayMenu"
  ${If} $0 <> 0
    MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "Sonaro is running. Please choose Exit in its tray menu first." \
      /SD IDCANCEL IDRETRY again
    SetErrorLevel 3
    Quit
  ${EndIf}
FunctionEnd
!macroend
!insertmacro RefuseWhileRunning ""
!insertmacro RefuseWhileRunning "un."

Function .onInit
  SetRegView 64
  SetShellVarContext current
  Call RefuseWhileRunning
FunctionEnd

Function un.onInit
  SetRegView 64
  SetShellVarContext current
  Call un.RefuseWhileRunning
FunctionEnd

; Where this user has settings of an installation before.
!macro ForgetLastUpdate ROOT
  ReadRegStr $0 ${ROOT} "${SETTINGS}" "LastUpdate"
  ${If} $0 != ""
    WriteRegStr ${ROOT} "${SETTINGS}" "LastUpdate" ""
  ${EndIf}
!macroend

; Sonaro's place in the list of what starts with Windows, unless that is another folder's.
!macro EndStartWithWindows ROOT
  ReadRegStr $0 ${ROOT} "${RUN}" "SonaroStartUp"
  ${If} $0 == "$INSTDIR\Sonaro.exe WinStart=Yes"
    DeleteRegValue ${ROOT} "${RUN}" "SonaroStartUp"
  ${EndIf}
!macroend

!macro RemoveSettings ROOT
  DeleteRegKey ${ROOT} "${SETTINGS}"
  DeleteRegKey /ifempty ${ROOT} "SOFTWARE\zumo"
!macroend

Section
  SetOutPath "$INSTDIR"
  File /r "${STAGE}/*"
  WriteUninstaller "$INSTDIR\Uninstall.exe"

  ; The lists are now those of the package: the next update fetches everything that is newer.
  !insertmacro ForgetLastUpdate HKCU
  !insertmacro ForgetLastUpdate HKLM

  CreateShortCut "$SMPROGRAMS\Sonaro.lnk" "$INSTDIR\Sonaro.exe"
  WriteRegStr HKCU "${UNINSTALL}" "DisplayName" "Sonaro"
  WriteRegStr HKCU "${UNINSTALL}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKCU "${UNINSTALL}" "DisplayIcon" "$INSTDIR\Sonaro.exe"
  WriteRegStr HKCU "${UNINSTALL}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKCU "${UNINSTALL}" "UninstallString" '"$INSTDIR\Uninstall.exe"'
  WriteRegStr HKCU "${UNINSTALL}" "QuietUninstallString" '"$INSTDIR\Uninstall.exe" /S'
  WriteRegDWORD HKCU "${UNINSTALL}" "EstimatedSize" ${KILOBYTES}
  WriteRegDWORD HKCU "${UNINSTALL}" "NoModify" 1
  WriteRegDWORD HKCU "${UNINSTALL}" "NoRepair" 1
SectionEnd

; Only what is known by name is deleted, and folders only when they are empty: the folder may hold files of others.
Section Uninstall
  !include "${FILES}"
  Delete "$INSTDIR\Uninstall.exe"
  Delete "$SMPROGRAMS\Sonaro.lnk"
  !insertmacro EndStartWithWindows HKCU
  !insertmacro EndStartWithWindows HKLM
  ${GetParameters} $R0
  ClearErrors
  ${GetOptions} $R0 "/REMOVEALL" $R1
  ${If} ${Errors}
    MessageBox MB_YESNO|MB_ICONQUESTION|MB_DEFBUTTON2 "Delete your favourites, your schedule and your settings as well?" \
      /SD IDNO IDNO keep
  ${EndIf}
  !include "${OWN}"
  !insertmacro RemoveSettings HKCU
  !insertmacro RemoveSettings HKLM
  keep:
  SetOutPath "$TEMP"
  RMDir "$INSTDIR"
  DeleteRegKey HKCU "${UNINSTALL}"  ; last: whoever waits for the end looks for it
SectionEnd
