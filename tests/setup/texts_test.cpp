// The texts of the setup dialog in both languages.
#include "setup/dialog.h"

#include "setup/design.h"
#include "store/textCatalogue.h"

#include <map>
#include <set>

using setup::Designed;
using setup::Dialog;
using setup::frmSetup;

namespace {

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
    for (const Designed& each : designOf(form))
        if (const std::string caption = captionOf(*each.control); !caption.empty())
            captions[each.name] = caption;
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

} // namespace

TEST_SUITE_BEGIN("setup/texts");

TEST_CASE("every text of the catalogue stands on its control, in both languages") {
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

TEST_CASE("in German all captions change but the fixed ones") {
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

TEST_CASE("the fixed captions of the option buttons, the icons' labels and the language") {
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

TEST_CASE("at design the form and its tabs have captions of their own") {
    Dialog dialog;
    const frmSetup& form = setup::setupForm();
    CHECK_FALSE(form.loaded());
    CHECK(form.caption() == "Setup");
    CHECK(form.TabStrip1.tabCaption(0) == "General Options");
    CHECK(form.TabStrip1.tabCaption(1) == "Button Options BRD");
    CHECK(form.TabStrip1.tabCaption(2) == "Button Options SCH");
    CHECK(form.TabStrip1.tabCaption(3) == "Button Options LBR");
}

TEST_SUITE_END();
