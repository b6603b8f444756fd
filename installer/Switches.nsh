; The switches, in any order and letter case:
;   /SILENT            nothing is asked: only the progress is shown, and the pack is started at the end
;   /SUPPRESSMSGBOXES  with it: nothing is told in boxes either
;   /SP-, /NOCANCEL    taken, and without effect: there is no question before the first page, and once
;                      files are being installed Cancel can never be pressed
;   /S                 nothing is shown at all, and the pack is not started
;   /D=FOLDER          where to install; the last one, without quotes
;   /LANG=NAME         the language of the texts, named as its file; English without it
;   /WAIT=SECONDS      how long to wait for a pack that runs, and for a file that is held; 30 without it

Var IsQuiet        ; /SILENT
Var HasBoxes       ; no /SUPPRESSMSGBOXES
Var TextsLanguage  ; empty for English
Var Patience       ; in seconds

Function ReadSwitches
  StrCpy $IsQuiet 0
  StrCpy $HasBoxes 1
  StrCpy $TextsLanguage ""
  StrCpy $Patience 30
  ${GetParameters} $0
  ${Do}
    StrCpy $1 $0 1
    ${If} $1 == ""
      ${ExitDo}
    ${ElseIf} $1 == " "
      StrCpy $0 $0 "" 1
      ${Continue}
    ${EndIf}
    StrCpy $2 $0 3
    ; The system takes it itself if it is a capital letter. A folder may have blanks in its name.
    ${If} $2 == "/D="
      StrCpy $INSTDIR $0 "" 3
      ${ExitDo}
    ${EndIf}
    StrCpy $3 0
    ${Do}
      IntOp $3 $3 + 1
      StrCpy $1 $0 1 $3
      ${If} $1 == " "
      ${OrIf} $1 == ""
        ${ExitDo}
      ${EndIf}
    ${Loop}
    StrCpy $1 $0 $3
    StrCpy $0 $0 "" $3
    ; Comparing ignores letter case.
    StrCpy $2 $1 6
    ${If} $1 == "/SILENT"
      StrCpy $IsQuiet 1
    ${ElseIf} $1 == "/SUPPRESSMSGBOXES"
      StrCpy $HasBoxes 0
    ${ElseIf} $1 == "/S"
      SetSilent silent
    ${ElseIf} $2 == "/LANG="
      StrCpy $TextsLanguage $1 "" 6
    ${ElseIf} $2 == "/WAIT="
      StrCpy $Patience $1 "" 6
    ${EndIf}
  ${Loop}
  ${If} ${Silent}
    StrCpy $IsQuiet 0
    StrCpy $HasBoxes 0
  ${ElseIf} $IsQuiet = 0
    StrCpy $HasBoxes 1
  ${EndIf}
FunctionEnd
