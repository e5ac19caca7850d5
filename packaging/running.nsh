; Ends a running Kestrel before its files change: its main window, which nobody sees, is asked to close, as Windows
; does at a shutdown. It is given ten seconds, and so is the executable to become free.

!macro closeKestrelFunction UN
Function ${UN}closeKestrel
again:
    FindWindow $R0 "KestrelForm" "Kestrel Strip for EAGLE"
    ${If} $R0 <> 0
        DetailPrint "$(closing)"
        System::Call 'user32::PostMessageW(p R0, i 0x10, p 0, p 0)' ; WM_CLOSE
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
    MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "$(stillRuns)" /SD IDCANCEL IDRETRY again
    SetErrorLevel 3
    Quit
FunctionEnd
!macroend

!insertmacro closeKestrelFunction ""
!insertmacro closeKestrelFunction "un."
