#include "errors/report.h"

#include <doctest/doctest.h>

#include <new>

using desktop::world;
using errors::ErrPtnr;
using report::Inside;
using runtime::ErrorNumber;
using runtime::RuntimeError;

namespace {

std::vector<bool> visibleContinuations(const ErrPtnr& form) {
    std::vector<bool> visible;
    for (const forms::CommandButton& button : form.cmdContinue)
        visible.push_back(button.visible());
    return visible;
}

} // namespace

TEST_SUITE_BEGIN("errors/dialog");

TEST_CASE("a report shows the error that is being handled, module, routine and line 0") {
    const desktop::Session session;
    ErrPtnr form;
    report::askAbout(RuntimeError(ErrorNumber::typeMismatch), form, 8, [](ErrPtnr& shown) {
        CHECK(shown.visible());
        CHECK(world().modalForms == std::vector<forms::Form*>{&shown});
        CHECK(shown.lblError[0].caption() == "13 (Type mismatch)");
        CHECK(shown.lblError[1].caption() == "Modul1");
        CHECK(shown.lblError[2].caption() == "loadLists");
        CHECK(shown.lblError[3].caption() == "0");
        CHECK(shown.caption() == "kestrel  V" KESTREL_VERSION " - Fehlermeldung");
    });
    CHECK_FALSE(form.visible());
    CHECK(form.loaded());
}

TEST_CASE("an error's own description is shown as it is, and a number of five digits") {
    const desktop::Session session;
    ErrPtnr form;
    report::askAbout(RuntimeError(ErrorNumber::keyNotUnique, "Key '(x)' & more"), form);
    CHECK(form.lblError[0].caption() == "35602 (Key '(x)' & more)");
}

TEST_CASE("without a current error the number is 0 and the description empty") {
    const desktop::Session session;
    ErrPtnr form;
    report::ask(form);
    CHECK(form.lblError[0].caption() == "0 ()");
    CHECK(form.lblError[3].caption() == "0");
    // After a report about an error too.
    report::askAbout(RuntimeError(ErrorNumber::overflow), form);
    CHECK(form.lblError[0].caption() == "6 (Overflow)");
    report::ask(form);
    CHECK(form.lblError[0].caption() == "0 ()");
}

TEST_CASE("what is no error of the runtime counts as none") {
    const desktop::Session session;
    ErrPtnr form;
    try {
        throw std::bad_alloc();
    } catch (const std::bad_alloc&) {
        report::ask(form);
    }
    CHECK(form.lblError[0].caption() == "0 ()");
}

TEST_CASE("the innermost error that is being handled is the current one") {
    const desktop::Session session;
    ErrPtnr form;
    try {
        throw RuntimeError(ErrorNumber::overflow);
    } catch (const RuntimeError&) {
        report::askAbout(RuntimeError(ErrorNumber::fileNotFound), form);
        CHECK(form.lblError[0].caption() == "53 (File not found)");
        report::ask(form);
        CHECK(form.lblError[0].caption() == "6 (Overflow)");
    }
}

TEST_CASE("program info that was set is kept for all reports") {
    const desktop::Session session;
    ErrPtnr form;
    form.SetProgInfo("Bench 7");
    report::ask(form);
    CHECK(form.caption() == "Bench 7 - Fehlermeldung");
    report::ask(form);
    CHECK(form.caption() == "Bench 7 - Fehlermeldung");
}

TEST_CASE("an empty program info makes the next report compute the default again") {
    const desktop::Session session;
    ErrPtnr form;
    CHECK(Inside::progInfo(form).empty());
    form.SetProgInfo("Bench 7");
    report::ask(form);
    form.SetProgInfo("");
    CHECK(Inside::progInfo(form).empty());
    world().executableName = "other";
    report::ask(form);
    CHECK(form.caption() == "other  V" KESTREL_VERSION " - Fehlermeldung");
}

TEST_CASE("the default program info of the first report stays for later ones") {
    const desktop::Session session;
    ErrPtnr form;
    report::ask(form);
    world().executableName = "renamed";
    report::ask(form);
    CHECK(form.caption() == "kestrel  V" KESTREL_VERSION " - Fehlermeldung");
}

TEST_CASE("the list shows the trace, newest on top, and each report shows it anew") {
    const desktop::Session session;
    ErrPtnr form;
    std::string outer = "outer";
    form.CallStack(outer);
    form.CallStackParam("p", std::int32_t{1});
    report::ask(form);
    CHECK(form.lstCallStack.items() == std::vector<std::string>{"\tp:\t1", "12:00:00 outer"});
    std::string inner = "inner";
    form.CallStack(inner);
    report::ask(form);
    CHECK(form.lstCallStack.items() ==
          std::vector<std::string>{"12:00:00 inner", "\tp:\t1", "12:00:00 outer"});
}

TEST_CASE("the list never shows more than forty lines") {
    const desktop::Session session;
    ErrPtnr form;
    for (int entry = 0; entry < 41; ++entry) {
        std::string text = std::to_string(entry);
        form.CallStack(text);
    }
    report::ask(form);
    CHECK(form.lstCallStack.listCount() == 40);
    CHECK(form.lstCallStack.list(0) == "12:00:00 40");
    CHECK(form.lstCallStack.list(39) == "12:00:00 1");
}

TEST_CASE("of ten thousand trace entries the list and the protocol show the newest forty") {
    const desktop::Session session;
    ErrPtnr form;
    for (int entry = 1; entry <= 10'000; ++entry) {
        std::string text = std::to_string(entry);
        form.CallStack(text);
    }
    report::ask(form);
    std::string logged = "CALLSTACK:\r\n";
    for (int line = 0; line < 40; ++line) {
        const std::string entry = "12:00:00 " + std::to_string(10'000 - line);
        CHECK(form.lstCallStack.list(line) == entry);
        logged += "          " + entry + "\r\n";
    }
    CHECK(form.lstCallStack.listCount() == 40);
    CHECK(world().fileText(report::protocolFile)->find(logged + "-----") != std::string::npos);
}

TEST_CASE("a report before any trace call has an empty list") {
    const desktop::Session session;
    ErrPtnr form;
    report::ask(form, 8, [](ErrPtnr& shown) { CHECK(shown.lstCallStack.listCount() == 0); });
}

TEST_CASE("the protocol file stands and the beep has sounded when the dialog comes up") {
    const desktop::Session session;
    ErrPtnr form;
    report::ask(form, 8, [](ErrPtnr& shown) {
        CHECK(world().beeps == 1);
        CHECK(world().fileText(report::protocolFile) == Inside::protocol(shown) + "\r\n");
    });
    CHECK(world().beeps == 1);
}

TEST_CASE("a protocol file that cannot be written fails before a beep and before the dialog") {
    const desktop::Session session;
    ErrPtnr form;
    world().writeFile("C:\\kestrel", "");
    world().file("C:\\kestrel")->directory = true;
    world().file("C:\\kestrel")->readOnly = true;
    CHECK(report::errorOf([&] { form.OnError("m", "p", 8); }) == 75);
    CHECK(world().beeps == 0);
    CHECK_FALSE(form.visible());
    // The form is ready by then.
    CHECK(form.loaded());
    CHECK(form.lblError[1].caption() == "m");
    CHECK(form.framFehler.top() == 975);
    world().removeFile("C:\\kestrel");
    world().programFolder = "C:\\nowhere";
    CHECK(report::errorOf([&] { form.OnError("m", "p", 8); }) == 76);
    world().writeFile("C:\\nowhere\\kestrel.EPT", "as it was");
    world().file("C:\\nowhere\\kestrel.EPT")->locked = true;
    CHECK(report::errorOf([&] { form.OnError("m", "p", 8); }) == 70);
    CHECK(world().fileText("C:\\nowhere\\kestrel.EPT") == "as it was");
    CHECK(world().beeps == 0);
}

TEST_CASE("a failure inside the component takes the runtime's way and ends the program") {
    const desktop::Session session;
    ErrPtnr form;
    world().programFolder = "C:\\nowhere";
    CHECK_FALSE(world().event([&] { form.OnError("m", "p", 8); }));
    REQUIRE(world().messageBoxes.size() == 1);
    CHECK(world().messageBoxes[0].text == "Run-time error '76':\r\n\r\nPath not found");
}

TEST_CASE("the waiting pointer is gone when the dialog comes up") {
    const desktop::Session session;
    ErrPtnr form;
    world().waitingPointer = true;
    report::ask(form, 8, [](ErrPtnr&) { CHECK_FALSE(world().waitingPointer); });
}

TEST_CASE("with the bit of value 8 only the program's end can be pressed, and the result is 3") {
    const desktop::Session session;
    for (const int bits : {8, 15, 0xF8, 0xFF}) {
        ErrPtnr form;
        const int result = report::ask(form, static_cast<std::uint8_t>(bits), [](ErrPtnr& shown) {
            CHECK(visibleContinuations(shown) == std::vector<bool>{false, false, false, true});
        });
        CHECK(result == 3);
    }
}

TEST_CASE("without the bit of value 8 no button is visible and the dialog offers no way out") {
    const desktop::Session session;
    for (const int bits : {0, 1, 2, 4, 7, 16, 0xF7}) {
        ErrPtnr form;
        world().modalScripts.push_back([](forms::Form& shown) {
            CHECK(visibleContinuations(dynamic_cast<ErrPtnr&>(shown)) == std::vector<bool>(4, false));
            shown.closeRequested();
            shown.unload();
            CHECK(shown.visible());
        });
        CHECK_THROWS_AS(form.OnError("m", "p", static_cast<std::uint8_t>(bits)), desktop::Stuck);
        CHECK(form.visible());
    }
}

TEST_CASE("a button that an earlier report has shown is hidden by the next one, and back") {
    const desktop::Session session;
    ErrPtnr form;
    report::ask(form, 8);
    report::ask(form, 7,
                [](ErrPtnr& shown) { CHECK(visibleContinuations(shown) == std::vector<bool>(4, false)); });
    report::ask(form, 8, [](ErrPtnr& shown) { CHECK(shown.cmdContinue[3].visible()); });
}

TEST_CASE("each continuation button gives its index and hides the form") {
    const desktop::Session session;
    ErrPtnr form;
    CHECK(Inside::chosen(form) == 0);
    for (std::int16_t index = 3; index >= 0; --index) {
        CHECK(report::ask(form, 8, {}, index) == index);
        CHECK(Inside::chosen(form) == index);
        CHECK_FALSE(form.visible());
    }
}

TEST_CASE("the choice keeps its value until a button overwrites it") {
    const desktop::Session session;
    ErrPtnr form;
    report::ask(form, 8, {}, 2);
    report::ask(form, 8, [](ErrPtnr& shown) { CHECK(Inside::chosen(shown) == 2); });
    CHECK(Inside::chosen(form) == 3);
}

TEST_CASE("the form is hidden by its choice and keeps its fields; unloaded it loses them") {
    const desktop::Session session;
    ErrPtnr form;
    CHECK_FALSE(form.loaded());
    std::string A = "routine";
    form.CallStack(A);
    CHECK(form.loaded());
    CHECK_FALSE(form.visible());
    form.SetProgInfo("Bench");
    report::ask(form);
    CHECK(form.loaded());
    CHECK(Inside::entries(form).size() == 1);
    CHECK(Inside::progInfo(form) == "Bench");
    form.unload();
    CHECK_FALSE(form.loaded());
    CHECK(Inside::entries(form).empty());
    CHECK(Inside::progInfo(form).empty());
    CHECK(Inside::chosen(form) == 0);
    report::ask(form);
    CHECK(form.lstCallStack.listCount() == 0);
    CHECK(form.caption() == "kestrel  V" KESTREL_VERSION " - Fehlermeldung");
}

TEST_CASE("each first use loads the form and does not show it") {
    const desktop::Session session;
    ErrPtnr form;
    form.SetProgInfo("Bench");
    CHECK(form.loaded());
    form.unload();
    CHECK(report::errorOf([&] { form.CallStackParam("p", errors::Null{}); }) == 9);
    CHECK(form.loaded());
    form.unload();
    std::string A = "routine";
    form.CallStack(A);
    CHECK(form.loaded());
    CHECK_FALSE(form.visible());
}

TEST_CASE("an open dialog is not closed by its window") {
    const desktop::Session session;
    ErrPtnr form;
    report::ask(form, 8, [](ErrPtnr& shown) {
        shown.closeRequested();
        CHECK(shown.visible());
        CHECK(shown.loaded());
    });
}

TEST_CASE("other forms' timers go on while the dialog is up") {
    const desktop::Session session;
    ErrPtnr form;
    forms::Timer timer{200};
    int ticks = 0;
    timer.onTimer = [&] {
        if (++ticks == 3)
            form.cmdContinue[3].click();
    };
    timer.setEnabled(true);
    CHECK(form.OnError("m", "p", 8) == 3);
    CHECK(ticks == 3);
    timer.setEnabled(false);
}

TEST_CASE("a second report while the dialog is up is logged too, and one choice ends both") {
    const desktop::Session session;
    ErrPtnr form;
    int inner = -1;
    const int outer = report::ask(form, 8, [&inner](ErrPtnr& shown) {
        world().modalScripts.push_back(
            [](forms::Form& again) { dynamic_cast<ErrPtnr&>(again).cmdContinue[3].click(); });
        inner = shown.OnError("second", "p", 8);
        CHECK(shown.lblError[1].caption() == "second");
        CHECK_FALSE(shown.visible());
    });
    CHECK(inner == 3);
    CHECK(outer == 3);
    CHECK(world().beeps == 2);
    const std::string logged = *world().fileText(report::protocolFile);
    CHECK(logged.find("\tModul1\r\n") < logged.find("\tsecond\r\n"));
    CHECK(logged.find("\tsecond\r\n") != std::string::npos);
}

TEST_CASE("there is one instance for all, made when it is asked for") {
    const desktop::Session session;
    ErrPtnr& form = errors::errPtnr();
    CHECK(&form == &errors::errPtnr());
    CHECK_FALSE(form.loaded());
    CHECK(world().order.empty());
}

TEST_SUITE_END();
