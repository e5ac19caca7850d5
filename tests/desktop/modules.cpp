#include "desktop/modules.h"

#include "calculator/frmMil.h"
#include "core/frmMenu.h"
#include "core/frmSplash.h"
#include "core/windoInf.h"
#include "forms/defaultInstance.h"
#include "setup/frmSetup.h"
#include "store/buttonLists.h"
#include "store/mends.h"
#include "store/pathTokens.h"
#include "store/settings.h"
#include "store/state.h"
#include "toolbars/frmPullDown.h"
#include "toolbars/frmToolbar.h"

namespace desktop {

void resetModules() {
    store::languageOffset = 0;
    store::mendsOn = false;
    store::unitCalcActive = 0;
    store::unitName = {};
    store::unitAccuracy = {};
    store::wholeByThisRun = false;
    store::currentRoutine.clear();
    store::eagleFolder.clear();
    store::boardButtons = {};
    store::schemButtons = {};
    store::librButtons = {};
    core::searchTitle.clear();
    core::foundWindow = platform::HWND::none;
    toolbars::lastToolbarKind = 0;
    forms::defaultSlot<setup::frmSetup>().reset();
    forms::defaultSlot<core::frmMenu>().reset();
    forms::defaultSlot<core::frmSplash>().reset();
    forms::defaultSlot<calculator::frmMil>().reset();
    forms::defaultSlot<toolbars::frmPullDown>().reset();
}

} // namespace desktop
