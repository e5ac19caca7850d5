; The installer, for the user alone: no administrator is asked for, the settings stand beside the program.
; packages.py calls makensis in the folder with the program's files and gives, besides VERSION, BITS and SIZE_KB:
; TARGET the installer to be made, LISTS the folder with install.nsh, remove.nsh and licence.txt, HERE this folder, ICON
; and SIDE the pictures.
;
; Silent: setup.exe /S [/LOGON] [/D=folder], uninstall.exe /S. Neither starts or asks anything.
; Exit codes: 0 done, 1 cancelled, 3 a running Kestrel did not end, 4 the wrong Windows, 5 the folder is not writable.
Unicode true
ManifestDPIAware true
RequestExecutionLevel user
SetCompressor /SOLID lzma
SetDateSave on

!include "MUI2.nsh"
!include "LogicLib.nsh"
!include "Sections.nsh"
!include "FileFunc.nsh"
!include "x64.nsh"

!define UNINSTALL "Software\Microsoft\Windows\CurrentVersion\Uninstall\Kestrel"
!define LOGON "Software\Microsoft\Windows\CurrentVersion\Run"
!define SHORTCUT "$SMPROGRAMS\Kestrel.lnk"

Name "Kestrel"
Caption "Kestrel ${VERSION}"
BrandingText "Kestrel ${VERSION}, ${BITS} bit"
OutFile "${TARGET}"
InstallDir "$LOCALAPPDATA\Programs\Kestrel"
InstallDirRegKey HKCU "${UNINSTALL}" "InstallLocation" ; where the older version stands

!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_WELCOMEFINISHPAGE_BITMAP "${SIDE}"
!define MUI_ABORTWARNING
!define MUI_FINISHPAGE_RUN "$INSTDIR\kestrel.exe"
!define MUI_COMPONENTSPAGE_SMALLDESC

!insertmacro MUI_PAGE_WELCOME
!insertmacro MUI_PAGE_LICENSE "${LISTS}/licence.txt"
!define MUI_PAGE_CUSTOMFUNCTION_LEAVE leaveDirectory
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_COMPONENTS
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES

; Windows' language chooses; any other than German gets the first.
!insertmacro MUI_LANGUAGE "English"
!insertmacro MUI_LANGUAGE "German"
!include "${HERE}/texts.nsh"

VIProductVersion "${VERSION}.0"
VIFileVersion "${VERSION}.0"
!macro versionTexts LANGUAGE COMPANY DESCRIPTION
    VIAddVersionKey /LANG=${LANGUAGE} "CompanyName" "${COMPANY}"
    VIAddVersionKey /LANG=${LANGUAGE} "FileDescription" "${DESCRIPTION}"
    VIAddVersionKey /LANG=${LANGUAGE} "FileVersion" "${VERSION}"
    VIAddVersionKey /LANG=${LANGUAGE} "ProductName" "Kestrel"
    VIAddVersionKey /LANG=${LANGUAGE} "ProductVersion" "${VERSION}"
    VIAddVersionKey /LANG=${LANGUAGE} "LegalCopyright" "${COMPANY}"
!macroend
!insertmacro versionTexts ${LANG_ENGLISH} "The Kestrel team" "Installs Kestrel, the button bar for EAGLE"
!insertmacro versionTexts ${LANG_GERMAN} "Das Kestrel-Team" "Installiert Kestrel, die Knopfleiste für EAGLE"

!include "${HERE}/running.nsh"

; Leaves with an exit code, whatever is up.
!macro leaveWith CODE TEXT
    MessageBox MB_OK|MB_ICONSTOP "${TEXT}" /SD IDOK
    SetErrorLevel ${CODE}
    Quit
!macroend

; Error flag: whether nothing can be written into the folder, which is made for the test and goes again.
Function tryFolder
    StrCpy $R0 no
    ${IfNot} ${FileExists} "$INSTDIR\*.*"
        StrCpy $R0 made
    ${EndIf}
    ClearErrors
    CreateDirectory "$INSTDIR"
    FileOpen $R1 "$INSTDIR\kestrel-setup.tmp" w
    ${If} ${Errors}
        RMDir "$INSTDIR"
        SetErrors
    ${Else}
        FileClose $R1
        Delete "$INSTDIR\kestrel-setup.tmp"
        ${If} $R0 == made
            RMDir "$INSTDIR"
        ${EndIf}
        ClearErrors
    ${EndIf}
FunctionEnd

Function leaveDirectory
    Call tryFolder
    ${If} ${Errors}
        MessageBox MB_OK|MB_ICONEXCLAMATION "$(notWritable)"
        Abort
    ${EndIf}
FunctionEnd

Section "Kestrel" secProgram
    SectionIn RO
    Call tryFolder
    ${If} ${Errors}
        !insertmacro leaveWith 5 "$(notWritable)"
    ${EndIf}
    Call closeKestrel
    !include "${LISTS}/install.nsh"
    SetOutPath "$INSTDIR"
    WriteUninstaller "$INSTDIR\uninstall.exe"

    WriteRegStr HKCU "${UNINSTALL}" "DisplayName" "Kestrel"
    WriteRegStr HKCU "${UNINSTALL}" "DisplayVersion" "${VERSION}"
    WriteRegStr HKCU "${UNINSTALL}" "DisplayIcon" "$INSTDIR\kestrel.exe,0"
    WriteRegStr HKCU "${UNINSTALL}" "Publisher" "The Kestrel team"
    WriteRegStr HKCU "${UNINSTALL}" "InstallLocation" "$INSTDIR"
    WriteRegStr HKCU "${UNINSTALL}" "UninstallString" '"$INSTDIR\uninstall.exe"'
    WriteRegStr HKCU "${UNINSTALL}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
    WriteRegDWORD HKCU "${UNINSTALL}" "EstimatedSize" ${SIZE_KB}
    WriteRegDWORD HKCU "${UNINSTALL}" "NoModify" 1
    WriteRegDWORD HKCU "${UNINSTALL}" "NoRepair" 1
SectionEnd

Section "$(samples)" secSamples
    ${IfNot} ${FileExists} "$INSTDIR\kestrel.ini" ; the user's own settings are never touched
        ${If} $LANGUAGE == ${LANG_GERMAN}
            CopyFiles /SILENT "$INSTDIR\samples\Deutsch\kestrel.ini" "$INSTDIR\kestrel.ini"
        ${Else}
            CopyFiles /SILENT "$INSTDIR\samples\English\kestrel.ini" "$INSTDIR\kestrel.ini"
        ${EndIf}
    ${EndIf}
SectionEnd

Section "$(startMenu)" secStartMenu
    CreateShortcut "${SHORTCUT}" "$INSTDIR\kestrel.exe" "" "" "" "" "" "$(description)"
SectionEnd

Section /o "$(logon)" secLogon
    WriteRegStr HKCU "${LOGON}" "Kestrel" '"$INSTDIR\kestrel.exe"'
SectionEnd

; What has been deselected goes, and a program without buttons at least begins in the user's language.
Section
    ${IfNot} ${SectionIsSelected} ${secStartMenu}
        Delete "${SHORTCUT}"
    ${EndIf}
    ${IfNot} ${SectionIsSelected} ${secLogon}
        DeleteRegValue HKCU "${LOGON}" "Kestrel"
    ${EndIf}
    ${IfNot} ${FileExists} "$INSTDIR\kestrel.ini"
    ${AndIf} $LANGUAGE != ${LANG_GERMAN}
        WriteINIStr "$INSTDIR\kestrel.ini" "global" "language" "10000"
    ${EndIf}
SectionEnd

!insertmacro MUI_FUNCTION_DESCRIPTION_BEGIN
    !insertmacro MUI_DESCRIPTION_TEXT ${secProgram} "$(programTip)"
    !insertmacro MUI_DESCRIPTION_TEXT ${secSamples} "$(samplesTip)"
    !insertmacro MUI_DESCRIPTION_TEXT ${secStartMenu} "$(startMenuTip)"
    !insertmacro MUI_DESCRIPTION_TEXT ${secLogon} "$(logonTip)"
!insertmacro MUI_FUNCTION_DESCRIPTION_END

; An update begins with the choices of the version that is there.
Function .onInit
!if ${BITS} == 64
    ${IfNot} ${RunningX64}
        !insertmacro leaveWith 4 "$(needs64)"
    ${EndIf}
!endif
    ReadRegStr $R0 HKCU "${UNINSTALL}" "InstallLocation"
    ${If} $R0 != ""
    ${AndIfNot} ${FileExists} "${SHORTCUT}"
        !insertmacro UnselectSection ${secStartMenu}
    ${EndIf}
    ReadRegStr $R0 HKCU "${LOGON}" "Kestrel"
    ${If} $R0 != ""
        !insertmacro SelectSection ${secLogon}
    ${EndIf}
    ${GetParameters} $R0
    ClearErrors
    ${GetOptions} $R0 "/LOGON" $R1
    ${IfNot} ${Errors}
        !insertmacro SelectSection ${secLogon}
    ${EndIf}
FunctionEnd

Section "Uninstall"
    Call un.closeKestrel
    ; Asked now, while all is still there; a silent removal keeps the settings.
    ${If} ${FileExists} "$INSTDIR\kestrel.ini"
        MessageBox MB_YESNO|MB_ICONQUESTION|MB_DEFBUTTON2 "$(removeSettings)" /SD IDNO IDNO keep
        Delete "$INSTDIR\kestrel.ini"
        Delete "$INSTDIR\kestrel.bak" ; what the setup has kept of older settings
        Delete "$INSTDIR\kestrel.sav"
        Delete "$INSTDIR\kestrel.sav~" ; of a run that was killed while it copied
    keep:
    ${EndIf}
    !include "${LISTS}/remove.nsh"
    Delete "$INSTDIR\uninstall.exe"
    Delete "${SHORTCUT}"
    RMDir "$INSTDIR" ; stays if anything of the user's is in it
    DeleteRegValue HKCU "${LOGON}" "Kestrel"
    DeleteRegKey HKCU "${UNINSTALL}"
SectionEnd
