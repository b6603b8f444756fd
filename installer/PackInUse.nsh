; Whether the pack still runs.

; Shared by the installer and the uninstaller, which want functions of their own.
!macro PackInUseFunctions UN
; $0 is 1 if a pack runs that has been started from the program folder: the system lets nobody write
; to a program that runs. Nothing else is said of it, so that a program file that is write-protected
; does not pass for a running one.
Function ${UN}IsProgramHeld
  Push $1
  System::Call 'kernel32::CreateFileW(w "$INSTDIR\$Program.exe", i 0x40000000, i 7, p 0, i 3, i 0, p 0) p .r1 ? e'
  Pop $0
  ${If} $1 P<> -1
    System::Call 'kernel32::CloseHandle(p r1)'
    StrCpy $0 0
  ${ElseIf} $0 = 32
    StrCpy $0 1
  ${Else}
    StrCpy $0 0
  ${EndIf}
  Pop $1
FunctionEnd
!macroend
!insertmacro PackInUseFunctions ""
!insertmacro PackInUseFunctions "un."

; $0 is 1 if any pack runs. Each holds this mutex from its start to its end.
Function IsAnyPackOpen
  Push $1
  StrCpy $0 0
  System::Call 'kernel32::OpenMutexW(i 0x100000, i 0, w "ORVSK2Pack") p .r1'
  ${If} $1 P<> 0
    System::Call 'kernel32::CloseHandle(p r1)'
    StrCpy $0 1
  ${EndIf}
  Pop $1
FunctionEnd

; Waits until the pack has ended. The mutex of a pack goes a moment before its file is free, so both
; are waited for; but after the time is over only the file counts, because the mutex may be that of a
; pack in another folder, which does no harm.
Function WaitForPack
  IntOp $2 $Patience * 10
  StrCpy $3 0
  ${Do}
    Call IsProgramHeld
    StrCpy $1 $0
    Call IsAnyPackOpen
    ${If} $0 = 0
    ${AndIf} $1 = 0
      Return
    ${EndIf}
    ${If} $2 <= 0
      ${ExitDo}
    ${EndIf}
    ${If} $3 = 0
      ${Log} "Waiting until the pack has ended"
      StrCpy $3 1
    ${EndIf}
    Sleep 100
    IntOp $2 $2 - 1
  ${Loop}
  ${If} $1 = 1
    ${Fail} ${STILL_IN_USE} "The pack has not ended. Close it and try again."
  ${EndIf}
FunctionEnd
