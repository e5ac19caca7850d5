#include "store/textCatalogue.h"

#include "runtime/runtimeError.h"
#include "runtime/western.h"

#include <algorithm>
#include <iterator>

namespace store {

namespace {

struct Row {
    std::int32_t id; ///< of the German text
    const char* german;
    const char* english;
};

// By rising ids, as the search needs it. Kept: every marker, trailing blank and spelling, and the two banks'
// differences.
constexpr Row rows[] = {
    {1000, "Befehl", "Command Options"},
    {1001, "Be&schreibung:", "Descri&ption:"},
    {1002, "Kom&mando:", "Com&mand:"},
    {1003, "Hilfste&xt:", "&Tooltip Text:"},
    {1004, "Dialo&gtext:", "Dialo&g Text:"},
    {1005, "Sym&bol \xE4ndern", "C&hange Icon"},
    {1006, "Kein Dialog", "No Dialog"},
    {1007, "Eingabedialog f\xFCr Parameter", "Add Input Dialog for Parameters"},
    {1008, "Dateidialog", "Add File Dialog"},
    {1009, "ext. Befehl &hinzuf\xFCgen", "Add e&xternal Command"},
    {1010, "&EAGLE Befehl hinzuf\xFCgen", "Add &EAGLE Command"},
    {1011, "&Trennlinie hinzuf\xFCgen", "&Add Separator"},
    {1012, "Eintrag ent&fernen", "Remo&ve Entry"},
    {1014, "&Hilfe", "&Help"},
    {1015, "&Abbruch", "&Cancel"},
    {1016, "&Ok", "&Ok"},
    {1017, "Konfiguration ", "Configuration "},
    {1050, "W\xE4hle Datei zur Ausf\xFChrung", "Select file to execute"},
    {1051, "Applikationen", "Applications"},
    {1052, "EAG&LE Befehl", "EAGLE Com&mand:"},
    {1053,
     "Starte EAG&LE mit Start der Schaltfl\xE4"
     "chenleiste",
     "Start EAG&LE while starting Kestrel Bar"},
    {1054, "Durchsu&chen", "Bro&wse"},
    {1055, "EAGLE &Pfad:", "EAGLE &Path:"},
    {1056, "EAGLE.EXE ausw\xE4hlen", "Select EAGLE.EXE"},
    {1057, "Der Pfad f\xFCr EAGLE.EXE wurde noch nicht korrekt eingetragen.",
     "The path of EAGLE.EXE is wrong. Please select correct path."},
    {1058, "EAGLE.EXE konnte nicht gefunden werden.", "Can't find EAGLE.EXE. Please select"},
    {1059, "Bitte in der Konfiguration korrekt eintragen.", "this file correct in the configuration."},
    {1060,
     "\xD6"
     "ffne EAGLE mit dem letzten Board/Schematic/Library Fenster",
     "Open EAGLE with last Board/Schematic/Library Window"},
    {1061,
     "&\xD6"
     "ffne nur eine EAGLE Instanz",
     "&Open only one EAGLE Instance"},
    {1062, "Akti&viere Einheitenumrechner", "Acti&vate Unit Calculator"},
    {1063, "Einheit &linke Seite", "Unit &left Side"},
    {1064, "Einheit re&chte Seite", "Unit rig&ht Side"},
    {1065, "Genauigkeit linke Seite", "Accuracy left side"},
    {1066, "Genauigkeit rechte Seite", "Accuracy right side"},
    {1067, "Autostart EAGLE", "Autostart EAGLE"},
    {1068, "Einheitenumrechner", "Unit Calculator"},
    {1069, "Globale Optionen", "Global Options"},
    {1070, "Allgemeine Einstellungen", "Basic Options"},
    {1071,
     "Schaltfl\xE4"
     "cheneinstellungen",
     "Button Options"},
    {1072, "Board", "Board"},
    {1073, "Schaltplan", "Schematic"},
    {1074, "Bibliothek", "Library"},
    {1075, "Beende die Kestrel Bar mit dem Beenden von EAGLE", "Close Kestrel Bar while closing EAGLE"},
    {1100, "&Info", "&Info"},
    {1101, "&Hilfe", "&Help"},
    {1102,
     "&EAGLE \xF6"
     "ffnen",
     "&Open EAGLE"},
    {1103, "&Konfiguration", "&Configuration"},
    {1104, "&Beenden", "&Exit"},
    {3100,
     "Fehler beim \xD6"
     "ffnen der Hilfedatei",
     "An Error occurs while opening of the Help File"},
    {3101, "Fehler", "Error"},
    {3930, "Hinweis", "Information"},
};

} // namespace

std::string LoadResString(std::int32_t id) {
    const bool english = id > englishBank;
    const std::int32_t german = english ? id - englishBank : id;
    const auto* const row =
        std::lower_bound(std::begin(rows), std::end(rows), german,
                         [](const Row& one, std::int32_t wanted) { return one.id < wanted; });
    if (row == std::end(rows) || row->id != german)
        throw runtime::RuntimeError(runtime::ErrorNumber::resourceNotFound,
                                    runtime::errorDescription(runtime::ErrorNumber::resourceNotFound, id));
    return runtime::western(english ? row->english : row->german);
}

} // namespace store
