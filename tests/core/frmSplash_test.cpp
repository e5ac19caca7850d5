#include "core/frmSplash.h"

#include "desktop/program.h"

#include <doctest/doctest.h>

#include <functional>
#include <vector>

using core::frmSplash;
using core::splashForm;
using desktop::Program;

TEST_SUITE_BEGIN("core/frmSplash");

TEST_CASE("its controls stand where they are designed") {
    Program program;
    frmSplash& splash = splashForm();
    CHECK(splash.scaleWidth() == 6030);
    CHECK(splash.scaleHeight() == 2865);
    CHECK(splash.backColour() == forms::Colour{0xFFFFC0});
    CHECK(splash.caption().empty());
    CHECK_FALSE(splash.controlBox);
    CHECK_FALSE(splash.showInTaskbar);
    CHECK(splash.borderStyle == forms::BorderStyle::fixedSingle);
    CHECK(splash.Image2.position() == forms::Position{240, 180, 1395, 1395});
    CHECK(splash.Image2.picture().width() == 93);
    CHECK(splash.Image2.picture().height() == 93);
    CHECK(splash.labAuthor.position() == forms::Position{2640, 2160, 3375, 675});
    CHECK(splash.labAuthor.font() == forms::Font{"MS Sans Serif", 9.75F, true, true});
    CHECK_FALSE(splash.labAuthor.caption().empty());
    CHECK(splash.labVersion.position() == forms::Position{180, 2220, 3375, 375});
    CHECK(splash.labVersion.font() == forms::Font{"MS Sans Serif", 13.5F, false, true});
    CHECK(splash.labCaption.position() == forms::Position{2040, 420, 3795, 1335});
    CHECK(splash.labCaption.font() == forms::Font{"MS Sans Serif", 18, false, true});
    CHECK(splash.labCaption.caption() == "Kestrel Strip for EAGLE");
    CHECK(splash.Image1.position() == forms::Position{420, 1020, 5415, 1140});
    CHECK(splash.Image1.picture().width() == 361);
    CHECK(splash.Image1.picture().height() == 76);
}

TEST_CASE("the version is told on load, and in the middle of the screen") {
    Program program;
    CHECK(splashForm().labVersion.caption() == "Version");
    splashForm().load();
    CHECK(splashForm().labVersion.caption() == "Version " KESTREL_VERSION);
    const auto middle = [](int screen, float length) {
        return doctest::Approx((static_cast<float>(screen) * 15 - length) / 2).epsilon(0.001);
    };
    CHECK(splashForm().left() == middle(program.desk().screenWidth, splashForm().width()));
    CHECK(splashForm().top() == middle(program.desk().screenHeight, splashForm().height()));
}

TEST_CASE("it closes itself after two seconds") {
    Program program;
    splashForm().show();
    program.desk().run(1999);
    CHECK(splashForm().visible());
    program.desk().run(1);
    CHECK_FALSE(splashForm().loaded());
}

TEST_CASE("a click anywhere on it closes it") {
    using Click = std::function<void(frmSplash&)>;
    for (const Click& click : std::vector<Click>{[](frmSplash& splash) { splash.Form_Click(); },
                                                 [](frmSplash& splash) { splash.Image1.click(); },
                                                 [](frmSplash& splash) { splash.Image2.click(); },
                                                 [](frmSplash& splash) { splash.labAuthor.click(); },
                                                 [](frmSplash& splash) { splash.labCaption.click(); },
                                                 [](frmSplash& splash) { splash.labVersion.click(); }}) {
        Program program;
        splashForm().show();
        click(splashForm());
        CHECK_FALSE(splashForm().loaded());
        CHECK_FALSE(splashForm().Timer1.enabled());
    }
}

TEST_CASE("each showing loads it anew and has its two seconds") {
    Program program;
    splashForm().show();
    program.desk().run(1500);
    splashForm().Form_Click();
    splashForm().show();
    program.desk().run(1999);
    CHECK(splashForm().visible());
    program.desk().run(1);
    CHECK_FALSE(splashForm().loaded());
}

TEST_CASE("it holds the start for two seconds, in which nothing is tracked and no icon stands") {
    Program program;
    program.desk().startProcess("eagle.exe");
    program.desk().openWindow("Board - a.brd - EAGLE");
    bool seen = false;
    program.desk().modalScripts.emplace_back([&](forms::Form& form) {
        seen = &form == &splashForm();
        CHECK_FALSE(program.form().Timer2.enabled());
        CHECK_FALSE(program.desk().trayIcon.has_value());
        CHECK(program.desk().settingsReads == 0);
    });
    REQUIRE(program.start());
    CHECK(seen);
    CHECK(program.desk().now == 2000);
    CHECK(program.hosted(store::EditorKind::board) == 0);
    program.ticks(1);
    CHECK(program.hosted(store::EditorKind::board) == 1);
}

TEST_CASE("a click on it lets the start go on at once") {
    Program program;
    program.desk().modalScripts.emplace_back([](forms::Form&) { splashForm().Image1.click(); });
    REQUIRE(program.start());
    CHECK(program.desk().now == 0);
    CHECK(program.form().Timer2.enabled());
}

TEST_SUITE_END();
