; The files of the pack: unpacked beside the old ones, exchanged one by one, and taken back if one of
; them cannot be, so that there is always one whole version. Until the old files are in place again,
; or the new ones are, both are on the disk:
;
;   STAGED   what has not been exchanged yet
;   KEPT     a copy of each old file; only a new file has none
;
; So each moment tells how to go back: whatever is not in STAGED any more has been exchanged.
;
; $Failure and $Code say how it went. What is called after a failure does nothing.

Var Folder  ; of the file in work, with "\" before it; empty in the program folder
Var File    ; its name
Var Target  ; where it belongs

; The pack itself may have another name.
Function FindTarget
  StrCpy $Target "$INSTDIR$Folder\$File"
  ${If} "$Folder\$File" == "\${PROGRAM}.exe"
    StrCpy $Target "$INSTDIR\$Program.exe"
  ${EndIf}
FunctionEnd

; For Files.nsh: calls a function for one file.
!macro WithFile FUNCTION FOLDER NAME
  StrCpy $Folder "${FOLDER}"
  StrCpy $File "${NAME}"
  Call ${FUNCTION}
!macroend
!macro KeepFile FOLDER NAME SOURCE
  !insertmacro WithFile KeepFile "${FOLDER}" "${NAME}"
!macroend
!macro ExchangeFile FOLDER NAME SOURCE
  !insertmacro WithFile ExchangeFile "${FOLDER}" "${NAME}"
!macroend
!macro TakeBackFile FOLDER NAME SOURCE
  !insertmacro WithFile TakeBackFile "${FOLDER}" "${NAME}"
!macroend
!macro UnpackFile FOLDER NAME SOURCE
  SetOutPath "$INSTDIR\${STAGED}${FOLDER}"
  File "/oname=${NAME}" "${SOURCE}"
!macroend

; $0 as the text of a system error.
!define Cause "(system error $0)"

; Moves $1 to $2 in one step, replacing what is there; $0 is the system's error, 0 if it went well.
; Whoever else reads the file, such as a virus scanner, is waited for.
Function Replace
  Push $3
  Push $4
  IntOp $3 $Patience * 10
  SetFileAttributes $2 NORMAL
  ${Do}
    ; 1: replace it; 8: on the disk when it returns.
    System::Call 'kernel32::MoveFileExW(w r1, w r2, i 9) i .r4 ? e'
    Pop $0
    ${If} $4 <> 0
      StrCpy $0 0
      ${ExitDo}
    ${EndIf}
    ${If} $3 <= 0
      ${ExitDo}
    ${EndIf}
    Sleep 100
    IntOp $3 $3 - 1
  ${Loop}
  Pop $4
  Pop $3
FunctionEnd

Function KeepFile
  ${If} $Failure != ""
    Return
  ${EndIf}
  Call FindTarget
  ${IfNot} ${FileExists} $Target
    Return
  ${EndIf}
  CreateDirectory "$INSTDIR\${KEPT}$Folder"
  System::Call 'kernel32::CopyFileW(w "$Target", w "$INSTDIR\${KEPT}$Folder\$File", i 0) i .r1 ? e'
  Pop $0
  ${If} $1 = 0
    ${Fail} ${NOT_PREPARED} "$Target cannot be read ${Cause}."
  ${EndIf}
FunctionEnd

Function ExchangeFile
  ${If} $Failure != ""
    Return
  ${EndIf}
  Call FindTarget
  CreateDirectory "$INSTDIR$Folder"
  StrCpy $1 "$INSTDIR\${STAGED}$Folder\$File"
  StrCpy $2 $Target
  Call Replace
  ${If} $0 <> 0
    ${Fail} ${NOT_INSTALLED} "$Target cannot be replaced ${Cause}. Close what uses it and try again."
  ${EndIf}
FunctionEnd

Function TakeBackFile
  Call FindTarget
  ${If} ${FileExists} "$INSTDIR\${STAGED}$Folder\$File"
    Return
  ${ElseIf} ${FileExists} "$INSTDIR\${KEPT}$Folder\$File"
    StrCpy $1 "$INSTDIR\${KEPT}$Folder\$File"
    StrCpy $2 $Target
    Call Replace
    ${If} $0 <> 0
      ${Log} "$Target could not be taken back ${Cause}."
      StrCpy $R9 1
    ${EndIf}
  ${Else}
    Delete $Target
  ${EndIf}
FunctionEnd

; Puts all old files back. What cannot be put back stays in KEPT, for the next installation.
Function TakeBack
  ${Log} "Putting the old version back"
  StrCpy $R9 0
  !insertmacro EachFile TakeBackFile
  ${If} $R9 = 0
    ${Log} "The old version is whole again"
    RMDir /r "$INSTDIR\${STAGED}"
    RMDir /r "$INSTDIR\${KEPT}"
  ${EndIf}
FunctionEnd

; $0 is the version of the program file $0, as "1.0.0"; empty if it has none.
Function VersionOf
  ClearErrors
  GetDLLVersion $0 $1 $2
  StrCpy $0 ""
  ${IfNot} ${Errors}
    IntOp $3 $1 >> 16
    IntOp $4 $1 & 0xFFFF
    IntOp $5 $2 >> 16
    StrCpy $0 "$3.$4.$5"
  ${EndIf}
FunctionEnd

; Unpacks the new files beside the old ones.
Function Unpack
  ${If} $Failure != ""
    Return
  ${EndIf}
  ; An installation that was cut off while it exchanged files has left both.
  ${If} ${FileExists} "$INSTDIR\${STAGED}\*.*"
  ${AndIf} ${FileExists} "$INSTDIR\${KEPT}\*.*"
    Call TakeBack
  ${EndIf}
  Call JudgeProgramFolder
  ${If} $Failure != ""
    ${Log} "$Failure"
    Return
  ${EndIf}
  RMDir /r "$INSTDIR\${STAGED}"
  RMDir /r "$INSTDIR\${KEPT}"
  ${Log} "Unpacking ${PRODUCT} ${VERSION}"
  ClearErrors
  SetOverwrite try
  !insertmacro EachFile UnpackFile
  ; Whoever stands in a folder keeps it from being removed.
  SetOutPath "$TEMP"
  ${If} ${Errors}
    ${Fail} ${NOT_PREPARED} "The files cannot be unpacked in $INSTDIR."
    RMDir /r "$INSTDIR\${STAGED}"
  ${EndIf}
FunctionEnd

; Puts the new files in place of the old ones, and looks whether the pack is then the new version.
Function Exchange
  ${If} $Failure != ""
    Return
  ${EndIf}
  ${Log} "Exchanging the files"
  !insertmacro EachFile KeepFile
  ${If} $Failure != ""
    RMDir /r "$INSTDIR\${STAGED}"
    RMDir /r "$INSTDIR\${KEPT}"
    Return
  ${EndIf}
  !insertmacro EachFile ExchangeFile
  ${If} $Failure == ""
    StrCpy $0 "$INSTDIR\$Program.exe"
    Call VersionOf
    ${If} $0 != "${VERSION}"
      ${Fail} ${NOT_INSTALLED} "What was installed is not version ${VERSION} but '$0'."
    ${EndIf}
  ${EndIf}
  ${If} $Failure != ""
    Call TakeBack
    Return
  ${EndIf}
  ; In this order: both folders together mean that it was cut off.
  RMDir /r "$INSTDIR\${STAGED}"
  RMDir /r "$INSTDIR\${KEPT}"
FunctionEnd
