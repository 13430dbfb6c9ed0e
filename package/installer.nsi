; The installer. scripts/package defines VERSION, OUTPUT and PAYLOAD, the folder with what to install and, beside it, how
; that is removed. For the machine or for the user, silent with /S, with all that a developer needs with /FULL.
Unicode true
ManifestDPIAware true
SetCompressor lzma
Name "NVRandom ${VERSION}"
OutFile "${OUTPUT}"
BrandingText "NVRandom ${VERSION}"

!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\NVRandom"

!define MULTIUSER_EXECUTIONLEVEL Highest
!define MULTIUSER_MUI
!define MULTIUSER_INSTALLMODE_COMMANDLINE
!define MULTIUSER_USE_PROGRAMFILES64
!define MULTIUSER_INSTALLMODE_INSTDIR "Norvik\NVRandom"
!define MULTIUSER_INSTALLMODE_INSTDIR_REGISTRY_KEY "${UNINSTALL_KEY}"
!define MULTIUSER_INSTALLMODE_INSTDIR_REGISTRY_VALUENAME "InstallLocation"
!include MultiUser.nsh
!include MUI2.nsh
!include LogicLib.nsh
!include FileFunc.nsh
!include WordFunc.nsh
!include x64.nsh

!define MUI_ABORTWARNING
!insertmacro MUI_PAGE_WELCOME
!insertmacro MUI_PAGE_LICENSE "${PAYLOAD}\LICENSE.txt"
!insertmacro MULTIUSER_PAGE_INSTALLMODE
!insertmacro MUI_PAGE_COMPONENTS
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "English"

VIProductVersion "${VERSION}.0"
VIAddVersionKey ProductName "NVRandom"
VIAddVersionKey ProductVersion "${VERSION}"
VIAddVersionKey FileVersion "${VERSION}"
VIAddVersionKey FileDescription "NVRandom setup"
VIAddVersionKey CompanyName "Norvik"
VIAddVersionKey LegalCopyright "Copyright Norvik"

; Exit codes: what a silent installation has come to.
!define FAILED 2
!define NEWER_INSTALLED 3
!define IN_USE 4

; Says what stands in the way, unless silent, and ends with the exit code.
!macro Give_Up Text Code
  MessageBox MB_OK|MB_ICONSTOP "${Text}" /SD IDOK
  SetErrorLevel ${Code}
  Quit
!macroend

; Registers or unregisters the DLL of one word size. $0 is 0 when that worked.
!macro RegServer Tool Arguments Library
  ${If} $MultiUser.InstallMode == AllUsers
    ExecWait '"${Tool}" /s ${Arguments} "${Library}"' $0
  ${Else}
    ExecWait '"${Tool}" /s /n /i:user ${Arguments} "${Library}"' $0
  ${EndIf}
!macroend

!macro Unregister_All
  !insertmacro RegServer "$SYSDIR\regsvr32.exe" /u "$INSTDIR\x86\NVRandom.dll"
  ${If} ${RunningX64}
    !insertmacro RegServer "$WINDIR\Sysnative\regsvr32.exe" /u "$INSTDIR\x64\NVRandom.dll"
  ${EndIf}
!macroend

; A library that a program has loaded cannot be opened for writing.
!macro Await_Unused Library
  ${Do}
    ${IfNot} ${FileExists} "${Library}"
      ${Break}
    ${EndIf}
    ClearErrors
    FileOpen $0 "${Library}" a
    ${IfNot} ${Errors}
      FileClose $0
      ${Break}
    ${EndIf}
    ${If} ${Cmd} `MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "NVRandom is in use. Close the programs that use it." /SD IDCANCEL IDCANCEL`
      SetErrorLevel ${IN_USE}
      Quit
    ${EndIf}
  ${Loop}
!macroend

Section "NVRandom" SectionProduct
  SectionIn RO
  !insertmacro Await_Unused "$INSTDIR\x86\NVRandom.dll"
  !insertmacro Await_Unused "$INSTDIR\x64\NVRandom.dll"

  ; What an older version brought goes first, so that nothing of it is left behind.
  ReadRegStr $1 SHCTX "${UNINSTALL_KEY}" "InstallLocation"
  ${If} $1 != ""
  ${AndIf} ${FileExists} "$1\uninstall.exe"
    ExecWait '"$1\uninstall.exe" /S /$MultiUser.InstallMode _?=$1' $0
    ${If} $0 <> 0
      !insertmacro Give_Up "The installed version could not be removed." ${FAILED}
    ${EndIf}
    Delete "$1\uninstall.exe"
    RMDir "$1"
  ${EndIf}

  SetOutPath "$INSTDIR"
  File /r "${PAYLOAD}\product\*.*"
  WriteUninstaller "$INSTDIR\uninstall.exe"
  !insertmacro RegServer "$SYSDIR\regsvr32.exe" "" "$INSTDIR\x86\NVRandom.dll"
  ${If} $0 = 0
  ${AndIf} ${RunningX64}
    !insertmacro RegServer "$WINDIR\Sysnative\regsvr32.exe" "" "$INSTDIR\x64\NVRandom.dll"
  ${EndIf}
  ${If} $0 <> 0
    !insertmacro Unregister_All
    !include "${PAYLOAD}\product.nsh"
    Delete "$INSTDIR\uninstall.exe"
    SetOutPath "$TEMP"
    RMDir "$INSTDIR"
    !insertmacro Give_Up "NVRandom could not be registered." ${FAILED}
  ${EndIf}

  WriteRegStr SHCTX "${UNINSTALL_KEY}" "DisplayName" "NVRandom"
  WriteRegStr SHCTX "${UNINSTALL_KEY}" "DisplayVersion" "${VERSION}"
  WriteRegStr SHCTX "${UNINSTALL_KEY}" "Publisher" "Norvik"
  WriteRegStr SHCTX "${UNINSTALL_KEY}" "InstallLocation" "$INSTDIR"
  WriteRegStr SHCTX "${UNINSTALL_KEY}" "UninstallString" '"$INSTDIR\uninstall.exe" /$MultiUser.InstallMode'
  WriteRegStr SHCTX "${UNINSTALL_KEY}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S /$MultiUser.InstallMode'
  WriteRegDWORD SHCTX "${UNINSTALL_KEY}" "NoModify" 1
  WriteRegDWORD SHCTX "${UNINSTALL_KEY}" "NoRepair" 1
SectionEnd

Section /o "For developers" SectionDeveloper
  SetOutPath "$INSTDIR"
  File /r "${PAYLOAD}\developer\*.*"
SectionEnd

Section
  ${GetSize} "$INSTDIR" "/S=0K" $0 $1 $2
  WriteRegDWORD SHCTX "${UNINSTALL_KEY}" "EstimatedSize" $0
SectionEnd

!insertmacro MUI_FUNCTION_DESCRIPTION_BEGIN
  !insertmacro MUI_DESCRIPTION_TEXT ${SectionProduct} "The component, registered for 32-bit and 64-bit programs."
  !insertmacro MUI_DESCRIPTION_TEXT ${SectionDeveloper} "Guide, interface, samples and symbols, for developers of hosts."
!insertmacro MUI_FUNCTION_DESCRIPTION_END

Function .onInit
  !insertmacro MULTIUSER_INIT
  ReadRegStr $0 SHCTX "${UNINSTALL_KEY}" "DisplayVersion"
  ${If} $0 != ""
    ${VersionCompare} $0 "${VERSION}" $1
    ${If} $1 = 1
      !insertmacro Give_Up "A newer version of NVRandom, $0, is installed." ${NEWER_INSTALLED}
    ${EndIf}
  ${EndIf}
  ${GetParameters} $0
  ClearErrors
  ${GetOptions} $0 "/FULL" $1
  ${IfNot} ${Errors}
    !insertmacro SelectSection ${SectionDeveloper}
  ${EndIf}
FunctionEnd

Function un.onInit
  !insertmacro MULTIUSER_UNINIT
FunctionEnd

; Removes what was installed and nothing else.
Section Uninstall
  !insertmacro Await_Unused "$INSTDIR\x86\NVRandom.dll"
  !insertmacro Await_Unused "$INSTDIR\x64\NVRandom.dll"
  !insertmacro Unregister_All
  !include "${PAYLOAD}\developer.nsh"
  !include "${PAYLOAD}\product.nsh"
  Delete "$INSTDIR\uninstall.exe"
  SetOutPath "$TEMP"
  RMDir "$INSTDIR"
  ; The maker's folder goes when nothing else is in it, as it came.
  ${GetParent} "$INSTDIR" $0
  ${GetFileName} $0 $1
  ${If} $1 == "Norvik"
    RMDir "$0"
  ${EndIf}
  DeleteRegKey SHCTX "${UNINSTALL_KEY}"
  ; A user may have had nothing to uninstall and no program of the user's own; a machine always has.
  DeleteRegKey /ifempty HKCU "Software\Microsoft\Windows\CurrentVersion\Uninstall"
  ${If} $MultiUser.InstallMode == CurrentUser
    RMDir "$LOCALAPPDATA\Programs"
  ${EndIf}
SectionEnd
