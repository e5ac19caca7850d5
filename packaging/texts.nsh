; What the installer says beyond the texts that come with the pages.
!macro text NAME ENGLISH GERMAN
    LangString ${NAME} ${LANG_ENGLISH} "${ENGLISH}"
    LangString ${NAME} ${LANG_GERMAN} "${GERMAN}"
!macroend

!insertmacro text description "Button bar for EAGLE" "Knopfleiste für EAGLE"
!insertmacro text samples "Buttons to begin with" "Knöpfe für den Anfang"
!insertmacro text startMenu "Entry in the start menu" "Eintrag im Startmenü"
!insertmacro text logon "Start with Windows" "Mit Windows starten"
!insertmacro text programTip "The program, its help and its icons." "Das Programm, seine Hilfe und seine Symbole."
!insertmacro text samplesTip \
    "Buttons for boards, schematics and libraries. Settings that are there already are kept as they are." \
    "Knöpfe für Boards, Schaltpläne und Bibliotheken. Schon vorhandene Einstellungen bleiben, wie sie sind."
!insertmacro text startMenuTip "Kestrel in the start menu." "Kestrel im Startmenü."
!insertmacro text logonTip "Kestrel starts when you log on." "Kestrel startet bei der Anmeldung."
!insertmacro text closing "Ending the running Kestrel" "Das laufende Kestrel wird beendet"
!insertmacro text stillRuns \
    "Kestrel is still running, or its files cannot be replaced.$\r$\n$\r$\nEnd it (its icon beside the clock, $\"Exit$\") and try again." \
    "Kestrel läuft noch, oder seine Dateien lassen sich nicht ersetzen.$\r$\n$\r$\nBeenden Sie es (sein Symbol neben der Uhr, $\"Beenden$\") und versuchen Sie es noch einmal."
!insertmacro text runsAsAdministrator \
    "Kestrel runs as administrator. Windows does not let this program, which does not, end it.$\r$\n$\r$\nEnd it yourself (its icon beside the clock, $\"Exit$\") and try again." \
    "Kestrel läuft als Administrator. Windows lässt nicht zu, dass dieses Programm, das ohne diese Rechte läuft, es beendet.$\r$\n$\r$\nBeenden Sie es selbst (sein Symbol neben der Uhr, $\"Beenden$\") und versuchen Sie es noch einmal."
!insertmacro text notWritable \
    "You may not write into this folder:$\r$\n$INSTDIR$\r$\n$\r$\nKestrel keeps its settings beside the program. Please choose a folder of your own." \
    "In diesen Ordner dürfen Sie nicht schreiben:$\r$\n$INSTDIR$\r$\n$\r$\nKestrel bewahrt seine Einstellungen neben dem Programm auf. Bitte wählen Sie einen eigenen Ordner."
!insertmacro text needs64 \
    "This is the 64-bit Kestrel, and this Windows has 32 bits. Please take the 32-bit one." \
    "Dies ist das 64-Bit-Kestrel, und dieses Windows hat 32 Bit. Bitte nehmen Sie das mit 32 Bit."
!insertmacro text removeSettings \
    "Do you want to remove your settings and buttons (kestrel.ini) as well?" \
    "Sollen auch Ihre Einstellungen und Knöpfe (kestrel.ini) entfernt werden?"
