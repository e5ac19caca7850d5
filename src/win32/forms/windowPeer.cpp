#include "win32/forms/windowPeer.h"

#include "core/guard.h"
#include "forms/event.h"
#include "forms/units.h"

#include <windowsx.h>

namespace win32 {

namespace {

constexpr UINT_PTR subclassId = 1;
constexpr int firstChildId = 1000;

RECT pixelRect(const forms::Control& control) {
    const LONG left = forms::toPixels(control.left());
    const LONG top = forms::toPixels(control.top());
    return {left, top, left + forms::toPixels(control.width()), top + forms::toPixels(control.height())};
}

/// Numbers of child windows begin beyond the platform's own (IDOK and so on).
int nextChildId() {
    static int next = firstChildId;
    constexpr int last = 30000;
    next = next < last ? next + 1 : firstChildId;
    return next;
}

} // namespace

WindowPeer::~WindowPeer() {
    if (handle_ != nullptr) {
        const HWND window = handle_;
        handle_ = nullptr;
        RemoveWindowSubclass(window, procedure, subclassId);
        DestroyWindow(window);
    }
    if (font_ != nullptr)
        DeleteObject(font_);
}

platform::HWND WindowPeer::window() const {
    return neutral(handle_);
}

WindowPeer* WindowPeer::of(HWND window) {
    DWORD_PTR peer = 0;
    if (window == nullptr || GetWindowSubclass(window, procedure, subclassId, &peer) == FALSE)
        return nullptr;
    return reinterpret_cast<WindowPeer*>(peer); // NOLINT(performance-no-int-to-ptr)
}

void WindowPeer::createChild(const char* className, const std::string& text, DWORD style, DWORD exStyle) {
    WindowPeer* container = control_.container() == nullptr
                                ? nullptr
                                : dynamic_cast<WindowPeer*>(control_.container()->peer());
    if (container == nullptr || container->handle() == nullptr)
        return;
    if (control_.visible())
        style |= WS_VISIBLE;
    if (!control_.enabled())
        style |= WS_DISABLED;
    if (control_.tabStop)
        style |= WS_TABSTOP;
    const RECT place = pixelRect(control_);
    const auto id = reinterpret_cast<HMENU>(static_cast<INT_PTR>(nextChildId())); // NOLINT
    adopt(CreateWindowExA(exStyle | WS_EX_NOPARENTNOTIFY, className, text.c_str(), style | WS_CHILD, place.left,
                          place.top, place.right - place.left, place.bottom - place.top, container->handle(), id,
                          GetModuleHandleA(nullptr), nullptr));
    applyFont();
}

void WindowPeer::adopt(HWND window) {
    handle_ = window;
    if (window != nullptr)
        SetWindowSubclass(window, procedure, subclassId, reinterpret_cast<DWORD_PTR>(this));
}

LRESULT CALLBACK WindowPeer::procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR /*id*/,
                                       DWORD_PTR peer) {
    auto* const self = reinterpret_cast<WindowPeer*>(peer); // NOLINT(performance-no-int-to-ptr)
    LRESULT result = 0;
    // When the host's process has been killed this is the only message that tells.
    if (message == WM_NCDESTROY) {
        RemoveWindowSubclass(window, procedure, subclassId);
        result = DefSubclassProc(window, message, wParam, lParam);
        self->handle_ = nullptr;
        self->destroyed();
        return result;
    }
    core::guarded([&] {
        self->reportMouse(message, wParam, lParam);
        // An event may have unloaded the form and the peer with it.
        result = of(window) == self ? self->message(message, wParam, lParam) : 0;
    });
    return result;
}

LRESULT WindowPeer::message(UINT message, WPARAM wParam, LPARAM lParam) {
    return defaultMessage(message, wParam, lParam);
}

LRESULT WindowPeer::defaultMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    return handle_ == nullptr ? 0 : DefSubclassProc(handle_, message, wParam, lParam);
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
    forms::raise(*event, button, shiftState(), forms::toTwips(GET_X_LPARAM(lParam)),
                 forms::toTwips(GET_Y_LPARAM(lParam)));
}

void WindowPeer::changed(forms::Property property) {
    if (handle_ == nullptr)
        return;
    switch (property) {
    case forms::Property::position: {
        const RECT place = pixelRect(control_);
        SetWindowPos(handle_, nullptr, place.left, place.top, place.right - place.left, place.bottom - place.top,
                     SWP_NOZORDER | SWP_NOACTIVATE);
        break;
    }
    case forms::Property::enabled:
        EnableWindow(handle_, control_.enabled() ? TRUE : FALSE);
        break;
    case forms::Property::visible:
        ShowWindow(handle_, control_.visible() ? SW_SHOWNOACTIVATE : SW_HIDE);
        break;
    case forms::Property::colours:
        applyFont();
        InvalidateRect(handle_, nullptr, TRUE);
        break;
    default:
        break;
    }
}

void WindowPeer::setFocus() {
    if (handle_ != nullptr)
        SetFocus(handle_);
}

void WindowPeer::setWindowText(const std::string& text) {
    if (handle_ == nullptr)
        return;
    std::string present(static_cast<std::size_t>(GetWindowTextLengthA(handle_)) + 1, '\0');
    present.resize(static_cast<std::size_t>(
        GetWindowTextA(handle_, present.data(), static_cast<int>(present.size()))));
    if (present != text)
        SetWindowTextA(handle_, text.c_str());
}

void WindowPeer::applyFont() {
    if (handle_ == nullptr)
        return;
    const forms::Font& wanted = control_.font();
    constexpr int dotsPerInch = 96; // the screen's, as a program that knows nothing of others sees it
    constexpr int pointsPerInch = 72;
    LOGFONTA description{};
    description.lfHeight = -static_cast<LONG>(wanted.points * dotsPerInch / pointsPerInch + 0.5F);
    description.lfWeight = wanted.bold ? FW_BOLD : FW_NORMAL;
    description.lfItalic = wanted.italic ? TRUE : FALSE;
    description.lfCharSet = DEFAULT_CHARSET;
    wanted.name.copy(description.lfFaceName, LF_FACESIZE - 1);
    const HFONT made = CreateFontIndirectA(&description);
    SendMessageA(handle_, WM_SETFONT, reinterpret_cast<WPARAM>(made), TRUE);
    if (font_ != nullptr)
        DeleteObject(font_);
    font_ = made;
}

ContainerPeer::~ContainerPeer() {
    if (brush_ != nullptr)
        DeleteObject(brush_);
}

LRESULT ContainerPeer::message(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_COMMAND:
        if (WindowPeer* child = of(reinterpret_cast<HWND>(lParam))) { // NOLINT(performance-no-int-to-ptr)
            child->command(HIWORD(wParam), LOWORD(wParam));
            return 0;
        }
        break;
    case WM_NOTIFY: {
        auto& header = *reinterpret_cast<NMHDR*>(lParam); // NOLINT(performance-no-int-to-ptr)
        if (WindowPeer* child = of(header.hwndFrom))
            return child->notify(header);
        break;
    }
    case WM_CTLCOLORSTATIC:
    case WM_CTLCOLORBTN:
    case WM_CTLCOLOREDIT:
    case WM_CTLCOLORLISTBOX:
        if (const LRESULT brush = childColour(reinterpret_cast<HDC>(wParam), // NOLINT(performance-no-int-to-ptr)
                                              reinterpret_cast<HWND>(lParam)); // NOLINT(performance-no-int-to-ptr)
            brush != 0)
            return brush;
        break;
    case WM_ERASEBKGND:
        if (control().backColour()) {
            RECT client;
            GetClientRect(handle(), &client);
            const HBRUSH fill = CreateSolidBrush(nativeColour(*control().backColour()));
            FillRect(reinterpret_cast<HDC>(wParam), &client, fill); // NOLINT(performance-no-int-to-ptr)
            DeleteObject(fill);
            return 1;
        }
        break;
    default:
        break;
    }
    return defaultMessage(message, wParam, lParam);
}

/// Colours of a child that has its own, or that shows its container's. 0 leaves the system's.
LRESULT ContainerPeer::childColour(HDC dc, HWND child) {
    const WindowPeer* peer = of(child);
    if (peer == nullptr)
        return 0;
    if (peer->control().foreColour())
        SetTextColor(dc, nativeColour(*peer->control().foreColour()));
    const auto& own = peer->control().backColour();
    const auto& wanted = own ? own : control().backColour();
    if (!wanted)
        return 0;
    if (brush_ == nullptr || brushColour_ != *wanted) {
        if (brush_ != nullptr)
            DeleteObject(brush_);
        brushColour_ = *wanted;
        brush_ = CreateSolidBrush(nativeColour(*wanted));
    }
    SetBkColor(dc, nativeColour(*wanted));
    return reinterpret_cast<LRESULT>(brush_);
}

int shiftState() {
    const auto down = [](int key) { return GetKeyState(key) < 0; };
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
    description.hbrBackground = reinterpret_cast<HBRUSH>(static_cast<INT_PTR>(COLOR_BTNFACE + 1)); // NOLINT
    description.hIcon = LoadIconA(description.hInstance, MAKEINTRESOURCEA(1));
    description.lpszClassName = name;
    RegisterClassExA(&description);
}

} // namespace win32
