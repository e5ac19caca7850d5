// frmMil: the unit calculator, two number fields of which each shows the other's length in its own unit. Only
// its frame goes into EAGLE's window; the form itself stays behind as an idle sliver on the desktop and hears
// the events of the frame's controls.
#pragma once

#include "forms/form.h"
#include "forms/frame.h"
#include "forms/label.h"
#include "forms/textBox.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace calculator {

class frmMil : public forms::Form {
  public:
    static constexpr float designWidth = 3000; ///< twips, of the client area

    frmMil();

    /// Gives the labels the unit names of the settings. Kept: only the default instance is ever asked, so the
    /// calculators in EAGLE's windows stay with mil and mm, unless Mend::afterSave is in force.
    void loadResources();
    /// Units and formats have been saved: the labels show the units, and the right field is converted anew
    /// from the left one, if that holds a number.
    void followSave();
    /// Writes into side `direction`, 1 or 0, the length that stands on the other one, in the format of the
    /// side that is written. Error 6 for a number beyond the range of a double, error 9 for a side that is
    /// not there.
    void convert(std::int16_t direction);

    void txtSize_KeyPress(std::size_t index, int& keyAscii);
    void txtSize_KeyUp(std::size_t index);
    void txtSize_MouseDown(std::size_t index);

    forms::Frame fraMil;
    // Side 0 is the left one.
    std::array<forms::Label, 2> labUnit;
    std::array<forms::TextBox, 2> txtSize;
};

/// The one default instance, made at the first call; none of those in EAGLE's windows.
frmMil& defaultMil();

} // namespace calculator
