; The installer: for one user, without administrator's rights, in Japanese and English.
;   /S           asks nothing
;   /D=FOLDER    another folder than the usual one; the last argument, without quotes
; An installation over an older one keeps the settings, the robots and the library that is there.
; What goes at the end is what was installed: the operator's own files stay unless he says otherwise.
; On a system of the other kind the installer does not start, as the program would not.
!if "${NAME}" == "Vantrel-win64"
    Target amd64-unicode
!else
    Target x86-unicode
!endif
Unicode true
!include MUI2.nsh
!include LogicLib.nsh

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
LangString KeepData ${LANG_ENGLISH} "Keep the settings, the list of robots and the files of the trial?"
LangString KeepData ${LANG_JAPANESE} "設定、ロボットの一覧、体験版のファイルを残しますか？"

VIProductVersion "${VERSION}.0"
VIAddVersionKey /LANG=${LANG_ENGLISH} "ProductName" "Vantrel"
VIAddVersionKey /LANG=${LANG_ENGLISH} "FileDescription" "Installer of Vantrel"
VIAddVersionKey /LANG=${LANG_ENGLISH} "FileVersion" "${VERSION}"
VIAddVersionKey /LANG=${LANG_ENGLISH} "LegalCopyright" "Copyright (c) 2026 The Vantrel maintainers"

; Sets $R0 to 1 when two files hold the same bytes, else to 0.
!macro CompareFiles FIRST SECOND
    Push $0
    Push $1
    Push $2
    Push $3
    StrCpy $R0 0
    FileOpen $0 "${FIRST}" r
    FileOpen $1 "${SECOND}" r
    ${Do}
        ClearErrors
        FileReadByte $0 $2
        ${If} ${Errors}
            StrCpy $2 "end"
        ${EndIf}
        ClearErrors
        FileReadByte $1 $3
        ${If} ${Errors}
            StrCpy $3 "end"
        ${EndIf}
        ${If} $2 != $3
            ${ExitDo}
        ${EndIf}
        ${If} $2 == "end"
            StrCpy $R0 1
            ${ExitDo}
        ${EndIf}
    ${Loop}
    FileClose $0
    FileClose $1
    Pop $3
    Pop $2
    Pop $1
    Pop $0
!macroend

; The operator may have changed a text: then his stays beside the new one.
!macro InstallText FILE
    File "/oname=$PLUGINSDIR\${FILE}" "${CONTENT}\Vantrel\${FILE}"
    ${If} ${FileExists} "$OUTDIR\${FILE}"
        !insertmacro CompareFiles "$PLUGINSDIR\${FILE}" "$OUTDIR\${FILE}"
        ${If} $R0 == 0
            Delete "$OUTDIR\${FILE}.old"
            Rename "$OUTDIR\${FILE}" "$OUTDIR\${FILE}.old"
        ${EndIf}
    ${EndIf}
    File "${CONTENT}\Vantrel\${FILE}"
!macroend

; The program and its texts into the folder that is set.
!macro InstallProgram
    SetOverwrite on
    File "${CONTENT}\Vantrel\Vantrel.exe"
    File "${CONTENT}\Vantrel\*.ico"
    InitPluginsDir
    !insertmacro InstallText "English.lng"
    !insertmacro InstallText "Japanese.lng"
    !insertmacro InstallText "System.lng"
    !insertmacro InstallText "FileTable.tbl"
    !insertmacro InstallText "FileTable.dat"
!macroend

; A folder of the trial belongs to the operator once it is there: what he deleted stays deleted.
!macro InstallMissing FOLDER
    ${IfNot} ${FileExists} "$INSTDIR\Trial\${FOLDER}\*.*"
        SetOutPath "$INSTDIR\Trial\${FOLDER}"
        File /r "${CONTENT}\Trial\${FOLDER}\*"
    ${EndIf}
!macroend

Section "$(ProgramSection)" SectionProgram
    SectionIn RO
    SetOutPath "$INSTDIR\Vantrel"
    !insertmacro InstallProgram
    File "${CONTENT}\Vantrel\LICENSE.txt"
    SetOutPath "$INSTDIR\ZUROLINKDLL\Help"
    File "${CONTENT}\ZUROLINKDLL\Help\*.pdf"

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

; Sets $R0 to 1 when the trial's library is the simulator that was installed, as told by its size, or
; is not there; the maker's own may stand in its place, and then belongs to the operator.
!macro IsOwnSimulator
    Push $0
    Push $1
    Push $2
    StrCpy $R0 1
    ${If} ${FileExists} "$INSTDIR\Trial\Zurolink.dll"
        ReadRegDWORD $0 HKCU "${KEY}" "SimulatorSize"
        FileOpen $1 "$INSTDIR\Trial\Zurolink.dll" r
        FileSeek $1 0 END $2
        FileClose $1
        ${If} $0 != $2
            StrCpy $R0 0
        ${EndIf}
    ${EndIf}
    Pop $2
    Pop $1
    Pop $0
!macroend

Section "$(TrialSection)" SectionTrial
    SetOutPath "$INSTDIR\Trial"
    !insertmacro InstallProgram
    !insertmacro IsOwnSimulator
    ${If} $R0 == 1
        File "${CONTENT}\Trial\Zurolink.dll"
        FileOpen $0 "$INSTDIR\Trial\Zurolink.dll" r
        FileSeek $0 0 END $1
        FileClose $0
        WriteRegDWORD HKCU "${KEY}" "SimulatorSize" $1
    ${EndIf}
    SetOverwrite off
    File "${CONTENT}\Trial\Vantrel.ini"
    File "${CONTENT}\Trial\robot.ini"
    File "${CONTENT}\Trial\simulator.ini"
    !insertmacro InstallMissing "jobs"
    !insertmacro InstallMissing "controllers"
    SetOverwrite on
    SetOutPath "$INSTDIR\Trial"
    CreateShortcut "$SMPROGRAMS\$(TrialLink).lnk" "$INSTDIR\Trial\Vantrel.exe"
SectionEnd

; What a folder holds of the program itself.
!macro RemoveProgram FOLDER
    Delete "${FOLDER}\Vantrel.exe"
    Delete "${FOLDER}\LICENSE.txt"
    Delete "${FOLDER}\English.lng"
    Delete "${FOLDER}\Japanese.lng"
    Delete "${FOLDER}\System.lng"
    Delete "${FOLDER}\English.ico"
    Delete "${FOLDER}\Japanese.ico"
    Delete "${FOLDER}\System.ico"
    Delete "${FOLDER}\FileTable.tbl"
    Delete "${FOLDER}\FileTable.dat"
!macroend

Section "Uninstall"
    SetOutPath "$TEMP" ; no folder that is current can be removed
    Delete "$SMPROGRAMS\Vantrel.lnk"
    Delete "$SMPROGRAMS\$(TrialLink).lnk"
    Delete "$INSTDIR\ZUROLINKDLL\Help\Zurolink_us.pdf"
    Delete "$INSTDIR\ZUROLINKDLL\Help\Zurolink_jp.pdf"
    RMDir "$INSTDIR\ZUROLINKDLL\Help"
    RMDir "$INSTDIR\ZUROLINKDLL"
    !insertmacro RemoveProgram "$INSTDIR\Vantrel"
    !insertmacro RemoveProgram "$INSTDIR\Trial"
    !insertmacro IsOwnSimulator
    ${If} $R0 == 1
        Delete "$INSTDIR\Trial\Zurolink.dll"
    ${EndIf}
    MessageBox MB_YESNO|MB_ICONQUESTION "$(KeepData)" /SD IDYES IDYES keep
    Delete "$INSTDIR\Vantrel\Vantrel.ini"
    Delete "$INSTDIR\Vantrel\robot.ini"
    Delete "$INSTDIR\Vantrel\*.old"
    RMDir /r "$INSTDIR\Trial"
keep:
    ; Folders that still hold something, such as the maker's library, stay.
    RMDir "$INSTDIR\Trial"
    RMDir "$INSTDIR\Vantrel"
    Delete "$INSTDIR\Uninstall.exe"
    RMDir "$INSTDIR"
    DeleteRegKey HKCU "${KEY}"
SectionEnd
