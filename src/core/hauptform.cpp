#include "core/hauptform.h"

#include "core/frmMenu.h"
#include "core/frmSplash.h"
#include "core/launcher.h"
#include "core/runRequest.h"
#include "core/state.h"
#include "platform/system.h"
#include "store/settings.h"

namespace core {

namespace {

Hauptform* theHauptform = nullptr;

template <typename FormOfKind>
Toolbars startList() {
    Toolbars list;
    list.push_back(std::make_unique<FormOfKind>());
    return list;
}

} // namespace

Hauptform* hauptform() {
    return theHauptform;
}

Hauptform::Hauptform() {
    theHauptform = this;
    setCaption("Kestrel Strip for EAGLE");
    borderStyle = forms::BorderStyle::none;
    showInTaskbar = false;
    txtTooltip.place(*this, {});
    txtTooltip.setVisible(false);
    txtTooltip.setText("Kestrel Bar for EAGLE");
    txtTooltip.onMouseMove = [this](int, int, float x, float) { txtTooltip_MouseMove(x); };
    tmrSystray.onTimer = [this] { tryAddSystray(); };
    Timer1.onTimer = [this] { handleRunRequest(*this); };
    Timer2.onTimer = [this] { Timer2_Timer(); };
}

Hauptform::~Hauptform() {
    theHauptform = nullptr;
}

void Hauptform::Form_Load() {
    calculators.resize(1);
    toolbarsBRD = startList<toolbars::frmToolbarBRD>();
    toolbarsSCH = startList<toolbars::frmToolbarSCH>();
    toolbarsLBR = startList<toolbars::frmToolbarLBR>();
    // Before anything that the user or a running instance could notice.
    if (platform::previousInstance()) {
        unload();
        platform::endProgram();
    }
    dropRunRequest();
    splashForm().showModal();
    languageOffset = store::getNumber(store::section::global, store::key::language);
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
    if (store::getFlag(unit, key::visible))
        unitCalcActive = 1;
    unitName[0] = getText(unit, key::leftUnit, "mil");
    unitName[1] = getText(unit, key::rightUnit, "mm");
    unitAccuracy[0] = getText(unit, key::leftAccuracy, "@");
    unitAccuracy[1] = getText(unit, key::rightAccuracy, "@");
}

void Hauptform::Form_QueryUnload(bool& /*cancel*/) {
    delSystray();
}

void Hauptform::Form_Unload() {
    delSystray();
}

void Hauptform::Timer2_Timer() {
    setWindow();
    lookForRunRequest(*this);
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
