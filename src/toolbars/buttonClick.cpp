// What a click on a button does.
#include "platform/dialogs.h"
#include "platform/files.h"
#include "platform/keySender.h"
#include "platform/programs.h"
#include "platform/user32.h"
#include "runtime/characters.h"
#include "runtime/keyText.h"
#include "runtime/numbers.h"
#include "runtime/runtimeError.h"
#include "runtime/text.h"
#include "setup/ObjFiledialog.h"
#include "setup/frmSetup.h"
#include "store/mends.h"
#include "store/pathTokens.h"
#include "toolbars/buttonTag.h"
#include "toolbars/frmToolbar.h"

#include <optional>
#include <string>
#include <vector>

namespace toolbars {

namespace {

/// What the user has given in the dialog that a button asks with; no text where there is no dialog.
struct Answer {
    std::string text;
    bool chosenFile = false;
};

/// None at all where the user cancels.
std::optional<Answer> ask(const std::vector<std::string>& parts, platform::HWND owner) {
    const std::int16_t dialog = runtime::toInt16(runtime::element(parts, tagField::dialog));
    Answer answer;
    if (dialog == store::dialogKind::inputBox) {
        answer.text = platform::inputBox(runtime::element(parts, tagField::param), "Input Parameter");
    } else if (dialog == store::dialogKind::fileDialog) {
        setup::ObjFiledialog files;
        files.setFilename("*.*");
        files.setDialogTitle(runtime::element(parts, tagField::param));
        files.ShowOpen(owner);
        answer = {files.Filename(), true};
    } else {
        return answer;
    }
    if (answer.text.empty())
        return std::nullopt;
    return answer;
}

/// What stands behind a command: nothing, or a blank and the answer.
std::string typedArgument(const Answer& answer) {
    return answer.text.empty() ? std::string() : " " + answer.text;
}

/// The same behind a program.
std::string programArgument(const Answer& answer) {
    // Kept: a file's name gets no quotes, so that one with blanks arrives in pieces.
    if (store::mended(store::Mend::fileArguments) && answer.chosenFile &&
        answer.text.find(' ') != std::string::npos)
        return " \"" + answer.text + "\"";
    return typedArgument(answer);
}

/// Starts a program if its file is there. The user is not told of a failure.
void startProgram(const std::string& path, const std::string& arguments) {
    try {
        if (!platform::dir(path).empty())
            platform::shell(path + arguments, platform::normalWithFocus);
    } catch (const runtime::RuntimeError&) { // silent by design
    }
}

/// A command with its tokens, its argument and the Enter key as key strokes.
std::vector<platform::KeyStroke> strokesOf(const std::string& command, const std::string& argument) {
    // Kept: nothing is escaped, so that the notation's characters in an input, a file's name or the program's
    // folder act as key codes.
    if (!store::mended(store::Mend::typedAsMeant))
        return runtime::parseKeyText(store::expandTokens(command) + argument + "{ENTER}");
    std::vector<runtime::KeyPiece> pieces;
    for (const store::PathPiece& piece : store::expandedPieces(command))
        pieces.push_back({piece.text, piece.fromToken});
    std::vector<platform::KeyStroke> strokes = runtime::parseKeyPieces(pieces);
    for (const char32_t character : runtime::toUtf32(argument))
        strokes.push_back({.character = character});
    strokes.push_back({.key = platform::Key::enter});
    return strokes;
}

void typeCommand(platform::HWND host, const std::vector<platform::KeyStroke>& strokes) {
    platform::BringWindowToTop(host);
    platform::ShowWindow(host, platform::restoreWindow);
    platform::sendKeys(strokes, true);
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
    const std::vector<std::string> parts = tagFields(button.tag);
    const std::optional<Answer> answer = ask(parts, window());
    if (!answer)
        return;
    const std::string& path = parts[tagField::path];
    const std::int16_t type = runtime::toInt16(runtime::element(parts, tagField::type));
    if (type == store::entryType::externalProgram)
        startProgram(store::expandTokens(path), programArgument(*answer));
    else if (type == store::entryType::eagleCommand)
        typeCommand(eagHND, strokesOf(path, typedArgument(*answer)));
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
