// What all controls share: containers, place, enabled state, windows of frames.
#include "forms/control.h"

#include "desktop/desktop.h"
#include "forms/button.h"
#include "forms/form.h"
#include "forms/frame.h"
#include "forms/label.h"
#include "platform/user32.h"

#include <doctest/doctest.h>

#include <memory>
#include <vector>

using forms::CommandButton;
using forms::Form;
using forms::Frame;
using platform::HWND;

TEST_SUITE_BEGIN("forms/control");

TEST_CASE("a control finds its form at whatever depth, and none before it is placed") {
    Form form;
    Frame outer;
    Frame inner;
    CommandButton button;
    CHECK(button.form() == nullptr);
    button.place(inner, {});
    CHECK(button.form() == nullptr);
    inner.place(outer, {});
    outer.place(form, {});
    CHECK(button.form() == &form);
    CHECK(form.form() == &form);
    CHECK(button.container() == &inner);
}

TEST_CASE("controls stand in their container in the order in which they were placed") {
    Form form;
    CommandButton first;
    CommandButton second;
    Frame other;
    first.place(form, {1, 2, 3, 4});
    second.place(form, {});
    CHECK(form.controls() == std::vector<forms::Control*>{&first, &second});
    CHECK(first.position() == forms::Position{1, 2, 3, 4});
    first.place(other, {});
    CHECK(form.controls() == std::vector<forms::Control*>{&second});
    CHECK(other.controls() == std::vector<forms::Control*>{&first});
}

TEST_CASE("controls and containers may go in any order") {
    auto form = std::make_unique<Form>();
    auto frame = std::make_unique<Frame>();
    auto button = std::make_unique<CommandButton>();
    frame->place(*form, {});
    button->place(*frame, {});
    SUBCASE("container first") {
        frame.reset();
        CHECK(button->container() == nullptr);
        CHECK(button->form() == nullptr);
        CHECK(form->controls().empty());
        form.reset();
    }
    SUBCASE("control first") {
        button.reset();
        CHECK(frame->controls().empty());
    }
    SUBCASE("form first") {
        form.reset();
        CHECK(button->form() == nullptr);
    }
}

TEST_CASE("positions are equal in all four") {
    const forms::Position place{1, 2, 3, 4};
    CHECK(place == forms::Position{1, 2, 3, 4});
    CHECK_FALSE(place == forms::Position{0, 2, 3, 4});
    CHECK_FALSE(place == forms::Position{1, 0, 3, 4});
    CHECK_FALSE(place == forms::Position{1, 2, 0, 4});
    CHECK_FALSE(place == forms::Position{1, 2, 3, 0});
}

TEST_CASE("fonts are equal in all four") {
    const forms::Font font{"Arial", 9, true, true};
    CHECK(font == forms::Font{"Arial", 9, true, true});
    CHECK_FALSE(font == forms::Font{"Ariel", 9, true, true});
    CHECK_FALSE(font == forms::Font{"Arial", 8, true, true});
    CHECK_FALSE(font == forms::Font{"Arial", 9, false, true});
    CHECK_FALSE(font == forms::Font{"Arial", 9, true, false});
}

TEST_CASE("a control has the tool tip that it was given last, and none before") {
    CommandButton button;
    CommandButton other;
    CHECK(button.toolTipText().empty());
    button.setToolTipText("a tip");
    other.setToolTipText("a tip");
    CHECK(button.toolTipText() == "a tip");
    other.setToolTipText("another");
    CHECK(button.toolTipText() == "a tip");
    CHECK(other.toolTipText() == "another");
    button.setToolTipText("");
    CHECK(button.toolTipText().empty());
}

TEST_CASE("a control without a font of its own has the usual one") {
    CommandButton button;
    CHECK(button.font().name == "MS Sans Serif");
    CHECK(button.font().points == 8.25F);
    button.setFont({"Arial", 9, true, false});
    CHECK(button.font().name == "Arial");
}

TEST_CASE(
    "a control that has a peer makes no other, one that has lost it none until its form is loaded anew") {
    const desktop::Session session;
    Form form;
    form.load();
    const forms::Peer* const peer = form.peer();
    REQUIRE(peer != nullptr);
    form.makePeers();
    CHECK(form.peer() == peer);
    form.windowLost();
    form.makePeers();
    CHECK(form.peer() == nullptr);
    form.dropPeers();
    form.makePeers();
    CHECK(form.peer() != nullptr);
}

TEST_CASE("a control takes no input while it or anything that it stands in is disabled") {
    Form form;
    Frame frame;
    CommandButton button;
    frame.place(form, {});
    button.place(frame, {});
    int clicks = 0;
    button.onClick = [&] { ++clicks; };
    button.click();
    CHECK(clicks == 1);
    button.setEnabled(false);
    button.click();
    button.setEnabled(true);
    frame.setEnabled(false);
    CHECK(button.enabled());
    CHECK_FALSE(button.acceptsInput());
    button.click();
    CHECK(clicks == 1);
    frame.setEnabled(true);
    form.setEnabled(false);
    button.click();
    CHECK(clicks == 1);
    form.setEnabled(true);
    button.click();
    CHECK(clicks == 2);
}

TEST_CASE("a window takes input as long as its control does, whether it was there before or is made later") {
    const desktop::Session session;
    Form form;
    Frame frame;
    frame.place(form, {});
    frame.setEnabled(false);
    form.load();
    const auto takesInput = [](forms::Control& control) {
        return desktop::world().window(control.hWnd()).enabled;
    };
    CHECK(takesInput(form));
    CHECK_FALSE(takesInput(frame));
    frame.setEnabled(true);
    form.setEnabled(false);
    CHECK(takesInput(frame));
    CHECK_FALSE(takesInput(form));
    form.setEnabled(true);
    CHECK(takesInput(form));
}

TEST_CASE("a label's and an image's click is raised unless it is disabled") {
    forms::Label label;
    forms::Image image;
    int clicks = 0;
    label.onClick = [&] { ++clicks; };
    image.onClick = [&] { ++clicks; };
    label.click();
    image.click();
    CHECK(clicks == 2);
    label.setEnabled(false);
    image.setEnabled(false);
    label.click();
    image.click();
    CHECK(clicks == 2);
}

TEST_CASE("a frame's window is made with its form and stands in it") {
    const desktop::Session session;
    Form form;
    Frame frame;
    frame.place(form, {150, 300, 2925, 270});
    CHECK(frame.hWnd() == HWND::none);
    form.load();
    REQUIRE(frame.hWnd() != HWND::none);
    CHECK(desktop::world().window(frame.hWnd()).parent == form.hWnd());
    CHECK(desktop::world().window(frame.hWnd()).rect == platform::RECT{10, 20, 205, 38});
    form.unload();
    CHECK(frame.hWnd() == HWND::none);
}

TEST_CASE(
    "a frame that is placed on a loaded form gets its window at once, and one that is taken off loses it") {
    const desktop::Session session;
    Form form;
    form.load();
    Frame frame;
    frame.place(form, {0, 0, 150, 150});
    CHECK(frame.hWnd() != HWND::none);
    Form other;
    frame.place(other, {});
    CHECK(frame.hWnd() == HWND::none);
}

TEST_CASE("assigning a hosted frame's left and top moves its window in the host") {
    const desktop::Session session;
    Form form;
    Frame frame;
    frame.place(form, {0, 0, 2925, 270});
    form.show();
    const HWND host = desktop::world().openWindow("Board - x");
    platform::SetParent(frame.hWnd(), host);
    frame.setTop(15);
    frame.setLeft(12360);
    CHECK(desktop::world().window(frame.hWnd()).rect == platform::RECT{824, 1, 1019, 19});
    CHECK(frame.left() == 12360);
    desktop::world().closeWindow(host);
    CHECK(frame.hWnd() == HWND::none);
    CHECK(form.hWnd() == HWND::none);
    frame.setLeft(7500);
    CHECK(frame.left() == 7500);
}

TEST_CASE("a handler may replace itself and drop what it has captured while it runs") {
    CommandButton button;
    auto kept = std::make_shared<int>(0);
    button.onClick = [&button, counter = kept] {
        button.onClick = nullptr;
        ++*counter;
    };
    button.click();
    button.click();
    CHECK(*kept == 1);
    CHECK(kept.use_count() == 1);
}

TEST_CASE("a click may unload the form that its button stands on") {
    const desktop::Session session;
    Form form;
    Frame frame;
    CommandButton button;
    frame.place(form, {});
    button.place(frame, {});
    button.onClick = [&] { form.unload(); };
    form.show();
    button.click();
    CHECK_FALSE(form.loaded());
    CHECK(desktop::world().order.empty());
}

TEST_SUITE_END();
