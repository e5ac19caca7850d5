// The icon chooser of our own: when it steps in, and what it gives.
#include "codePages.h"
#include "store/iconChooserScene.h"

#include "platform/shell32.h"

#include <vector>

using chooserScene::enter;
using chooserScene::name;
using chooserScene::reference;
using chooserScene::Scene;
using chooserScene::setupWindow;
using chooserScene::shellFile;
using desktop::world;
using store::frmIconChooser;

TEST_SUITE_BEGIN("store/iconChooser");

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

TEST_CASE("a cancelled chooser gives no icon, a confirmed one its file and index") {
    const Scene scene;
    const store::IconReference start{std::string(200, 'x'), 7};
    world().modalScripts.emplace_back([](forms::Form& form) { form.closeRequested(); });
    CHECK_FALSE(store::pickIcon(setupWindow, start).has_value());
    world().modalScripts.emplace_back([&start](forms::Form& form) {
        auto& chooser = dynamic_cast<frmIconChooser&>(form);
        CHECK(chooser.txtFile.text() == start.file);
        name(chooser, shellFile);
        enter(chooser);
        chooser.grdIcons.selected(3);
        enter(chooser);
    });
    CHECK(store::pickIcon(setupWindow, start) == store::IconReference{shellFile, 3});
}

TEST_CASE("a start file that is too long for the chooser is cut") {
    const Scene scene;
    Scene::look(reference(std::string(300, 'b'), 0),
                [](frmIconChooser& form) { CHECK(form.txtFile.text() == std::string(259, 'b')); });
    Scene::look(reference(std::string(259, 'a'), 0),
                [](frmIconChooser& form) { CHECK(form.txtFile.text() == std::string(259, 'a')); });
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

TEST_CASE("a file that just fits the chooser's buffer comes back whole, a longer one is not found") {
    const Scene scene;
    const std::string longest = "C:\\" + std::string(platform::iconPathSize - 4, 'l');
    const std::string tooLong = longest + "l";
    world().addIcons(longest, 1);
    world().addIcons(tooLong, 1);
    CHECK(Scene::choose(reference(longest, 0), enter) == reference(longest, 0));
    Scene::look("", [&tooLong](frmIconChooser& form) {
        name(form, tooLong);
        enter(form);
        CHECK(form.grdIcons.count() == 0);
        CHECK_FALSE(form.btnOk.enabled());
        CHECK(form.txtFile.maxLength == static_cast<int>(platform::iconPathSize) - 1);
    });
}

TEST_CASE("a file name with umlauts comes back as it was") {
    const Scene scene;
    world().addIcons(western("C:\\\xFC\x80\\\xDF.ico"), 1);
    CHECK(Scene::choose(western("C:\\\xFC\x80\\\xDF.ico,0"), enter) == western("C:\\\xFC\x80\\\xDF.ico,0"));
}

TEST_CASE("the chooser is a fixed dialog in the middle of the screen, without a button in the task bar") {
    const Scene scene;
    Scene::look(reference(shellFile, 0), [](frmIconChooser& form) {
        CHECK(form.borderStyle == forms::BorderStyle::fixedDialog);
        CHECK_FALSE(form.showInTaskbar);
        const platform::RECT place = world().window(form.hWnd()).rect;
        CHECK(place.left == (1280 - (place.right - place.left)) / 2);
        CHECK(place.top == (1024 - (place.bottom - place.top)) / 2);
    });
}

TEST_CASE("the chooser's controls have room in it and beside each other, the message in place of the grid") {
    const Scene scene;
    Scene::look(reference(shellFile, 0), [](frmIconChooser& form) {
        CHECK(form.scaleWidth() == 7350);
        CHECK(form.scaleHeight() == 6255);
        for (const forms::Control* one : form.controls()) {
            CHECK(one->left() >= 0);
            CHECK(one->top() >= 0);
            CHECK(one->left() + one->width() <= form.scaleWidth());
            CHECK(one->top() + one->height() <= form.scaleHeight());
            for (const forms::Control* other : form.controls())
                if (one != other && one != &form.labMessage && other != &form.labMessage)
                    CHECK((one->left() + one->width() <= other->left() ||
                           other->left() + other->width() <= one->left() ||
                           one->top() + one->height() <= other->top() ||
                           other->top() + other->height() <= one->top()));
        }
        CHECK(form.btnOk.top() == form.btnCancel.top());
        for (const forms::CommandButton* button : {&form.btnOk, &form.btnCancel, &form.btnBrowse})
            CHECK(button->height() == 375);
        CHECK(form.btnOk.width() == form.btnCancel.width());
        CHECK(form.labMessage.alignment == forms::Alignment::centre);
        CHECK(form.labMessage.left() == form.grdIcons.left());
        CHECK(form.labMessage.width() == form.grdIcons.width());
        CHECK(form.labMessage.top() > form.grdIcons.top());
        CHECK(form.labMessage.top() + form.labMessage.height() <
              form.grdIcons.top() + form.grdIcons.height());
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

TEST_SUITE_END();
