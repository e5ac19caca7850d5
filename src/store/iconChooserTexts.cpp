#include "store/iconChooserTexts.h"

#include "runtime/western.h"
#include "store/state.h"

namespace store {

namespace {

const IconChooserTexts& german() {
    using runtime::western;
    static const IconChooserTexts texts{
        .title = western("Symbol ausw\xE4hlen"),
        .file = "&Datei:",
        .browse = "D&urchsuchen...",
        .icons = "&Symbole in dieser Datei",
        .onlyTheFirst = "die ersten",
        .ok = "&OK",
        .cancel = "&Abbrechen",
        .noFile = western("Geben Sie eine Datei an, die Symbole enth\xE4lt."),
        .unread = "Die Eingabetaste zeigt die Symbole dieser Datei.",
        .notFound = "Diese Datei wurde nicht gefunden.",
        .noIcons = western("Diese Datei enth\xE4lt keine Symbole."),
        .browseTitle = western("Datei mit Symbolen \xF6"
                               "ffnen"),
        .iconFiles = "Dateien mit Symbolen",
        .allFiles = "Alle Dateien",
    };
    return texts;
}

const IconChooserTexts& english() {
    static const IconChooserTexts texts{
        .title = "Choose Icon",
        .file = "&File:",
        .browse = "&Browse...",
        .icons = "&Icons in this file",
        .onlyTheFirst = "the first",
        .ok = "&OK",
        .cancel = "&Cancel",
        .noFile = "Enter a file that contains icons.",
        .unread = "Press Enter to see the icons of this file.",
        .notFound = "This file was not found.",
        .noIcons = "This file contains no icons.",
        .browseTitle = "Open a File with Icons",
        .iconFiles = "Files with icons",
        .allFiles = "All files",
    };
    return texts;
}

} // namespace

const IconChooserTexts& iconChooserTexts() {
    return languageOffset == 0 ? german() : english();
}

} // namespace store
