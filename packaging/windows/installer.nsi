; The installer: for one user, without an administrator. It takes the files that FILES lists, once to
; install and once to remove; what else lies in their folder stays when they are removed.
;   makensis -DVERSION=... -DFILES=... -DICON=... -DOUTPUT=... installer.nsi
Target amd64-unicode
ManifestDPIAware true
ManifestSupportedOS Win10
RequestExecutionLevel user
SetCompressor /SOLID lzma

!include MUI2.nsh
!include FileFunc.nsh

!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\Wheelwright"

Name "Wheelwright"
OutFile "${OUTPUT}"
InstallDir "$LOCALAPPDATA\Programs\Wheelwright"
InstallDirRegKey HKCU "${UNINSTALL_KEY}" "InstallLocation"

VIProductVersion "${VERSION}.0"
VIAddVersionKey "ProductName" "Wheelwright"
VIAddVersionKey "ProductVersion" "${VERSION}"
VIAddVersionKey "FileVersion" "${VERSION}"
VIAddVersionKey "FileDescription" "Installs Wheelwright"
VIAddVersionKey "CompanyName" "Wheelwright project"
VIAddVersionKey "LegalCopyright" "Copyright Wheelwright project; GNU GPL, version 3 or later"

!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_FINISHPAGE_RUN "$INSTDIR\wheelwright.exe"

!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES

; The first is that of users whose language is none of these.
!insertmacro MUI_LANGUAGE "English"
!insertmacro MUI_LANGUAGE "German"
!insertmacro MUI_LANGUAGE "Spanish"
!insertmacro MUI_LANGUAGE "French"
!insertmacro MUI_LANGUAGE "Italian"
!insertmacro MUI_LANGUAGE "Dutch"
!insertmacro MUI_LANGUAGE "Portuguese"

!include "${FILES}"

Section
  SetShellVarContext current
  !insertmacro InstallFiles
  WriteUninstaller "$INSTDIR\uninstall.exe"
  CreateShortcut "$SMPROGRAMS\Wheelwright.lnk" "$INSTDIR\wheelwright.exe"
  ${GetSize} "$INSTDIR" "/S=0K" $0 $1 $2
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayName" "Wheelwright"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayIcon" "$INSTDIR\wheelwright.exe"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "Publisher" "Wheelwright project"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "URLInfoAbout" "https://wheelwright.example/"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "UninstallString" '"$INSTDIR\uninstall.exe"'
  WriteRegStr HKCU "${UNINSTALL_KEY}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "EstimatedSize" $0
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoModify" 1
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoRepair" 1
SectionEnd

; Only what was installed goes, and the settings; a folder goes when nothing is left in it.
Section Uninstall
  SetShellVarContext current
  Delete "$SMPROGRAMS\Wheelwright.lnk"
  Delete "$INSTDIR\uninstall.exe"
  !insertmacro RemoveFiles
  RMDir "$INSTDIR"
  DeleteRegKey HKCU "${UNINSTALL_KEY}"
  DeleteRegKey HKCU "Software\Wheelwright\Wheelwright"
  DeleteRegKey /ifempty HKCU "Software\Wheelwright"
SectionEnd
