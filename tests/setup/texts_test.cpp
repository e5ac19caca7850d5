// The texts of the setup dialog in both languages, and where its controls stand.
#include "setup/dialog.h"

#include "setup/geometry.h"
#include "store/textCatalogue.h"

#include <algorithm>
#include <map>
#include <set>
#include <span>

using setup::Dialog;
using setup::frmSetup;
using setup::Placing;

namespace {

/// A control with the name that the table of places gives it, behind it its page.
struct Named {
    std::string name;
    forms::Control* control;
    forms::Container* container;
    const Placing* row;
};

std::vector<Named> controlsOf(frmSetup& form) {
    std::vector<Named> all;
    const auto add = [&](std::span<const Placing> rows, std::size_t page, const std::string& ending) {
        for (const Placing& row : rows)
            all.push_back({row.name + ending, &row.control(form, page), &row.container(form, page), &row});
    };
    for (std::size_t page = 0; page < setup::listPages; ++page)
        add(setup::listPagePlacings(), page, "/" + std::to_string(page));
    add(setup::optionsPlacings(), 0, {});
    add(setup::buttonPlacings(), 0, {});
    return all;
}

std::string captionOf(forms::Control& control) {
    switch (control.kind()) {
    case forms::ControlKind::frame:
        return static_cast<forms::Frame&>(control).caption();
    case forms::ControlKind::label:
        return static_cast<forms::Label&>(control).caption();
    case forms::ControlKind::commandButton:
        return static_cast<forms::CommandButton&>(control).caption();
    case forms::ControlKind::checkBox:
        return static_cast<forms::CheckBox&>(control).caption();
    case forms::ControlKind::optionButton:
        return static_cast<forms::OptionButton&>(control).caption();
    default:
        return {};
    }
}

std::map<std::string, std::string> captionsOf(frmSetup& form) {
    std::map<std::string, std::string> captions;
    for (const Named& named : controlsOf(form))
        if (const std::string caption = captionOf(*named.control); !caption.empty())
            captions[named.name] = caption;
    for (int tab = 0; tab < 4; ++tab)
        captions["tab " + std::to_string(tab)] = form.TabStrip1.tabCaption(tab);
    captions["form"] = form.caption();
    return captions;
}

struct TextRow {
    const char* name; ///< of the control, without the page
    int id;
};

constexpr TextRow pageTexts[] = {
    {"fraCommand", 1000}, {"labTitle", 1001},    {"labPath", 1002},   {"labTooltip", 1003}, {"labPara", 1004},
    {"btnIcon", 1005},    {"btnAddEAGLE", 1010}, {"btnAddSep", 1011}, {"btnRemove", 1012},  {"btnAdd", 1009},
};

constexpr TextRow texts[] = {
    {"chkAdd, no dialog/0", 1006},
    {"chkAdd, input dialog/0", 1007},
    {"chkAdd, file dialog/0", 1008},
    {"btnHelp", 1014},
    {"btnCancel", 1015},
    {"btnOk", 1016},
    {"form", 1017},
    {"chkEAGLE", 1053},
    {"chkClose", 1075},
    {"btnEAGLE", 1054},
    {"labEAGLE", 1055},
    {"labLastOpen", 1060},
    {"chkOneInst", 1061},
    {"chkUnitCalc", 1062},
    {"Label1(0)", 1063},
    {"Label1(1)", 1064},
    {"Label1(2)", 1065},
    {"Label1(3)", 1066},
    {"fraEAGLE", 1067},
    {"fraOptions", 1068},
    {"fraGlobal", 1069},
    {"tab 0", 1070},
    {"chkLastBRD", 1072},
    {"chkLastSCH", 1073},
    {"chkLastLBR", 1074},
};

const char* settingsOf(int offset) {
    return offset == 0 ? "[global]\r\nlanguage=0\r\n" : "[global]\r\nlanguage=10000\r\n";
}

bool overlap(const forms::Control& a, const forms::Control& b) {
    return a.left() < b.left() + b.width() && b.left() < a.left() + a.width() &&
           a.top() < b.top() + b.height() && b.top() < a.top() + a.height();
}

} // namespace

TEST_CASE("setup: every text of the catalogue stands on its control, in both languages") {
    for (const int offset : {0, 10000}) {
        Dialog dialog(settingsOf(offset));
        dialog.open(0);
        auto captions = captionsOf(dialog.form());
        for (const TextRow& row : pageTexts)
            for (const char* page : {"/0", "/1", "/2"}) {
                CAPTURE(row.name);
                CHECK(captions[std::string(row.name) + page] == store::LoadResString(row.id + offset));
            }
        for (const TextRow& row : texts) {
            CAPTURE(row.name);
            CHECK(captions[row.name] == store::LoadResString(row.id + offset));
        }
        const std::string buttons = store::LoadResString(1071 + offset);
        CHECK(captions["tab 1"] == buttons + " - Board");
        CHECK(captions["tab 2"] == buttons + " - Schematic");
        CHECK(captions["tab 3"] == buttons + " - Library");
        CHECK(captions["form"].back() == ' ');
    }
}

TEST_CASE("setup: in German all captions change but the fixed ones") {
    std::map<std::string, std::string> german;
    {
        Dialog dialog(settingsOf(0));
        dialog.open(0);
        german = captionsOf(dialog.form());
    }
    Dialog dialog(settingsOf(10000));
    dialog.open(0);
    std::set<std::string> same;
    for (const auto& [name, caption] : captionsOf(dialog.form()))
        if (german[name] == caption)
            same.insert(name);
    const std::set<std::string> fixed = {"chkAdd, no dialog/1", "chkAdd, input dialog/1",
                                         "chkAdd, file dialog/1", "chkAdd, no dialog/2",
                                         "chkAdd, input dialog/2", "chkAdd, file dialog/2", "labIcon/0",
                                         "labIcon/1", "labIcon/2", "labLanguage",
                                         // The catalogue has the same words for these in both languages.
                                         "btnOk", "fraEAGLE", "chkLastBRD"};
    CHECK(same == fixed);
    for (const int tab : {1, 2, 3}) {
        const std::string caption = dialog.form().TabStrip1.tabCaption(tab);
        const std::string inGerman = german["tab " + std::to_string(tab)];
        const std::string ending = caption.substr(caption.find(" - "));
        CHECK(inGerman.ends_with(ending));
        CHECK(inGerman != caption);
    }
}

TEST_CASE("setup: the fixed captions of the option buttons, the icons' labels and the language") {
    Dialog dialog;
    dialog.open(0);
    for (const std::size_t option : {3U, 6U}) {
        CHECK(dialog.form().chkAdd[option].caption() == "None");
        CHECK(dialog.form().chkAdd[option + 1].caption() == "Add Input Dialog for Parameters");
        CHECK(dialog.form().chkAdd[option + 2].caption() == "Add 'Open File Dialog'");
    }
    for (const forms::Label& label : dialog.form().labIcon)
        CHECK(label.caption() == "Icon:");
    CHECK(dialog.form().labLanguage.caption() == "Sprache/Language:");
    for (const forms::Frame& frame : dialog.form().fraActions)
        CHECK(frame.caption().empty());
}

TEST_CASE("setup: at design the form and its tabs have captions of their own") {
    Dialog dialog;
    const frmSetup& form = setup::setupForm();
    CHECK_FALSE(form.loaded());
    CHECK(form.caption() == "Setup");
    CHECK(form.TabStrip1.tabCaption(0) == "General Options");
    CHECK(form.TabStrip1.tabCaption(1) == "Button Options BRD");
    CHECK(form.TabStrip1.tabCaption(2) == "Button Options SCH");
    CHECK(form.TabStrip1.tabCaption(3) == "Button Options LBR");
}

TEST_CASE("setup: every control stands in its container where the table has it, and inside it") {
    Dialog dialog;
    dialog.open(0);
    for (const Named& named : controlsOf(dialog.form())) {
        CAPTURE(named.name);
        forms::Control& control = *named.control;
        CHECK(control.container() == named.container);
        CHECK(control.position() == named.row->place);
        CHECK(control.form() == &dialog.form());
        const bool onForm = named.container->kind() == forms::ControlKind::form;
        const float width = onForm ? dialog.form().scaleWidth() : named.container->width();
        const float height = onForm ? dialog.form().scaleHeight() : named.container->height();
        CHECK(control.left() >= 0);
        CHECK(control.top() >= 0);
        CHECK(control.left() + control.width() <= width);
        CHECK(control.top() + control.height() <= height);
    }
    CHECK(dialog.form().TabStrip1.position() == forms::Position{150, 120, 6495, 8625});
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
    for (const forms::Timer& timer : form.Timer1) {
        CHECK(timer.interval() == 50);
        CHECK_FALSE(timer.enabled());
    }
    for (std::size_t page = 0; page < setup::listPages; ++page) {
        CHECK_FALSE(form.btnH[page].picture().empty());
        CHECK_FALSE(form.btnL[page].picture().empty());
        CHECK_FALSE(form.btnH[page].picture() == form.btnL[page].picture());
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
