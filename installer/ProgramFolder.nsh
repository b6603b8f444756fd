; Where the pack is installed.

; $1 is $0 as the pack sees it, which knows paths in the system's code page alone: the same, unless a
; letter is missing there.
!define InCodePage "System::Call 'kernel32::lstrcpyA(m .r1, m r0)'"

; $0 becomes its long name, if there is such a file or folder.
Function ToLongName
  Push $1
  System::Call 'kernel32::GetLongPathNameW(w r0, w .r1, i ${NSIS_MAX_STRLEN}) i .r2'
  ${If} $2 <> 0
    StrCpy $0 $1
  ${EndIf}
  Pop $1
FunctionEnd

; $0 becomes the user's own programs folder, by a name that the pack can use.
Function FindProgramsFolder
  StrCpy $0 ""
  System::Call 'shell32::SHGetKnownFolderPath(g "{5CD7AEE2-2219-4A67-B85D-6C9CE15660CB}", i 0x8000, p 0, *p .r2) i .r3'
  ${If} $3 = 0
    System::Call '*$2(&w${NSIS_MAX_STRLEN} .r0)'
    System::Call 'ole32::CoTaskMemFree(p r2)'
  ${EndIf}
  ${If} $0 == ""
    StrCpy $0 "$LOCALAPPDATA\Programs"
  ${EndIf}
  CreateDirectory $0
  ${InCodePage}
  ${If} $0 S== $1
    Return
  ${EndIf}
  ; The user's name has letters that the code page lacks. The short names have none of them, where
  ; the disk keeps such names.
  GetFullPathName /SHORT $0 $0
  ${InCodePage}
  ${If} $0 S!= $1
    ReadEnvStr $0 "SystemDrive"
  ${EndIf}
FunctionEnd

; Fills in $Program, $IsUpdate, and $INSTDIR unless /D= has.
Function ChooseProgramFolder
  StrCpy $Program "${PROGRAM}"
  StrCpy $IsUpdate 0
  ; The pack fetches its installer under a name that tells its own, into its own folder.
  StrCpy $0 $EXEFILE 3
  StrCpy $1 $EXEFILE "" -11
  ${If} $0 == "orv"
  ${AndIf} $1 == "updater.exe"
    StrCpy $0 $EXEFILE -11 3
    ${If} ${FileExists} "$EXEDIR\$0.exe"
      StrCpy $Program $0
      StrCpy $IsUpdate 1
    ${EndIf}
  ${EndIf}
  ${If} $INSTDIR != ""
    Return
  ${ElseIf} $IsUpdate = 1
    StrCpy $INSTDIR $EXEDIR
    Return
  ${EndIf}
  ReadRegStr $INSTDIR HKCU "${ENTRY}" "InstallLocation"
  ${If} ${FileExists} "$INSTDIR\${PROGRAM}.exe"
    Return
  ${EndIf}
  Call FindProgramsFolder
  StrCpy $INSTDIR "$0\${FOLDER}"
FunctionEnd

; $Failure says what is wrong with $INSTDIR; empty if the pack can live there.
Function JudgeProgramFolder
  StrCpy $Failure ""
  StrCpy $Code ${NOT_PREPARED}
  StrCpy $0 $INSTDIR
  ${InCodePage}
  ${If} $0 S!= $1
    StrCpy $Failure "The pack cannot work in $INSTDIR, because the name has letters that are not in the code page of this Windows. Choose a folder with a plain name."
    Return
  ${EndIf}
  ${If} ${FileExists} "$INSTDIR\*.*"
    StrCpy $2 1
  ${Else}
    StrCpy $2 0
    CreateDirectory "$INSTDIR"
  ${EndIf}
  ClearErrors
  FileOpen $0 "$INSTDIR\${PROBE}" w
  ${If} ${Errors}
    StrCpy $Failure "You may not write to $INSTDIR. The pack keeps its texts and settings there: choose a folder of your own."
  ${Else}
    FileClose $0
    Delete "$INSTDIR\${PROBE}"
    ; The new files, a copy of the old ones, and a little more.
    System::Call 'kernel32::GetDiskFreeSpaceExW(w "$INSTDIR", *l .r1, p 0, p 0) i .r3'
    System::Int64Op $1 / 1024
    Pop $1
    IntOp $4 ${SIZE_KB} * 2
    IntOp $4 $4 + 1024
    System::Int64Op $1 < $4
    Pop $1
    ${If} $3 <> 0
    ${AndIf} $1 = 1
      StrCpy $Failure "There is not enough room on the disk: $4 kilobytes are needed for $INSTDIR."
    ${EndIf}
  ${EndIf}
  ; Asked only; it is made when it is needed.
  ${If} $2 = 0
    RMDir "$INSTDIR"
  ${EndIf}
FunctionEnd
