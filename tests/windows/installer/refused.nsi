; An installer that does nothing but close Kestrel, and is refused: what Windows answers an installer that asks a
; Kestrel with more rights is had here from a call that is refused on any system. makensis gets PACKAGING, the folder
; with the real installer's parts, and TARGET.
Unicode true
RequestExecutionLevel user
!include "MUI2.nsh"
!include "LogicLib.nsh"
Name "Kestrel"
OutFile "${TARGET}"
InstallDir "C:\kestrel"
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_LANGUAGE "English"
!insertmacro MUI_LANGUAGE "German"
!include "${PACKAGING}/texts.nsh"
!define ASK_TO_CLOSE 'kernel32::DeleteFileW(w "C:\windows") i.R3'
!include "${PACKAGING}/running.nsh"
Section
    Call closeKestrel
SectionEnd
