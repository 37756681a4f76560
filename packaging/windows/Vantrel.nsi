; The installer: for one user, without administrator's rights, in Japanese and English.
;   /S           asks nothing
;   /D=FOLDER    another folder than the usual one; the last argument, without quotes
; An installation over an older one keeps the settings, the robots and the library that is there.
; What goes at the end is the program: settings, robots, texts and the trial's files stay unless the
; operator says otherwise.
; While the program of that folder runs nothing is changed; without a question the end is then with 2.
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
; A file that cannot be written ends the installation; where nobody is asked it would be passed over.
AllowSkipFiles off
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
!include Running.nsh

LangString ProgramSection ${LANG_ENGLISH} "Vantrel"
LangString ProgramSection ${LANG_JAPANESE} "Vantrel"
LangString TrialSection ${LANG_ENGLISH} "Trial with simulated controllers"
LangString TrialSection ${LANG_JAPANESE} "シミュレータによる体験版"
!define ENGLISH_TRIAL_LINK "Vantrel (trial)"
!define JAPANESE_TRIAL_LINK "Vantrel (体験版)"
LangString TrialLink ${LANG_ENGLISH} "${ENGLISH_TRIAL_LINK}"
LangString TrialLink ${LANG_JAPANESE} "${JAPANESE_TRIAL_LINK}"
LangString KeepData ${LANG_ENGLISH} "Keep the settings, the list of robots, the texts and the files of the trial?"
LangString KeepData ${LANG_JAPANESE} "設定、ロボットの一覧、言語ファイル、体験版のファイルを残しますか？"

VIProductVersion "${VERSION}.0"
VIAddVersionKey /LANG=${LANG_ENGLISH} "ProductName" "Vantrel"
VIAddVersionKey /LANG=${LANG_ENGLISH} "FileDescription" "Installer of Vantrel"
VIAddVersionKey /LANG=${LANG_ENGLISH} "FileVersion" "${VERSION}"
VIAddVersionKey /LANG=${LANG_ENGLISH} "LegalCopyright" "Copyright (c) 2026 The Vantrel maintainers"

; The program, and what it puts into its places at its next start (app/start/DeliveredFiles.h):
; nothing that the operator may have changed is touched here.
!macro InstallProgram FOLDER
    SetOverwrite on
    SetOutPath "$INSTDIR\${FOLDER}\.installed"
    SetFileAttributes "$OUTDIR" HIDDEN
    File "${CONTENT}\${FOLDER}\.installed\*.new"
    SetOutPath "$INSTDIR\${FOLDER}"
    File "${CONTENT}\${FOLDER}\Vantrel.exe"
    File "${CONTENT}\${FOLDER}\vantrelctl.exe"
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
    !insertmacro RequireClosedProgram
    !insertmacro InstallProgram "Vantrel"
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

; An installation in the other language may have made it.
!macro RemoveTrialLink
    Delete "$SMPROGRAMS\${ENGLISH_TRIAL_LINK}.lnk"
    Delete "$SMPROGRAMS\${JAPANESE_TRIAL_LINK}.lnk"
!macroend

Section "$(TrialSection)" SectionTrial
    !insertmacro InstallProgram "Trial"
    SetOverwrite off
    File "${CONTENT}\Trial\Vantrel.ini"
    File "${CONTENT}\Trial\robot.ini"
    File "${CONTENT}\Trial\simulator.ini"
    !insertmacro InstallMissing "jobs"
    !insertmacro InstallMissing "controllers"
    SetOverwrite on
    SetOutPath "$INSTDIR\Trial"
    !insertmacro RemoveTrialLink
    CreateShortcut "$SMPROGRAMS\$(TrialLink).lnk" "$INSTDIR\Trial\Vantrel.exe"
SectionEnd

Section "Uninstall"
    !insertmacro RequireClosedProgram
    SetOutPath "$TEMP" ; no folder that is current can be removed
    Delete "$SMPROGRAMS\Vantrel.lnk"
    !insertmacro RemoveTrialLink
    Delete "$INSTDIR\ZUROLINKDLL\Help\Zurolink_us.pdf"
    Delete "$INSTDIR\ZUROLINKDLL\Help\Zurolink_jp.pdf"
    RMDir "$INSTDIR\ZUROLINKDLL\Help"
    RMDir "$INSTDIR\ZUROLINKDLL"
    Delete "$INSTDIR\Vantrel\Vantrel.exe"
    Delete "$INSTDIR\Vantrel\vantrelctl.exe"
    Delete "$INSTDIR\Vantrel\LICENSE.txt"
    Delete "$INSTDIR\Trial\Vantrel.exe"
    Delete "$INSTDIR\Trial\vantrelctl.exe"
    MessageBox MB_YESNO|MB_ICONQUESTION "$(KeepData)" /SD IDYES IDYES keep
    Delete "$INSTDIR\Vantrel\Vantrel.ini"
    Delete "$INSTDIR\Vantrel\robot.ini"
    Delete "$INSTDIR\Vantrel\*.lng"
    Delete "$INSTDIR\Vantrel\*.ico"
    Delete "$INSTDIR\Vantrel\FileTable.*"
    Delete "$INSTDIR\Vantrel\*.lng.old*"
    Delete "$INSTDIR\Vantrel\*.ico.old*"
    RMDir /r "$INSTDIR\Vantrel\.installed"
    RMDir /r "$INSTDIR\Trial"
keep:
    ; Folders that still hold something, such as the maker's library, stay.
    RMDir "$INSTDIR\Trial"
    RMDir "$INSTDIR\Vantrel"
    Delete "$INSTDIR\Uninstall.exe"
    RMDir "$INSTDIR"
    DeleteRegKey HKCU "${KEY}"
SectionEnd
