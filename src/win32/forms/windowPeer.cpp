#include "win32/forms/windowPeer.h"

#include "forms/event.h"
#include "runtime/guard.h"
#include "win32/common/refusal.h"
#include "win32/common/views.h"
#include "win32/common/wide.h"
#include "win32/common/windowChanges.h"
#include "win32/forms/containerPeer.h"
#include "win32/forms/dialogKeys.h"
#include "win32/forms/fonts.h"
#include "win32/forms/hosted.h"

#include <windowsx.h>

#include <algorithm>
#include <array>
#include <unordered_map>

namespace win32 {

namespace {

constexpr int firstChildId = 1000;

RECT pixelRect(const forms::Control& control) {
    const forms::Resolution resolution = control.resolution();
    const LONG left = resolution.toPixels(control.left());
    const LONG top = resolution.toPixels(control.top());
    return {left, top, left + resolution.toPixels(control.width()),
            top + resolution.toPixels(control.height())};
}

/// Numbers of child windows begin beyond the platform's own (IDOK and so on).
int nextChildId() {
    static int next = firstChildId;
    constexpr int last = 30000;
    next = next < last ? next + 1 : firstChildId;
    return next;
}

/// A window of ours: its peer, null once that has gone, and the procedure that stands behind the peers'.
struct Shadowed {
    WindowPeer* peer;
    WNDPROC behind;
};

/// Our windows that are alive. Asked with every message, of windows of others too. The system's own means for
/// this (SetWindowSubclass) ask the window for a property two times with each message, which costs more than
/// most messages do.
std::unordered_map<HWND, Shadowed>& shadowed() {
    static std::unordered_map<HWND, Shadowed> all;
    return all;
}

LRESULT callBehind(WNDPROC behind, HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    return IsWindowUnicode(window) != FALSE ? CallWindowProcW(behind, window, message, wParam, lParam)
                                            : CallWindowProcA(behind, window, message, wParam, lParam);
}

} // namespace

WindowPeer::~WindowPeer() {
    if (handle_ != nullptr) {
        const HWND window = handle_;
        handle_ = nullptr;
        if (const auto found = shadowed().find(window); found != shadowed().end())
            found->second.peer = nullptr;
        tip_.change(window, {});
        destroyWindow(window);
    }
}

platform::HWND WindowPeer::window() const {
    return neutral(handle_);
}

WindowPeer* WindowPeer::of(HWND window) {
    const auto found = shadowed().find(window);
    return found == shadowed().end() ? nullptr : found->second.peer;
}

void WindowPeer::createChild(const char* className, const std::string& text, DWORD style, DWORD exStyle) {
    const ContainerPeer* container = containerPeer();
    if (container == nullptr || container->handle() == nullptr)
        return;
    // Boxes may overlap: none is to paint over its neighbour.
    style |= WS_CLIPSIBLINGS;
    if (startsGroup())
        style |= WS_GROUP;
    if (control_.visible())
        style |= WS_VISIBLE;
    if (!control_.enabled())
        style |= WS_DISABLED;
    if (control_.tabStop)
        style |= WS_TABSTOP;
    // A child sees what its parent sees.
    const Seeing seen(viewOf(container->handle()));
    const RECT place = childPlace();
    const auto id = reinterpret_cast<HMENU>(static_cast<INT_PTR>(nextChildId()));
    // Wide: an edit field of the code page would get some of its letters in pieces, or not at all.
    adopt(CreateWindowExW(exStyle | WS_EX_NOPARENTNOTIFY, toWide(className).c_str(), toWide(text).c_str(),
                          style | WS_CHILD, place.left, place.top, place.right - place.left,
                          place.bottom - place.top, container->handle(), id, GetModuleHandleW(nullptr),
                          nullptr));
    if (handle_ == nullptr)
        return;
    applyFont();
    takeTabPlace();
}

RECT WindowPeer::childPlace() const {
    return pixelRect(control_);
}

ContainerPeer* WindowPeer::containerPeer() const {
    const forms::Container* container = control_.container();
    return container == nullptr ? nullptr : dynamic_cast<ContainerPeer*>(container->peer());
}

COLORREF WindowPeer::colourBehind() const {
    const ContainerPeer* container = containerPeer();
    const std::optional<COLORREF> colour = container == nullptr ? std::nullopt : container->background();
    return colour.value_or(GetSysColor(COLOR_BTNFACE));
}

COLORREF textColour(const forms::Control& control, bool ownBackground) {
    HIGHCONTRASTA contrast{};
    contrast.cbSize = sizeof contrast;
    const bool high = SystemParametersInfoA(SPI_GETHIGHCONTRAST, sizeof contrast, &contrast, 0) != FALSE &&
                      (contrast.dwFlags & HCF_HIGHCONTRASTON) != 0;
    if (control.foreColour() && (ownBackground || !high))
        return nativeColour(*control.foreColour());
    return ownBackground ? nativeColour(forms::black) : GetSysColor(COLOR_WINDOWTEXT);
}

/// The option buttons of a container that stand one after the other are one group, any other control is one
/// by itself.
bool WindowPeer::startsGroup() const {
    if (control_.kind() != forms::ControlKind::optionButton)
        return true;
    const auto& siblings = control_.container()->controls();
    const auto self = std::find(siblings.begin(), siblings.end(), &control_);
    return self == siblings.begin() || (*std::prev(self))->kind() != forms::ControlKind::optionButton;
}

/// A window comes into the world behind its siblings. One with a number goes before those that have a higher
/// one.
void WindowPeer::takeTabPlace() {
    if (!control_.tabIndex)
        return;
    HWND before = nullptr;
    for (HWND sibling = GetWindow(GetParent(handle_), GW_CHILD); sibling != nullptr && sibling != handle_;
         sibling = GetWindow(sibling, GW_HWNDNEXT)) {
        const WindowPeer* other = of(sibling);
        if (other != nullptr && other->control_.tabIndex && *other->control_.tabIndex > *control_.tabIndex) {
            SetWindowPos(handle_, before == nullptr ? HWND_TOP : before, 0, 0, 0, 0,
                         SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
            return;
        }
        before = sibling;
    }
}

void WindowPeer::adopt(HWND window) {
    handle_ = window;
    if (window == nullptr) {
        noteRefusal();
        return;
    }
    const auto set = IsWindowUnicode(window) != FALSE ? SetWindowLongPtrW : SetWindowLongPtrA;
    const auto get = IsWindowUnicode(window) != FALSE ? GetWindowLongPtrW : GetWindowLongPtrA;
    // Known before the first message comes.
    shadowed()[window] = {this, reinterpret_cast<WNDPROC>(get(window, GWLP_WNDPROC))};
    set(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(procedure));
}

LRESULT CALLBACK WindowPeer::procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    const auto found = shadowed().find(window);
    if (found == shadowed().end())
        return DefWindowProcW(window, message, wParam, lParam);
    WindowPeer* const self = found->second.peer;
    const WNDPROC behind = found->second.behind;
    if (self == nullptr) {
        const LRESULT answer = callBehind(behind, window, message, wParam, lParam);
        if (message == WM_NCDESTROY)
            shadowed().erase(window);
        return answer;
    }
    // An event may unload the form: the peer lives until its event has returned.
    const std::shared_ptr<Peer> kept = self->weak_from_this().lock();
    LRESULT result = 0;
    // When the host's process has been killed this is the only message that tells.
    if (message == WM_NCDESTROY) {
        found->second.peer = nullptr;
        self->tip_.change(window, {});
        // A peer that its control has dropped lives on until its event has returned: the form may have taken
        // the window along meanwhile, and may even have been loaded anew.
        const bool shows = self->control_.peer() == self;
        const HWND idle = shows ? self->formLeftBehind() : nullptr;
        result = callBehind(behind, window, message, wParam, lParam);
        shadowed().erase(window);
        self->handle_ = nullptr;
        if (shows)
            runtime::guarded([self] { self->control_.windowLost(); });
        if (idle != nullptr)
            destroyWindow(idle);
        return result;
    }
    // No code of the program runs then, but the window goes on: a message that is answered by nothing vetoes
    // the end of the session or a change of the window in front, and a picture that is due is asked for
    // without end.
    if (runtime::endingByError())
        return self->defaultMessage(message, wParam, lParam);
    runtime::guarded([&] {
        self->tip_.hear(window, self->control_.toolTipText(), message, wParam, lParam);
        if (self->mouseEventsFirst())
            self->reportMouse(message, wParam, lParam);
        // An event may have unloaded the form and the window with it.
        if (of(window) == self)
            result = self->message(message, wParam, lParam);
    });
    return result;
}

/// The window of the form that this control belongs to, if that control was put elsewhere by itself. Without
/// it the form is of no more use.
HWND WindowPeer::formLeftBehind() const {
    const ContainerPeer* const container = containerPeer();
    if (container == nullptr || container->handle() == nullptr ||
        GetAncestor(handle_, GA_PARENT) == container->handle())
        return nullptr;
    return native(control_.form()->hWnd());
}

LRESULT WindowPeer::message(UINT message, WPARAM wParam, LPARAM lParam) {
    return defaultMessage(message, wParam, lParam);
}

LRESULT WindowPeer::defaultMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    LRESULT result = 0;
    if (handle_ == nullptr || answerAsHosted(handle_, message, wParam, lParam, result))
        return result;
    return callBehind(shadowed()[handle_].behind, handle_, message, wParam, lParam);
}

void WindowPeer::reportMouse(UINT message, WPARAM wParam, LPARAM lParam) {
    int button = 0;
    const forms::MouseEvent* event = nullptr;
    switch (message) {
    case WM_MOUSEMOVE:
        event = &control_.onMouseMove;
        button = ((wParam & MK_LBUTTON) != 0 ? 1 : 0) | ((wParam & MK_RBUTTON) != 0 ? 2 : 0) |
                 ((wParam & MK_MBUTTON) != 0 ? 4 : 0);
        break;
    case WM_LBUTTONDOWN:
    case WM_RBUTTONDOWN:
    case WM_MBUTTONDOWN:
        event = &control_.onMouseDown;
        button = message == WM_LBUTTONDOWN ? 1 : message == WM_RBUTTONDOWN ? 2 : 4;
        break;
    case WM_LBUTTONUP:
    case WM_RBUTTONUP:
    case WM_MBUTTONUP:
        event = &control_.onMouseUp;
        button = message == WM_LBUTTONUP ? 1 : message == WM_RBUTTONUP ? 2 : 4;
        break;
    default:
        return;
    }
    const forms::Resolution resolution = control_.resolution();
    forms::raise(*event, button, shiftState(), resolution.toTwips(GET_X_LPARAM(lParam)),
                 resolution.toTwips(GET_Y_LPARAM(lParam)));
}

void WindowPeer::changed(forms::Property property) {
    if (handle_ == nullptr)
        return;
    switch (property) {
    case forms::Property::position:
        takePlace();
        break;
    case forms::Property::resolution:
        applyFont();
        takePlace();
        InvalidateRect(handle_, nullptr, TRUE);
        break;
    case forms::Property::enabled:
        if (!control_.enabled())
            leaveFocus();
        EnableWindow(handle_, control_.enabled() ? TRUE : FALSE);
        break;
    case forms::Property::visible:
        if (!control_.visible())
            leaveFocus();
        showWindow(handle_, control_.visible() ? SW_SHOWNOACTIVATE : SW_HIDE);
        break;
    case forms::Property::colours:
        applyFont();
        InvalidateRect(handle_, nullptr, TRUE);
        break;
    case forms::Property::toolTip:
        tip_.change(handle_, control_.toolTipText());
        break;
    default:
        break;
    }
}

void WindowPeer::takePlace() {
    const Seeing seen(viewOf(handle_));
    moveWindow(handle_, childPlace());
}

/// A window that hears the user no longer does not keep the focus, or the keyboard would be dead.
void WindowPeer::leaveFocus() const {
    const auto within = [this](HWND window) {
        return window == handle_ || IsChild(handle_, window) != FALSE;
    };
    const HWND focus = GetFocus();
    const HWND dialog = dialogOf(handle_);
    if (focus == nullptr || dialog == handle_ || !within(focus))
        return;
    // A tab strip that turns a page knows better where to go.
    if (control_.container()->kind() == forms::ControlKind::tabStrip)
        return;
    HWND next = focus;
    do
        next = GetNextDlgTabItem(dialog, next, FALSE);
    while (next != nullptr && next != focus && within(next));
    if (next != nullptr && next != focus)
        focusWindow(next);
}

void WindowPeer::setFocus() {
    if (handle_ != nullptr)
        focusWindow(handle_);
}

std::string WindowPeer::windowText() const {
    return platform::toAnsi(wideText());
}

std::u16string WindowPeer::wideText() const {
    std::u16string text(static_cast<std::size_t>(GetWindowTextLengthW(handle_)) + 1, u'\0');
    text.resize(static_cast<std::size_t>(
        GetWindowTextW(handle_, reinterpret_cast<wchar_t*>(text.data()), static_cast<int>(text.size()))));
    return text;
}

bool WindowPeer::setWindowText(const std::string& text) {
    if (handle_ == nullptr || windowText() == text)
        return false;
    SetWindowTextW(handle_, toWide(text).c_str());
    return true;
}

void WindowPeer::applyFont() {
    if (handle_ == nullptr)
        return;
    const std::shared_ptr<const OwnedFont> wanted = fontOf(control_.font(), control_.resolution().dpi());
    // A new window is still to be painted; for any other the caller sees to that.
    SendMessageA(handle_, WM_SETFONT, reinterpret_cast<WPARAM>(wanted->handle), FALSE);
    font_ = wanted;
}

int shiftState() {
    std::array<BYTE, 256> keys{}; // all at once: one question to the system instead of three
    GetKeyboardState(keys.data());
    const auto down = [&keys](std::size_t key) { return (keys[key] & 0x80U) != 0; };
    return (down(VK_SHIFT) ? 1 : 0) | (down(VK_CONTROL) ? 2 : 0) | (down(VK_MENU) ? 4 : 0);
}

void registerClass(const char* name) {
    WNDCLASSEXA description{};
    description.cbSize = sizeof description;
    if (GetClassInfoExA(GetModuleHandleA(nullptr), name, &description) != FALSE)
        return;
    description.lpfnWndProc = DefWindowProcA;
    description.hInstance = GetModuleHandleA(nullptr);
    description.hCursor = LoadCursorA(nullptr, reinterpret_cast<LPCSTR>(IDC_ARROW));
    description.hbrBackground = reinterpret_cast<HBRUSH>(static_cast<INT_PTR>(COLOR_BTNFACE + 1));
    description.hIcon = LoadIconA(description.hInstance, MAKEINTRESOURCEA(1));
    description.lpszClassName = name;
    RegisterClassExA(&description);
}

} // namespace win32
