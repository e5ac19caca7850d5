// A settings file of any bytes, through the start, ticks with an editor window of each kind, a click on each
// button, the setup opened, its rows selected and OK.
#include "fuzz/targets/program.h"

#include "runtime/text.h"
#include "store/buttonLists.h"
#include "store/state.h"

namespace fuzz {

namespace {

using store::EditorKind;

/// Lists by what is written of them.
std::string written(const store::ButtonList& list) {
    std::string text;
    for (std::int32_t row = 1; row <= list.upperBound(); ++row) {
        const store::ToolButton& button = list[row];
        text +=
            button.name + '|' + button.path + '|' + button.icon + '|' + std::to_string(button.type) + '\n';
    }
    return text;
}

/// Whether what is read is what is written again: a NUL ends a value when it is written, and of a section
/// that is there twice the first alone is written, which may uncover the second.
bool readAsWritten(std::string_view file) {
    const std::string folded = runtime::lowerCase(file);
    const auto twice = [&](std::string_view section) {
        const std::size_t first = folded.find(section);
        return first != std::string::npos && folded.find(section, first + 1) != std::string::npos;
    };
    return file.find('\0') == std::string_view::npos && !twice("board") && !twice("libr");
}

} // namespace

void settings(std::string_view input) {
    static const std::set<int> mayEnd = {5, 6, 9, 13, 53, 326, 35602};
    desktop::Program program;
    desktop::World& desk = program.desk();
    desk.startProcess("eagle.exe");
    desk.writeFile("C:\\EAGLE\\eagle.exe", "MZ");
    desk.addIcons("C:\\x.ico", 2);
    desk.writeSettings(std::string(input));
    if (!goesOn(program, mayEnd, program.start()))
        return;
    checkProgram(program);
    for (const char* title : {"Board - a.brd - EAGLE", "Schematic - b.sch", "Library - c.lbr (x) - EAGLE"})
        desk.openWindow(title);
    program.ticks(3);
    if (!goesOn(program, mayEnd, true))
        return;
    checkProgram(program);
    for (const EditorKind kind : store::editorKinds) {
        expect(program.hosted(kind) == 1 || kind == EditorKind::library, "an editor window has a toolbar");
        if (program.hosted(kind) != 1)
            continue;
        forms::Toolbar& bar = program.toolbar(kind, 1).toolbar;
        for (std::size_t place = 0; place + 1 < bar.buttons().size(); ++place)
            if (!goesOn(program, mayEnd, desk.event([&] { bar.clickButton(place); })))
                return;
    }
    const auto before = written(store::boardButtons) + written(store::librButtons);
    desk.modalScripts = {[&](forms::Form& shown) {
        auto& form = dynamic_cast<setup::frmSetup&>(shown);
        for (forms::ListBox& rows : form.lstApps)
            for (int row = 0; row < rows.listCount() && row < 3; ++row)
                rows.selected(row);
        form.txtEAGLE.edited("C:\\EAGLE\\eagle.exe");
        form.btnOk.click();
        if (form.visible())
            form.btnCancel.click();
    }};
    constexpr int configuration = 4;
    if (!goesOn(program, mayEnd, desk.event([&] { core::menuForm().mnuTaskbarG.onClick(configuration); })))
        return;
    checkProgram(program);
    program.ticks(2);
    goesOn(program, mayEnd, true);
    expect(!readAsWritten(input) || written(store::boardButtons) + written(store::librButtons) == before,
           "OK without an edit leaves the lists", before);
}

} // namespace fuzz
