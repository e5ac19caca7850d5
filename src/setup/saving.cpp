// The OK button: the one commit of the dialog. Deliberately not all or nothing: what has been written before
// a check fails stays written, and the dialog stays open with all edits.
#include "setup/frmSetup.h"

#include "calculator/frmMil.h"
#include "platform/dialogs.h"
#include "runtime/text.h"
#include "store/eaglePath.h"
#include "store/settings.h"
#include "store/state.h"
#include "store/textCatalogue.h"

namespace setup {

using store::languageOffset;
using store::LoadResString;
using store::setini;
namespace key = store::key;

void frmSetup::saveOptions() {
    constexpr const char* toolbar = store::section::toolbarWritten;
    setini(toolbar, key::autoEAGLE, std::to_string(chkEAGLE.value()));
    setini(toolbar, key::autoToolbar, std::to_string(chkClose.value()));
    const int windows = chkLastBRD.value() + 2 * chkLastSCH.value() + 4 * chkLastLBR.value();
    setini(toolbar, key::winEAGLE, std::to_string(windows));
    setini(toolbar, key::oneEAGLE, std::to_string(chkOneInst.value()));
    setini(store::section::unit, key::visible, std::to_string(chkUnitCalc.value()));
    store::unitCalcActive = static_cast<std::int16_t>(chkUnitCalc.value());
}

void frmSetup::saveUnits() {
    constexpr std::array<const char*, 2> unitKeys = {key::leftUnit, key::rightUnit};
    constexpr std::array<const char*, 2> accuracyKeys = {key::leftAccuracy, key::rightAccuracy};
    for (std::size_t side = 0; side < 2; ++side) {
        store::unitName[side] = cboUnit[side].text();
        setini(store::section::unit, unitKeys[side], store::unitName[side]);
    }
    for (std::size_t side = 0; side < 2; ++side) {
        store::unitAccuracy[side] = cboAccur[side].text();
        setini(store::section::unit, accuracyKeys[side], store::unitAccuracy[side]);
    }
}

void frmSetup::showWrongPath() {
    platform::msgBox(LoadResString(1057 + languageOffset), platform::criticalStyle,
                     LoadResString(3930 + languageOffset));
}

/// The working copies over the saved lists.
void frmSetup::commitLists() {
    for (const store::EditorKind kind : store::editorKinds) {
        const store::ButtonList& working = workList[static_cast<std::size_t>(kind)];
        store::ButtonList& saved = *store::listOf(kind).buttons;
        // A list without an entry is there too from now on.
        saved.redim(working.upperBound());
        if (working.allocated())
            saved = working;
    }
}

void frmSetup::btnOk_Click() {
    store::currentRoutine = "btnOk_Click";
    setMousePointer(forms::MousePointer::hourglass);
    store::keepSettings();
    anythingSaved = true;
    saveOptions();
    saveUnits();
    // Kept: the calculators in EAGLE's windows are other instances and keep their units.
    calculator::defaultMil().loadResources();
    if (chkEAGLE.value() != 0 && !store::isEaglePath(txtEAGLE.text())) {
        store::settingsWritten();
        showWrongPath();
        setMousePointer(forms::MousePointer::standard);
        return;
    }
    setini(store::section::toolbarWritten, key::eaglePath, std::string(runtime::trim(txtEAGLE.text())));
    commitLists();
    const bool needsEagle = store::saveButtonLists(0) != 0;
    store::settingsWritten();
    if (needsEagle && !store::isEaglePath(txtEAGLE.text())) {
        // Kept: all is saved by now, and the hourglass stays.
        showWrongPath();
        return;
    }
    btnCancel_Click();
    setMousePointer(forms::MousePointer::standard);
}

} // namespace setup
