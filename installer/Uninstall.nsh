; Removing the pack. The user's own files stay, and the user is told so.

UninstallText "The pack will be removed from the following folder. Your own files stay there: the pack's texts (${PROGRAM}.lng), its settings (${PROGRAM}.cfg) and your list of servers (iplist.dat)."

Function un.onInit
  StrCpy $Program "${PROGRAM}"
FunctionEnd

Function un.onUserAbort
  SetErrorLevel ${CANCELLED}
FunctionEnd

!macro RemoveFile FOLDER NAME SOURCE
  Delete "$INSTDIR${FOLDER}\${NAME}"
!macroend
!macro RemoveFolder FOLDER
  RMDir "$INSTDIR${FOLDER}"
!macroend

; $1 becomes the names of the user's files that are there.
!macro NameIfThere NAME
  ${If} ${FileExists} "$INSTDIR\${NAME}"
    StrCpy $1 "$1$\r$\n${NAME}"
  ${EndIf}
!macroend

Section un.
  SetAutoClose true
  ; Asked quietly, it waits for three seconds.
  StrCpy $2 30
  ${Do}
    Call un.IsProgramHeld
    ${If} $0 = 0
      ${ExitDo}
    ${EndIf}
    ${If} ${Silent}
    ${AndIf} $2 > 0
      Sleep 100
      IntOp $2 $2 - 1
      ${Continue}
    ${EndIf}
    MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "The pack is open. Close it, and choose Retry." /SD IDCANCEL IDRETRY +3
    SetErrorLevel ${STILL_IN_USE}
    Quit
  ${Loop}
  ClearErrors
  !insertmacro EachFile RemoveFile
  ${If} ${Errors}
    ; The entry stays, so that it can be tried again.
    MessageBox MB_OK|MB_ICONSTOP "Not all files of the pack could be removed, because some are in use. Close what uses them and try again." /SD IDOK
    SetErrorLevel ${NOT_INSTALLED}
    Quit
  ${EndIf}
  !insertmacro EachFolder RemoveFolder
  RMDir /r "$INSTDIR\${STAGED}"
  RMDir /r "$INSTDIR\${KEPT}"
  Delete "$INSTDIR\${LOG_NAME}"
  Delete "$INSTDIR\orv${PROGRAM}updater.exe"
  Delete "$INSTDIR\${UNINSTALLER}"
  Delete "${SHORTCUT}"
  DeleteRegKey HKCU "${ENTRY}"
  RMDir "$INSTDIR"
  StrCpy $1 ""
  !insertmacro NameIfThere "${PROGRAM}.lng"
  !insertmacro NameIfThere "${PROGRAM}.cfg"
  !insertmacro NameIfThere "iplist.dat"
  ${If} $1 != ""
    MessageBox MB_OK|MB_ICONINFORMATION "The pack has been removed. Your own files are still in $INSTDIR:$\r$\n$1" /SD IDOK
  ${EndIf}
  SetErrorLevel 0
SectionEnd
