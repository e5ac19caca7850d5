// Where the controls of the setup dialog stand, what they start as, and which of them goes with which.
#include "setup/design.h"
#include "setup/dialog.h"

#include <algorithm>
#include <array>
#include <map>
#include <set>

using setup::Designed;
using setup::Dialog;
using setup::frmSetup;

namespace {

/// How many controls stand in a container, at whatever depth.
std::size_t countIn(const forms::Container& container) {
    std::size_t count = 0;
    for (forms::Control* control : container.controls()) {
        ++count;
        if (const auto* inner = dynamic_cast<forms::Container*>(control))
            count += countIn(*inner);
    }
    return count;
}

bool overlap(const forms::Control& a, const forms::Control& b) {
    return a.left() < b.left() + b.width() && b.left() < a.left() + a.width() &&
           a.top() < b.top() + b.height() && b.top() < a.top() + a.height();
}

} // namespace

TEST_SUITE_BEGIN("setup/geometry");

TEST_CASE("every control has its container and its place, and none is left out") {
    Dialog dialog;
    dialog.open(0);
    const std::vector<Designed> all = designOf(dialog.form());
    for (const Designed& each : all) {
        CAPTURE(each.name);
        CHECK(each.control->container() == each.container);
        CHECK(each.control->position() == each.place);
    }
    CHECK(countIn(dialog.form()) == all.size() + dialog.form().fraSetup.size());
}

TEST_CASE("in each container the Tab key goes in the order of the places") {
    Dialog dialog;
    dialog.open(0);
    std::map<forms::Container*, std::vector<forms::Control*>> inside;
    for (const Designed& each : designOf(dialog.form()))
        inside[each.container].push_back(each.control);
    for (const auto& [container, controls] : inside)
        CHECK(container->controls() == controls);
    for (const Designed& each : designOf(dialog.form()))
        CHECK_FALSE(each.control->tabIndex.has_value());
}

TEST_CASE("every control lies inside its container") {
    Dialog dialog;
    dialog.open(0);
    for (const Designed& each : designOf(dialog.form())) {
        CAPTURE(each.name);
        forms::Control& control = *each.control;
        CHECK(control.form() == &dialog.form());
        const bool onForm = each.container->kind() == forms::ControlKind::form;
        const float width = onForm ? dialog.form().scaleWidth() : each.container->width();
        const float height = onForm ? dialog.form().scaleHeight() : each.container->height();
        CHECK(control.left() >= 0);
        CHECK(control.top() >= 0);
        CHECK(control.left() + control.width() <= width);
        CHECK(control.top() + control.height() <= height);
    }
}

TEST_CASE("the labels before a field are aligned with it at the right, those above one at the left") {
    Dialog dialog;
    frmSetup& form = dialog.form();
    for (const auto* labels : {&form.labTitle, &form.labPath, &form.labTooltip, &form.labPara, &form.labIcon})
        for (const forms::Label& label : *labels)
            CHECK(label.alignment == forms::Alignment::right);
    CHECK(form.labEAGLE.alignment == forms::Alignment::right);
    CHECK(form.labLanguage.alignment == forms::Alignment::right);
    // As wide as their texts, which no language cuts.
    CHECK(form.labLastOpen.alignment == forms::Alignment::left);
    CHECK(form.labLastOpen.autoSize);
    for (const forms::Label& label : form.Label1) {
        CHECK(label.alignment == forms::Alignment::left);
        CHECK(label.autoSize);
    }
}

TEST_CASE("no control covers its neighbour") {
    Dialog dialog;
    dialog.open(0);
    const std::vector<Designed> all = designOf(dialog.form());
    for (const Designed& one : all)
        for (const Designed& other : all) {
            // A label's window is only as large as its text; what is hidden covers nothing.
            if (&one == &other || one.container != other.container ||
                one.control->kind() == forms::ControlKind::label ||
                other.control->kind() == forms::ControlKind::label || !one.control->visible() ||
                !other.control->visible())
                continue;
            CAPTURE(one.name);
            CAPTURE(other.name);
            CHECK_FALSE(overlap(*one.control, *other.control));
        }
}

TEST_CASE("the start states of the controls") {
    Dialog dialog;
    frmSetup& form = setup::setupForm();
    const std::set<std::string> disabled = {
        "txtTitle", "txtPath",           "txtTooltip",           "txtPara",
        "btnIcon",  "chkAdd, no dialog", "chkAdd, input dialog", "chkAdd, file dialog"};
    for (const Designed& each : designOf(form)) {
        CAPTURE(each.name);
        const std::string name = each.name.substr(0, each.name.find('/'));
        CHECK(each.control->enabled() == !disabled.contains(name));
        CHECK(each.control->visible() == (name != "imgIcon"));
    }
    // An empty preview looks like the page that it stands on.
    for (const forms::PictureBox& view : form.picView)
        CHECK(view.backColour() == 0xFFFFFF);
    for (const forms::Timer& timer : form.Timer1) {
        CHECK(timer.interval() == 50);
        CHECK_FALSE(timer.enabled());
    }
}

TEST_CASE("the tabs carry the options and then the lists in the order of the editor kinds") {
    Dialog dialog;
    dialog.open(0);
    frmSetup& form = dialog.form();
    const std::array<std::size_t, 4> frames = {1, 0, 2, 3};
    for (int tab = 0; tab < 4; ++tab) {
        dialog.act([&] { form.TabStrip1.selected(tab); });
        for (std::size_t frame = 0; frame < 4; ++frame)
            CHECK(form.fraSetup[frame].visible() == (frame == frames[static_cast<std::size_t>(tab)]));
    }
    CHECK(form.fraEAGLE.container() == &form.fraSetup[1]);
    CHECK(form.lstApps[0].container() == &form.fraSetup[0]);
    CHECK(form.lstApps[1].container() == &form.fraSetup[2]);
    CHECK(form.lstApps[2].container() == &form.fraSetup[3]);
    for (const forms::Frame& frame : form.fraSetup) {
        CHECK_FALSE(frame.border);
        CHECK(frame.left() == 150);
        CHECK(frame.top() == 660);
        CHECK(frame.width() == 6195);
        CHECK(frame.height() == 7755);
    }
}

TEST_CASE("a label comes right before the field that its mnemonic leads to") {
    Dialog dialog;
    dialog.open(0);
    frmSetup& form = dialog.form();
    std::vector<std::pair<forms::Control*, forms::Control*>> pairs = {
        {&form.labEAGLE, &form.txtEAGLE},     {&form.Label1[0], &form.cboUnit[0]},
        {&form.Label1[1], &form.cboUnit[1]},  {&form.Label1[2], &form.cboAccur[0]},
        {&form.Label1[3], &form.cboAccur[1]}, {&form.labLanguage, &form.cboLanguage}};
    for (std::size_t page = 0; page < setup::listPages; ++page) {
        pairs.emplace_back(&form.labTitle[page], &form.txtTitle[page]);
        pairs.emplace_back(&form.labPath[page], &form.txtPath[page]);
        pairs.emplace_back(&form.labTooltip[page], &form.txtTooltip[page]);
        pairs.emplace_back(&form.labPara[page], &form.txtPara[page]);
    }
    for (const auto& [label, field] : pairs) {
        const std::vector<forms::Control*>& siblings = label->container()->controls();
        const auto place = std::find(siblings.begin(), siblings.end(), label);
        REQUIRE(place != siblings.end());
        REQUIRE(std::next(place) != siblings.end());
        CHECK(*std::next(place) == field);
    }
}

TEST_SUITE_END();
