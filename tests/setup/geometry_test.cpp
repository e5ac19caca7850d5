// Where the controls of the setup dialog stand, what they start as, and which of them goes with which.
#include "setup/dialog.h"
#include "setup/namedControls.h"

#include <algorithm>
#include <array>
#include <map>
#include <set>

using setup::Dialog;
using setup::frmSetup;
using setup::Named;
using setup::Placing;

namespace {

/// A control with its container and place, in twips.
struct Expected {
    forms::Control* control;
    forms::Container* container;
    forms::Position place;
};

// Written down apart from the program's own table, so that a slip there is seen; in the order of the Tab key.

std::vector<Expected> onListPage(frmSetup& form, std::size_t n) {
    forms::Frame* page = &form.fraSetup[n == 0 ? 0 : n + 1];
    return {
        {&form.fraCommand[n], page, {150, 120, 5955, 3525}},
        {&form.labTitle[n], &form.fraCommand[n], {120, 360, 1335, 255}},
        {&form.txtTitle[n], &form.fraCommand[n], {1620, 300, 4035, 315}},
        {&form.labPath[n], &form.fraCommand[n], {60, 840, 1395, 255}},
        {&form.txtPath[n], &form.fraCommand[n], {1620, 780, 4035, 315}},
        {&form.labTooltip[n], &form.fraCommand[n], {180, 1320, 1275, 255}},
        {&form.txtTooltip[n], &form.fraCommand[n], {1620, 1260, 4035, 315}},
        {&form.labPara[n], &form.fraCommand[n], {180, 1770, 1275, 255}},
        {&form.txtPara[n], &form.fraCommand[n], {1620, 1740, 4035, 315}},
        {&form.labIcon[n], &form.fraCommand[n], {480, 2460, 915, 255}},
        {&form.imgIcon[n], &form.fraCommand[n], {300, 2400, 375, 345}},
        {&form.picView[n], &form.fraCommand[n], {1680, 2430, 345, 345}},
        {&form.btnIcon[n], &form.fraCommand[n], {720, 3000, 1335, 315}},
        {&form.chkAdd[3 * n], &form.fraCommand[n], {2760, 2340, 2895, 315}},
        {&form.chkAdd[3 * n + 1], &form.fraCommand[n], {2760, 2700, 2955, 315}},
        {&form.chkAdd[3 * n + 2], &form.fraCommand[n], {2760, 3090, 2955, 315}},
        {&form.lstApps[n], page, {150, 3840, 3045, 3765}},
        {&form.fraActions[n], page, {3450, 3750, 2655, 3855}},
        {&form.btnAdd[n], &form.fraActions[n], {240, 300, 2115, 315}},
        {&form.btnAddEAGLE[n], &form.fraActions[n], {240, 810, 2115, 315}},
        {&form.btnAddSep[n], &form.fraActions[n], {240, 1320, 2115, 315}},
        {&form.btnRemove[n], &form.fraActions[n], {240, 1800, 2115, 315}},
        {&form.btnH[n], &form.fraActions[n], {240, 2310, 525, 585}},
        {&form.btnL[n], &form.fraActions[n], {240, 3060, 555, 555}},
    };
}

std::vector<Expected> elsewhere(frmSetup& form) {
    return {
        {&form.TabStrip1, &form, {150, 120, 6495, 8625}},
        {&form.fraEAGLE, &form.fraSetup[1], {150, 150, 5955, 3135}},
        {&form.chkEAGLE, &form.fraEAGLE, {330, 330, 4155, 315}},
        {&form.chkClose, &form.fraEAGLE, {330, 750, 5475, 315}},
        {&form.labEAGLE, &form.fraEAGLE, {90, 1260, 1245, 345}},
        {&form.txtEAGLE, &form.fraEAGLE, {330, 1560, 4035, 315}},
        {&form.btnEAGLE, &form.fraEAGLE, {4560, 1560, 1155, 315}},
        {&form.labLastOpen, &form.fraEAGLE, {330, 1950, 4455, 315}},
        {&form.chkLastBRD, &form.fraEAGLE, {330, 2280, 1545, 315}},
        {&form.chkLastSCH, &form.fraEAGLE, {1980, 2280, 1545, 315}},
        {&form.chkLastLBR, &form.fraEAGLE, {3750, 2280, 1545, 315}},
        {&form.chkOneInst, &form.fraEAGLE, {330, 2670, 5295, 315}},
        {&form.fraOptions, &form.fraSetup[1], {150, 3510, 5955, 2805}},
        {&form.chkUnitCalc, &form.fraOptions, {330, 360, 4155, 315}},
        {&form.Label1[0], &form.fraOptions, {870, 900, 2055, 225}},
        {&form.cboUnit[0], &form.fraOptions, {1080, 1140, 1500, 315}},
        {&form.Label1[1], &form.fraOptions, {3720, 900, 2055, 225}},
        {&form.cboUnit[1], &form.fraOptions, {3900, 1170, 1500, 315}},
        {&form.Line1[0], &form.fraOptions, {3030, 780, 0, 1770}},
        {&form.Label1[2], &form.fraOptions, {810, 1770, 2055, 225}},
        {&form.cboAccur[0], &form.fraOptions, {1080, 2040, 1500, 315}},
        {&form.Label1[3], &form.fraOptions, {3690, 1770, 2055, 225}},
        {&form.cboAccur[1], &form.fraOptions, {3900, 2040, 1500, 315}},
        {&form.fraGlobal, &form.fraSetup[1], {150, 6450, 5955, 1095}},
        {&form.labLanguage, &form.fraGlobal, {2010, 510, 1815, 375}},
        {&form.cboLanguage, &form.fraGlobal, {3900, 450, 1500, 315}},
        {&form.btnHelp, &form, {1440, 8910, 1125, 315}},
        {&form.btnCancel, &form, {3660, 8910, 1185, 315}},
        {&form.btnOk, &form, {5160, 8910, 1155, 315}},
    };
}

std::vector<Expected> everywhere(frmSetup& form) {
    std::vector<Expected> all = elsewhere(form);
    for (std::size_t n = 0; n < setup::listPages; ++n)
        for (const Expected& each : onListPage(form, n))
            all.push_back(each);
    return all;
}

bool overlap(const forms::Control& a, const forms::Control& b) {
    return a.left() < b.left() + b.width() && b.left() < a.left() + a.width() &&
           a.top() < b.top() + b.height() && b.top() < a.top() + a.height();
}

} // namespace

TEST_CASE("setup: every control has its container and its place, and none is left out") {
    Dialog dialog;
    dialog.open(0);
    const std::vector<Expected> all = everywhere(dialog.form());
    for (std::size_t row = 0; row < all.size(); ++row) {
        CAPTURE(row);
        CHECK(all[row].control->container() == all[row].container);
        CHECK(all[row].control->position() == all[row].place);
    }
    // The tab strip stands in no table.
    CHECK(controlsOf(dialog.form()).size() == all.size() - 1);
}

TEST_CASE("setup: in each container the Tab key goes in the order of the places") {
    Dialog dialog;
    dialog.open(0);
    std::map<forms::Container*, std::vector<forms::Control*>> inside;
    for (const Expected& each : everywhere(dialog.form()))
        inside[each.container].push_back(each.control);
    for (const auto& [container, controls] : inside)
        CHECK(container->controls() == controls);
    for (const Expected& each : everywhere(dialog.form()))
        CHECK_FALSE(each.control->tabIndex.has_value());
}

TEST_CASE("setup: every control lies inside its container") {
    Dialog dialog;
    dialog.open(0);
    for (const Named& named : controlsOf(dialog.form())) {
        CAPTURE(named.name);
        forms::Control& control = *named.control;
        CHECK(control.form() == &dialog.form());
        const bool onForm = named.container->kind() == forms::ControlKind::form;
        const float width = onForm ? dialog.form().scaleWidth() : named.container->width();
        const float height = onForm ? dialog.form().scaleHeight() : named.container->height();
        CHECK(control.left() >= 0);
        CHECK(control.top() >= 0);
        CHECK(control.left() + control.width() <= width);
        CHECK(control.top() + control.height() <= height);
    }
}

TEST_CASE("setup: the labels before a field are aligned with it at the right, those above one at the left") {
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

TEST_CASE("setup: no control covers its neighbour") {
    Dialog dialog;
    dialog.open(0);
    const std::vector<Named> all = controlsOf(dialog.form());
    for (const Named& one : all)
        for (const Named& other : all) {
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

TEST_CASE("setup: the start states of a list page") {
    Dialog dialog;
    frmSetup& form = setup::setupForm();
    const std::set<std::string> disabled = {
        "txtTitle", "txtPath",           "txtTooltip",           "txtPara",
        "btnIcon",  "chkAdd, no dialog", "chkAdd, input dialog", "chkAdd, file dialog"};
    for (const Placing& row : setup::listPagePlacings())
        for (std::size_t page = 0; page < setup::listPages; ++page) {
            CAPTURE(row.name);
            CHECK(row.control(form, page).enabled() == !disabled.contains(row.name));
            CHECK(row.control(form, page).visible() == (std::string(row.name) != "imgIcon"));
        }
    // An empty preview looks like the page that it stands on.
    for (const forms::PictureBox& view : form.picView)
        CHECK(view.backColour() == 0xFFFFFF);
    for (const forms::Timer& timer : form.Timer1) {
        CHECK(timer.interval() == 50);
        CHECK_FALSE(timer.enabled());
    }
}

TEST_CASE("setup: the tabs carry the options and then the lists in the order of the editor kinds") {
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

TEST_CASE("setup: a label comes right before the field that its mnemonic leads to") {
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
