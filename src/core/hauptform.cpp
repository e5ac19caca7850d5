#include "core/hauptform.h"

#include "core/frmMenu.h"
#include "core/frmSplash.h"
#include "core/launcher.h"
#include "forms/mainForm.h"
#include "platform/programs.h"
#include "setup/frmSetup.h"
#include "store/help.h"
#include "store/mends.h"
#include "store/settings.h"
#include "store/state.h"

#include <algorithm>

namespace core {

Hauptform* hauptform() {
    return dynamic_cast<Hauptform*>(forms::mainForm);
}

Hauptform::Hauptform() {
    setCaption("Kestrel Strip for EAGLE");
    borderStyle = forms::BorderStyle::none;
    showInTaskbar = false;
    txtTooltip.place(*this, {});
    txtTooltip.setVisible(false);
    txtTooltip.setText("Kestrel Bar for EAGLE");
    txtTooltip.onMouseMove = [this](int, int, float x, float) { txtTooltip_MouseMove(x); };
    tmrSystray.onTimer = [this] { tryAddSystray(); };
    Timer1.onTimer = [this] { Timer1_Timer(); };
    Timer2.onTimer = [this] { Timer2_Timer(); };
    onHelp = [] { store::showHelp(); };
    setup::frmSetup::onNewLanguage = [] { menuForm().loadResources(); };
    setup::frmSetup::onWindowReset = [this] { resetWindowRecords(); };
    setup::frmSetup::onSaved = [this] { followSave(); };
    // Last: a form whose making fails has never been there.
    forms::mainForm = this;
}

Hauptform::~Hauptform() {
    onHelp = nullptr;
    setup::frmSetup::onNewLanguage = nullptr;
    setup::frmSetup::onWindowReset = nullptr;
    setup::frmSetup::onSaved = nullptr;
    forms::mainForm = nullptr;
}

void Hauptform::Form_Load() {
    calculators.resize(1);
    for (const store::EditorKind kind : store::editorKinds) {
        toolbarsOf(kind).clear();
        toolbarsOf(kind).push_back(std::make_unique<toolbars::frmToolbar>(kind));
    }
    // Before anything that the user or a running instance could notice.
    if (platform::previousInstance()) {
        unload();
        platform::endProgram();
    }
    dropRunRequest();
    splashForm().showModal();
    store::languageOffset = store::getNumber(store::section::global, store::key::language);
    addSystray();
    menuForm().loadResources();
    loadSettings();
    store::loadButtonLists(0);
    if (store::getFlag(store::section::toolbar, store::key::autoEAGLE))
        startEagle();
    Timer2.setEnabled(true);
}

void Hauptform::loadSettings() {
    using store::getText;
    namespace key = store::key;
    constexpr const char* unit = store::section::unit;
    store::mendsOn = store::mendSetting();
    if (store::getFlag(unit, key::visible))
        store::unitCalcActive = 1;
    store::unitName[0] = getText(unit, key::leftUnit, "mil");
    store::unitName[1] = getText(unit, key::rightUnit, "mm");
    store::unitAccuracy[0] = getText(unit, key::leftAccuracy, "@");
    store::unitAccuracy[1] = getText(unit, key::rightAccuracy, "@");
}

void Hauptform::Form_QueryUnload(bool& /*cancel*/) {
    delSystray();
}

void Hauptform::Form_Unload() {
    delSystray();
}

void Hauptform::Timer2_Timer() {
    setWindow();
    lookForRunRequest();
}

/// Kept: nothing reads what is reset here.
void Hauptform::resetWindowRecords() {
    std::fill(windowTable.begin() + 1, windowTable.end(), 0);
    for (std::size_t record = 1; record <= 3; ++record)
        positions[record].top = 9999;
}

Toolbars& Hauptform::toolbarsOf(store::EditorKind kind) {
    switch (kind) {
    case store::EditorKind::board:
        return toolbarsBRD;
    case store::EditorKind::schematic:
        return toolbarsSCH;
    case store::EditorKind::library:
        break;
    }
    return toolbarsLBR;
}

} // namespace core
