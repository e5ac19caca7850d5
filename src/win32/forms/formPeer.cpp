// Forms: windows of a class of our own.
#include "win32/common/droppedFiles.h"
#include "win32/common/focusKeeper.h"
#include "win32/common/holding.h"
#include "win32/common/joinedHosts.h"
#include "win32/common/ownerWindow.h"
#include "win32/common/userWindow.h"
#include "win32/common/views.h"
#include "win32/common/windowChanges.h"
#include "win32/forms/containerPeer.h"
#include "win32/forms/dialogKeys.h"
#include "win32/forms/formButtons.h"
#include "win32/forms/hosted.h"
#include "win32/forms/peers.h"

#include "forms/form.h"
#include "forms/mainForm.h"
#include "platform/screen.h"

#include <windowsx.h>

#include <algorithm>
#include <optional>

namespace win32 {

namespace {

constexpr const char* formClass = "KestrelForm";

/// Left and top, in screen pixels, of a form that is to be put into a host: it is shown before it is in
/// there, and must not flash up on the desktop. Farther out than any row of screens to the left of the main
/// one or above it, and not as far as -32000, where the system keeps minimised windows.
constexpr int offScreen = -16000;

/// A window is asked for its size on another screen. Headers for Windows 7 do not have the message.
constexpr UINT askForSizeMessage = 0x02E4; // WM_GETDPISCALEDSIZE

/// What the shell sends to all top-level windows when it has made its task bar.
UINT taskbarCreated() {
    static const UINT message = RegisterWindowMessageA("TaskbarCreated");
    return message;
}

struct Styles {
    DWORD style;
    DWORD exStyle;
};

Styles stylesOf(const forms::Form& form) {
    const DWORD box = form.controlBox ? WS_SYSMENU : 0U;
    const DWORD common = WS_CLIPCHILDREN | WS_CLIPSIBLINGS;
    const DWORD noButton = form.showInTaskbar ? 0U : WS_EX_TOOLWINDOW;
    switch (form.borderStyle) {
    case forms::BorderStyle::none:
        return {WS_POPUP | common, WS_EX_CONTROLPARENT | noButton};
    case forms::BorderStyle::fixedSingle:
    case forms::BorderStyle::fixedDialog:
        // Without caption and box it is only a thin border.
        if (!form.controlBox && form.caption().empty())
            return {WS_POPUP | WS_BORDER | common, WS_EX_CONTROLPARENT | noButton};
        return {WS_POPUP | WS_CAPTION | box | common, WS_EX_CONTROLPARENT | WS_EX_DLGMODALFRAME};
    case forms::BorderStyle::sizableToolWindow:
        break;
    }
    // No close box: a toolbar that the user has closed could not be had again.
    return {WS_POPUP | WS_CAPTION | WS_THICKFRAME | common,
            WS_EX_CONTROLPARENT | WS_EX_TOOLWINDOW | WS_EX_NOPARENTNOTIFY};
}

class FormPeer : public ContainerPeer {
  public:
    explicit FormPeer(forms::Form& form) : ContainerPeer(form), form_(form) {
        registerClass(formClass);
        // What is to go into a host is made in the host's view, which the thread is in.
        const Seeing seen(form.activates ? ownView() : nullptr);
        const auto [style, exStyle] = stylesOf(form);
        const int left = form.activates ? pixels(form.left()) : offScreen;
        const int top = form.activates ? pixels(form.top()) : offScreen;
        adopt(CreateWindowExA(exStyle, formClass, form.caption().c_str(), style, left, top,
                              pixels(form.width()), pixels(form.height()), owner(exStyle), nullptr,
                              GetModuleHandleA(nullptr), nullptr));
        if (handle() == nullptr)
            return;
        // Also where the program has more rights than the shell.
        ChangeWindowMessageFilterEx(handle(), taskbarCreated(), MSGFLT_ALLOW, nullptr);
        known_ = handle();
        windowMade(known_, form);
        followUser();
        placed_ = place();
        reportSize();
    }

    ~FormPeer() override { windowGone(known_); }

    void changed(forms::Property property) override {
        if (handle() == nullptr)
            return;
        const Seeing seen(viewOf(handle()));
        switch (property) {
        case forms::Property::position:
            follow();
            break;
        case forms::Property::text:
            setWindowText(form_.caption());
            break;
        case forms::Property::visible:
            show();
            break;
        case forms::Property::mousePointer:
            SetCursor(cursor());
            break;
        case forms::Property::resolution: // the form gives itself its new size
            break;
        default:
            ContainerPeer::changed(property);
            break;
        }
    }

  protected:
    LRESULT message(UINT message, WPARAM wParam, LPARAM lParam) override {
        switch (message) {
        case WM_SIZE: {
            const LRESULT result = defaultMessage(message, wParam, lParam);
            if (wParam != SIZE_MINIMIZED)
                reportSize();
            return result;
        }
        case WM_MOVE:
            form_.windowMoved(place().left, place().top);
            placed_ = place();
            break;
        case WM_CLOSE:
            form_.closeRequested();
            return 0;
        case WM_QUERYENDSESSION:
            return TRUE;
        case WM_ENDSESSION:
            // Each form is told, in an order of the system's; the program ends by its main form.
            if (wParam != FALSE)
                (forms::mainForm != nullptr ? *forms::mainForm : form_).closeRequested();
            return 0;
        case WM_MOUSEACTIVATE:
            // The click is about to make it the one in front, or, on the frame of a toolbar, its host.
            if (form_.activates ? !isHosted(handle()) : LOWORD(lParam) != HTCLIENT)
                partFromSilentHosts();
            if (!form_.activates)
                return isHeld(form_) ? MA_NOACTIVATEANDEAT : MA_NOACTIVATE;
            break;
        case WM_DPICHANGED:
            // A form that is hosted goes by its host. It hears this when it is out of it for a moment and its
            // place, which was one in the host, is one on another screen.
            if (form_.activates)
                goToScreen(LOWORD(wParam), *reinterpret_cast<const RECT*>(lParam));
            return 0;
        case askForSizeMessage:
            if (form_.followsScreen)
                return foretellSize(static_cast<int>(wParam), *reinterpret_cast<SIZE*>(lParam));
            break;
        case WM_GETMINMAXINFO:
            return limitSize(message, wParam, lParam);
        case WM_NCCALCSIZE:
            return reckonFrame(wParam, lParam);
        case WM_SETCURSOR:
            if (form_.mousePointer() != forms::MousePointer::standard) {
                SetCursor(cursor());
                return TRUE;
            }
            break;
        case WM_MOUSEMOVE:
            form_.Form_MouseMove(0, shiftState(), form_.resolution().toTwips(GET_X_LPARAM(lParam)),
                                 form_.resolution().toTwips(GET_Y_LPARAM(lParam)));
            break;
        case WM_LBUTTONUP:
            form_.Form_Click();
            return 0;
        case DM_GETDEFID:
            if (forms::CommandButton* button = defaultButton(form_))
                return MAKELRESULT(GetDlgCtrlID(native(button->hWnd())), DC_HASDEFID);
            return 0;
        case WM_COMMAND:
            if (LOWORD(wParam) == IDCANCEL && cancel())
                return 0;
            break;
        case WM_ACTIVATE:
            if (LOWORD(wParam) == WA_INACTIVE)
                focus_ = GetFocus();
            break;
        case WM_SETFOCUS:
            giveFocus();
            return 0;
        case WM_SYSCOLORCHANGE:
            tellHosted(message);
            break;
        case WM_DROPFILES:
            passFilesOn(handle(), wParam);
            return 0;
        default:
            if (message == taskbarCreated())
                form_.Form_TaskbarCreated();
            break;
        }
        return ContainerPeer::message(message, wParam, lParam);
    }

  private:
    /// Without an owner of its own, a form that the task bar is not to show is owned by the program's hidden
    /// window, unless it is to be hosted.
    HWND owner(DWORD exStyle) const {
        if (IsWindow(native(form_.ownerWindow)) != FALSE)
            return native(form_.ownerWindow);
        return !form_.showInTaskbar && (exStyle & WS_EX_TOOLWINDOW) == 0 ? ownerWindow() : nullptr;
    }

    /// What the system tells top-level windows alone goes on to the forms in other programs' windows.
    void tellHosted(UINT message) const {
        if (isHosted(handle()))
            return;
        for (const HWND form : formWindows())
            if (isHosted(form))
                SendMessageA(form, message, 0, 0);
    }

    /// Outer rectangle: screen pixels, or client pixels of the host.
    RECT place() const {
        RECT rect{};
        GetWindowRect(handle(), &rect);
        if ((GetWindowLongA(handle(), GWL_STYLE) & WS_CHILD) != 0)
            MapWindowPoints(nullptr, GetParent(handle()), reinterpret_cast<POINT*>(&rect), 2);
        return rect;
    }

    /// Only what has been assigned changes: the window's place may have been set by others.
    void follow() {
        const RECT now = place();
        const int left = pixels(form_.left());
        const int top = pixels(form_.top());
        const bool moved = form_.activates && (left != placed_.left || top != placed_.top);
        const int x = moved ? left : now.left;
        const int y = moved ? top : now.top;
        moveWindow(handle(), {x, y, x + pixels(form_.width()), y + pixels(form_.height())},
                   moved ? 0U : SWP_NOMOVE);
        // A size that the window has refused is to be known too.
        if (handle() != nullptr)
            reportSize();
    }

    void reportSize() {
        RECT outer{};
        RECT client{};
        GetWindowRect(handle(), &outer);
        GetClientRect(handle(), &client);
        form_.windowResized(outer.right - outer.left, outer.bottom - outer.top, client.right, client.bottom);
    }

    void show() {
        if (!form_.visible())
            hide();
        else if (form_.activates) {
            keeper_ = std::make_unique<FocusKeeper>();
            showWindow(handle(), SW_SHOW);
        } else
            showInPlace(handle());
    }

    /// The system suggests a place and a size. The size is the form's own affair.
    void goToScreen(int dpi, const RECT& suggested) {
        form_.screenChanged(forms::Resolution(dpi), forms::Resolution(dpiOf(handle())),
                            {suggested.left, suggested.top, suggested.right, suggested.bottom});
    }

    /// The size that the form is going to have on a screen of so many pixels to an inch.
    BOOL foretellSize(int dpi, SIZE& size) const {
        const forms::Resolution screen(dpi);
        RECT now{};
        GetWindowRect(handle(), &now);
        const forms::Resolution there =
            form_.fitting(screen, platform::workAreaAt({now.left, now.top, now.right, now.bottom}));
        const forms::FrameExtent frame = forms::frameExtent(form_, screen);
        size = {there.toPixels(form_.scaleWidth()) + frame.width,
                there.toPixels(form_.scaleHeight()) + frame.height};
        return TRUE;
    }

    /// The window that was in front before gets the keyboard back while ours still stands: otherwise the
    /// system would choose one. Unless the user has gone elsewhere meanwhile.
    void hide() {
        leaving(form_);
        if (keeper_ && GetForegroundWindow() != handle())
            keeper_->dismiss();
        keeper_.reset();
        showWindow(handle(), SW_HIDE);
    }

    /// The user can make a tool window as narrow as one button.
    LRESULT limitSize(UINT message, WPARAM wParam, LPARAM lParam) {
        const LRESULT result = defaultMessage(message, wParam, lParam);
        if (form_.borderStyle == forms::BorderStyle::sizableToolWindow ||
            form_.borderStyle == forms::BorderStyle::none)
            reinterpret_cast<MINMAXINFO*>(lParam)->ptMinTrackSize = {1, 1};
        return result;
    }

    /// A hosted form keeps the frame that it has in its host when it is out of it for a moment. Its place is
    /// one on another screen then, maybe one of another resolution, where the system has another frame for
    /// it; the height that is set outside is to be right inside.
    LRESULT reckonFrame(WPARAM wParam, LPARAM lParam) {
        RECT& area = *reinterpret_cast<RECT*>(lParam);
        const RECT outer = area;
        const LRESULT result = defaultMessage(WM_NCCALCSIZE, wParam, lParam);
        if (form_.activates)
            return result;
        if (isHosted(handle()))
            frame_ = {area.left - outer.left, area.top - outer.top, area.right - outer.right,
                      area.bottom - outer.bottom};
        else if (frame_)
            area = {outer.left + frame_->left, outer.top + frame_->top, outer.right + frame_->right,
                    std::max(outer.top + frame_->top, outer.bottom + frame_->bottom)};
        return result;
    }

    HCURSOR cursor() const {
        return LoadCursorA(
            nullptr, reinterpret_cast<LPCSTR>(
                         form_.mousePointer() == forms::MousePointer::hourglass ? IDC_WAIT : IDC_ARROW));
    }

    bool cancel() {
        forms::CommandButton* button = findButton(form_, [](const auto& seen) { return seen.isCancel; });
        if (button == nullptr)
            return false;
        button->click();
        return true;
    }

    /// The control that had the focus last, else the first that can have it.
    void giveFocus() {
        if (!form_.activates)
            return;
        if (focus_ != nullptr && IsChild(handle(), focus_) != FALSE)
            focusWindow(focus_);
        else if (const HWND first = firstStop(handle()))
            focusWindow(first);
    }

    forms::Form& form_;
    std::unique_ptr<FocusKeeper> keeper_;
    HWND known_ = nullptr;
    HWND focus_ = nullptr;
    RECT placed_{};
    std::optional<RECT> frame_; ///< in the host, what the client area's edges are off the window's
};

} // namespace

std::unique_ptr<forms::Peer> makeFormPeer(forms::Form& form) {
    return std::make_unique<FormPeer>(form);
}

} // namespace win32

namespace forms {

FrameExtent frameExtent(const Form& form) {
    return frameExtent(form, form.frameResolution());
}

FrameExtent frameExtent(const Form& form, Resolution screen) {
    const auto [style, exStyle] = win32::stylesOf(form);
    RECT rect{};
    win32::addFrame(rect, style, exStyle, screen.dpi());
    return {static_cast<int>(rect.right - rect.left), static_cast<int>(rect.bottom - rect.top)};
}

} // namespace forms
