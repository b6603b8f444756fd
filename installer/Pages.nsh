; The pages: the folder, the language of the texts, the progress, and the end. Each names itself in the
; title of the window, since some screen readers read nothing else of such pages.

Page directory SkipIfQuiet NameTheFolder LeaveDirectory
!ifdef HAS_LANGUAGES
  Page custom ShowLanguages LeaveLanguages ": Language of the Texts"
!endif
Page instfiles
Page custom ShowEnd LeaveEnd ": Finished"

UninstPage uninstConfirm
UninstPage instfiles

DirText "The pack will be installed in the following folder, where it also keeps its texts and settings. It must be a folder that you may write to."

Function SkipIfQuiet
  ${If} $IsQuiet = 1
    Abort
  ${EndIf}
FunctionEnd

; A screen reader takes the name of a box from what stands directly before it.
Function NameTheFolder
  FindWindow $0 "#32770" "" $HWNDPARENT
  GetDlgItem $1 $0 1020 ; "Destination Folder"
  GetDlgItem $2 $0 1019 ; the folder
  GetDlgItem $3 $0 1001 ; "Browse..."
  ; Nothing moves on the screen.
  System::Call 'user32::SetWindowPos(p r2, p r1, i 0, i 0, i 0, i 0, i 0x13)'
  System::Call 'user32::SetWindowPos(p r3, p r2, i 0, i 0, i 0, i 0, i 0x13)'
FunctionEnd

Function LeaveDirectory
  Call JudgeProgramFolder
  ${If} $Failure != ""
    Call TellFailure
    StrCpy $Failure ""
    Abort
  ${EndIf}
  ${Do}
    Call IsProgramHeld
    ${If} $0 = 0
      ${ExitDo}
    ${EndIf}
    MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "The pack is open. Close it, and choose Retry." /SD IDCANCEL IDRETRY +2
    Abort
  ${Loop}
FunctionEnd

!ifdef HAS_LANGUAGES
Var LanguageList

!macro AddLanguage NAME
  ${NSD_LB_AddString} $LanguageList "${NAME}"
!macroend

; Not asked where the user has texts already: they stay.
Function ShowLanguages
  Call SkipIfQuiet
  ${If} ${FileExists} "$INSTDIR\$Program.lng"
    Abort
  ${EndIf}
  nsDialogs::Create 1018
  Pop $0
  ${NSD_CreateLabel} 0 0 100% 12u "&Language of the pack's texts:"
  Pop $0
  ${NSD_CreateListBox} 0 14u 100% -14u ""
  Pop $LanguageList
  ${NSD_LB_AddString} $LanguageList "English"
  !insertmacro EachLanguage AddLanguage
  ${If} $TextsLanguage == ""
    ${NSD_LB_SelectString} $LanguageList "English"
  ${Else}
    ${NSD_LB_SelectString} $LanguageList "$TextsLanguage"
  ${EndIf}
  ${NSD_SetFocus} $LanguageList
  nsDialogs::Show
FunctionEnd

Function LeaveLanguages
  ${NSD_LB_GetSelection} $LanguageList $TextsLanguage
  ${If} $TextsLanguage == "English"
    StrCpy $TextsLanguage ""
  ${EndIf}
FunctionEnd
!endif

Var OpenBox

Function ShowEnd
  Call SkipIfQuiet
  nsDialogs::Create 1018
  Pop $0
  ${NSD_CreateLabel} 0 0 100% 30u "${PRODUCT} ${VERSION} is installed in $INSTDIR."
  Pop $0
  ${NSD_CreateCheckBox} 0 34u 100% 12u "&Open the pack now"
  Pop $OpenBox
  ${NSD_Check} $OpenBox
  ${NSD_SetFocus} $OpenBox
  ; There is nothing to go back to, nor to cancel.
  GetDlgItem $0 $HWNDPARENT 3
  EnableWindow $0 0
  GetDlgItem $0 $HWNDPARENT 2
  EnableWindow $0 0
  nsDialogs::Show
FunctionEnd

Function LeaveEnd
  ${NSD_GetState} $OpenBox $0
  ${If} $0 = ${BST_CHECKED}
    Call StartPack
  ${EndIf}
FunctionEnd
