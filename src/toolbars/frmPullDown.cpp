#include "toolbars/frmPullDown.h"

#include <memory>

namespace toolbars {

namespace {
std::unique_ptr<frmPullDown> instance;
} // namespace

frmPullDown::frmPullDown() {
    borderStyle = forms::BorderStyle::fixedDialog;
    showInTaskbar = false;
    setClientSize(1905, 2910);
    Toolbar1.place(*this, {0, 0, 1905, 330});
    Toolbar1.onButtonClick = [](forms::ToolbarButton& /*button*/) {};
}

frmPullDown& pullDown() {
    if (!instance)
        instance = std::make_unique<frmPullDown>();
    return *instance;
}

bool pullDownExists() {
    return instance != nullptr;
}

} // namespace toolbars
