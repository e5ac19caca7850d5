// The icon chooser of our own: the file that is named or looked for, and what shows of it.
#include "desktop/toldPeers.h"
#include "store/iconChooserScene.h"

#include "platform/shell32.h"

#include <optional>

using chooserScene::checkSays;
using chooserScene::enter;
using chooserScene::name;
using chooserScene::reference;
using chooserScene::Scene;
using chooserScene::shellFile;
using desktop::world;
using store::frmIconChooser;

TEST_SUITE_BEGIN("store/iconChooserFile");

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
        // A single one does.
        for (const std::string& typed :
             {std::string("\""), "x" + std::string(shellFile) + '"', '"' + std::string(shellFile) + "x"}) {
            name(form, typed);
            enter(form);
            checkSays(form, "This file was not found.");
        }
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
    CHECK(dialog.maxFile == platform::iconPathSize);
    CHECK(dialog.flags == 0x8180C);
}

TEST_CASE("Browse begins without a name if the present one is no file's: the dialog would not come up") {
    const Scene scene;
    for (const char* file : {"C:\\t\\gone.exe", "C:\\t\\*.txt", "C:\\<>"})
        Scene::look(reference(file, 0), [](frmIconChooser& form) { form.btnBrowse.click(); });
    Scene::look("", [](frmIconChooser& form) { form.btnBrowse.click(); });
    // There is such a file, but the dialog has no room for its name.
    const std::string tooLong = "C:\\" + std::string(platform::iconPathSize, 'l');
    world().addIcons(tooLong, 1);
    Scene::look("", [&tooLong](frmIconChooser& form) {
        name(form, tooLong);
        form.btnBrowse.click();
    });
    REQUIRE(world().fileDialogs.size() == 5);
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
        CHECK(form.txtFile.selLength() == 14);
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

TEST_CASE(
    "the keyboard goes to the icons of a file that has been named, and back to the name if it has none") {
    const Scene scene;
    desktop::ToldPeers peers;
    Scene::look("", [&peers](frmIconChooser& form) {
        name(form, shellFile);
        enter(form);
        CHECK(peers.focused == std::vector<const forms::Control*>{&form.grdIcons});
        peers.forget();
        name(form, "C:\\t\\notes.txt");
        enter(form);
        CHECK(peers.focused == std::vector<const forms::Control*>{&form.txtFile});
        peers.forget();
    });
}

TEST_SUITE_END();
