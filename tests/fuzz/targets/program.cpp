#include "fuzz/targets/program.h"

namespace fuzz {

void checkProgram(desktop::Program& program) {
    desktop::World& desk = program.desk();
    expect(desk.trayIcon.has_value() || desk.trayRefuses, "a program that runs has its icon in the tray");
    expect(desk.modalForms.empty(), "no form is modal between events");
    core::Hauptform& form = program.form();
    expect(!(form.Timer1.enabled() && form.Timer2.enabled()), "a tick and a run request exclude each other");
    expect(!form.calculators.empty() && form.calculators[0] == nullptr, "the first calculator stays empty");
    for (const store::EditorKind kind : store::editorKinds) {
        const core::Toolbars& list = form.toolbarsOf(kind);
        expect(!list.empty() && list[0]->eagHND == platform::HWND::none, "the first toolbar stands nowhere");
        for (const auto& toolbar : list)
            expect(toolbar->milIndex >= 0 &&
                       static_cast<std::size_t>(toolbar->milIndex) < form.calculators.size(),
                   "a toolbar's calculator is there");
    }
}

} // namespace fuzz
