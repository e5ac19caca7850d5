#include "errors/ErrPtnr.h"

#include "errors/support.h"
#include "forms/defaultInstance.h"
#include "forms/units.h"
#include "platform/dialogs.h"
#include "platform/executable.h"
#include "platform/screen.h"
#include "runtime/runtimeError.h"
#include "runtime/version.h"

#include <exception>

namespace errors {

namespace {

constexpr std::uint8_t mayEnd = 8; // bit of ContBits
constexpr std::size_t endProgram = 3;

struct CurrentError {
    std::int32_t number = 0;
    std::string description;
    std::int32_t line = 0; ///< the program carries no line numbers
};

/// The error that is being handled. What is none of the runtime's counts as none.
CurrentError currentError() {
    if (const std::exception_ptr handled = std::current_exception()) {
        try {
            std::rethrow_exception(handled);
        } catch (const runtime::RuntimeError& error) {
            return {static_cast<std::int32_t>(error.number), error.description};
        } catch (...) { // as said above
        }
    }
    return {};
}

std::string defaultProgInfo() {
    return platform::executableName() + "  V" + runtime::version;
}

} // namespace

std::int16_t ErrPtnr::OnError(const std::string& AktModul, const std::string& AktProc,
                              const std::uint8_t& ContBits) {
    load();
    const CurrentError error = currentError();
    lblError[0].setCaption(std::to_string(error.number) + " (" + error.description + ")");
    lblError[1].setCaption(AktModul);
    lblError[2].setCaption(AktProc);
    lblError[3].setCaption(std::to_string(error.line));
    if (progInfo.empty())
        progInfo = defaultProgInfo();
    setCaption(progInfo + " - Fehlermeldung");
    platform::resetMousePointer();
    fillCallStackList();
    arrangeFrames(ContBits);
    // Before the user sees anything: the report survives whatever comes next.
    appendProtocolFile();
    platform::beep();
    showModal();
    return chosenContinuation;
}

void ErrPtnr::SetProgInfo(std::string_view Text) {
    load();
    progInfo = Text;
}

void ErrPtnr::fillCallStackList() {
    lstCallStack.clear();
    for (const std::string& entry : callStackEntries)
        lstCallStack.addItem(entry);
}

void ErrPtnr::arrangeFrames(std::uint8_t ContBits) {
    float height = 0;
    const auto stack = [&height](forms::Frame& frame) {
        frame.setLeft(0);
        frame.setTop(height);
        height += frame.height();
    };
    framComment.setVisible(true);
    stack(framComment);
    // Kept: a fixed name, whatever the executable and with it the protocol file are called.
    lblComment.setCaption(std::string("Bitte senden Sie die KESTREL_RUN.EPT im Applikationsverzeichnis an ") +
                          supportMail + ".\r\n");
    framFehler.setVisible(true);
    stack(framFehler);
    // Kept: the protocol's outlets are out of the user's reach.
    framProtocol.setVisible(false);
    framCallStack.setVisible(true);
    stack(framCallStack);
    stack(framContinue);
    // Kept: of the four ways to go on only the last can be offered, and without it there is no way out.
    for (std::size_t index = 0; index < cmdContinue.size(); ++index)
        cmdContinue[index].setVisible(index == endProgram && (ContBits & mayEnd) != 0);
    setWidth(width() - scaleWidth() + framFehler.width());
    setHeight(this->height() - scaleHeight() + height);
    setLeft((resolution().toTwips(platform::screenWidth()) - width()) / 2);
    setTop((resolution().toTwips(platform::screenHeight()) - this->height()) / 2);
}

void ErrPtnr::cmdContinue_Click(std::int16_t Index) {
    chosenContinuation = Index;
    hide();
}

/// An open dialog ends by its button only, whatever key or program wants to close its window.
void ErrPtnr::Form_QueryUnload(bool& cancel) {
    cancel = visible();
}

void ErrPtnr::Form_Unload() {
    callStackEntries.clear();
    chosenContinuation = 0;
    progInfo.clear();
}

ErrPtnr& errPtnr() {
    return forms::defaultInstance<ErrPtnr>();
}

} // namespace errors
