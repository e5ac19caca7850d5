// What a caller of ErrPtnr has to see to, and what happens to one that does not.
#include "errors/report.h"

#include <doctest/doctest.h>

using desktop::world;
using errors::ErrPtnr;
using runtime::ErrorNumber;
using runtime::RuntimeError;

namespace {

/// A timer of 200 ms whose routine always fails and is reported. The user ends the dialogs after five
/// seconds.
struct FailingTimer {
    explicit FailingTimer(bool stops) {
        timer.onTimer = [this, stops] {
            try {
                throw RuntimeError(ErrorNumber::overflow);
            } catch (const RuntimeError&) {
                ++reports;
                timer.setEnabled(!stops);
                form.OnError("m", "p", 8);
                timer.setEnabled(false);
            }
        };
        user.onTimer = [this] { form.cmdContinue[3].click(); };
        timer.setEnabled(true);
        user.setEnabled(true);
    }
    ErrPtnr form;
    forms::Timer timer{200};
    forms::Timer user{5100};
    int reports = 0;
};

} // namespace

TEST_SUITE_BEGIN("errors/caller");

TEST_CASE("a failing timer that goes on under its dialog reports again each time it fires") {
    const desktop::Session session;
    FailingTimer failing(false);
    world().run(6000);
    CHECK(failing.reports == 25);
    CHECK(world().now == 6000);
}

TEST_CASE("a failing timer that its caller has stopped reports once") {
    const desktop::Session session;
    FailingTimer failing(true);
    world().run(6000);
    CHECK(failing.reports == 1);
}

TEST_CASE("a report is possible as long as the guard has not marked the program's end") {
    const desktop::Session session;
    ErrPtnr form;
    int chosen = -1;
    CHECK(world().event([&] { chosen = report::askAbout(RuntimeError(ErrorNumber::overflow), form); }));
    CHECK(chosen == 3);
    CHECK(world().messageBoxes.empty());
}

TEST_CASE("a report once the end is marked gets no event and never closes") {
    const desktop::Session session;
    ErrPtnr form;
    bool pressed = false;
    world().onMessage = [&] { report::ask(form, 8, [&pressed](ErrPtnr& /*shown*/) { pressed = true; }); };
    CHECK_THROWS_AS(world().event([] { throw RuntimeError(ErrorNumber::overflow); }), desktop::Stuck);
    CHECK_FALSE(pressed);
    CHECK(form.visible());
}

TEST_SUITE_END();
