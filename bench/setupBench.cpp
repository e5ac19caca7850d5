#include "setupBench.h"

#include "bareDialog.h"

#include "platform/executable.h"
#include "setup/frmSetup.h"
#include "store/buttonLists.h"
#include "store/settings.h"
#include "store/state.h"
#include "win32/common/messages.h"

#include <windows.h>

#include <string>
#include <vector>

namespace bench {

namespace {

void fillLists(int buttonCount) {
    store::unitName = {"mil", "mm"};
    store::unitAccuracy = {"@", "@"};
    for (const store::EditorKind kind : store::editorKinds) {
        store::ButtonList& list = *store::listOf(kind).buttons;
        list.redim(buttonCount);
        for (int row = 1; row <= buttonCount; ++row) {
            store::ToolButton& button = list[row];
            button.name = "button " + std::to_string(row);
            button.path = "window fit";
            button.tooltip = "a tip";
            button.icon = platform::programFolder() + "\\brd.ico,0";
            button.type = 1;
            button.live = 1;
        }
    }
}

void open() {
    setup::setupForm().loadResources();
    setup::setupForm().setType(1);
    setup::setupForm().show();
    win32::servePending();
}

struct Write {
    const char* section;
    std::string key;
    std::string value;
};

/// What an OK writes, in its order; a list's section is removed ahead of its rows.
std::vector<Write> writes(int buttonCount) {
    std::vector<Write> all;
    for (const char* key : {"autoEAGLE", "autoToolbar", "winEAGLE", "oneEAGLE"})
        all.push_back({"Toolbar", key, "0"});
    all.push_back({"Unit", "Visible", "0"});
    all.push_back({"Unit", "LeftUnit", "mil"});
    all.push_back({"Unit", "RightUnit", "mm"});
    all.push_back({"Unit", "LeftAccuracy", "@"});
    all.push_back({"Unit", "RightAccuracy", "@"});
    all.push_back({"Toolbar", "EAGLEpath", ""});
    for (const store::EditorKind kind : store::editorKinds) {
        const store::ListOfKind& list = store::listOf(kind);
        all.push_back({list.section, "", ""});
        for (int row = 1; row <= buttonCount; ++row) {
            const store::ToolButton& button = (*list.buttons)[row];
            const std::string number = std::to_string(row);
            all.push_back({list.section, number + "name", button.name});
            all.push_back({list.section, number + "path", button.path});
            all.push_back({list.section, number + "tooltip", button.tooltip});
            all.push_back({list.section, number + "param", button.param});
            all.push_back({list.section, number + "icon", button.icon});
            all.push_back({list.section, number + "dialog", std::to_string(button.dialog)});
            all.push_back({list.section, number + "type", std::to_string(button.type)});
        }
    }
    return all;
}

} // namespace

void openSetup(int count, int buttons) {
    fillLists(buttons);
    for (int round = 0; round < count; ++round) {
        open();
        setup::setupForm().btnCancel.click();
    }
}

void openBare(int count, int buttons) {
    fillLists(buttons);
    open();
    const BareDialog dialog(reinterpret_cast<HWND>(setup::setupForm().window()));
    setup::setupForm().btnCancel.click();
    for (int round = 0; round < count; ++round)
        dialog.openAndClose();
}

void okSetup(int count, int buttons) {
    fillLists(buttons);
    for (int round = 0; round < count; ++round) {
        open();
        setup::setupForm().btnOk.click();
    }
}

void okBare(int count, int buttons) {
    fillLists(buttons);
    const std::vector<Write> all = writes(buttons);
    const std::string file = platform::programFolder() + "\\kestrel.ini";
    for (int round = 0; round < count; ++round)
        for (const Write& write : all) {
            const bool removes = write.key.empty();
            ::WritePrivateProfileStringA(write.section, removes ? nullptr : write.key.c_str(),
                                         removes ? nullptr : write.value.c_str(), file.c_str());
        }
}

} // namespace bench
