// What a click on a button does.
#include "platform/dialogs.h"
#include "platform/files.h"
#include "platform/keySender.h"
#include "platform/programs.h"
#include "platform/user32.h"
#include "runtime/keyText.h"
#include "runtime/numbers.h"
#include "runtime/runtimeError.h"
#include "runtime/text.h"
#include "setup/ObjFiledialog.h"
#include "setup/frmSetup.h"
#include "store/pathTokens.h"
#include "toolbars/buttonTag.h"
#include "toolbars/frmToolbar.h"

#include <optional>
#include <string>

namespace toolbars {

namespace {

/// The argument that the user gives in the dialog that the tag asks for, with one blank before it; empty
/// where there is no dialog, none at all where the user cancels.
std::optional<std::string> askForArgument(const std::vector<std::string>& parts, platform::HWND owner) {
    const std::int16_t dialog = runtime::toInt16(runtime::element(parts, tagField::dialog));
    std::string answer;
    if (dialog == store::dialogKind::inputBox) {
        answer = platform::inputBox(runtime::element(parts, tagField::param), "Input Parameter");
    } else if (dialog == store::dialogKind::fileDialog) {
        setup::ObjFiledialog files;
        files.setFilename("*.*");
        files.setDialogTitle(runtime::element(parts, tagField::param));
        files.ShowOpen(owner);
        answer = files.Filename();
    } else {
        return std::string();
    }
    if (answer.empty())
        return std::nullopt;
    return " " + answer;
}

/// Starts a program if its file is there. The user is not told of a failure.
void startProgram(const std::string& path, const std::string& arguments) {
    try {
        if (!platform::dir(path).empty())
            platform::shell(path + arguments, platform::normalWithFocus);
    } catch (const runtime::RuntimeError&) { // silent by design
    }
}

void typeCommand(platform::HWND host, const std::string& command) {
    platform::BringWindowToTop(host);
    platform::ShowWindow(host, platform::restoreWindow);
    // Not escaped: the notation's characters in a command or an input act as key codes.
    platform::sendKeys(runtime::parseKeyText(command + "{ENTER}"), true);
}

} // namespace

void frmToolbar::Toolbar_ButtonClick(forms::ToolbarButton& button) {
    lastToolbarKind = store::listOf(kind_).selector;
    if (button.key == "Config") {
        openSetup();
        return;
    }
    if (differences_.ignoresOver && button.key == "Over")
        return;
    // The button may go while a dialog is up: from here on only the copy of its tag counts.
    const std::vector<std::string> parts = runtime::split(button.tag, tagMark());
    const std::optional<std::string> arguments = askForArgument(parts, window());
    if (!arguments)
        return;
    const std::string path = store::expandTokens(parts[tagField::path]);
    const std::int16_t type = runtime::toInt16(runtime::element(parts, tagField::type));
    if (type == store::entryType::externalProgram)
        startProgram(path, *arguments);
    else if (type == store::entryType::eagleCommand)
        typeCommand(eagHND, path + *arguments);
}

/// Opens the setup on the form's page. When it has closed, by OK or not, this toolbar is built anew. Kept:
/// others keep their buttons, unless a save has built all anew.
void frmToolbar::openSetup() {
    if (setup::openSetup(differences_.setupPage))
        return;
    loadLists();
    loadVarBar();
}

void frmToolbar::rebuild() {
    loadVarBar();
    if (!differences_.resizesAtEnd)
        Form_Resize();
}

} // namespace toolbars
