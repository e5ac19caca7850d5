#include "desktop/program.h"

#include "core/frmMenu.h"
#include "core/frmSplash.h"
#include "core/state.h"
#include "core/windoInf.h"
#include "forms/defaultInstance.h"
#include "setup/frmSetup.h"
#include "store/pathTokens.h"
#include "store/settings.h"
#include "toolbars/frmPullDown.h"

namespace desktop {

namespace {

/// The forms that exist once are to be made anew, and must not outlive their desktop.
void dropDefaultInstances() {
    setup::dropSetupForm();
    forms::defaultSlot<core::frmMenu>().reset();
    forms::defaultSlot<core::frmSplash>().reset();
    forms::defaultSlot<calculator::frmMil>().reset();
    forms::defaultSlot<toolbars::frmPullDown>().reset();
}

void resetModules() {
    core::languageOffset = 0;
    core::unitCalcActive = 0;
    core::unitName = {};
    core::unitAccuracy = {};
    core::searchTitle.clear();
    core::foundWindow = HWND::none;
    store::currentRoutine.clear();
    store::boardButtons = {};
    store::schemButtons = {};
    store::librButtons = {};
    toolbars::lastToolbarKind = 0;
    dropDefaultInstances();
}

} // namespace

Program::Program() {
    resetModules();
    form_ = std::make_unique<core::Hauptform>();
}

Program::~Program() {
    dropDefaultInstances();
}

bool Program::start() {
    return desk().event([this] { form_->load(); });
}

void Program::ticks(int count) {
    desk().run(static_cast<std::int64_t>(count) * form_->Timer2.interval());
}

toolbars::frmToolbar& Program::toolbar(store::EditorKind kind, std::size_t index) {
    return *form_->toolbarsOf(kind).at(index);
}

std::size_t Program::hosted(store::EditorKind kind) {
    return form_->toolbarsOf(kind).size() - 1;
}

} // namespace desktop
