// What the tests of ErrPtnr share: the inside of the form, and a report from its error to the user's choice.
#pragma once

#include "desktop/desktop.h"
#include "errors/ErrPtnr.h"
#include "runtime/errorOf.h"
#include "runtime/runtimeError.h"

#include <functional>
#include <string>

namespace errors {

/// What callers cannot reach.
struct ErrPtnrTest {
    static const std::deque<std::string>& entries(const ErrPtnr& form) { return form.callStackEntries; }
    static int chosen(const ErrPtnr& form) { return form.chosenContinuation; }
    static const std::string& progInfo(const ErrPtnr& form) { return form.progInfo; }
    static std::string protocol(const ErrPtnr& form) { return form.buildProtocol(); }
    static void arrange(ErrPtnr& form, std::uint8_t bits) { form.arrangeFrames(bits); }
};

} // namespace errors

namespace report {

using runtime::errorOf;

using Inside = errors::ErrPtnrTest;

/// What the user does while the dialog is up; the button that ends it is pressed afterwards.
using Script = std::function<void(errors::ErrPtnr&)>;

/// Calls OnError; the button with the number `choice` ends the dialog.
inline int ask(errors::ErrPtnr& form, std::uint8_t bits = 8, const Script& meanwhile = {},
               std::int16_t choice = 3, const std::string& module = "Modul1",
               const std::string& routine = "loadLists") {
    desktop::world().modalScripts.push_back([&form, meanwhile, choice](forms::Form& /*shown*/) {
        if (meanwhile)
            meanwhile(form);
        form.cmdContinue[static_cast<std::size_t>(choice)].click();
    });
    return form.OnError(module, routine, bits);
}

/// The same inside the handler of an error.
inline int askAbout(const runtime::RuntimeError& error, errors::ErrPtnr& form, std::uint8_t bits = 8,
                    const Script& meanwhile = {}, std::int16_t choice = 3) {
    try {
        throw error;
    } catch (const runtime::RuntimeError&) {
        return ask(form, bits, meanwhile, choice);
    }
}

/// Number of the error that a call fails with, 0 for none.
/// A date of 8 May 2006, twenty-five past two and 36 seconds in the afternoon: "08.05.2006", "14:25:36".
inline constexpr double afternoon = 38845 + (14 * 3600 + 25 * 60 + 36) / 86400.0;

inline constexpr const char* protocolFile = "C:\\kestrel\\kestrel.EPT";
inline constexpr const char* savedFile = "C:\\kestrel\\kestrel.ERR";

} // namespace report
