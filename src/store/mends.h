// The mends: what the program does better where the settings file says `mend=1` in section "global".
//
// Without it every oddity that is marked with "Kept:" stays, byte for byte. With it the eight below are
// mended, all together; each place that one of them touches asks for it by name.
#pragma once

#include <cstdint>

namespace store {

enum class Mend : std::uint8_t {
    libraries,     ///< the library scan ends where the library list does: one toolbar for each library
    optionButtons, ///< on each page of the setup the option buttons show and store the selected row's dialog
    frontSequence, ///< the window that was found comes to the front, whatever its title begins with
    afterSave,     ///< a save of the setup reaches the toolbars and calculators that stand in EAGLE's windows
    typedAsMeant,  ///< only a button's own command is key notation, input, file and path are typed as they
                   ///< stand
    unreadableRows, ///< a row that cannot be read in part shows what can be, and is written back as it was
    fileArguments,  ///< a chosen file whose name holds a blank is quoted behind a program
    noEnd,          ///< rare rows, titles and files do not end the program
};

/// Whether the settings file asked for the mends at the start; one switch for all.
inline bool mendsOn = false;

/// Whether a mend is in force.
inline bool mended(Mend /*mend*/) {
    return mendsOn;
}

/// What the settings file says now: on with any number but 0, also with one beyond the range of a double; off
/// with anything else. Never an error. Asked once, where the start reads the settings; and before that, for
/// `noEnd`, only where a run request that an earlier run has left cannot be deleted.
bool mendSetting();

} // namespace store
