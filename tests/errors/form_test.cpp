#include "codePages.h"
#include "errors/report.h"

#include "errors/support.h"

#include <doctest/doctest.h>

using desktop::world;
using errors::ErrPtnr;
using forms::Position;
using report::Inside;

namespace {

constexpr forms::Colour white = 0xFFFFFF;
constexpr forms::Colour red = 0xFF0000;

const forms::Font plain{"MS Sans Serif", 8.25F, false, false};
const forms::Font bold{"MS Sans Serif", 8.25F, true, false};

} // namespace

TEST_SUITE_BEGIN("errors/form");

TEST_CASE("the form of a report: a dialog's border and no box") {
    const desktop::Session session;
    const ErrPtnr form;
    CHECK(form.borderStyle == forms::BorderStyle::fixedDialog);
    CHECK_FALSE(form.controlBox);
    CHECK_FALSE(form.showInTaskbar);
    CHECK(form.caption() == "ProgInfo - Fehlermeldung");
    CHECK(form.scaleWidth() == 7215);
    CHECK(form.scaleHeight() == 4920 + 855);
}

TEST_CASE("the frames of a report at design time") {
    const desktop::Session session;
    const ErrPtnr form;
    CHECK(form.framComment.position() == Position{0, 0, 7215, 975});
    CHECK(form.framFehler.position() == Position{0, 960, 7215, 1575});
    CHECK(form.framProtocol.position() == Position{0, 2520, 7215, 735});
    CHECK(form.framCallStack.position() == Position{0, 3240, 7215, 1695});
    CHECK(form.framContinue.position() == Position{0, 4920, 7215, 855});
    CHECK(form.framComment.caption().empty());
    CHECK(form.framComment.backColour() == forms::Colour{0});
    CHECK(form.framComment.foreColour() == red);
    CHECK(form.framComment.font() == plain);
    CHECK(form.framFehler.caption() == "Fehlerbeschreibung:");
    CHECK(form.framFehler.foreColour() == forms::Colour{0});
    CHECK(form.framProtocol.caption() == "Fehlerprotokoll ...");
    CHECK(form.framCallStack.caption() == "CallStack:");
    CHECK(form.framContinue.caption() == "Weiterer Programmablauf...");
    for (const forms::Frame* frame :
         {&form.framFehler, &form.framProtocol, &form.framCallStack, &form.framContinue})
        CHECK(frame->font() == bold);
}

TEST_CASE("the labels and the list of a report at design time") {
    const desktop::Session session;
    const ErrPtnr form;
    CHECK(form.lblComment.position() == Position{120, 120, 6975, 735});
    CHECK(form.lblComment.foreColour() == white);
    CHECK_FALSE(form.lblComment.backColour().has_value());
    CHECK(form.lblComment.wordWrap);
    CHECK(form.lblComment.font() == bold);
    CHECK(form.Label1.position() == Position{90, 240, 705, 900});
    CHECK(form.Label1.caption() == " ! ");
    CHECK(form.Label1.foreColour() == red);
    CHECK(form.Label1.font() == forms::Font{"Arial", 36, true, false});
    CHECK(form.Label1.alignment == forms::Alignment::centre);
    CHECK(form.Label1.border);
    CHECK(form.Label1.autoSize);
    const char* const titles[] = {"Fehler-Nr:", "Modul:", "Prozedur:", "Zeilen-Nr.:"};
    const float top[] = {240, 720, 960, 1200};
    for (std::size_t index = 0; index < 4; ++index) {
        CHECK(form.lblErrTitel[index].caption() == titles[index]);
        CHECK(form.lblErrTitel[index].position() == Position{960, top[index], 975, 255});
        CHECK(form.lblError[index].backColour() == white);
        CHECK(form.lblError[index].border);
        CHECK_FALSE(form.lblError[index].mnemonic);
        CHECK(form.lblError[index].autoSize == (index > 0));
        CHECK(form.lblError[index].position() ==
              (index == 0 ? Position{2040, 240, 5085, 495} : Position{2040, top[index], 840, 255}));
    }
    CHECK(form.lstCallStack.position() == Position{120, 240, 6975, 1395});
}

TEST_CASE("the buttons of a report at design time") {
    const desktop::Session session;
    const ErrPtnr form;
    const char* const protocol[] = {"&Drucken", "&Speichern", "&EMail", "&WWW"};
    const std::string next[] = {"Befehl wieder&holen",
                                western("Fortsetzen mit &n\xE4"
                                        "chsten Befehl"),
                                "&Prozedur verlassen", "Programm &beenden"};
    const float left[] = {240, 2040, 3840, 5640};
    for (std::size_t index = 0; index < 4; ++index) {
        CHECK(form.cmdProtocol[index].caption() == protocol[index]);
        CHECK(form.cmdProtocol[index].position() == Position{left[index], 240, 1335, 375});
        CHECK(form.cmdContinue[index].caption() == next[index]);
        CHECK(form.cmdContinue[index].position() == Position{left[index], 240, 1335, 495});
    }
}

TEST_CASE("the tab order follows the frames from top to bottom and the buttons from left to right") {
    const desktop::Session session;
    ErrPtnr form;
    using Controls = std::vector<forms::Control*>;
    CHECK(form.controls() == Controls{&form.framComment, &form.framFehler, &form.framProtocol,
                                      &form.framCallStack, &form.framContinue});
    CHECK(form.framProtocol.controls() ==
          Controls{&form.cmdProtocol[0], &form.cmdProtocol[1], &form.cmdProtocol[2], &form.cmdProtocol[3]});
    CHECK(form.framContinue.controls() ==
          Controls{&form.cmdContinue[0], &form.cmdContinue[1], &form.cmdContinue[2], &form.cmdContinue[3]});
    CHECK(form.framCallStack.controls() == Controls{&form.lstCallStack});
    CHECK(form.framComment.controls() == Controls{&form.lblComment});
    CHECK(form.framFehler.controls().size() == 9);
    for (const forms::Control* control : form.controls())
        CHECK_FALSE(control->tabIndex.has_value());
}

TEST_CASE("the frames are stacked without the protocol's, and the inner area fits them") {
    const desktop::Session session;
    ErrPtnr form;
    form.load();
    Inside::arrange(form, 8);
    CHECK(form.framComment.position() == Position{0, 0, 7215, 975});
    CHECK(form.framFehler.position() == Position{0, 975, 7215, 1575});
    CHECK(form.framCallStack.position() == Position{0, 2550, 7215, 1695});
    CHECK(form.framContinue.position() == Position{0, 4245, 7215, 855});
    CHECK(form.scaleWidth() == 7215);
    CHECK(form.scaleHeight() == 5100);
    const forms::FrameExtent border = forms::frameExtent(form);
    CHECK(form.width() == 7215 + static_cast<float>(15 * border.width));
    CHECK(form.height() == 5100 + static_cast<float>(15 * border.height));
}

TEST_CASE("the frames are stacked by their own heights, from wherever they stand") {
    const desktop::Session session;
    ErrPtnr form;
    form.load();
    form.framComment.setPosition({30, 300, 7215, 600});
    form.framFehler.setPosition({30, 300, 6000, 1500});
    form.framCallStack.setPosition({30, 300, 7215, 900});
    form.framContinue.setPosition({30, 300, 7215, 300});
    Inside::arrange(form, 8);
    CHECK(form.framComment.position() == Position{0, 0, 7215, 600});
    CHECK(form.framFehler.position() == Position{0, 600, 6000, 1500});
    CHECK(form.framCallStack.position() == Position{0, 2100, 7215, 900});
    CHECK(form.framContinue.position() == Position{0, 3000, 7215, 300});
    CHECK(form.scaleWidth() == 6000);
    CHECK(form.scaleHeight() == 3300);
}

TEST_CASE("arranging again changes nothing") {
    const desktop::Session session;
    ErrPtnr form;
    form.load();
    Inside::arrange(form, 8);
    const Position first = form.position();
    Inside::arrange(form, 8);
    CHECK(form.position() == first);
    CHECK(form.framContinue.top() == 4245);
}

TEST_CASE("the form stands in the middle of the whole screen") {
    const desktop::Session session;
    world().screenWidth = 1600;
    world().screenHeight = 1200;
    ErrPtnr form;
    form.load();
    Inside::arrange(form, 8);
    CHECK(form.left() == (1600 * 15 - form.width()) / 2);
    CHECK(form.top() == (1200 * 15 - form.height()) / 2);
}

TEST_CASE("a screen that is smaller than the form leaves its middle there") {
    const desktop::Session session;
    world().screenWidth = 320;
    world().screenHeight = 200;
    ErrPtnr form;
    form.load();
    Inside::arrange(form, 8);
    CHECK(form.left() < 0);
    CHECK(form.left() == (320 * 15 - form.width()) / 2);
    CHECK(form.top() == (200 * 15 - form.height()) / 2);
}

TEST_CASE("hidden frames are shown again, the protocol's stays invisible") {
    const desktop::Session session;
    ErrPtnr form;
    form.load();
    form.framComment.setVisible(false);
    form.framFehler.setVisible(false);
    form.framCallStack.setVisible(false);
    Inside::arrange(form, 8);
    CHECK(form.framComment.visible());
    CHECK(form.framFehler.visible());
    CHECK(form.framCallStack.visible());
    CHECK(form.framContinue.visible());
    CHECK_FALSE(form.framProtocol.visible());
    CHECK_FALSE(world().window(form.framProtocol.hWnd()).visible);
}

TEST_CASE("the comment names a fixed file, whatever the executable is called") {
    const desktop::Session session;
    world().executableName = "Anders";
    ErrPtnr form;
    report::ask(form);
    CHECK(form.lblComment.caption() == "Bitte senden Sie die KESTREL_RUN.EPT im Applikationsverzeichnis an " +
                                           std::string(errors::supportMail) + ".\r\n");
    CHECK(world().fileText("C:\\kestrel\\Anders.EPT").has_value());
    CHECK_FALSE(world().fileText("C:\\kestrel\\KESTREL_RUN.EPT").has_value());
}

TEST_CASE("a long description leaves its label and the lines under it where they are") {
    const desktop::Session session;
    ErrPtnr form;
    report::askAbout(runtime::RuntimeError(runtime::ErrorNumber::invalidCall, std::string(10'000, 'x')),
                     form);
    CHECK(form.lblError[0].position() == Position{2040, 240, 5085, 495});
    CHECK_FALSE(form.lblError[0].autoSize);
    CHECK(form.lblError[0].wordWrap);
    CHECK(form.lblError[1].top() == 720);
    CHECK(form.lblError[0].caption() == "5 (" + std::string(10'000, 'x') + ")");
}

TEST_SUITE_END();
