#include "toolbars/frmPullDown.h"

#include "forms/defaultInstance.h"

namespace toolbars {

frmPullDown::frmPullDown() {
    borderStyle = forms::BorderStyle::fixedDialog;
    showInTaskbar = false;
    setClientSize(1905, 2910);
    Toolbar1.place(*this, {0, 0, scaleWidth(), 330});
    Toolbar1.onButtonClick = [](forms::ToolbarButton& /*button*/) {};
}

frmPullDown& pullDown() {
    return forms::defaultInstance<frmPullDown>();
}

} // namespace toolbars
