#include "desktop/program.h"

#include "core/state.h"
#include "core/windoInf.h"
#include "store/pathTokens.h"
#include "store/settings.h"

namespace desktop {

namespace {

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
}

} // namespace

Program::Program() {
    resetModules();
    form_ = std::make_unique<core::Hauptform>();
}

Program::~Program() = default;

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
