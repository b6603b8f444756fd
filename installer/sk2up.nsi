; The installer of the pack, sk2up.exe, and its uninstaller. cmake/Installer.cmake builds it and says:
;   VERSION   the version of the pack that is in it, such as 1.0.0
;   FILES     what Files.cmake made of the program folder: which files there are, and how large
;   OUTPUT    the installer
;   ICON      of both programs
;   SITE      the maker's web site
;
; It installs for one user, into that user's own programs folder, because the pack keeps its texts
; and settings beside itself and must be allowed to write there.
Target amd64-unicode
SetCompressor /SOLID lzma
; The dates of the files on the machine that builds it would make each build another one.
SetDateSave off
; A file that is in use must never be passed over.
AllowSkipFiles off
CRCCheck force
RequestExecutionLevel user
XPStyle on
ManifestDPIAware true
ManifestDPIAwareness "PerMonitorV2,PerMonitor"
ManifestSupportedOS all

!define PRODUCT "Skidrun2 Utility Pack"
!define MAKER "Orvane Interactive"
!define PROGRAM "sk2pack"   ; as it is installed; a user may have given it another name
!define FOLDER "SK2Pack"    ; in the user's programs folder
!define STAGED "sk2up.new"  ; where the new files lie until all of them are there
!define KEPT "sk2up.old"    ; where the old ones lie until the new ones are in their places
!define LOG_NAME "sk2up.log"
!define PROBE "sk2up.tmp"   ; written to see whether the folder can be written to
!define UNINSTALLER "uninstall.exe"
!define SHORTCUT "$SMPROGRAMS\${PRODUCT}.lnk"
!define ENTRY "Software\Microsoft\Windows\CurrentVersion\Uninstall\SK2Pack"

; How it ends, in the numbers that are usual for installers with these switches.
!define NOT_INITIALISED 1  ; another setup of the pack is at work
!define CANCELLED 2        ; by the user, before anything was installed
!define NOT_PREPARED 3     ; the folder or the disk does not take the new files; nothing was changed
!define NOT_INSTALLED 4    ; a file could not be exchanged, or is of another version; taken back
!define STILL_IN_USE 7     ; the pack did not end; nothing was changed

Name "${PRODUCT}"
Caption "${PRODUCT} ${VERSION} Setup"
UninstallCaption "${PRODUCT} Uninstall"
BrandingText "${MAKER}"
OutFile "${OUTPUT}"
Icon "${ICON}"
UninstallIcon "${ICON}"
; The colours that the user has chosen for all windows.
InstallColors /windows
ShowInstDetails show
ShowUninstDetails show

VIProductVersion "${VERSION}.0"
VIFileVersion "${VERSION}.0"
VIAddVersionKey /LANG=1033 "CompanyName" "${MAKER}"
VIAddVersionKey /LANG=1033 "FileDescription" "${PRODUCT} Setup"
VIAddVersionKey /LANG=1033 "FileVersion" "${VERSION}"
VIAddVersionKey /LANG=1033 "LegalCopyright" "${MAKER}"
VIAddVersionKey /LANG=1033 "OriginalFilename" "sk2up.exe"
VIAddVersionKey /LANG=1033 "ProductName" "${PRODUCT}"
VIAddVersionKey /LANG=1033 "ProductVersion" "${VERSION}"

!include LogicLib.nsh
!include FileFunc.nsh
!include WinMessages.nsh
!include nsDialogs.nsh
!include "${FILES}"

Var Program   ; the name of the pack's executable, without ".exe"
Var IsUpdate  ; 1 if the pack itself has fetched and started this installer
Var Failure   ; what went wrong; empty as long as nothing did
Var Code      ; the exit code that belongs to it

!include Switches.nsh
!include Log.nsh
!include PackInUse.nsh
!include ProgramFolder.nsh
!include Exchange.nsh
!include Entries.nsh
!include Pages.nsh
!include Uninstall.nsh

Function .onInit
  Call ReadSwitches
  StrCpy $Code ${NOT_INITIALISED}
  ; Held until the end: two of them would exchange the same files.
  System::Call 'kernel32::CreateMutexW(p 0, i 0, w "ORVSK2PackSetup") p .r1 ? e'
  Pop $0
  ${If} $0 = 183 ; it was there
    StrCpy $Failure "Another setup of the pack is running. Wait until it has ended."
  ${EndIf}
  ${If} $Failure != ""
    Call TellFailure
    SetErrorLevel $Code
    Quit
  ${EndIf}
  Call ChooseProgramFolder
FunctionEnd

Function .onUserAbort
  SetErrorLevel ${CANCELLED}
FunctionEnd

Section
  ; The pack starts its installer minimised, and nobody would hear of it there.
  ${IfNot} ${Silent}
    ShowWindow $HWNDPARENT ${SW_RESTORE}
    BringToFront
  ${EndIf}
  AddSize ${SIZE_KB}
  SetAutoClose true
  ; What is shown is what the log says.
  SetDetailsPrint none
  Call OpenLog
  Call WaitForPack
  Call Unpack
  Call Exchange
  ${If} $Failure == ""
    Call MakeEntries
    Call LayTexts
    Call CloseLog
    SetErrorLevel 0
    ${If} $IsQuiet = 1
      Call StartPack
    ${EndIf}
  ${Else}
    ${Log} "Setup ends with code $Code"
    SetErrorLevel $Code
    Call TellFailure
    ; A pack that did not end is there still.
    ${If} $IsQuiet = 1
    ${AndIf} $Code != ${STILL_IN_USE}
      Call StartPack
    ${EndIf}
    Quit
  ${EndIf}
SectionEnd
