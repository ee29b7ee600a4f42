; The installer: makensis -DVERSION=4.0.2 -DSTAGE=folder -DFILES=list.nsh -DOUT=setup.exe sonaro.nsi
; STAGE holds the data folder with the programs; list.nsh deletes just these files again. For all users of the machine,
; into a folder and a settings key that every user may write: the program keeps its lists beside itself.
; Silent: setup.exe /S [/D=C:\folder]
Unicode true
Target amd64-unicode
SetCompressor /SOLID lzma

!include MUI2.nsh
!include LogicLib.nsh

!define SETTINGS "SOFTWARE\zumo\Sonaro"
!define UNINSTALL "Software\Microsoft\Windows\CurrentVersion\Uninstall\Sonaro"
; Administrators and the system may do all; users read, write and make sub-keys.
!define KEY_RIGHTS "D:(A;OICI;KA;;;SY)(A;OICI;KA;;;BA)(A;OICI;0x2003f;;;BU)"

Name "Sonaro"
OutFile "${OUT}"
RequestExecutionLevel admin
InstallDir "$PROGRAMFILES64\Sonaro"
InstallDirRegKey HKLM "${UNINSTALL}" "InstallLocation"
BrandingText "Sonaro ${VERSION}"
VIProductVersion "${VERSION}.0"
VIAddVersionKey ProductName "Sonaro"
VIAddVersionKey LegalCopyright "The makers of Sonaro"
VIAddVersionKey FileDescription "Sonaro installer"
VIAddVersionKey FileVersion "${VERSION}"
VIAddVersionKey ProductVersion "${VERSION}"

!define MUI_ICON "..\src\resources\sonaro.ico"
!define MUI_UNICON "..\src\resources\sonaro.ico"
!define MUI_FINISHPAGE_RUN "$WINDIR\explorer.exe"  ; started as the user, not as the administrator
!define MUI_FINISHPAGE_RUN_PARAMETERS '$\"$INSTDIR\Sonaro.exe$\"'
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
  SetShellVarContext all
  Call RefuseWhileRunning
FunctionEnd

Function un.onInit
  SetRegView 64
  SetShellVarContext all
  Call un.RefuseWhileRunning
FunctionEnd

Section
  SetOutPath "$INSTDIR"
  File /r "${STAGE}/*"
  WriteUninstaller "$INSTDIR\Uninstall.exe"
  nsExec::Exec '"$SYSDIR\icacls.exe" "$INSTDIR" /grant *S-1-5-32-545:(OI)(CI)M'
  Pop $0

  ; An empty value makes the key; an empty "LastUpdate" has the next update fetch everything that is newer.
  WriteRegStr HKLM "${SETTINGS}" "LastUpdate" ""
  System::Call 'advapi32::RegOpenKeyExW(p 0x80000002, w "${SETTINGS}", i 0, i 0x00040100, *p .r1) i .r0'
  ${If} $0 = 0
    System::Call 'advapi32::ConvertStringSecurityDescriptorToSecurityDescriptorW(w "${KEY_RIGHTS}", i 1, *p .r2, p 0) i .r0'
    ${If} $0 <> 0
      System::Call 'advapi32::RegSetKeySecurity(p r1, i 4, p r2) i .r0'
      System::Call 'kernel32::LocalFree(p r2)'
    ${EndIf}
    System::Call 'advapi32::RegCloseKey(p r1)'
  ${EndIf}

  CreateShortCut "$SMPROGRAMS\Sonaro.lnk" "$INSTDIR\Sonaro.exe"
  WriteRegStr HKLM "${UNINSTALL}" "DisplayName" "Sonaro"
  WriteRegStr HKLM "${UNINSTALL}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKLM "${UNINSTALL}" "DisplayIcon" "$INSTDIR\Sonaro.exe"
  WriteRegStr HKLM "${UNINSTALL}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKLM "${UNINSTALL}" "UninstallString" '"$INSTDIR\Uninstall.exe"'
  WriteRegStr HKLM "${UNINSTALL}" "QuietUninstallString" '"$INSTDIR\Uninstall.exe" /S'
  WriteRegDWORD HKLM "${UNINSTALL}" "EstimatedSize" ${KILOBYTES}
  WriteRegDWORD HKLM "${UNINSTALL}" "NoModify" 1
  WriteRegDWORD HKLM "${UNINSTALL}" "NoRepair" 1
SectionEnd

Section Uninstall
  !include "${FILES}"
  Delete "$INSTDIR\Uninstall.exe"
  Delete "$SMPROGRAMS\Sonaro.lnk"
  DeleteRegValue HKLM "Software\Microsoft\Windows\CurrentVersion\Run" "SonaroStartUp"
  DeleteRegKey HKLM "${UNINSTALL}"
  MessageBox MB_YESNO|MB_ICONQUESTION "Delete your favourites, your schedule and your settings as well?" \
    /SD IDNO IDNO keep
  RMDir /r "$INSTDIR"
  DeleteRegKey HKLM "${SETTINGS}"
  keep:
  SetOutPath "$TEMP"
  RMDir "$INSTDIR"
SectionEnd
