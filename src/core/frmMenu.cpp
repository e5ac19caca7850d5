#include "core/frmMenu.h"

#include "core/frmSplash.h"
#include "core/hauptform.h"
#include "core/launcher.h"
#include "forms/defaultInstance.h"
#include "platform/messages.h"
#include "platform/programs.h"
#include "setup/frmSetup.h"
#include "store/help.h"
#include "store/state.h"
#include "store/textCatalogue.h"

#include <cstddef>
#include <cstdint>
#include <iterator>

namespace core {

namespace {

enum Entry : int { info = 0, help = 1, openEagle = 3, configuration = 4, leave = 6 };

struct Design {
    int index;
    const char* caption;
    std::int32_t text; ///< id in the catalogue, 0 for a separator
};

constexpr Design entries[] = {
    {info, "&Info", 1100},        {help, "&Hilfe", 1101},           {2, "-", 0},
    {openEagle, "&EAGLE ", 1102}, {configuration, "&Config", 1103}, {5, "-", 0},
    {leave, "&Exit", 1104},
};

void configure() {
    // One setup at a time: it may be up behind other programs' windows, opened by a toolbar or from here.
    if (setup::setupForm().visible()) {
        setup::setupForm().setFocus();
        return;
    }
    Hauptform& form = *hauptform();
    // The tracker is not to act on toolbars during the edit.
    form.Timer2.setEnabled(false);
    setup::openSetup(0);
    form.Timer2.setEnabled(true);
    form.setWindow();
}

[[noreturn]] void endByMenu() {
    hauptform()->delSystray();
    platform::doEvents();
    platform::endProgram();
}

} // namespace

frmMenu::frmMenu() {
    borderStyle = forms::BorderStyle::none;
    showInTaskbar = false;
    for (const Design& entry : entries)
        mnuTaskbarG.items.push_back({entry.index, entry.caption});
    mnuTaskbarG.onClick = [this](int index) { mnuTaskbar_Click(index); };
}

void frmMenu::loadResources() {
    load();
    for (std::size_t row = 0; row < std::size(entries); ++row)
        if (entries[row].text != 0)
            mnuTaskbarG.items[row].caption = store::LoadResString(entries[row].text + store::languageOffset);
}

void frmMenu::mnuTaskbar_Click(int index) {
    switch (index) {
    case info:
        splashForm().show();
        break;
    case help:
        store::showHelp();
        break;
    case openEagle:
        startEagle();
        break;
    case configuration:
        configure();
        break;
    case leave:
        endByMenu();
    default:
        unload();
        break;
    }
}

frmMenu& menuForm() {
    return forms::defaultInstance<frmMenu>();
}

} // namespace core
