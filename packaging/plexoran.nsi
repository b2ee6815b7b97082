; The installer: for this user without an administrator, or for all. What the user made stays when the
; program goes. Defined by who calls: VERSIE, BRON (folder with the files), UIT.
Target amd64-unicode
SetCompressor /SOLID lzma
ManifestDPIAware true

!define MULTIUSER_EXECUTIONLEVEL Highest
!define MULTIUSER_MUI
!define MULTIUSER_INSTALLMODE_COMMANDLINE
!define MULTIUSER_INSTALLMODE_DEFAULT_CURRENTUSER
!define MULTIUSER_INSTALLMODE_INSTDIR "Plexoran"
!define MULTIUSER_USE_PROGRAMFILES64
!define SLEUTEL "Software\Microsoft\Windows\CurrentVersion\Uninstall\Plexoran"
!define MULTIUSER_INSTALLMODE_INSTDIR_REGISTRY_KEY "${SLEUTEL}"
!define MULTIUSER_INSTALLMODE_INSTDIR_REGISTRY_VALUENAME "InstallLocation"
!include MultiUser.nsh
!include MUI2.nsh
!include FileFunc.nsh

Name "Plexoran"
OutFile "${UIT}"
VIProductVersion "${VERSIE}.0"
VIAddVersionKey "ProductName" "Plexoran"
VIAddVersionKey "ProductVersion" "${VERSIE}"
VIAddVersionKey "FileVersion" "${VERSIE}"
VIAddVersionKey "FileDescription" "Plexoran installeren"
VIAddVersionKey "LegalCopyright" "The Plexoran developers"

!define MUI_ICON "${BRON}\plexoran.ico"
!define MUI_UNICON "${BRON}\plexoran.ico"
!define MUI_FINISHPAGE_RUN "$INSTDIR\plexoran.exe"
!insertmacro MUI_PAGE_WELCOME
!insertmacro MULTIUSER_PAGE_INSTALLMODE
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "Dutch"

Function .onInit
  !insertmacro MULTIUSER_INIT
FunctionEnd

Function un.onInit
  !insertmacro MULTIUSER_UNINIT
FunctionEnd

; A program that runs keeps its file: nothing was changed then.
!macro WachtOpProgramma prefix
Function ${prefix}WachtOpProgramma
  opnieuw:
  IfFileExists "$INSTDIR\plexoran.exe" 0 weg
  ClearErrors
  FileOpen $0 "$INSTDIR\plexoran.exe" a
  IfErrors 0 vrij
  MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION \
    "Plexoran is nog open. Er is niets veranderd. Sluit het en kies dan Opnieuw." \
    /SD IDCANCEL IDRETRY opnieuw
  Abort
  vrij:
  FileClose $0
  weg:
FunctionEnd
!macroend
!insertmacro WachtOpProgramma ""
!insertmacro WachtOpProgramma "un."

Section
  Call WachtOpProgramma
  SetOutPath "$INSTDIR"
  File "${BRON}\plexoran.exe"
  File "${BRON}\LEESMIJ.txt"
  File "${BRON}\LICENSE.txt"
  SetOutPath "$INSTDIR\Licenties"
  File "${BRON}\Licenties\*.*"
  SetOutPath "$INSTDIR\Handleiding"
  File /r "${BRON}\Handleiding\*.*"
  SetOutPath "$INSTDIR"
  WriteUninstaller "$INSTDIR\verwijderen.exe"
  CreateShortCut "$SMPROGRAMS\Plexoran.lnk" "$INSTDIR\plexoran.exe"
  WriteRegStr SHCTX "${SLEUTEL}" "DisplayName" "Plexoran"
  WriteRegStr SHCTX "${SLEUTEL}" "DisplayVersion" "${VERSIE}"
  WriteRegStr SHCTX "${SLEUTEL}" "DisplayIcon" "$INSTDIR\plexoran.exe"
  WriteRegStr SHCTX "${SLEUTEL}" "Publisher" "The Plexoran developers"
  WriteRegStr SHCTX "${SLEUTEL}" "InstallLocation" "$INSTDIR"
  WriteRegStr SHCTX "${SLEUTEL}" "UninstallString" '"$INSTDIR\verwijderen.exe" /$MultiUser.InstallMode'
  WriteRegStr SHCTX "${SLEUTEL}" "QuietUninstallString" '"$INSTDIR\verwijderen.exe" /$MultiUser.InstallMode /S'
  ${GetSize} "$INSTDIR" "/S=0K" $0 $1 $2
  WriteRegDWORD SHCTX "${SLEUTEL}" "EstimatedSize" $0
  WriteRegDWORD SHCTX "${SLEUTEL}" "NoModify" 1
  WriteRegDWORD SHCTX "${SLEUTEL}" "NoRepair" 1
SectionEnd

; Only what the installer put there: a "Mappen.ini" or players beside the program stay.
Section Uninstall
  Call un.WachtOpProgramma
  Delete "$INSTDIR\plexoran.exe"
  Delete "$INSTDIR\LEESMIJ.txt"
  Delete "$INSTDIR\LICENSE.txt"
  Delete "$INSTDIR\verwijderen.exe"
  RMDir /r "$INSTDIR\Licenties"
  RMDir /r "$INSTDIR\Handleiding"
  RMDir "$INSTDIR"
  Delete "$SMPROGRAMS\Plexoran.lnk"
  DeleteRegKey SHCTX "${SLEUTEL}"
SectionEnd
