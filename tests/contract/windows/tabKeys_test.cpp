// The way of the Tab key through a dialog with a tab strip.
#include "contract/world.h"
#include "forms/button.h"
#include "forms/form.h"
#include "forms/frame.h"
#include "forms/label.h"
#include "forms/tabStrip.h"
#include "forms/textBox.h"
#include "win32/common/native.h"
#include "win32/forms/dialogKeys.h"

#include <doctest/doctest.h>

#include <windows.h>

#include <array>

namespace {

/// Two pages with two fields each, and a button behind them.
class Dialog : public forms::Form {
  public:
    Dialog() {
        setClientSize(6000, 4500);
        tabs.place(*this, {0, 0, 6000, 3000});
        tabs.setTabs(2);
        for (std::size_t page = 0; page < pages.size(); ++page)
            tabs.placeOnTab(static_cast<int>(page), pages[page], {60, 600, 5800, 2300});
        for (std::size_t page = 0; page < pages.size(); ++page) {
            boxes[page].place(pages[page], {0, 0, 5000, 2000});
            labels[page].place(boxes[page], {0, 0, 600, 285});
            labels[page].setCaption("&Field");
        }
        for (std::size_t field = 0; field < fields.size(); ++field)
            fields[field].place(boxes[field / 2], {60, field % 2 == 0 ? 60.0F : 600.0F, 2000, 300});
        ok.place(*this, {60, 3600, 1335, 315});
        show();
    }

    /// Where the Tab key leads from here.
    forms::Control* after(forms::Control& from, bool back = false) {
        SetFocus(win32::native(from.hWnd()));
        win32::moveFocus(GetFocus(), back);
        for (forms::Control* control : std::initializer_list<forms::Control*>{&tabs, &fields[0], &fields[1],
                                                                              &fields[2], &fields[3], &ok})
            if (GetFocus() == win32::native(control->hWnd()))
                return control;
        return nullptr;
    }

    forms::TabStrip tabs;
    std::array<forms::Frame, 2> pages;
    std::array<forms::Frame, 2> boxes; ///< on each page, with its fields
    std::array<forms::Label, 2> labels;
    std::array<forms::TextBox, 4> fields;
    forms::CommandButton ok;
};

} // namespace

TEST_SUITE_BEGIN("contract/windows/tabKeys");

TEST_CASE("a tab strip is a stop of the Tab key in front of what stands on its page") {
    const contract::World world;
    Dialog dialog;
    CHECK(dialog.after(dialog.ok) == &dialog.tabs);
    CHECK(dialog.after(dialog.tabs) == &dialog.fields[0]);
    CHECK(dialog.after(dialog.fields[0]) == &dialog.fields[1]);
    CHECK(dialog.after(dialog.fields[1]) == &dialog.ok);
    dialog.tabs.setTab(1);
    CHECK(dialog.after(dialog.tabs) == &dialog.fields[2]);
}

TEST_CASE("back again the Tab key comes to the strip behind its page") {
    const contract::World world;
    Dialog dialog;
    constexpr bool back = true;
    CHECK(dialog.after(dialog.ok, back) == &dialog.fields[1]);
    CHECK(dialog.after(dialog.fields[1], back) == &dialog.fields[0]);
    CHECK(dialog.after(dialog.fields[0], back) == &dialog.tabs);
    CHECK(dialog.after(dialog.tabs, back) == &dialog.ok);
}

TEST_CASE("a page without a stop is passed together with its strip") {
    const contract::World world;
    Dialog dialog;
    dialog.fields[0].setEnabled(false);
    dialog.fields[1].setEnabled(false);
    CHECK(dialog.after(dialog.ok) == &dialog.ok);
    CHECK(dialog.after(dialog.tabs) == &dialog.ok);
    CHECK(dialog.after(dialog.tabs, true) == &dialog.ok);
}

TEST_CASE("from the last stop on a page that fills a dialog the Tab key comes to the strip") {
    const contract::World world;
    Dialog dialog;
    dialog.ok.setEnabled(false);
    CHECK(dialog.after(dialog.fields[1]) == &dialog.tabs);
    CHECK(dialog.after(dialog.tabs, true) == &dialog.fields[1]);
}

TEST_SUITE_END();
