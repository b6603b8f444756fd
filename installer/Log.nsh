; What a failed installation leaves: a log in the program folder, or in the folder of temporary files
; where the program folder takes none. One that went well leaves none.

Var LogPath
Var LogLine

!define Log "!insertmacro Log"
!macro Log TEXT
  StrCpy $LogLine "${TEXT}"
  Call Log
!macroend

; The progress page says the same.
Function Log
  SetDetailsPrint both
  DetailPrint "$LogLine"
  SetDetailsPrint none
  Push $0
  FileOpen $0 "$LogPath" a
  FileSeek $0 0 END
  FileWriteUTF16LE /BOM $0 "$LogLine$\r$\n"
  FileClose $0
  Pop $0
FunctionEnd

; Says what went wrong, and with which exit code it ends.
!define Fail "!insertmacro Fail"
!macro Fail CODE TEXT
  StrCpy $Failure "${TEXT}"
  StrCpy $Code ${CODE}
  ${Log} "$Failure"
!macroend

Function OpenLog
  CreateDirectory "$INSTDIR"
  StrCpy $LogPath "$INSTDIR\${LOG_NAME}"
  ClearErrors
  FileOpen $0 "$LogPath" w
  ${If} ${Errors}
    StrCpy $LogPath "$TEMP\${LOG_NAME}"
    FileOpen $0 "$LogPath" w
  ${EndIf}
  FileClose $0
  ${GetTime} "" "L" $0 $1 $2 $3 $4 $5 $6
  ${Log} "Installing ${PRODUCT} ${VERSION} in $INSTDIR, $2-$1-$0 $4:$5"
FunctionEnd

Function CloseLog
  Delete "$LogPath"
FunctionEnd

; Tells what went wrong, where boxes are wanted.
Function TellFailure
  ${If} $HasBoxes = 1
    MessageBox MB_OK|MB_ICONSTOP "$Failure" /SD IDOK
  ${EndIf}
FunctionEnd
