; Ends a running Kestrel before its files change: its main window, which nobody sees, is asked to close, as Windows
; does at a shutdown. It is given ten seconds, and so is the executable to become free. A Kestrel that runs as
; administrator cannot be asked by us, who do not: Windows refuses, and the user is told so at once.

; How it is asked: R0 is the window, R3 gets 0 if that fails. WM_CLOSE.
!ifndef ASK_TO_CLOSE
    !define ASK_TO_CLOSE "user32::PostMessageW(p R0, i 0x10, p 0, p 0) i.R3"
!endif
!define ACCESS_DENIED 5

!macro closeKestrelFunction UN
Function ${UN}closeKestrel
again:
    StrCpy $R5 "$(stillRuns)"
    FindWindow $R0 "KestrelForm" "Kestrel Strip for EAGLE"
    ${If} $R0 <> 0
        DetailPrint "$(closing)"
        System::Call '${ASK_TO_CLOSE} ?e'
        Pop $R4
        ${If} $R3 = 0
        ${AndIf} $R4 = ${ACCESS_DENIED}
            StrCpy $R5 "$(runsAsAdministrator)"
            Goto runs
        ${EndIf}
    ${EndIf}
    ${For} $R1 1 100
        FindWindow $R0 "KestrelForm" "Kestrel Strip for EAGLE"
        ${If} $R0 = 0
            ${IfNot} ${FileExists} "$INSTDIR\kestrel.exe"
                Return
            ${EndIf}
            ClearErrors
            FileOpen $R2 "$INSTDIR\kestrel.exe" a
            ${IfNot} ${Errors}
                FileClose $R2
                Return
            ${EndIf}
        ${EndIf}
        Sleep 100
    ${Next}
runs:
    MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "$R5" /SD IDCANCEL IDRETRY again
    SetErrorLevel 3
    Quit
FunctionEnd
!macroend

!insertmacro closeKestrelFunction ""
!insertmacro closeKestrelFunction "un."
