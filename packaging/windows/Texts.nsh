; How the texts and file tables are installed, of which the operator may have changed some. What is
; installed is remembered in the folder ".installed": what differs from that, and from the new one,
; has been changed, and stays beside the new one as ".old", or ".old2" to ".old9" where there are
; older ones.

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

; $R1 is the name of a text in the folder that is set; the new one lies in $PLUGINSDIR. Changes $R0,
; $R2 and $R3.
Function KeepChangedText
    ${IfNot} ${FileExists} "$OUTDIR\$R1"
        Return
    ${EndIf}
    !insertmacro CompareFiles "$OUTDIR\$R1" "$PLUGINSDIR\$R1"
    ${If} $R0 == 0
    ${AndIf} ${FileExists} "$OUTDIR\.installed\$R1"
        !insertmacro CompareFiles "$OUTDIR\$R1" "$OUTDIR\.installed\$R1"
    ${EndIf}
    ${If} $R0 == 1
        Return
    ${EndIf}
    StrCpy $R2 "$OUTDIR\$R1.old"
    StrCpy $R3 2
    ${DoWhile} ${FileExists} $R2
        ${If} $R3 > 9
            Delete $R2
            ${ExitDo}
        ${EndIf}
        StrCpy $R2 "$OUTDIR\$R1.old$R3"
        IntOp $R3 $R3 + 1
    ${Loop}
    ClearErrors
    Rename "$OUTDIR\$R1" $R2
    ${If} ${Errors}
        Abort
    ${EndIf}
FunctionEnd

!macro InstallText FILE
    File "/oname=$PLUGINSDIR\${FILE}" "${CONTENT}\Vantrel\${FILE}"
    StrCpy $R1 "${FILE}"
    Call KeepChangedText
    File "${CONTENT}\Vantrel\${FILE}"
    File "/oname=.installed\${FILE}" "${CONTENT}\Vantrel\${FILE}"
!macroend

; Into the folder that is set.
!macro InstallTexts
    InitPluginsDir
    CreateDirectory "$OUTDIR\.installed"
    SetFileAttributes "$OUTDIR\.installed" HIDDEN
    !insertmacro InstallText "English.lng"
    !insertmacro InstallText "Japanese.lng"
    !insertmacro InstallText "System.lng"
    !insertmacro InstallText "FileTable.tbl"
    !insertmacro InstallText "FileTable.dat"
!macroend

; One that the operator has changed since it was installed stays.
!macro RemoveText FOLDER FILE
    !insertmacro CompareFiles "${FOLDER}\${FILE}" "${FOLDER}\.installed\${FILE}"
    ${If} $R0 == 1
        Delete "${FOLDER}\${FILE}"
    ${EndIf}
    Delete "${FOLDER}\.installed\${FILE}"
!macroend

!macro RemoveTexts FOLDER
    !insertmacro RemoveText "${FOLDER}" "English.lng"
    !insertmacro RemoveText "${FOLDER}" "Japanese.lng"
    !insertmacro RemoveText "${FOLDER}" "System.lng"
    !insertmacro RemoveText "${FOLDER}" "FileTable.tbl"
    !insertmacro RemoveText "${FOLDER}" "FileTable.dat"
    RMDir "${FOLDER}\.installed"
!macroend
