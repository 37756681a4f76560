; A program that runs can be neither replaced nor removed. It is looked for before anything is
; changed, so that what is installed stays whole.

!include FileFunc.nsh

LangString Running ${LANG_ENGLISH} "Vantrel is running. Please close it."
LangString Running ${LANG_JAPANESE} "Vantrelが実行中です。終了してください。"

; Sets $R0 to 1 when a file cannot be written because it is in use. Only a file that is not
; write-protected tells; the attribute is put back.
!macro IsInUse FILE
    StrCpy $R0 0
    ${If} ${FileExists} "${FILE}"
        ${GetFileAttributes} "${FILE}" "READONLY" $R1
        ${If} $R1 == 1
            SetFileAttributes "${FILE}" NORMAL
        ${EndIf}
        ClearErrors
        FileOpen $R2 "${FILE}" a
        ${If} ${Errors}
            StrCpy $R0 1
        ${Else}
            FileClose $R2
        ${EndIf}
        ${If} $R1 == 1
            SetFileAttributes "${FILE}" READONLY
        ${EndIf}
    ${EndIf}
!macroend

; Asks until the file can be written; ends with 2 when the answer is no, as it is where nobody is
; asked.
!macro RequireFree FILE
    ${Do}
        !insertmacro IsInUse "${FILE}"
        ${If} $R0 == 0
            ${ExitDo}
        ${EndIf}
        ${If} ${Cmd} `MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "$(Running)" /SD IDCANCEL IDCANCEL`
            SetErrorLevel 2
            Quit
        ${EndIf}
    ${Loop}
!macroend

; Changes $R0, $R1 and $R2.
!macro RequireClosedProgram
    !insertmacro RequireFree "$INSTDIR\Vantrel\Vantrel.exe"
    !insertmacro RequireFree "$INSTDIR\Trial\Vantrel.exe"
    !insertmacro RequireFree "$INSTDIR\Vantrel\vantrelctl.exe"
    !insertmacro RequireFree "$INSTDIR\Trial\vantrelctl.exe"
!macroend
