// What a control tells its window: of each change, once, and of nothing that the window knows already.
#include "desktop/desktop.h"
#include "desktop/toldPeers.h"
#include "forms/button.h"
#include "forms/iconGrid.h"
#include "forms/label.h"
#include "forms/listBox.h"
#include "forms/pictureBox.h"
#include "forms/tabStrip.h"
#include "forms/textBox.h"
#include "forms/toolbar.h"

#include <doctest/doctest.h>

#include <functional>
#include <vector>

using forms::Property;

namespace {

using Told = std::vector<Property>;

/// A form with its window, which controls are placed on.
struct Shown {
    Shown() { form.load(); }

    /// What the window of a control is told of a change.
    Told by(forms::Control& control, const std::function<void()>& change) {
        if (control.form() == nullptr)
            control.place(form, {});
        peers.forget();
        change();
        return peers.told(control);
    }

    const desktop::Session session;
    desktop::ToldPeers peers;
    forms::Form form;
};

/// What both kinds of list have in common.
void checkList(forms::ItemList& list) {
    Shown shown;
    list.place(shown.form, {});
    CHECK(shown.by(list, [&] { list.addItem("a"); }) == Told{Property::items});
    CHECK(shown.by(list, [&] { list.addItem("b"); }) == Told{Property::items});
    CHECK(shown.by(list, [&] { list.setListIndex(1); }) == Told{Property::selection});
    CHECK(shown.by(list, [&] { list.setListIndex(1); }) == Told{});
    CHECK(shown.by(list, [&] { list.setListIndex(-1); }) == Told{Property::selection});
    CHECK(shown.by(list, [&] { list.selected(0); }) == Told{});
    CHECK(shown.by(list, [&] { list.clear(); }) == Told{Property::items});
}

} // namespace

TEST_SUITE_BEGIN("forms/told");

TEST_CASE("the window of any control is told of place, state, tip, font and colours") {
    Shown shown;
    forms::Label label;
    CHECK(shown.by(label, [&] { label.setLeft(15); }) == Told{Property::position});
    CHECK(shown.by(label, [&] { label.setTop(15); }) == Told{Property::position});
    CHECK(shown.by(label, [&] { label.setWidth(15); }) == Told{Property::position});
    CHECK(shown.by(label, [&] { label.setHeight(15); }) == Told{Property::position});
    CHECK(shown.by(label, [&] { label.setPosition({15, 15, 15, 15}); }) == Told{});
    CHECK(shown.by(label, [&] { label.setEnabled(false); }) == Told{Property::enabled});
    CHECK(shown.by(label, [&] { label.setEnabled(false); }) == Told{});
    CHECK(shown.by(label, [&] { label.setVisible(false); }) == Told{Property::visible});
    CHECK(shown.by(label, [&] { label.setVisible(false); }) == Told{});
    CHECK(shown.by(label, [&] { label.setToolTipText("tip"); }) == Told{Property::toolTip});
    CHECK(shown.by(label, [&] { label.setFont({"Arial"}); }) == Told{Property::colours});
    CHECK(shown.by(label, [&] { label.setForeColour(forms::white); }) == Told{Property::colours});
    CHECK(shown.by(label, [&] { label.setBackColour(forms::white); }) == Told{Property::colours});
}

TEST_CASE("a caption that is another one and each picture are told of") {
    Shown shown;
    forms::CommandButton button;
    CHECK(shown.by(button, [&] { button.setCaption("a"); }) == Told{Property::text});
    CHECK(shown.by(button, [&] { button.setCaption("a"); }) == Told{});
    CHECK(shown.by(button, [&] { button.setPicture({}); }) == Told{Property::picture});
}

TEST_CASE("a box that is ticked or cleared tells so, whoever does it") {
    Shown shown;
    forms::CheckBox box;
    CHECK(shown.by(box, [&] { box.setValue(1); }) == Told{Property::value});
    CHECK(shown.by(box, [&] { box.setValue(1); }) == Told{});
    CHECK(shown.by(box, [&] { box.click(); }) == Told{Property::value});
}

TEST_CASE("an option that goes on tells so, and so does the one that goes off by it") {
    Shown shown;
    forms::OptionButton first;
    forms::OptionButton second;
    CHECK(shown.by(first, [&] { first.setValue(true); }) == Told{Property::value});
    CHECK(shown.by(first, [&] { first.setValue(true); }) == Told{});
    CHECK(shown.by(second, [&] { second.click(); }) == Told{Property::value});
    CHECK(shown.peers.told(first) == Told{Property::value});
}

TEST_CASE("a list tells of its rows and of a row that the program selects, not of one that the user does") {
    SUBCASE("list box") {
        forms::ListBox list;
        checkList(list);
    }
    SUBCASE("drop-down list") {
        forms::ComboBox list;
        checkList(list);
    }
}

TEST_CASE("a text box tells of its text and selection, not of what the user does in the window") {
    Shown shown;
    forms::TextBox box;
    CHECK(shown.by(box, [&] { box.setText("abc"); }) == Told{Property::text});
    // The selection goes to the start all the same.
    CHECK(shown.by(box, [&] { box.setText("abc"); }) == Told{Property::selection});
    CHECK(shown.by(box, [&] { box.setSelStart(1); }) == Told{Property::selection});
    CHECK(shown.by(box, [&] { box.setSelLength(2); }) == Told{Property::selection});
    CHECK(shown.by(box, [&] { box.edited("abcd"); }) == Told{});
    CHECK(shown.by(box, [&] { box.selected(2, 1); }) == Told{});
}

TEST_CASE("a picture box tells of a picture and of what has been drawn on its surface") {
    Shown shown;
    forms::PictureBox box;
    CHECK(shown.by(box, [&] { box.setPicture({}); }) == Told{Property::picture});
    CHECK(shown.by(box, [&] { box.refresh(); }) == Told{Property::picture});
}

TEST_CASE("a tab strip tells of its captions and of the tab that comes to the front") {
    Shown shown;
    forms::TabStrip tabs;
    CHECK(shown.by(tabs, [&] { tabs.setTabs(2); }) == Told{Property::items});
    CHECK(shown.by(tabs, [&] { tabs.setTabCaption(1, "a"); }) == Told{Property::items});
    CHECK(shown.by(tabs, [&] { tabs.setTabCaption(1, "a"); }) == Told{});
    CHECK(shown.by(tabs, [&] { tabs.setTab(1); }) == Told{Property::selection});
    CHECK(shown.by(tabs, [&] { tabs.setTab(1); }) == Told{});
}

TEST_CASE("a grid tells of its icons and of one that the program selects, not of one that the user does") {
    Shown shown;
    forms::IconGrid grid;
    CHECK(shown.by(grid, [&] { grid.show(2, {}); }) == Told{Property::items});
    CHECK(shown.by(grid, [&] { grid.setSelectedIndex(1); }) == Told{Property::selection});
    CHECK(shown.by(grid, [&] { grid.setSelectedIndex(1); }) == Told{});
    CHECK(shown.by(grid, [&] { grid.selected(0); }) == Told{});
    CHECK(shown.by(grid, [&] { grid.clear(); }) == Told{Property::items});
}

TEST_CASE("a toolbar tells of its pictures and of each button, and whoever wants its height has it lay out") {
    Shown shown;
    forms::ImageList list;
    forms::Toolbar toolbar;
    const auto add = [&] { toolbar.addButton("", "", forms::ButtonStyle::standard, 0); };
    CHECK(shown.by(toolbar, [&] { toolbar.setImageList(&list); }) == Told{Property::imageList});
    CHECK(shown.by(toolbar, add) == Told{Property::buttons});
    CHECK(shown.by(toolbar, add) == Told{Property::buttons});
    CHECK(shown.peers.caughtUp == 0);
    CHECK(toolbar.height() > 0);
    CHECK(shown.peers.caughtUp == 1);
    CHECK(toolbar.height() > 0);
    CHECK(shown.peers.caughtUp == 1);
    CHECK(shown.by(toolbar, [&] { toolbar.clearButtons(); }) == Told{Property::buttons});
}

TEST_CASE("a form tells of another pointer") {
    Shown shown;
    const auto wait = [&] { shown.form.setMousePointer(forms::MousePointer::hourglass); };
    CHECK(shown.by(shown.form, wait) == Told{Property::mousePointer});
    CHECK(shown.by(shown.form, wait) == Told{});
}

TEST_CASE("a form that comes to another resolution tells so for all that stands on it, at whatever depth") {
    Shown shown;
    forms::Frame frame;
    forms::Label label;
    forms::PictureBox box;
    forms::Toolbar toolbar;
    frame.place(shown.form, {});
    label.place(frame, {});
    box.place(frame, {});
    toolbar.place(shown.form, {});
    shown.peers.forget();
    shown.form.setResolution(forms::Resolution(144));
    CHECK(shown.peers.told(shown.form) == Told{Property::resolution, Property::position});
    CHECK(shown.peers.told(frame) == Told{Property::resolution});
    CHECK(shown.peers.told(label) == Told{Property::resolution});
    CHECK(shown.peers.told(box) == Told{Property::resolution});
    CHECK(shown.peers.told(toolbar) == Told{Property::resolution});
}

TEST_CASE("a form that is given the resolution that it has tells nothing") {
    Shown shown;
    forms::Label label;
    label.place(shown.form, {});
    const auto assign = [&] { shown.form.setResolution(forms::Resolution(144)); };
    assign();
    CHECK(shown.by(shown.form, assign) == Told{});
    CHECK(shown.by(label, assign) == Told{});
}

TEST_CASE("a control that is to have the keyboard gives it to its window, if it has one") {
    Shown shown;
    forms::TextBox box;
    box.setFocus();
    CHECK(shown.peers.focused.empty());
    box.place(shown.form, {});
    box.setFocus();
    CHECK(shown.peers.focused == std::vector<const forms::Control*>{&box});
}

TEST_SUITE_END();
