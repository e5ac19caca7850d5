#include "walk/walk.h"

#include "store/state.h"

namespace programWalk {

using setup::frmSetup;

namespace {

std::string flag(const forms::CheckBox& box) {
    return std::to_string(box.value());
}

/// What the settings have, or what the program takes for it.
std::string valueOf(const Settings& settings, const std::string& key, const std::string& otherwise) {
    const auto found = settings.find(key);
    return found == settings.end() || found->second.empty() ? otherwise : found->second;
}

constexpr std::array sections = {"board", "schem", "libr"};

} // namespace

void Walk::expectSetup(std::size_t opener) {
    desk_.modalScripts = {[this, opener](forms::Form& form) {
        pages_ = opener;
        useSetup(dynamic_cast<frmSetup&>(form));
    }};
}

void Walk::useSetup(frmSetup& form) {
    checkSetup(form);
    for (std::size_t edits = random_.below(8); edits > 0; --edits)
        edit(form);
    const std::size_t end = random_.below(10);
    note(end < 6 ? "and OK" : "and Cancel");
    if (end < 6) {
        expectSaved(form);
        form.btnOk.click();
    } else if (end < 9) {
        form.btnCancel.click();
    } else {
        form.closeRequested();
    }
    rule(!form.visible(), "the setup closes");
}

/// It shows what is stored, and nothing else of the program takes the mouse.
void Walk::checkSetup(frmSetup& form) {
    for (std::size_t page = 0; page < kinds && expected_.mended; ++page) {
        std::vector<std::string> stored;
        for (const Row& row : expected_.rows[page])
            stored.push_back(row.name);
        rule(form.lstApps[page].items() == stored, "the setup shows the list that is stored");
    }
    const Settings& settings = expected_.settings;
    rule(flag(form.chkEAGLE) == valueOf(settings, "toolbar.autoeagle", "0"), "autoEAGLE is shown");
    rule(flag(form.chkClose) == valueOf(settings, "toolbar.autotoolbar", "0"), "autoToolbar is shown");
    rule(flag(form.chkOneInst) == valueOf(settings, "toolbar.oneeagle", "0"), "oneEAGLE is shown");
    rule(flag(form.chkUnitCalc) == valueOf(settings, "unit.visible", "0"), "the calculator's box is shown");
    rule(form.txtEAGLE.text() == valueOf(settings, "toolbar.eaglepath", ""), "EAGLE's path is shown");
    rule(form.cboUnit[0].text() == valueOf(settings, "unit.leftunit", "mil"), "the left unit is shown");
    rule(form.cboUnit[1].text() == valueOf(settings, "unit.rightunit", "mm"), "the right unit is shown");
    rule(form.cboAccur[0].text() == valueOf(settings, "unit.leftaccuracy", "@"), "the left format is shown");
    rule(form.cboAccur[1].text() == valueOf(settings, "unit.rightaccuracy", "@"),
         "the right format is shown");
    rule(pages_ < kinds || !program_.form().Timer2.enabled(), "no tick while the tray's setup is up");
    for (const HWND handle : desk_.order) {
        const desktop::Window& window = desk_.window(handle);
        rule(window.process != desktop::programProcess || window.enabled == (handle == form.hWnd()),
             "of the program's windows the setup alone takes the mouse");
    }
    rule(desk_.foundDisabled.empty() && desk_.disabledHosts.empty(), "no host is held by the setup");
}

void Walk::edit(frmSetup& form) {
    const std::array boxes = {&form.chkEAGLE,   &form.chkClose,   &form.chkLastBRD, &form.chkLastSCH,
                              &form.chkLastLBR, &form.chkOneInst, &form.chkUnitCalc};
    switch (random_.below(8)) {
    case 0:
        boxes[random_.below(boxes.size())]->click();
        break;
    case 1:
        form.cboUnit[random_.below(2)].selected(static_cast<int>(random_.below(4)));
        break;
    case 2:
        form.cboAccur[random_.below(2)].selected(static_cast<int>(random_.below(8)));
        break;
    case 3:
        if (one(4)) {
            const int language = static_cast<int>(random_.below(2));
            form.cboLanguage.selected(language);
            expected_.settings["global.language"] = language == 0 ? "10000" : "0";
        }
        break;
    default:
        editList(form, random_.below(kinds));
    }
}

void Walk::editList(frmSetup& form, std::size_t page) {
    constexpr std::array texts = {"grid", "drc", "ratsnest", "{eaglepath}\\x", "window fit", "a"};
    const std::array fields = {&form.txtTitle[page], &form.txtPath[page], &form.txtTooltip[page],
                               &form.txtPara[page]};
    forms::ListBox& list = form.lstApps[page];
    constexpr int mostRows = 9;
    switch (random_.below(8)) {
    case 0:
        if (list.listCount() < mostRows)
            form.btnAddEAGLE[page].click();
        break;
    case 1:
        if (list.listCount() < mostRows)
            form.btnAddSep[page].click();
        break;
    case 2:
        desk_.fileAnswers = {std::string("C:\\tools\\run.exe")};
        if (list.listCount() < mostRows)
            form.btnAdd[page].click();
        break;
    case 3:
        if (list.listCount() > 0) {
            list.selected(static_cast<int>(random_.below(static_cast<std::size_t>(list.listCount()))));
            form.btnRemove[page].click();
        }
        break;
    case 4:
        (one(2) ? form.btnH : form.btnL)[page].click();
        break;
    case 5:
        form.chkAdd[random_.below(form.chkAdd.size())].click();
        break;
    case 6:
        desk_.chooserAnswers = {{platform::iconPicked, u"C:\\i.dll", 2}};
        if (list.listIndex() >= 0)
            form.btnIcon[page].click();
        break;
    default:
        if (list.listCount() > 0) {
            list.selected(static_cast<int>(random_.below(static_cast<std::size_t>(list.listCount()))));
            forms::TextBox& field = *fields[random_.below(fields.size())];
            if (field.enabled())
                field.edited(texts[random_.below(texts.size())]);
        }
    }
}

/// What OK is to leave in the settings file: all that the dialog holds.
void Walk::expectSaved(frmSetup& form) {
    Settings& settings = expected_.settings;
    settings["toolbar.autoeagle"] = flag(form.chkEAGLE);
    settings["toolbar.autotoolbar"] = flag(form.chkClose);
    settings["toolbar.wineagle"] =
        std::to_string(form.chkLastBRD.value() + 2 * form.chkLastSCH.value() + 4 * form.chkLastLBR.value());
    settings["toolbar.oneeagle"] = flag(form.chkOneInst);
    settings["toolbar.eaglepath"] = form.txtEAGLE.text();
    settings["unit.visible"] = flag(form.chkUnitCalc);
    settings["unit.leftunit"] = form.cboUnit[0].text();
    settings["unit.rightunit"] = form.cboUnit[1].text();
    settings["unit.leftaccuracy"] = form.cboAccur[0].text();
    settings["unit.rightaccuracy"] = form.cboAccur[1].text();
    expected_.calculatorsOn = form.chkUnitCalc.value() != 0;
    for (std::size_t page = 0; page < kinds; ++page) {
        const std::string section = std::string(sections[page]) + ".";
        std::erase_if(settings, [&](const auto& entry) { return entry.first.starts_with(section); });
        std::vector<Row>& rows = expected_.rows[page];
        rows.clear();
        const store::ButtonList& list = form.workList[page];
        for (std::int32_t row = 1; row <= list.upperBound(); ++row) {
            const store::ToolButton& button = list[row];
            if (button.live != 1)
                continue;
            rows.push_back({button.name, button.type == store::entryType::separator});
            const std::string number = section + std::to_string(rows.size());
            settings[number + "name"] = button.name;
            settings[number + "path"] = button.path;
            settings[number + "tooltip"] = button.tooltip;
            settings[number + "param"] = button.param;
            settings[number + "icon"] = button.icon;
            settings[number + "dialog"] = std::to_string(button.dialog);
            settings[number + "type"] = std::to_string(button.type);
        }
        // A row's caption follows its title with the next filling of the list.
        rule(static_cast<int>(rows.size()) == form.lstApps[page].listCount(),
             "the setup holds the rows that it shows");
    }
}

} // namespace programWalk
