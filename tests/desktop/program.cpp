#include "desktop/program.h"

namespace desktop {

Program::Program() : form_(std::make_unique<core::Hauptform>()) {}

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
