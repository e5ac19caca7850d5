// ErrPtnr: reports a failure of the runtime. Shows what has failed and the latest entries of a call trace,
// writes a protocol into a file beside the executable and asks the user how to go on.
//
// No routine of the program calls it: it is there for any that wants its failures reported. A handler does
// this:
//
//     try {
//         ...
//     } catch (const runtime::RuntimeError&) {
//         switch (errors::errPtnr().OnError("Module", "routine", continuationBits)) ...
//     }
//
// A failure inside the component is not handled by it. What the caller has to see to:
// - It stops its timers before the call. The dialog serves them, and the routine of one that fails again
//   reports again, each time in a dialog inside the one before: one of 200 ms makes 25 in five seconds.
// - Whoever connects it to the guard (runtime/guard.h), for all that nothing else has handled, does so in
//   `guarded`, by a routine substituted at link time, and before `unhandled` marks the program's end: from
//   then on no code of the program runs, so that the dialog's buttons would do nothing and it would never
//   close.
#pragma once

#include "errors/variant.h"
#include "forms/button.h"
#include "forms/form.h"
#include "forms/frame.h"
#include "forms/label.h"
#include "forms/listBox.h"

#include <array>
#include <cstdint>
#include <deque>
#include <string>
#include <string_view>

namespace errors {

class ErrPtnr : public forms::Form {
  public:
    ErrPtnr();

    /// Reports the error that is being handled, number 0 without one, and returns when the user has decided:
    /// 0 run the failed statement again, 1 go on behind it, 2 leave the routine, 3 end the program. Carrying
    /// that out is the caller's. Of `ContBits` only the bit of value 8 has an effect: it shows "end the
    /// program". Without it there is no way out of the dialog.
    std::int16_t OnError(const std::string& AktModul, const std::string& AktProc,
                         const std::uint8_t& ContBits);
    /// Name and version for the dialog's caption; the next report makes them up if they are empty.
    void SetProgInfo(std::string_view Text);
    /// Puts a routine's line on top of the trace. The time goes in front of `A` itself.
    void CallStack(std::string& A);
    /// Puts a parameter's line on top of the trace. Error 9 if the trace is empty.
    void CallStackParam(std::string_view ParamName, const Variant& v);
    /// What stands in front of the first NUL. Kept: nothing if there is none.
    static std::string LPSTRToVBString(std::string_view s);

    void cmdContinue_Click(std::int16_t Index);
    /// Gives the protocol out: 0 printer, 1 a file, 2 mail, 3 web. Errors 482, 61 to 76, 521.
    void cmdProtocol_Click(std::int16_t Index);

    void Form_QueryUnload(bool& cancel) override;
    void Form_Unload() override;

    forms::Frame framComment;
    forms::Label lblComment;
    forms::Frame framFehler;
    forms::Label Label1;
    // Number and description, module, routine, line.
    std::array<forms::Label, 4> lblErrTitel;
    std::array<forms::Label, 4> lblError;
    forms::Frame framProtocol;
    std::array<forms::CommandButton, 4> cmdProtocol;
    forms::Frame framCallStack;
    forms::ListBox lstCallStack;
    forms::Frame framContinue;
    std::array<forms::CommandButton, 4> cmdContinue;

  private:
    friend struct ErrPtnrTest; ///< no caller reads the fields

    void designFrames();
    void designError();
    void designButtons();

    void fillCallStackList();
    void arrangeFrames(std::uint8_t ContBits);
    void insertEntry(std::string_view line);

    /// The protocol of what the form shows, with the present date and time.
    std::string buildProtocol() const;
    void appendProtocolFile() const;

    // They live as long as the form is loaded.
    std::deque<std::string> callStackEntries; ///< newest first
    std::int16_t chosenContinuation = 0;
    std::string progInfo;
};

/// The one instance, made at the first call.
ErrPtnr& errPtnr();

} // namespace errors
