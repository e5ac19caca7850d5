#include "calculator/frmMil.h"

namespace calculator {

frmMil::frmMil() {
    borderStyle = forms::BorderStyle::none;
    showInTaskbar = false;
    activates = false;
    setClientSize(3000, 375);
    fraMil.border = false;
    fraMil.setFont({"@Arial Unicode MS", 6.75F, false, false});
    fraMil.place(*this, {0, 0, 2925, 270});
}

} // namespace calculator
