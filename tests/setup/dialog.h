// The setup dialog as tests drive it: the program with the lists and settings that a test gives, the dialog
// opened on a page, and what a user does to its controls.
#pragma once

#include "desktop/program.h"
#include "setup/frmSetup.h"
#include "store/settings.h"
#include "store/state.h"

#include <doctest/doctest.h>

#include <string>
#include <vector>

namespace setup {

/// A live entry with texts made of its name.
inline store::ToolButton entry(const std::string& name, int type = 0, int dialog = 0) {
    store::ToolButton made;
    made.name = name;
    made.path = name + " path";
    made.tooltip = name + " tip";
    made.param = name + " question";
    made.icon = "";
    made.dialog = static_cast<std::int16_t>(dialog);
    made.type = static_cast<std::int16_t>(type);
    made.live = 1;
    return made;
}

inline store::ButtonList listOf(const std::vector<store::ToolButton>& entries) {
    store::ButtonList list;
    for (const store::ToolButton& added : entries) {
        list.redim(list.upperBound() + 1);
        list[list.upperBound()] = added;
    }
    return list;
}

inline store::ButtonList namedList(const std::vector<std::string>& names) {
    std::vector<store::ToolButton> entries;
    for (const std::string& name : names)
        entries.push_back(entry(name));
    return listOf(entries);
}

struct Dialog : desktop::Program {
    explicit Dialog(const std::string& settings = {}) {
        if (!settings.empty())
            desk().writeSettings(settings);
        REQUIRE(start());
        desk().calls.clear();
    }

    frmSetup& form() { return setupForm(); }

    /// Opens the dialog as an opener does, but for the modal hold.
    void open(int page) {
        REQUIRE(desk().event([&] {
            form().loadResources();
            form().setType(static_cast<std::int16_t>(page));
            form().show();
        }));
    }
    void act(const std::function<void()>& code) { REQUIRE(desk().event(code)); }
    void click(forms::CommandButton& button) {
        act([&] { button.click(); });
    }
    void ok() { click(form().btnOk); }
    /// After a closing form() gives a new one, which is not loaded yet.
    bool closed() { return !form().loaded(); }
    void choose(forms::OptionButton& option) {
        act([&] { option.click(); });
    }
    void select(std::size_t page, int row) {
        act([&] { form().lstApps[page].selected(row); });
    }
    /// What is in a field is overwritten, as by a paste.
    void enter(forms::TextBox& box, const std::string& text) {
        act([&] { box.edited(text); });
    }
    std::vector<std::string> rows(std::size_t page) { return form().lstApps[page].items(); }
    int selected(std::size_t page) { return form().lstApps[page].listIndex(); }
    store::ToolButton& record(std::size_t page, int slot) { return form().workList[page][slot]; }
};

using Names = std::vector<std::string>;

/// The saved list that a page shows.
inline store::ButtonList& savedList(std::size_t page) {
    return *store::listOf(static_cast<store::EditorKind>(page)).buttons;
}

/// The dialog with the same list on all three pages.
struct Lists : Dialog {
    explicit Lists(const store::ButtonList& list) {
        for (std::size_t page = 0; page < listPages; ++page)
            savedList(page) = list;
        open(1);
    }
    explicit Lists(const Names& names) : Lists(namedList(names)) {}

    bool blank(std::size_t page) {
        return form().txtTitle[page].text().empty() && form().txtPath[page].text().empty() &&
               form().txtTooltip[page].text().empty() && form().txtPara[page].text().empty();
    }
};

} // namespace setup
