// The icon chooser of our own, which steps in where the shell has none.
#include "store/iconChooser.h"

#include "core/state.h"
#include "desktop/desktop.h"
#include "store/frmIconChooser.h"
#include "store/iconExtract.h"

#include <doctest/doctest.h>

#include <algorithm>
#include <array>
#include <set>

using desktop::world;
using desktop::World;
using store::frmIconChooser;

namespace {

constexpr platform::HWND setupWindow{0x42};
constexpr const char* shellFile = "C:\\t\\shell.dll";
constexpr std::int32_t english = 10000;

/// A desktop whose shell has no chooser, with a file of 40 icons, one without and the language English.
class Scene {
  public:
    Scene() {
        core::languageOffset = english;
        world().addIcons(shellFile, 40);
        world().writeFile("C:\\t\\notes.txt", "text");
    }
    ~Scene() { core::languageOffset = 0; }
    Scene(const Scene&) = delete;
    Scene& operator=(const Scene&) = delete;

    /// What chooseIconFile gives when the user does this with the chooser.
    static std::string choose(const std::string& reference,
                              const std::function<void(frmIconChooser&)>& user) {
        world().modalScripts.emplace_back(
            [user](forms::Form& form) { user(dynamic_cast<frmIconChooser&>(form)); });
        return store::chooseIconFile(reference, setupWindow);
    }

    /// The same for a user who only looks.
    static void look(const std::string& reference, const std::function<void(frmIconChooser&)>& user) {
        CHECK(choose(reference, [&user](frmIconChooser& form) {
                  user(form);
                  form.btnCancel.click();
              }) == "");
    }

  private:
    desktop::Session session_;
};

std::string reference(const std::string& file, int index) {
    return file + "," + std::to_string(index);
}

/// The user replaces the name of the file.
void name(frmIconChooser& form, const std::string& file) {
    form.txtFile.edited(file);
}

/// The user presses Enter anywhere but on a button.
void enter(frmIconChooser& form) {
    form.btnOk.click();
}

/// No icons, but this text, and nothing to confirm.
void checkSays(const frmIconChooser& form, const std::string& message) {
    CHECK(form.labMessage.visible());
    CHECK(form.labMessage.caption() == message);
    CHECK_FALSE(form.grdIcons.visible());
    CHECK(form.grdIcons.count() == 0);
    CHECK_FALSE(form.btnOk.enabled());
}

} // namespace

TEST_CASE(
    "where the shell has no chooser ours comes up, with the file's icons and the present one selected") {
    const Scene scene;
    Scene::look(reference(shellFile, 12), [](frmIconChooser& form) {
        CHECK(form.caption() == "Choose Icon");
        CHECK(form.txtFile.text() == shellFile);
        CHECK(form.labIcons.caption() == "&Icons in this file:");
        CHECK(form.grdIcons.visible());
        CHECK_FALSE(form.labMessage.visible());
        CHECK(form.grdIcons.count() == 40);
        CHECK(form.grdIcons.selectedIndex() == 12);
        CHECK(form.btnOk.enabled());
        CHECK(form.firstFocus == &form.grdIcons);
        CHECK(world().window(form.hWnd()).owner == setupWindow);
    });
    CHECK(world().chooserCalls.size() == 1);
}

TEST_CASE("a cancel in the shell's own chooser is a cancel, and so is any other result but -1") {
    const Scene scene;
    // Ours would wait for a user who does not come.
    world().chooserAnswers = {{0, u"C:\\t\\shell.dll", 1}, {2, u"C:\\t\\shell.dll", 1}};
    CHECK(store::chooseIconFile(reference(shellFile, 1), setupWindow) == "");
    CHECK(store::chooseIconFile(reference(shellFile, 1), setupWindow) == "");
}

TEST_CASE("OK gives the icon that the user has selected, at once the present one") {
    const Scene scene;
    CHECK(Scene::choose(reference(shellFile, 12), enter) == reference(shellFile, 12));
    CHECK(Scene::choose(reference(shellFile, 12), [](frmIconChooser& form) {
              form.grdIcons.selected(39);
              form.btnOk.click();
          }) == reference(shellFile, 39));
}

TEST_CASE("a double click takes an icon") {
    const Scene scene;
    CHECK(Scene::choose(reference(shellFile, 12), [](frmIconChooser& form) {
              form.grdIcons.doubleClicked(7);
          }) == reference(shellFile, 7));
}

TEST_CASE("Cancel and the close box give the empty text") {
    const Scene scene;
    CHECK(Scene::choose(reference(shellFile, 12), [](frmIconChooser& form) {
              form.grdIcons.selected(3);
              form.btnCancel.click();
          }) == "");
    CHECK(Scene::choose(reference(shellFile, 12), [](frmIconChooser& form) { form.closeRequested(); }) == "");
}

TEST_CASE("a cancelled chooser leaves file and index as they were, a confirmed one ends the file by NUL") {
    const Scene scene;
    std::array<char16_t, store::iconPathSize> buffer = {};
    const std::u16string start(200, u'x');
    std::copy(start.begin(), start.end(), buffer.begin());
    const auto before = buffer;
    std::int32_t index = 7;
    world().modalScripts.emplace_back([](forms::Form& form) { form.closeRequested(); });
    CHECK(store::pickIcon(setupWindow, buffer, index) == 0);
    CHECK(buffer == before);
    CHECK(index == 7);
    world().modalScripts.emplace_back([](forms::Form& form) {
        auto& chooser = dynamic_cast<frmIconChooser&>(form);
        name(chooser, shellFile);
        enter(chooser);
        chooser.grdIcons.selected(3);
        enter(chooser);
    });
    CHECK(store::pickIcon(setupWindow, buffer, index) == 1);
    std::array<char16_t, store::iconPathSize> expected = {};
    const std::u16string chosen = u"C:\\t\\shell.dll";
    std::copy(chosen.begin(), chosen.end(), expected.begin());
    CHECK(buffer == expected);
    CHECK(index == 3);
}

TEST_CASE("a file that just fits the chooser's buffer comes back whole, a longer one is not found") {
    const Scene scene;
    const std::string longest = "C:\\" + std::string(store::iconPathSize - 4, 'l');
    const std::string tooLong = longest + "l";
    world().addIcons(longest, 1);
    world().addIcons(tooLong, 1);
    CHECK(Scene::choose(reference(longest, 0), enter) == reference(longest, 0));
    Scene::look("", [&tooLong](frmIconChooser& form) {
        name(form, tooLong);
        enter(form);
        CHECK(form.grdIcons.count() == 0);
        CHECK_FALSE(form.btnOk.enabled());
        CHECK(form.txtFile.maxLength == static_cast<int>(store::iconPathSize) - 1);
    });
}

TEST_CASE("a file name with umlauts comes back as it was") {
    const Scene scene;
    world().addIcons("C:\\\xFC\x80\\\xDF.ico", 1);
    CHECK(Scene::choose("C:\\\xFC\x80\\\xDF.ico,0", enter) == "C:\\\xFC\x80\\\xDF.ico,0");
}

TEST_CASE("an index that the file does not have selects none, and there is nothing to confirm until one is") {
    const Scene scene;
    for (const int index : {40, -1, 2147483647})
        CHECK(Scene::choose(reference(shellFile, index), [](frmIconChooser& form) {
                  CHECK(form.grdIcons.count() == 40);
                  CHECK(form.grdIcons.selectedIndex() == -1);
                  CHECK_FALSE(form.btnOk.enabled());
                  enter(form);
                  REQUIRE(form.loaded());
                  form.grdIcons.selected(0);
                  CHECK(form.btnOk.enabled());
                  enter(form);
              }) == reference(shellFile, 0));
}

TEST_CASE("without a file the chooser asks for one") {
    const Scene scene;
    Scene::look("", [](frmIconChooser& form) {
        CHECK(form.txtFile.text().empty());
        CHECK(form.labIcons.caption() == "&Icons in this file:");
        checkSays(form, "Enter a file that contains icons.");
    });
}

TEST_CASE("a file without icons and one that is not there are told apart") {
    const Scene scene;
    Scene::look("C:\\t\\notes.txt,0",
                [](frmIconChooser& form) { checkSays(form, "This file contains no icons."); });
    Scene::look("C:\\t\\gone.exe,0",
                [](frmIconChooser& form) { checkSays(form, "This file was not found."); });
    // Not a name of one file, although there are some that it fits.
    for (const char* file : {"C:\\t\\*.txt", "C:\\t\\note?.txt", "C:\\t"})
        Scene::look(reference(file, 0),
                    [](frmIconChooser& form) { checkSays(form, "This file was not found."); });
}

TEST_CASE("with the first change of the name the icons go, and Enter brings those of the new file") {
    const Scene scene;
    world().addIcons("C:\\t\\two.ico", 2);
    CHECK(Scene::choose(reference(shellFile, 12), [](frmIconChooser& form) {
              name(form, "C:\\t\\two.ic");
              CHECK(form.grdIcons.count() == 0);
              CHECK_FALSE(form.grdIcons.visible());
              CHECK(form.labMessage.visible());
              CHECK(form.labMessage.caption() == "Press Enter to see the icons of this file.");
              CHECK(form.btnOk.enabled());
              name(form, "C:\\t\\two.ico");
              enter(form);
              REQUIRE(form.loaded());
              CHECK(form.grdIcons.visible());
              CHECK_FALSE(form.labMessage.visible());
              CHECK(form.grdIcons.count() == 2);
              CHECK(form.grdIcons.selectedIndex() == 0);
              form.grdIcons.selected(1);
              enter(form);
          }) == "C:\\t\\two.ico,1");
}

TEST_CASE("a name that leads to no icons is selected, to be typed over, and another one can follow") {
    const Scene scene;
    CHECK(Scene::choose("", [](frmIconChooser& form) {
              name(form, "C:\\t\\gone.exe");
              enter(form);
              checkSays(form, "This file was not found.");
              CHECK(form.txtFile.selStart() == 0);
              CHECK(form.txtFile.selLength() == 13);
              name(form, "C:\\t\\notes.txt");
              enter(form);
              checkSays(form, "This file contains no icons.");
              enter(form);
              REQUIRE(form.loaded());
              name(form, "");
              checkSays(form, "Enter a file that contains icons.");
              name(form, shellFile);
              enter(form);
              enter(form);
          }) == reference(shellFile, 0));
}

TEST_CASE("a new name takes the old selection with it, even if it is the old name again") {
    const Scene scene;
    Scene::look(reference(shellFile, 12), [](frmIconChooser& form) {
        name(form, "C:\\t\\shell.dl");
        name(form, shellFile);
        CHECK(form.grdIcons.count() == 0);
        enter(form);
        CHECK(form.grdIcons.selectedIndex() == 0);
    });
}

TEST_CASE("blanks and quotes around a name do not belong to it") {
    const Scene scene;
    for (const std::string& typed : {std::string("  ") + shellFile + " ", '"' + std::string(shellFile) + '"',
                                     " \" " + std::string(shellFile) + " \" "})
        CHECK(Scene::choose("", [&typed](frmIconChooser& form) {
                  name(form, typed);
                  enter(form);
                  CHECK(form.txtFile.text() == shellFile);
                  enter(form);
              }) == reference(shellFile, 0));
    Scene::look("", [](frmIconChooser& form) {
        for (const char* typed : {"   ", "\"\""}) {
            name(form, typed);
            checkSays(form, "Enter a file that contains icons.");
        }
        name(form, "\"");
        enter(form);
        checkSays(form, "This file was not found.");
    });
}

TEST_CASE("Browse asks for a file, from the present one on, and shows its icons") {
    const Scene scene;
    world().addIcons("C:\\t\\two.ico", 2);
    world().fileAnswers = {"C:\\t\\two.ico"};
    CHECK(Scene::choose(reference(shellFile, 12), [](frmIconChooser& form) {
              form.btnBrowse.click();
              REQUIRE(world().fileDialogs.size() == 1);
              CHECK(world().fileDialogs[0].owner == form.hWnd());
              CHECK(form.txtFile.text() == "C:\\t\\two.ico");
              CHECK(form.grdIcons.count() == 2);
              CHECK(form.grdIcons.selectedIndex() == 0);
              enter(form);
          }) == "C:\\t\\two.ico,0");
    const desktop::FileDialog& dialog = world().fileDialogs[0];
    CHECK_FALSE(dialog.save);
    CHECK(dialog.file == shellFile);
    CHECK(dialog.initialDir.empty());
    CHECK(dialog.title == "Open a File with Icons");
    using namespace std::string_literals;
    CHECK(dialog.filter == "Files with icons (*.ico;*.exe;*.dll)\0*.ico;*.exe;*.dll\0All files\0*.*"s);
    CHECK(dialog.filterIndex == 1);
    CHECK(dialog.structSize == platform::fileDialogRecordSize);
    CHECK(dialog.maxFile == store::iconPathSize);
    CHECK(dialog.flags == 0x8180C);
}

TEST_CASE("Browse begins without a name if the present one is no file's: the dialog would not come up") {
    const Scene scene;
    for (const char* file : {"C:\\t\\gone.exe", "C:\\t\\*.txt", "C:\\<>"})
        Scene::look(reference(file, 0), [](frmIconChooser& form) { form.btnBrowse.click(); });
    Scene::look("", [](frmIconChooser& form) { form.btnBrowse.click(); });
    REQUIRE(world().fileDialogs.size() == 4);
    for (const desktop::FileDialog& dialog : world().fileDialogs)
        CHECK(dialog.file.empty());
}

TEST_CASE("Browse and Cancel leave the chooser as it was") {
    const Scene scene;
    world().fileAnswers = {std::nullopt};
    Scene::look(reference(shellFile, 12), [](frmIconChooser& form) {
        form.btnBrowse.click();
        CHECK(form.txtFile.text() == shellFile);
        CHECK(form.grdIcons.selectedIndex() == 12);
        CHECK(form.btnOk.enabled());
    });
}

TEST_CASE("Browse to a file without icons says so") {
    const Scene scene;
    world().fileAnswers = {"C:\\t\\notes.txt"};
    Scene::look(reference(shellFile, 12), [](frmIconChooser& form) {
        form.btnBrowse.click();
        checkSays(form, "This file contains no icons.");
    });
}

TEST_CASE("no icon is read before it is seen") {
    const Scene scene;
    Scene::look(reference(shellFile, 12), [](frmIconChooser& form) {
        const auto before = world().nextIcon;
        form.grdIcons.picture(12);
        CHECK(world().nextIcon > before);
        CHECK(before == World().nextIcon);
    });
}

TEST_CASE("the pictures are those of the file's icons, and every icon is given back") {
    const Scene scene;
    Scene::look(reference(shellFile, 0), [](frmIconChooser& form) {
        for (int index = 0; index < form.grdIcons.count(); ++index) {
            const forms::Picture shown = form.grdIcons.picture(index);
            const forms::Picture icon = World::iconPicture(shellFile, index);
            CHECK(shown.width() == 32);
            CHECK(shown.pixel(15, 15) == icon.pixel(15, 15));
            CHECK(shown.pixel(16, 15) == 0);
        }
        world().iconFiles.clear();
        CHECK(form.grdIcons.picture(3) == forms::Picture(32, 32, std::vector<std::uint32_t>(1024)));
    });
    CHECK(world().icons.empty());
}

TEST_CASE("an icon keeps its opacity") {
    const Scene scene;
    const std::vector<std::uint32_t> kinds{0xFF102030U, 0x80FF8000U, 0x00123456U, 0xFFFFFFFFU, 0xFF000000U};
    std::vector<std::uint32_t> pixels(1024);
    std::copy(kinds.begin(), kinds.end(), pixels.begin());
    world().writeFile("C:\\t\\half.ico", "");
    world().iconFiles["c:\\t\\half.ico"].small = {forms::Picture(32, 32, pixels)};
    Scene::look("C:\\t\\half.ico,0", [&kinds](frmIconChooser& form) {
        const forms::Picture shown = form.grdIcons.picture(0);
        for (int column = 0; column < 5; ++column) {
            const std::uint32_t drawn = kinds[static_cast<std::size_t>(column)];
            CHECK(shown.pixel(column, 0) == (drawn >> 24U == 0 ? 0 : drawn));
        }
    });
}

TEST_CASE("of a file with very many icons the first thousand are shown, and the heading says so") {
    const Scene scene;
    world().addIcons("C:\\t\\just.dll", 1000);
    world().addIcons("C:\\t\\many.dll", 1001);
    Scene::look("C:\\t\\just.dll,999", [](frmIconChooser& form) {
        CHECK(form.grdIcons.count() == 1000);
        CHECK(form.grdIcons.selectedIndex() == 999);
        CHECK(form.labIcons.caption() == "&Icons in this file:");
    });
    Scene::look("C:\\t\\many.dll,1000", [](frmIconChooser& form) {
        CHECK(form.grdIcons.count() == 1000);
        CHECK(form.grdIcons.selectedIndex() == -1);
        CHECK(form.labIcons.caption() == "&Icons in this file (the first 1000):");
        name(form, shellFile);
        CHECK(form.labIcons.caption() == "&Icons in this file:");
    });
}

TEST_CASE("Enter is OK, Esc is Cancel, and the Tab key goes from the file down to the buttons") {
    const Scene scene;
    Scene::look(reference(shellFile, 0), [](frmIconChooser& form) {
        CHECK(form.btnOk.isDefault);
        CHECK(form.btnCancel.isCancel);
        const std::vector<forms::Control*> order{&form.labFile,  &form.txtFile,  &form.btnBrowse,
                                                 &form.labIcons, &form.grdIcons, &form.labMessage,
                                                 &form.btnOk,    &form.btnCancel};
        CHECK(form.controls() == order);
        for (const forms::Control* control : order)
            CHECK_FALSE(control->tabIndex.has_value());
    });
}

TEST_CASE("the chooser speaks the language that is set, each text with a mnemonic of its own") {
    const Scene scene;
    for (const std::int32_t offset : {0, english}) {
        core::languageOffset = offset;
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
    core::languageOffset = 0;
    Scene::look("", [](frmIconChooser& form) {
        CHECK(form.caption() == "Symbol ausw\xE4hlen");
        CHECK(form.labFile.caption() == "&Datei:");
        CHECK(form.btnBrowse.caption() == "D&urchsuchen...");
        CHECK(form.labIcons.caption() == "&Symbole in dieser Datei:");
        CHECK(form.btnOk.caption() == "&OK");
        CHECK(form.btnCancel.caption() == "&Abbrechen");
        checkSays(form, "Geben Sie eine Datei an, die Symbole enth\xE4lt.");
        name(form, "C:\\t\\gone.exe");
        CHECK(form.labMessage.caption() == "Die Eingabetaste zeigt die Symbole dieser Datei.");
        enter(form);
        checkSays(form, "Diese Datei wurde nicht gefunden.");
        name(form, "C:\\t\\notes.txt");
        enter(form);
        checkSays(form, "Diese Datei enth\xE4lt keine Symbole.");
        form.btnBrowse.click();
        CHECK(world().fileDialogs.at(0).title == "Datei mit Symbolen \xF6"
                                                 "ffnen");
        CHECK(world().fileDialogs.at(0).filter.starts_with("Dateien mit Symbolen (*.ico"));
    });
    world().addIcons("C:\\t\\many.dll", 1001);
    Scene::look("C:\\t\\many.dll,0", [](frmIconChooser& form) {
        CHECK(form.labIcons.caption() == "&Symbole in dieser Datei (die ersten 1000):");
    });
}
