// The form itself: its design, its load, its height, and how it stays above its siblings.
#include "toolbars/frmToolbar.h"

#include "core/windoInf.h"
#include "platform/awareness.h"
#include "platform/user32.h"
#include "runtime/numbers.h"
#include "runtime/raised.h"

namespace toolbars {

namespace {

constexpr float designWidth = 1800; // twips, of the client area

constexpr std::uint32_t setRedraw = 11;

void switchDrawingOn(platform::HWND window) {
    platform::SendMessageA(window, setRedraw, static_cast<std::uintptr_t>(-1), 0);
    platform::RECT client;
    platform::GetClientRect(window, client);
    constexpr std::uint32_t invalidateEraseAllChildrenNow = 0x185;
    platform::RedrawWindow(window, client, invalidateEraseAllChildrenNow);
}

} // namespace

frmToolbar::frmToolbar(store::EditorKind kind) : kind_(kind), differences_(differencesOf(kind)) {
    setCaption("EAGLE Kestrel Bench");
    borderStyle = forms::BorderStyle::sizableToolWindow;
    showInTaskbar = false;
    activates = false;
    setClientSize(designWidth, differences_.clientHeight);
    toolbar.place(*this, {0, 0, designWidth, 330});
    toolbar.onButtonClick = [this](forms::ToolbarButton& button) { Toolbar_ButtonClick(button); };
    toolbar.onMouseMove = [this](int, int, float, float) { Toolbar_MouseMove(); };
    for (forms::PictureBox* box : {&Picture1, &Picture2}) {
        box->place(*this, {0, 0, 270, 270});
        box->setVisible(false);
    }
}

void frmToolbar::Form_Load() {
    loadLists();
}

void frmToolbar::loadLists() {
    store::loadList(kind_);
}

void frmToolbar::Form_Resize() {
    if (following_)
        return;
    const platform::HWND form = window();
    const platform::InAwarenessOf seen(eagHND);
    core::setWindowOnTop(eagHND, 0);
    platform::SendMessageA(eagHND, setRedraw, 0, 0);
    platform::SendMessageA(form, setRedraw, 0, 0);
    const std::int32_t newHeight = runtime::roundToInt32(toolbar.height() + height() - scaleHeight());
    // The height is set while the form is no child of the host. Setting it raises this event once more; the
    // inner run finds the height right already.
    platform::SetParent(form, platform::HWND::none);
    setHeight(static_cast<float>(newHeight));
    platform::SetParent(form, eagHND);
    switchDrawingOn(form);
    switchDrawingOn(eagHND);
}

void frmToolbar::followResolution(forms::Resolution resolution) {
    // Before the form hears of it: what it is told of its window's place is in the new pixels from then on.
    const std::int32_t x = resolution.toPixels(left());
    const std::int32_t y = resolution.toPixels(top());
    const runtime::Raised quietly(following_);
    ImageList1.setResolution(resolution);
    setResolution(resolution);
    // Icons of files and our own are drawn in several sizes: what was taken for the former one is not grown.
    // The list may have other rows by now than the form has been made high enough for.
    loadVarBar();
    // The window has its place by now. If the system refuses the height, it keeps that of the rows before.
    const float newHeight = toolbar.height() + height() - scaleHeight();
    platform::MoveWindow(window(), x, y, resolution.toPixels(width()), resolution.toPixels(newHeight), true);
}

void frmToolbar::Form_MouseMove(int /*button*/, int /*shift*/, float /*x*/, float /*y*/) {
    core::setWindowOnTop(window(), 0);
}

void frmToolbar::Toolbar_MouseMove() {
    core::setWindowOnTop(window(), 0);
}

} // namespace toolbars
