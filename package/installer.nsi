; The installer. scripts/package defines VERSION, OUTPUT, SIGN if there is something to sign with, and PAYLOAD, the folder
; with what to install and, beside it, what package/lists makes of that. USAGE, below, tells what it understands.
;
; New files are made ready in the folder ~new, an older version's are put aside in ~old, and only when the new DLLs are
; registered is the older version given up: until then a failure puts everything back. Nothing of what was installed is run.
Unicode true
ManifestDPIAware true
SetCompressor lzma
Name "NVRandom ${VERSION}"
OutFile "${OUTPUT}"
BrandingText "NVRandom ${VERSION}"

!define LINE "$\r$\n"
!define USAGE "Options:${LINE}${LINE}\
/S - silent${LINE}\
/AllUsers - for the machine${LINE}\
/CurrentUser - for the user alone${LINE}\
/FULL - with what developers need${LINE}\
/LOG=FILE - adds what is done to it${LINE}\
/D=FOLDER - last, without quotes${LINE}${LINE}\
Exit codes:${LINE}${LINE}\
0 - done${LINE}\
1 - cancelled${LINE}\
2 - failed${LINE}\
3 - a newer version is installed${LINE}\
4 - in use"
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
!include StrFunc.nsh
!include TextFunc.nsh
${Using:StrFunc} StrStr

!ifdef SIGN
  !uninstfinalize '${SIGN} "%1"'
!endif

!define MUI_ABORTWARNING
!insertmacro MUI_PAGE_WELCOME
!insertmacro MUI_PAGE_LICENSE "${PAYLOAD}\LICENSE.txt"
!insertmacro MULTIUSER_PAGE_INSTALLMODE
!insertmacro MUI_PAGE_COMPONENTS
!define MUI_PAGE_CUSTOMFUNCTION_PRE Keep_Folder
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

Var Older    ; the folder of the installed version, empty when there is none
Var Chosen   ; the folder that /D= names
Var Log      ; the file that /LOG= names

; Adds a line to the log, if there is one.
!macro Note Text
  DetailPrint "${Text}"
  ${If} $Log != ""
    FileOpen $R9 "$Log" a
    FileSeek $R9 0 END
    FileWrite $R9 "${Text}${LINE}"
    FileClose $R9
  ${EndIf}
!macroend

; Says what stands in the way, unless silent, and ends with the exit code.
!macro Give_Up Text Code
  !insertmacro Note "${Text} Exit code ${Code}."
  MessageBox MB_OK|MB_ICONSTOP "${Text}" /SD IDOK
  SetErrorLevel ${Code}
  Quit
!macroend

; For the machine without the rights: MultiUser would say so in a box, to a silent installation, too.
!macro Check_Rights
  ${GetParameters} $R0
  ClearErrors
  ${GetOptions} $R0 "/AllUsers" $R1
  ${IfNot} ${Errors}
    UserInfo::GetAccountType
    Pop $R1
    ${If} $R1 != "Admin"
    ${AndIf} $R1 != "Power"
      !insertmacro Give_Up "For the machine, the rights of an administrator are needed." ${FAILED}
    ${EndIf}
  ${EndIf}
!macroend

; Removes a folder with nothing left in it, and the maker's folder that it stands in.
!macro Remove_Folder Folder
  RMDir "${Folder}"
  ${GetParent} "${Folder}" $R0
  ${GetFileName} $R0 $R1
  ${If} $R1 == "Norvik"
    RMDir "$R0"
  ${EndIf}
!macroend

; Removes what an installation that does not come to its end has made ready.
!macro Tidy
  SetOutPath "$TEMP"
  RMDir /r "$INSTDIR\~new"
  !insertmacro Remove_Folder "$INSTDIR"
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

!macro Register_All
  !insertmacro RegServer "$SYSDIR\regsvr32.exe" "" "$INSTDIR\x86\NVRandom.dll"
  ${If} $0 = 0
  ${AndIf} ${RunningX64}
    !insertmacro RegServer "$WINDIR\Sysnative\regsvr32.exe" "" "$INSTDIR\x64\NVRandom.dll"
  ${EndIf}
!macroend

; Moves the files of a list, and then the list, from $From to $To, or back if that stopped halfway. Files that are not
; there are passed over, what is in the way goes; $0 becomes 1 when one could not be moved. A list may be anybody's: no line leads out of the folder.
Var List
Var From
Var To
Function Move_Listed
  StrCpy $R4 "$From\$List"
  ${IfNot} ${FileExists} $R4
    StrCpy $R4 "$To\$List"
  ${EndIf}
  ClearErrors
  FileOpen $R0 $R4 r
  ${If} ${Errors}
    Return
  ${EndIf}
  ${Do}
    ClearErrors
    FileRead $R0 $R1
    ${If} ${Errors}
      ${Break}
    ${EndIf}
    ${TrimNewLines} $R1 $R1
    ${StrStr} $R3 $R1 ".."
    ${If} $R3 == ""
    ${AndIf} ${FileExists} "$From\$R1"
      ${GetParent} "$To\$R1" $R3
      CreateDirectory $R3
      Delete "$To\$R1"
      ClearErrors
      Rename "$From\$R1" "$To\$R1"
      ${If} ${Errors}
        StrCpy $0 1
        !insertmacro Note "$From\$R1 cannot be moved to $To."
      ${EndIf}
    ${EndIf}
  ${Loop}
  FileClose $R0
  Rename "$From\$List" "$To\$List"
FunctionEnd

; Removes the folders of a list in $From from $To, as far as nothing is left in them.
Function Remove_Folders
  ClearErrors
  FileOpen $R0 "$From\$List" r
  ${If} ${Errors}
    Return
  ${EndIf}
  ${Do}
    ClearErrors
    FileRead $R0 $R1
    ${If} ${Errors}
      ${Break}
    ${EndIf}
    ${Do}
      ${GetParent} $R1 $R1
      ${If} $R1 == ""
        ${Break}
      ${EndIf}
      RMDir "$To\$R1"
    ${Loop}
  ${Loop}
  FileClose $R0
FunctionEnd

!macro Each_List Source Target Done
  StrCpy $From "${Source}"
  StrCpy $To "${Target}"
  StrCpy $List product.files
  Call ${Done}
  StrCpy $List developer.files
  Call ${Done}
!macroend

Section "NVRandom" SectionProduct
  SectionIn RO
  ReadRegStr $Older SHCTX "${UNINSTALL_KEY}" "InstallLocation"
  !insertmacro Note "NVRandom ${VERSION}, $MultiUser.InstallMode, into $INSTDIR. Installed so far: $Older"
  !insertmacro Await_Unused "$INSTDIR\x86\NVRandom.dll"
  !insertmacro Await_Unused "$INSTDIR\x64\NVRandom.dll"
  ${If} $Older != ""
    !insertmacro Await_Unused "$Older\x86\NVRandom.dll"
    !insertmacro Await_Unused "$Older\x64\NVRandom.dll"
  ${EndIf}
  SetOutPath "$INSTDIR\~new"
  File "${PAYLOAD}\product.files"
  !include "${PAYLOAD}\product-install.nsh"
  WriteUninstaller "$INSTDIR\~new\uninstall.exe"
SectionEnd

Section /o "For developers" SectionDeveloper
  SetOutPath "$INSTDIR\~new"
  File "${PAYLOAD}\developer.files"
  !include "${PAYLOAD}\developer-install.nsh"
SectionEnd

Section
  SetOutPath "$INSTDIR"
  StrCpy $0 0
  ${If} $Older != ""
    !insertmacro Each_List "$Older" "$Older\~old" Move_Listed
  ${EndIf}
  ${If} $0 = 0
    !insertmacro Each_List "$INSTDIR\~new" "$INSTDIR" Move_Listed
  ${EndIf}
  ${If} $0 = 0
    !insertmacro Register_All
  ${EndIf}
  ${If} $0 <> 0
    !insertmacro Note "The new version could not be put in place or registered: what was there comes back."
    !insertmacro Unregister_All
    !insertmacro Each_List "$INSTDIR" "$INSTDIR\~new" Move_Listed
    !insertmacro Each_List "$INSTDIR\~new" "$INSTDIR" Remove_Folders
    ${If} $Older != ""
      StrCpy $0 0
      !insertmacro Each_List "$Older\~old" "$Older" Move_Listed
      ${If} $0 = 0
        RMDir /r "$Older\~old"
      ${EndIf}
      StrCpy $1 $INSTDIR
      StrCpy $INSTDIR $Older
      !insertmacro Register_All
      StrCpy $INSTDIR $1
    ${EndIf}
    !insertmacro Tidy
    !insertmacro Give_Up "NVRandom could not be installed." ${FAILED}
  ${EndIf}

  ${If} $Older != ""
    !insertmacro Each_List "$Older\~old" "$Older" Remove_Folders
    RMDir /r "$Older\~old"
    !insertmacro Remove_Folder "$Older"
  ${EndIf}
  RMDir /r "$INSTDIR\~new"

  WriteRegStr SHCTX "${UNINSTALL_KEY}" "DisplayName" "NVRandom"
  WriteRegStr SHCTX "${UNINSTALL_KEY}" "DisplayVersion" "${VERSION}"
  WriteRegStr SHCTX "${UNINSTALL_KEY}" "Publisher" "Norvik"
  WriteRegStr SHCTX "${UNINSTALL_KEY}" "InstallLocation" "$INSTDIR"
  WriteRegStr SHCTX "${UNINSTALL_KEY}" "UninstallString" '"$INSTDIR\uninstall.exe" /$MultiUser.InstallMode'
  WriteRegStr SHCTX "${UNINSTALL_KEY}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S /$MultiUser.InstallMode'
  WriteRegDWORD SHCTX "${UNINSTALL_KEY}" "NoModify" 1
  WriteRegDWORD SHCTX "${UNINSTALL_KEY}" "NoRepair" 1
  ${GetSize} "$INSTDIR" "/S=0K" $0 $1 $2
  WriteRegDWORD SHCTX "${UNINSTALL_KEY}" "EstimatedSize" $0
  !insertmacro Note "Done."
SectionEnd

Function .onInstFailed
  !insertmacro Tidy
FunctionEnd

!insertmacro MUI_FUNCTION_DESCRIPTION_BEGIN
  !insertmacro MUI_DESCRIPTION_TEXT ${SectionProduct} "The component, registered for 32-bit and 64-bit programs."
  !insertmacro MUI_DESCRIPTION_TEXT ${SectionDeveloper} "Guide, interface, samples and symbols, for developers of hosts."
!insertmacro MUI_FUNCTION_DESCRIPTION_END

; What /D= has named holds for everybody: a choice of who it is installed for has set the folder anew.
Function Keep_Folder
  ${If} $Chosen != ""
    StrCpy $INSTDIR $Chosen
  ${EndIf}
FunctionEnd

Function .onInit
  StrCpy $Chosen $INSTDIR
  ${GetParameters} $R0
  ClearErrors
  ${GetOptions} $R0 "/?" $0
  ${IfNot} ${Errors}
    MessageBox MB_OK "${USAGE}"
    SetErrorLevel 0
    Quit
  ${EndIf}
  ${GetOptions} $R0 "/LOG=" $Log
  ClearErrors
  ${GetOptions} $R0 "/FULL" $0
  ${IfNot} ${Errors}
    !insertmacro SelectSection ${SectionDeveloper}
  ${EndIf}
  !insertmacro Check_Rights
  !insertmacro MULTIUSER_INIT
  Call Keep_Folder
  ReadRegStr $0 SHCTX "${UNINSTALL_KEY}" "DisplayVersion"
  ${If} $0 != ""
    ${VersionCompare} $0 "${VERSION}" $1
    ${If} $1 = 1
      !insertmacro Give_Up "A newer version of NVRandom, $0, is installed." ${NEWER_INSTALLED}
    ${EndIf}
  ${EndIf}
FunctionEnd

Function un.onInit
  !insertmacro Check_Rights
  !insertmacro MULTIUSER_UNINIT
FunctionEnd

; Removes what was installed and nothing else.
Section Uninstall
  !insertmacro Await_Unused "$INSTDIR\x86\NVRandom.dll"
  !insertmacro Await_Unused "$INSTDIR\x64\NVRandom.dll"
  !insertmacro Unregister_All
  !include "${PAYLOAD}\developer-remove.nsh"
  !include "${PAYLOAD}\product-remove.nsh"
  Delete "$INSTDIR\developer.files"
  Delete "$INSTDIR\product.files"
  Delete "$INSTDIR\uninstall.exe"
  SetOutPath "$TEMP"
  !insertmacro Remove_Folder "$INSTDIR"
  DeleteRegKey SHCTX "${UNINSTALL_KEY}"
  ; A user may have had nothing to uninstall and no program of the user's own; a machine always has.
  DeleteRegKey /ifempty HKCU "Software\Microsoft\Windows\CurrentVersion\Uninstall"
  ${If} $MultiUser.InstallMode == CurrentUser
    RMDir "$LOCALAPPDATA\Programs"
  ${EndIf}
SectionEnd
