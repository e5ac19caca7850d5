// Tabs and the frames that belong to them.
#include "forms/tabStrip.h"

#include "forms/form.h"
#include "runtime/runtimeError.h"

#include <doctest/doctest.h>

#include <array>
#include <memory>
#include <vector>

namespace {

struct Tabs {
    Tabs() {
        strip.place(form, {});
        strip.setTabs(3);
        for (int tab = 0; tab < 3; ++tab)
            strip.placeOnTab(tab, frame[static_cast<std::size_t>(tab)], {0, 660, 100, 100});
        strip.onClick = [this] { clicked.push_back(strip.tab()); };
    }
    std::vector<bool> shown() const { return {frame[0].visible(), frame[1].visible(), frame[2].visible()}; }

    forms::Form form;
    forms::TabStrip strip;
    std::array<forms::Frame, 3> frame;
    std::vector<int> clicked;
};

} // namespace

TEST_SUITE_BEGIN("forms/tabStrip");

TEST_CASE("only the frames of the tab in front show, at the start the first") {
    Tabs tabs;
    CHECK(tabs.strip.tab() == 0);
    CHECK(tabs.shown() == std::vector<bool>{true, false, false});
    tabs.strip.setTab(2);
    CHECK(tabs.shown() == std::vector<bool>{false, false, true});
    CHECK(tabs.frame[2].top() == 660);
    CHECK(tabs.frame[2].form() == &tabs.form);
}

TEST_CASE("another tab in front raises the click, after its frames show") {
    Tabs tabs;
    std::vector<bool> seen;
    tabs.strip.setTab(0);
    CHECK(tabs.clicked.empty());
    tabs.strip.onClick = [&] { seen = tabs.shown(); };
    tabs.strip.selected(1);
    CHECK(seen == std::vector<bool>{false, true, false});
}

TEST_CASE("a tab that is not there is an error and changes nothing") {
    Tabs tabs;
    forms::Frame loose;
    CHECK_THROWS_AS(tabs.strip.setTab(3), runtime::RuntimeError);
    CHECK_THROWS_AS(tabs.strip.setTab(-1), runtime::RuntimeError);
    CHECK_THROWS_AS(tabs.strip.setTabCaption(3, "x"), runtime::RuntimeError);
    CHECK_THROWS_AS(tabs.strip.tabCaption(-1), runtime::RuntimeError);
    CHECK_THROWS_AS(tabs.strip.placeOnTab(3, loose, {}), runtime::RuntimeError);
    CHECK_THROWS_AS(tabs.strip.setTabs(-1), runtime::RuntimeError);
    CHECK(tabs.strip.tab() == 0);
    CHECK(loose.container() == nullptr);
}

TEST_CASE("each tab keeps its caption") {
    Tabs tabs;
    tabs.strip.setTabCaption(1, "Board");
    CHECK(tabs.strip.tabCaption(0).empty());
    CHECK(tabs.strip.tabCaption(1) == "Board");
}

TEST_CASE("if the tab in front goes, the last one comes to the front without an event") {
    Tabs tabs;
    tabs.strip.setTab(2);
    tabs.clicked.clear();
    tabs.strip.setTabs(2);
    CHECK(tabs.strip.tab() == 1);
    CHECK(tabs.shown() == std::vector<bool>{false, true, false});
    CHECK(tabs.clicked.empty());
}

TEST_CASE("a frame that has gone or has moved away is no longer shown by its tab") {
    Tabs tabs;
    auto passing = std::make_unique<forms::Frame>();
    tabs.strip.placeOnTab(1, *passing, {});
    passing.reset();
    tabs.frame[1].place(tabs.form, {});
    tabs.strip.setTab(1);
    CHECK_FALSE(tabs.frame[1].visible());
    tabs.strip.placeOnTab(1, tabs.frame[0], {});
    CHECK(tabs.frame[0].visible());
}

TEST_SUITE_END();
