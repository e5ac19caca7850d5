// Toolbar: its height, its buttons and their clicks.
#include "forms/toolbar.h"

#include "desktop/desktop.h"
#include "forms/form.h"
#include "runtime/runtimeError.h"

#include <doctest/doctest.h>

#include <string>
#include <vector>

using forms::ButtonStyle;
using runtime::ErrorNumber;

namespace {

ErrorNumber errorOf(const std::function<void()>& code) {
    try {
        code();
    } catch (const runtime::RuntimeError& error) {
        return error.number;
    }
    return ErrorNumber{0};
}

const forms::Picture dot(16, 16, std::vector<std::uint32_t>(256, 0xFF102030));

} // namespace

TEST_SUITE_BEGIN("forms/toolbar");

TEST_CASE("the height follows the buttons and the width, and nothing else") {
    forms::Toolbar toolbar;
    CHECK(toolbar.height() == 330);
    toolbar.setPosition({0, 0, 1800, 5000});
    CHECK(toolbar.height() == 330);
    for (int i = 0; i < 6; ++i)
        toolbar.addButton("", "", ButtonStyle::standard, 0);
    CHECK(toolbar.height() == 660);
    toolbar.setHeight(1);
    CHECK(toolbar.height() == 660);
    CHECK(toolbar.position().height == 660);
    toolbar.setWidth(135 * 15);
    CHECK(toolbar.height() == 330);
    toolbar.setWidth(23 * 15);
    CHECK(toolbar.height() == 6 * 330);
    toolbar.addButton("", "", ButtonStyle::separator, 0);
    toolbar.addButton("", "", ButtonStyle::standard, 0);
    CHECK(toolbar.height() == 7 * 330 + 5 * 15);
    toolbar.clearButtons();
    CHECK(toolbar.height() == 330);
}

TEST_CASE("a toolbar on a form spans its client width and wraps when the form gets narrower") {
    const desktop::Session session;
    forms::Form form;
    forms::Toolbar toolbar;
    form.borderStyle = forms::BorderStyle::sizableToolWindow;
    form.setClientSize(1800, 300);
    toolbar.place(form, {0, 0, 500, 330});
    form.load();
    for (int i = 0; i < 5; ++i)
        toolbar.addButton("", "", ButtonStyle::standard, 0);
    CHECK(toolbar.width() == 1800);
    CHECK(toolbar.height() == 330);
    form.setWidth(form.width() - 9 * 15);
    CHECK(toolbar.height() == 660);
    form.setWidth(form.width() + 15);
    CHECK(toolbar.height() == 330);
}

TEST_CASE("an image number needs an image of the list; the failed button is not there") {
    forms::ImageList images;
    images.add(1, "", dot);
    images.add(2, "Config", dot);
    forms::Toolbar toolbar;
    CHECK(errorOf([&] { toolbar.addButton("a", "", ButtonStyle::standard, 1); }) ==
          ErrorNumber::subscriptOutOfRange);
    CHECK(errorOf([&] { toolbar.addButton("a", "", ButtonStyle::standard, "Config"); }) ==
          ErrorNumber::subscriptOutOfRange);
    toolbar.setImageList(&images);
    CHECK(errorOf([&] { toolbar.addButton("a", "", ButtonStyle::standard, 3); }) ==
          ErrorNumber::subscriptOutOfRange);
    CHECK(errorOf([&] { toolbar.addButton("a", "", ButtonStyle::standard, -1); }) ==
          ErrorNumber::subscriptOutOfRange);
    CHECK(errorOf([&] { toolbar.addButton("a", "", ButtonStyle::standard, "Over"); }) ==
          ErrorNumber::subscriptOutOfRange);
    CHECK(toolbar.buttons().empty());
    CHECK(toolbar.findButton("a") == nullptr);
    CHECK(toolbar.addButton("a", "cap", ButtonStyle::standard, "Config").image == 2);
    CHECK(toolbar.buttons().front().caption == "cap");
    CHECK(toolbar.addButton("b", "", ButtonStyle::standard, 0).image == 0);
}

TEST_CASE("a key can be there once, but any number of buttons may be without one") {
    forms::Toolbar toolbar;
    toolbar.addButton("a11", "", ButtonStyle::standard, 0);
    toolbar.addButton("", "", ButtonStyle::separator, 0);
    toolbar.addButton("", "", ButtonStyle::separator, 0);
    toolbar.addButton("A11", "", ButtonStyle::standard, 0);
    CHECK(errorOf([&] { toolbar.addButton("a11", "", ButtonStyle::standard, 0); }) ==
          ErrorNumber::keyNotUnique);
    CHECK(toolbar.buttons().size() == 4);
    CHECK(toolbar.findButton("a11") == &toolbar.buttons().front());
    CHECK(toolbar.findButton("") == nullptr);
    toolbar.clearButtons();
    CHECK(toolbar.findButton("a11") == nullptr);
    toolbar.addButton("a11", "", ButtonStyle::standard, 0);
}

TEST_CASE("a button that was added keeps its place while others are") {
    forms::Toolbar toolbar;
    forms::ToolbarButton& first = toolbar.addButton("first", "", ButtonStyle::standard, 0);
    for (int i = 0; i < 300; ++i)
        toolbar.addButton("k" + std::to_string(i), "", ButtonStyle::standard, 0);
    first.tag = "still there";
    CHECK(toolbar.findButton("first")->tag == "still there");
}

TEST_CASE("a click is given the button, and what is no button raises nothing") {
    forms::Toolbar toolbar;
    std::vector<std::string> clicked;
    toolbar.onButtonClick = [&](forms::ToolbarButton& button) { clicked.push_back(button.key + button.tag); };
    toolbar.addButton("one", "", ButtonStyle::standard, 0).tag = "=1";
    toolbar.addButton("", "", ButtonStyle::separator, 0);
    toolbar.clickButton(1);
    toolbar.clickButton(2);
    toolbar.clickButton(0);
    toolbar.setEnabled(false);
    toolbar.clickButton(0);
    CHECK(clicked == std::vector<std::string>{"one=1"});
}

TEST_CASE("a click may rebuild the toolbar and go on with its button") {
    forms::Toolbar toolbar;
    std::string tag;
    toolbar.onButtonClick = [&](forms::ToolbarButton& button) {
        toolbar.clearButtons();
        toolbar.addButton("new", "", ButtonStyle::standard, 0);
        toolbar.onButtonClick = nullptr;
        tag = button.tag;
    };
    toolbar.addButton("Config", "", ButtonStyle::standard, 0).tag =
        "a tag too long to be kept in the text itself";
    toolbar.clickButton(0);
    CHECK(tag == "a tag too long to be kept in the text itself");
    CHECK(toolbar.buttons().front().key == "new");
}

TEST_SUITE_END();
