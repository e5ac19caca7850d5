// What the icon chooser of our own says, in both languages.
#include "codePages.h"
#include "store/iconChooserScene.h"

#include <cctype>
#include <set>

using chooserScene::checkSays;
using chooserScene::english;
using chooserScene::enter;
using chooserScene::name;
using chooserScene::reference;
using chooserScene::Scene;
using chooserScene::shellFile;
using desktop::world;
using store::frmIconChooser;

TEST_SUITE_BEGIN("store/iconChooserTexts");

TEST_CASE("the chooser speaks the language that is set, each text with a mnemonic of its own") {
    const Scene scene;
    for (const std::int32_t offset : {0, english}) {
        store::languageOffset = offset;
        Scene::look(reference(shellFile, 0), [](frmIconChooser& form) {
            std::set<char> mnemonics;
            for (const std::string& caption :
                 {form.labFile.caption(), form.btnBrowse.caption(), form.labIcons.caption(),
                  form.btnOk.caption(), form.btnCancel.caption()}) {
                const auto mark = caption.find('&');
                REQUIRE(mark != std::string::npos);
                CHECK(mnemonics.insert(static_cast<char>(std::tolower(caption.at(mark + 1)))).second);
            }
        });
    }
}

TEST_CASE("the German texts") {
    const Scene scene;
    store::languageOffset = 0;
    Scene::look("", [](frmIconChooser& form) {
        CHECK(form.caption() == western("Symbol ausw\xE4hlen"));
        CHECK(form.labFile.caption() == "&Datei:");
        CHECK(form.btnBrowse.caption() == "D&urchsuchen...");
        CHECK(form.labIcons.caption() == "&Symbole in dieser Datei:");
        CHECK(form.btnOk.caption() == "&OK");
        CHECK(form.btnCancel.caption() == "&Abbrechen");
        checkSays(form, western("Geben Sie eine Datei an, die Symbole enth\xE4lt."));
        name(form, "C:\\t\\gone.exe");
        CHECK(form.labMessage.caption() == "Die Eingabetaste zeigt die Symbole dieser Datei.");
        enter(form);
        checkSays(form, "Diese Datei wurde nicht gefunden.");
        name(form, "C:\\t\\notes.txt");
        enter(form);
        checkSays(form, western("Diese Datei enth\xE4lt keine Symbole."));
        form.btnBrowse.click();
        CHECK(world().fileDialogs.at(0).title == western("Datei mit Symbolen \xF6"
                                                         "ffnen"));
        CHECK(world().fileDialogs.at(0).filter.starts_with("Dateien mit Symbolen (*.ico"));
    });
    world().addIcons("C:\\t\\many.dll", 1001);
    Scene::look("C:\\t\\many.dll,0", [](frmIconChooser& form) {
        CHECK(form.labIcons.caption() == "&Symbole in dieser Datei (die ersten 1000):");
    });
}

TEST_SUITE_END();
