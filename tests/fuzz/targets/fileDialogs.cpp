// The buffers of the file dialogs: all that a caller can set, and what the dialog may answer.
#include "fuzz/targets/program.h"

#include "runtime/characters.h"
#include "setup/ObjFiledialog.h"
#include "toolbars/buttonTag.h"

namespace fuzz {

namespace {

void dialogObject(desktop::World& desk, Reader& reader) {
    setup::ObjFiledialog files;
    for (std::size_t count = reader.below(12); count > 0; --count) {
        const std::size_t what = reader.below(8);
        const std::string text = reader.text();
        if (what == 0)
            files.setDefaultExt(text);
        else if (what == 1)
            files.setDialogTitle(text);
        else if (what == 2)
            files.setFilename(text);
        else if (what == 3)
            files.setFilter(text);
        else if (what == 4)
            files.setFilter1Text(text);
        else if (what == 5)
            files.setFilter1Suffix(text);
        else if (what == 6)
            files.setInitDir(text);
        else
            files.setFlags(static_cast<std::int32_t>(text.size()));
    }
    const bool save = reader.below(2) == 1;
    const bool cancel = reader.below(8) == 0;
    const std::string answer = reader.text().substr(0, 600);
    desk.fileAnswers = {cancel ? std::nullopt : std::optional(answer)};
    const std::string given =
        save ? files.ShowSave(platform::HWND::none) : files.ShowOpen(platform::HWND::none);
    expect(given == files.Filename(), "a dialog gives what it holds");
    expect(given.empty() || given == answer.substr(0, answer.find('\0')), "a dialog gives its answer",
           answer);
    const desktop::FileDialog& shown = desk.fileDialogs.back();
    expect(!given.empty() || cancel || answer.empty() || answer.front() == '\0' ||
               answer.size() + 1 > shown.maxFile,
           "an answer that fits is taken", answer);
}

} // namespace

void fileDialogs(std::string_view input) {
    Reader reader(input);
    if (reader.below(4) != 0) {
        const desktop::Session session;
        dialogObject(desktop::world(), reader);
        return;
    }
    desktop::Program program;
    desktop::World& desk = program.desk();
    desk.startProcess("eagle.exe");
    expect(program.start(), "the program starts");
    desk.openWindow("Board - a.brd - EAGLE");
    program.ticks(1);
    store::ToolButton button;
    button.dialog = store::dialogKind::fileDialog;
    button.type = static_cast<std::int16_t>(reader.below(3));
    // As the settings file gives them: no half of a character at the end.
    button.path = runtime::withoutTornEnd(reader.text());
    button.param = runtime::withoutTornEnd(reader.text());
    desk.writeFile("C:\\a.exe", "MZ");
    desk.fileAnswers = {reader.text()};
    forms::ToolbarButton clicked;
    clicked.key = "x1";
    clicked.tag = toolbars::buttonTag(button);
    static const std::set<int> mayEnd = {6, 13};
    const bool on =
        desk.event([&] { program.toolbar(store::EditorKind::board, 1).Toolbar_ButtonClick(clicked); });
    if (goesOn(program, mayEnd, on))
        checkProgram(program);
}

} // namespace fuzz
