// Check boxes and option buttons.
#include "forms/button.h"

#include "forms/form.h"
#include "forms/frame.h"
#include "runtime/runtimeError.h"

#include <doctest/doctest.h>

#include <array>
#include <vector>

TEST_SUITE_BEGIN("forms/button");

TEST_CASE("a check box raises its click inside the assignment of another value only") {
    forms::CheckBox box;
    std::vector<int> seen;
    box.onClick = [&] { seen.push_back(box.value()); };
    box.setValue(0);
    CHECK(seen.empty());
    box.setValue(1);
    box.setValue(1);
    box.setValue(0);
    CHECK(seen == std::vector<int>{1, 0});
}

TEST_CASE("a check box takes 0 and 1 and nothing else") {
    forms::CheckBox box;
    box.setValue(1);
    for (const int value : {-1, 2, 5}) {
        try {
            box.setValue(value);
            FAIL("taken");
        } catch (const runtime::RuntimeError& error) {
            CHECK(error.number == runtime::ErrorNumber::invalidCall);
        }
    }
    CHECK(box.value() == 1);
}

TEST_CASE("the user's click turns a check box over, unless it is disabled") {
    forms::CheckBox box;
    int clicks = 0;
    box.onClick = [&] { ++clicks; };
    box.click();
    CHECK(box.value() == 1);
    box.click();
    CHECK(box.value() == 0);
    box.setEnabled(false);
    box.click();
    CHECK(box.value() == 0);
    CHECK(clicks == 2);
}

TEST_CASE("a check box whose click puts the value back ends there") {
    forms::CheckBox box;
    int clicks = 0;
    box.onClick = [&] {
        ++clicks;
        box.setValue(0);
    };
    box.click();
    CHECK(box.value() == 0);
    CHECK(clicks == 2);
}

namespace {

struct Options {
    Options() {
        first.place(form, {});
        second.place(form, {});
        for (std::size_t i = 0; i < 4; ++i) {
            option[i].place(i < 3 ? first : second, {});
            option[i].onClick = [this, i] { clicked.push_back(static_cast<int>(i)); };
        }
    }
    std::vector<bool> values() const {
        std::vector<bool> result;
        for (const forms::OptionButton& button : option)
            result.push_back(button.value());
        return result;
    }

    forms::Form form;
    forms::Frame first;
    forms::Frame second;
    std::array<forms::OptionButton, 4> option; // three in the first frame, one in the second
    std::vector<int> clicked;
};

} // namespace

TEST_CASE("switching an option on switches the others of its container off, silently") {
    Options options;
    options.option[3].setValue(true);
    options.option[0].setValue(true);
    options.option[1].setValue(true);
    CHECK(options.values() == std::vector<bool>{false, true, false, true});
    CHECK(options.clicked == std::vector<int>{3, 0, 1});
}

TEST_CASE("an option raises its click only if its value really changes to on") {
    Options options;
    options.option[0].setValue(true);
    options.option[0].setValue(true);
    options.option[0].click();
    options.option[0].setValue(false);
    CHECK(options.clicked == std::vector<int>{0});
    CHECK(options.values() == std::vector<bool>{false, false, false, false});
}

TEST_CASE("the user's click switches an option on, unless it is disabled") {
    Options options;
    options.option[2].setEnabled(false);
    options.option[2].click();
    CHECK(options.clicked.empty());
    options.option[1].click();
    CHECK(options.option[1].value());
    CHECK(options.clicked == std::vector<int>{1});
}

TEST_CASE("an option's click finds the others off and may switch one of them on") {
    Options options;
    options.option[0].setValue(true);
    options.option[1].onClick = [&] {
        CHECK_FALSE(options.option[0].value());
        options.option[2].setValue(true);
    };
    options.option[1].setValue(true);
    CHECK(options.values() == std::vector<bool>{false, false, true, false});
    CHECK(options.clicked == std::vector<int>{0, 2});
}

TEST_CASE("an option that stands nowhere is a group of its own") {
    forms::OptionButton alone;
    alone.setValue(true);
    CHECK(alone.value());
}

TEST_SUITE_END();
