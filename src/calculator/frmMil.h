// frmMil: the form of the unit calculator. Only its frame goes into EAGLE's window; the form itself stays
// behind as an idle sliver on the desktop and hears the events of the frame's controls.
#pragma once

#include "forms/form.h"
#include "forms/frame.h"

namespace calculator {

class frmMil : public forms::Form {
  public:
    frmMil();

    forms::Frame fraMil;
};

} // namespace calculator
