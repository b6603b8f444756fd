; What makes an installed pack of the files: the Start menu, the list of installed programs, the
; texts, and the start.

; The pack's folder may be a portable one that no installer has made. An update leaves it so; and what
; the user has taken out of the Start menu stays out.
Function MakeEntries
  ${If} $IsUpdate = 1
    ReadRegStr $0 HKCU "${ENTRY}" "InstallLocation"
    Call ToLongName
    StrCpy $R0 $0
    StrCpy $0 $INSTDIR
    Call ToLongName
    ${If} $0 != $R0
      Return
    ${EndIf}
  ${Else}
    SetOutPath "$INSTDIR"
    CreateShortcut "${SHORTCUT}" "$INSTDIR\$Program.exe"
    SetOutPath "$TEMP"
  ${EndIf}
  WriteUninstaller "$INSTDIR\${UNINSTALLER}"
  WriteRegStr HKCU "${ENTRY}" "DisplayName" "${PRODUCT}"
  WriteRegStr HKCU "${ENTRY}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKCU "${ENTRY}" "Publisher" "${MAKER}"
  WriteRegStr HKCU "${ENTRY}" "DisplayIcon" "$INSTDIR\$Program.exe"
  WriteRegStr HKCU "${ENTRY}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKCU "${ENTRY}" "URLInfoAbout" "${SITE}"
  WriteRegStr HKCU "${ENTRY}" "UninstallString" '"$INSTDIR\${UNINSTALLER}"'
  WriteRegStr HKCU "${ENTRY}" "QuietUninstallString" '"$INSTDIR\${UNINSTALLER}" /S'
  WriteRegDWORD HKCU "${ENTRY}" "EstimatedSize" ${SIZE_KB}
  WriteRegDWORD HKCU "${ENTRY}" "NoModify" 1
  WriteRegDWORD HKCU "${ENTRY}" "NoRepair" 1
FunctionEnd

; Lays the texts of the chosen language beside the pack, if there are none: they are the user's then.
Function LayTexts
  ${If} $TextsLanguage == ""
  ${OrIf} ${FileExists} "$INSTDIR\$Program.lng"
    Return
  ${EndIf}
  CopyFiles /SILENT "$INSTDIR\languages\$TextsLanguage.lng" "$INSTDIR\$Program.lng"
FunctionEnd

; In its own folder, as from the Start menu.
Function StartPack
  ${If} ${FileExists} "$INSTDIR\$Program.exe"
    SetOutPath "$INSTDIR"
    Exec '"$INSTDIR\$Program.exe"'
  ${EndIf}
FunctionEnd
