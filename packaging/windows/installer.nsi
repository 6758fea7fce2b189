; Installs the programs for all users. Silent: /S /VERSION=V1400 /RELEASE=R12. Without these two options, the firmware is
; that of an earlier installation, or the one below.
Unicode true
Target amd64-unicode
!include FileFunc.nsh
!include LogicLib.nsh
!include WinVer.nsh

!define KEY "SOFTWARE\ORB\OVL Software"
!define UNINSTALL "SOFTWARE\Microsoft\Windows\CurrentVersion\Uninstall\OVL Software"

Name "OVL Software ${VERSION}"
OutFile "${OUTPUT}"
InstallDir "$PROGRAMFILES64\OVL Software"
InstallDirRegKey HKLM "${UNINSTALL}" "InstallLocation"
RequestExecutionLevel admin
SetCompressor /SOLID lzma

Page directory
Page instfiles
UninstPage uninstConfirm
UninstPage instfiles

; Sets the value from the command line. Without one, it keeps the value of the settings or sets the second parameter.
!macro Setting name fallback
  ${GetParameters} $0
  ClearErrors
  ${GetOptions} $0 "/${name}=" $1
  ${If} ${Errors}
    ReadRegStr $1 HKLM "${KEY}" "${name}"
    ${If} $1 == ""
      StrCpy $1 "${fallback}"
    ${EndIf}
  ${EndIf}
  WriteRegStr HKLM "${KEY}" "${name}" $1
!macroend

; Older releases ignore that the programs ask for UTF-8, and the names of files and ports would be wrong.
Function .onInit
  ${IfNot} ${AtLeastBuild} 18362
    MessageBox MB_OK|MB_ICONSTOP "OVL Software needs Windows 10 version 1903 or later." /SD IDOK
    SetErrorLevel 2
    Quit
  ${EndIf}
  ; A running program cannot be replaced: the old one would stay.
  SetRegView 64
  ReadRegStr $0 HKLM "${UNINSTALL}" "InstallLocation"
  ${If} ${FileExists} "$0\bin\ovl.exe"
    ClearErrors
    FileOpen $1 "$0\bin\ovl.exe" a
    ${If} ${Errors}
      MessageBox MB_OK|MB_ICONSTOP "OVL Software is running. Close it, and start the installation again." /SD IDOK
      SetErrorLevel 2
      Quit
    ${EndIf}
    FileClose $1
  ${EndIf}
FunctionEnd

Section
  SetRegView 64
  SetShellVarContext all
  ; First remove the files of the earlier version: the new uninstaller does not know those that no longer exist.
  ReadRegStr $0 HKLM "${UNINSTALL}" "InstallLocation"
  ${If} $0 != ""
    ExecWait '"$0\uninstall-ovl-software.exe" /S /KEEPSETTINGS _?=$0'
    Delete "$0\uninstall-ovl-software.exe"  ; it cannot delete itself when it is waited for
    RMDir "$0"
  ${EndIf}
  SetOutPath "$INSTDIR"
  File /r "${TREE}/*"
  ; Not just "uninstall.exe", which another program in this folder may have.
  WriteUninstaller "$INSTDIR\uninstall-ovl-software.exe"
  CreateShortcut "$SMPROGRAMS\OVL Software.lnk" "$INSTDIR\bin\ovl.exe"
  !insertmacro Setting "Version" "V1400"
  !insertmacro Setting "Release" "R12"
  WriteRegStr HKLM "${UNINSTALL}" "DisplayName" "OVL Software"
  WriteRegStr HKLM "${UNINSTALL}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKLM "${UNINSTALL}" "DisplayIcon" "$INSTDIR\bin\ovl.exe"
  WriteRegStr HKLM "${UNINSTALL}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKLM "${UNINSTALL}" "UninstallString" '"$INSTDIR\uninstall-ovl-software.exe"'
  WriteRegStr HKLM "${UNINSTALL}" "QuietUninstallString" '"$INSTDIR\uninstall-ovl-software.exe" /S'
SectionEnd

; Removes only what was installed. A file of a user stays, and so does its folder.
Section "Uninstall"
  SetRegView 64
  SetShellVarContext all
  !include "${INSTALLED}"
  Delete "$INSTDIR\uninstall-ovl-software.exe"
  RMDir "$INSTDIR"
  Delete "$SMPROGRAMS\OVL Software.lnk"
  DeleteRegKey HKLM "${UNINSTALL}"
  ${GetParameters} $0
  ClearErrors
  ${GetOptions} $0 "/KEEPSETTINGS" $1
  ${If} ${Errors}
    DeleteRegKey HKLM "${KEY}"
    DeleteRegKey /ifempty HKLM "SOFTWARE\ORB"
  ${EndIf}
SectionEnd
