#include "bareEditor.h"

#include "platform/executable.h"

#include <windows.h>

#include <commctrl.h>
#include <shellapi.h>

#include <array>
#include <cstddef>
#include <vector>

namespace bench {

namespace {

// All in pixels.
constexpr int side = 16;
constexpr int outside = -16000; // of any screen
constexpr SIZE formSize{128, 46};
constexpr int firstHeight = 46 * 15; // goes in as twips
constexpr int rowHeight = 22;
constexpr int gapRight = 25;
constexpr int gapTop = 21;
constexpr RECT surface{0, 0, 18, 18};
constexpr SIZE calculatorSize{200, 25};
constexpr RECT frame{0, 0, 195, 18};

constexpr DWORD formStyle = WS_POPUP | WS_CLIPCHILDREN | WS_CLIPSIBLINGS;
constexpr DWORD controlStyle = WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS;

/// One picture by the shortest way: the icon drawn over the mask colour, and given to the list.
void addIcon(HIMAGELIST images, HDC dc, HBITMAP bitmap, int button) {
    HICON little = nullptr;
    ExtractIconExA(iconFile(button).c_str(), 0, nullptr, &little, 1);
    const HGDIOBJ former = SelectObject(dc, bitmap);
    PatBlt(dc, 0, 0, side, side, WHITENESS);
    DrawIconEx(dc, 0, 0, little, 0, 0, 0, nullptr, DI_NORMAL);
    SelectObject(dc, former);
    DestroyIcon(little);
    ImageList_AddMasked(images, bitmap, RGB(255, 255, 255));
}

void setStyle(HWND window, DWORD clear, DWORD set) {
    const auto style = static_cast<DWORD>(GetWindowLongA(window, GWL_STYLE));
    SetWindowLongA(window, GWL_STYLE, static_cast<LONG>((style & ~clear) | set));
}

/// With null onto the desktop.
void putInto(HWND window, HWND parent) {
    if (GetAncestor(window, GA_PARENT) == (parent == nullptr ? GetDesktopWindow() : parent))
        return;
    if (parent != nullptr)
        setStyle(window, WS_POPUP, WS_CHILD);
    SetParent(window, parent);
    if (parent == nullptr)
        setStyle(window, WS_CHILD, WS_POPUP);
}

void switchDrawingOn(HWND window) {
    SendMessageA(window, WM_SETREDRAW, static_cast<WPARAM>(-1), 0);
    RECT client{};
    GetClientRect(window, &client);
    RedrawWindow(window, &client, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN | RDW_UPDATENOW);
}

} // namespace

std::string iconFile(int button) {
    static const std::array<const char*, 3> files = {"brd.ico", "sch.ico", "lbr.ico"};
    return platform::programFolder() + "\\" + files[static_cast<std::size_t>(button) % files.size()];
}

void fillBare(HWND bar, int buttonCount) {
    SendMessageA(bar, WM_SETREDRAW, FALSE, 0);
    for (auto left = SendMessageA(bar, TB_BUTTONCOUNT, 0, 0); left > 0; --left)
        SendMessageA(bar, TB_DELETEBUTTON, static_cast<WPARAM>(left - 1), 0);
    const HIMAGELIST images = ImageList_Create(side, side, ILC_COLOR32 | ILC_MASK, buttonCount, 1);
    const HDC screen = GetDC(nullptr);
    const HDC dc = CreateCompatibleDC(screen);
    const HBITMAP bitmap = CreateCompatibleBitmap(screen, side, side);
    for (int button = 1; button <= buttonCount; ++button)
        addIcon(images, dc, bitmap, button);
    DeleteObject(bitmap);
    DeleteDC(dc);
    ReleaseDC(nullptr, screen);
    const auto former =
        reinterpret_cast<HIMAGELIST>(SendMessageA(bar, TB_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(images)));
    if (former != nullptr)
        ImageList_Destroy(former);
    std::vector<TBBUTTON> buttons(static_cast<std::size_t>(buttonCount));
    for (int button = 0; button < buttonCount; ++button) {
        TBBUTTON& made = buttons[static_cast<std::size_t>(button)];
        made.iBitmap = button;
        made.idCommand = button + 1;
        made.fsState = TBSTATE_ENABLED;
    }
    SendMessageA(bar, TB_ADDBUTTONSA, buttons.size(), reinterpret_cast<LPARAM>(buttons.data()));
    SendMessageA(bar, WM_SETREDRAW, TRUE, 0);
    InvalidateRect(bar, nullptr, TRUE);
}

BareEditor::BareEditor(HWND host, int buttonCount)
    : host_(host),
      font_(CreateFontA(-9, 0, 0, 0, FW_NORMAL, 0, 0, 0, DEFAULT_CHARSET, 0, 0, 0, 0, "@Arial Unicode MS")) {
    makeToolbar(buttonCount);
    makeCalculator();
}

BareEditor::~BareEditor() {
    DestroyWindow(calculator_);
    DeleteObject(font_);
}

const char* BareEditor::formClass() {
    static const char* const made = [] {
        WNDCLASSEXA description{};
        description.cbSize = sizeof description;
        description.lpfnWndProc = procedure;
        description.hInstance = GetModuleHandleA(nullptr);
        description.hCursor = LoadCursorA(nullptr, reinterpret_cast<LPCSTR>(IDC_ARROW));
        description.hbrBackground = reinterpret_cast<HBRUSH>(static_cast<INT_PTR>(COLOR_BTNFACE + 1));
        description.lpszClassName = "BareForm";
        RegisterClassExA(&description);
        return description.lpszClassName;
    }();
    return made;
}

LRESULT CALLBACK BareEditor::procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    const LRESULT result = DefWindowProcA(window, message, wParam, lParam);
    if (message == WM_SIZE)
        if (const auto* self = reinterpret_cast<BareEditor*>(GetWindowLongPtrA(window, GWLP_USERDATA))) {
            self->fitBar();
            self->resizeForm();
        }
    return result;
}

void BareEditor::makeToolbar(int buttonCount) {
    const HINSTANCE instance = GetModuleHandleA(nullptr);
    form_ = CreateWindowExA(WS_EX_TOOLWINDOW | WS_EX_CONTROLPARENT | WS_EX_NOPARENTNOTIFY, formClass(),
                            "EAGLE Kestrel Bench", formStyle | WS_CAPTION | WS_THICKFRAME, outside, outside,
                            formSize.cx, formSize.cy, nullptr, nullptr, instance, nullptr);
    bar_ = CreateWindowExA(WS_EX_NOPARENTNOTIFY, TOOLBARCLASSNAMEA, "",
                           controlStyle | TBSTYLE_FLAT | TBSTYLE_TOOLTIPS | TBSTYLE_TRANSPARENT |
                               TBSTYLE_WRAPABLE | CCS_NODIVIDER | CCS_NOPARENTALIGN | CCS_NORESIZE,
                           0, 0, 120, rowHeight, form_, nullptr, instance, nullptr);
    SendMessageA(bar_, TB_BUTTONSTRUCTSIZE, sizeof(TBBUTTON), 0);
    for (int hidden = 0; hidden < 2; ++hidden)
        CreateWindowExA(WS_EX_NOPARENTNOTIFY, "STATIC", "", WS_CHILD | WS_CLIPSIBLINGS | SS_NOTIFY, 0, 0,
                        surface.right, surface.bottom, form_, nullptr, instance, nullptr);
    fillBare(bar_, buttonCount);
    SetWindowLongPtrA(form_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    ShowWindow(form_, SW_SHOWNA);
    putInto(form_, host_);
    RECT outer{};
    GetWindowRect(host_, &outer);
    MoveWindow(form_, outer.right - outer.left - formSize.cx - gapRight, gapTop, formSize.cx, firstHeight,
               TRUE);
    resizeForm();
}

/// The buttons find their rows for the width that the form has now.
void BareEditor::fitBar() const {
    RECT client{};
    GetClientRect(form_, &client);
    SetWindowPos(bar_, nullptr, 0, 0, client.right, rowHeight, SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOMOVE);
    SendMessageA(bar_, TB_AUTOSIZE, 0, 0);
    RECT last{};
    SendMessageA(bar_, TB_GETITEMRECT, static_cast<WPARAM>(SendMessageA(bar_, TB_BUTTONCOUNT, 0, 0)) - 1,
                 reinterpret_cast<LPARAM>(&last));
    SetWindowPos(bar_, nullptr, 0, 0, client.right, last.bottom, SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOMOVE);
}

void BareEditor::resizeForm() const {
    SetWindowPos(host_, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
    SendMessageA(host_, WM_SETREDRAW, FALSE, 0);
    SendMessageA(form_, WM_SETREDRAW, FALSE, 0);
    RECT outer{};
    RECT client{};
    RECT rows{};
    GetWindowRect(form_, &outer);
    GetClientRect(form_, &client);
    GetClientRect(bar_, &rows);
    putInto(form_, nullptr);
    SetWindowPos(form_, nullptr, 0, 0, outer.right - outer.left,
                 rows.bottom + (outer.bottom - outer.top - client.bottom),
                 SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOMOVE);
    putInto(form_, host_);
    switchDrawingOn(form_);
    switchDrawingOn(host_);
}

HWND BareEditor::makeControl(const char* className, const char* text, DWORD style, DWORD exStyle,
                             const RECT& place) const {
    const HWND made =
        CreateWindowExA(exStyle | WS_EX_NOPARENTNOTIFY, className, text, controlStyle | style, place.left,
                        place.top, place.right - place.left, place.bottom - place.top, frame_, nullptr,
                        GetModuleHandleA(nullptr), nullptr);
    SendMessageA(made, WM_SETFONT, reinterpret_cast<WPARAM>(font_), FALSE);
    return made;
}

void BareEditor::makeCalculator() {
    const HINSTANCE instance = GetModuleHandleA(nullptr);
    calculator_ =
        CreateWindowExA(WS_EX_TOOLWINDOW | WS_EX_CONTROLPARENT, formClass(), "", formStyle, outside, outside,
                        calculatorSize.cx, calculatorSize.cy, nullptr, nullptr, instance, nullptr);
    frame_ = CreateWindowExA(WS_EX_CONTROLPARENT | WS_EX_NOPARENTNOTIFY, formClass(), "",
                             WS_CHILD | WS_CLIPSIBLINGS | WS_CLIPCHILDREN, frame.left, frame.top, frame.right,
                             frame.bottom, calculator_, nullptr, instance, nullptr);
    struct Pair {
        const char* unit;
        RECT label;
        RECT field;
    };
    constexpr Pair pairs[] = {{"mm", {96, 2, 112, 15}, {120, 0, 189, 18}},
                              {"mil", {0, 2, 12, 15}, {24, 0, 93, 18}}};
    for (const Pair& pair : pairs) {
        makeControl("STATIC", pair.unit, SS_NOTIFY | SS_LEFTNOWORDWRAP, 0, pair.label);
        makeControl("EDIT", "0", ES_AUTOHSCROLL | WS_TABSTOP, WS_EX_CLIENTEDGE, pair.field);
    }
    ShowWindow(calculator_, SW_SHOWNA);
    SetWindowPos(calculator_, nullptr, 0, 0, 0, calculatorSize.cy,
                 SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOMOVE);
    SetParent(frame_, host_);
    RECT outer{};
    GetWindowRect(host_, &outer);
    SetWindowPos(frame_, nullptr, outer.right - outer.left - calculatorSize.cx, 0, 0, 0,
                 SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOSIZE);
    ShowWindow(frame_, SW_SHOWNA);
}

} // namespace bench
