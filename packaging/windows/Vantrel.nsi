; The installer: for one user, without administrator's rights, in Japanese and English.
;   /S           asks nothing
;   /D=FOLDER    another folder than the usual one; the last argument, without quotes
; An installation over an older one keeps the settings, the robots and the library that is there.
Unicode true
!include MUI2.nsh
!include LogicLib.nsh
!include x64.nsh

!define KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\Vantrel"

Name "Vantrel"
OutFile "${OUTPUT}"
InstallDir "$LOCALAPPDATA\Programs\Vantrel"
InstallDirRegKey HKCU "${KEY}" "InstallLocation"
RequestExecutionLevel user
SetCompressor /SOLID lzma
!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"

!insertmacro MUI_PAGE_COMPONENTS
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!define MUI_FINISHPAGE_RUN "$INSTDIR\Vantrel\Vantrel.exe"
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "English"
!insertmacro MUI_LANGUAGE "Japanese"

LangString ProgramSection ${LANG_ENGLISH} "Vantrel"
LangString ProgramSection ${LANG_JAPANESE} "Vantrel"
LangString TrialSection ${LANG_ENGLISH} "Trial with simulated controllers"
LangString TrialSection ${LANG_JAPANESE} "シミュレータによる体験版"
LangString TrialLink ${LANG_ENGLISH} "Vantrel (trial)"
LangString TrialLink ${LANG_JAPANESE} "Vantrel (体験版)"
LangString Needs64Bit ${LANG_ENGLISH} "This is the program for 64-bit Windows."
LangString Needs64Bit ${LANG_JAPANESE} "このプログラムは64ビット版Windows用です。"
LangString KeepSettings ${LANG_ENGLISH} "Keep the settings and the list of robots?"
LangString KeepSettings ${LANG_JAPANESE} "設定とロボットの一覧を残しますか？"

VIProductVersion "${VERSION}.0"
VIAddVersionKey /LANG=${LANG_ENGLISH} "ProductName" "Vantrel"
VIAddVersionKey /LANG=${LANG_ENGLISH} "FileDescription" "Installer of Vantrel"
VIAddVersionKey /LANG=${LANG_ENGLISH} "FileVersion" "${VERSION}"
VIAddVersionKey /LANG=${LANG_ENGLISH} "LegalCopyright" "Copyright (c) 2026 The Vantrel maintainers"

Function .onInit
    !if "${NAME}" == "Vantrel-win64"
        ${IfNot} ${RunningX64}
            MessageBox MB_OK|MB_ICONSTOP "$(Needs64Bit)" /SD IDOK
            Abort
        ${EndIf}
    !endif
FunctionEnd

Section "$(ProgramSection)" SectionProgram
    SectionIn RO
    SetOutPath "$INSTDIR\Vantrel"
    SetOverwrite on
    File "${CONTENT}\Vantrel\Vantrel.exe"
    File "${CONTENT}\Vantrel\LICENSE.txt"
    ; The operator may have changed these; his stay beside the new ones.
    !macro KeepOld FILE
        ${If} ${FileExists} "$INSTDIR\Vantrel\${FILE}"
            Delete "$INSTDIR\Vantrel\${FILE}.old"
            Rename "$INSTDIR\Vantrel\${FILE}" "$INSTDIR\Vantrel\${FILE}.old"
        ${EndIf}
        File "${CONTENT}\Vantrel\${FILE}"
    !macroend
    !insertmacro KeepOld "English.lng"
    !insertmacro KeepOld "Japanese.lng"
    !insertmacro KeepOld "System.lng"
    !insertmacro KeepOld "FileTable.tbl"
    !insertmacro KeepOld "FileTable.dat"
    SetOutPath "$INSTDIR\ZUROLINKDLL\Help"
    File /nonfatal "${CONTENT}\ZUROLINKDLL\Help\*.pdf"

    WriteUninstaller "$INSTDIR\Uninstall.exe"
    SetOutPath "$INSTDIR\Vantrel"
    CreateShortcut "$SMPROGRAMS\Vantrel.lnk" "$INSTDIR\Vantrel\Vantrel.exe"
    WriteRegStr HKCU "${KEY}" "DisplayName" "Vantrel"
    WriteRegStr HKCU "${KEY}" "DisplayVersion" "${VERSION}"
    WriteRegStr HKCU "${KEY}" "DisplayIcon" "$INSTDIR\Vantrel\Vantrel.exe"
    WriteRegStr HKCU "${KEY}" "Publisher" "The Vantrel maintainers"
    WriteRegStr HKCU "${KEY}" "InstallLocation" "$INSTDIR"
    WriteRegStr HKCU "${KEY}" "UninstallString" '"$INSTDIR\Uninstall.exe"'
    WriteRegStr HKCU "${KEY}" "QuietUninstallString" '"$INSTDIR\Uninstall.exe" /S'
    WriteRegDWORD HKCU "${KEY}" "NoModify" 1
    WriteRegDWORD HKCU "${KEY}" "NoRepair" 1
SectionEnd

Section "$(TrialSection)" SectionTrial
    ; What an operator did in the trial stays; the program and its simulator are renewed.
    SetOutPath "$INSTDIR\Trial"
    SetOverwrite off
    File /r /x Vantrel.exe /x Zurolink.dll "${CONTENT}\Trial\*"
    SetOverwrite on
    File "${CONTENT}\Trial\Vantrel.exe"
    File "${CONTENT}\Trial\Zurolink.dll"
    CreateShortcut "$SMPROGRAMS\$(TrialLink).lnk" "$INSTDIR\Trial\Vantrel.exe"
SectionEnd

Section "Uninstall"
    Delete "$SMPROGRAMS\Vantrel.lnk"
    Delete "$SMPROGRAMS\$(TrialLink).lnk"
    RMDir /r "$INSTDIR\Trial"
    RMDir /r "$INSTDIR\ZUROLINKDLL\Help"
    RMDir "$INSTDIR\ZUROLINKDLL"
    !macro RemoveProgramFile FILE
        Delete "$INSTDIR\Vantrel\${FILE}"
    !macroend
    !insertmacro RemoveProgramFile "Vantrel.exe"
    !insertmacro RemoveProgramFile "LICENSE.txt"
    !insertmacro RemoveProgramFile "English.lng"
    !insertmacro RemoveProgramFile "Japanese.lng"
    !insertmacro RemoveProgramFile "System.lng"
    !insertmacro RemoveProgramFile "FileTable.tbl"
    !insertmacro RemoveProgramFile "FileTable.dat"
    MessageBox MB_YESNO|MB_ICONQUESTION "$(KeepSettings)" /SD IDYES IDYES keep
    Delete "$INSTDIR\Vantrel\Vantrel.ini"
    Delete "$INSTDIR\Vantrel\robot.ini"
    Delete "$INSTDIR\Vantrel\*.old"
keep:
    ; Folders that still hold something, such as the maker's library, stay.
    RMDir "$INSTDIR\Vantrel"
    Delete "$INSTDIR\Uninstall.exe"
    RMDir "$INSTDIR"
    DeleteRegKey HKCU "${KEY}"
SectionEnd
