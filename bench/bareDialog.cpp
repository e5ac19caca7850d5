#include "bareDialog.h"

#include "win32/common/messages.h"

#include <commctrl.h>

#include <array>
#include <string_view>

namespace bench {

namespace {

std::string classOf(HWND window) {
    std::array<char, 256> name{};
    GetClassNameA(window, name.data(), static_cast<int>(name.size()));
    return name.data();
}

/// How a kind of control is asked for its rows and given them.
struct Rows {
    std::string_view className;
    UINT count;
    UINT length;
    UINT text;
    UINT add;
};

constexpr Rows rowsOf[] = {{"ListBox", LB_GETCOUNT, LB_GETTEXTLEN, LB_GETTEXT, LB_ADDSTRING},
                           {"ComboBox", CB_GETCOUNT, CB_GETLBTEXTLEN, CB_GETLBTEXT, CB_ADDSTRING}};

const Rows* kindOf(const std::string& className) {
    for (const Rows& rows : rowsOf)
        if (lstrcmpiA(className.c_str(), rows.className.data()) == 0)
            return &rows;
    return nullptr;
}

std::vector<std::string> rowsIn(HWND window, const Rows& kind) {
    std::vector<std::string> rows(static_cast<std::size_t>(SendMessageA(window, kind.count, 0, 0)));
    for (std::size_t row = 0; row < rows.size(); ++row) {
        rows[row].resize(static_cast<std::size_t>(SendMessageA(window, kind.length, row, 0)) + 1);
        SendMessageA(window, kind.text, row, reinterpret_cast<LPARAM>(rows[row].data()));
    }
    return rows;
}

std::vector<std::string> tabsIn(HWND strip) {
    std::vector<std::string> tabs;
    const LRESULT count = SendMessageA(strip, TCM_GETITEMCOUNT, 0, 0);
    for (LRESULT tab = 0; tab < count; ++tab) {
        std::array<char, 256> text{};
        TCITEMA item{};
        item.mask = TCIF_TEXT;
        item.pszText = text.data();
        item.cchTextMax = static_cast<int>(text.size());
        SendMessageA(strip, TCM_GETITEMA, static_cast<WPARAM>(tab), reinterpret_cast<LPARAM>(&item));
        tabs.emplace_back(text.data());
    }
    return tabs;
}

void addTab(HWND strip, std::size_t place, const std::string& text) {
    std::string copy = text;
    TCITEMA item{};
    item.mask = TCIF_TEXT;
    item.pszText = copy.data();
    SendMessageA(strip, TCM_INSERTITEMA, place, reinterpret_cast<LPARAM>(&item));
}

} // namespace

BareDialog::BareDialog(HWND window)
    : font_(CreateFontA(-11, 0, 0, 0, FW_NORMAL, 0, 0, 0, DEFAULT_CHARSET, 0, 0, 0, 0, "MS Sans Serif")) {
    read(window, 0);
}

BareDialog::~BareDialog() {
    DeleteObject(font_);
}

void BareDialog::read(HWND window, std::size_t parent) {
    Control control{};
    control.className = classOf(window);
    control.text.resize(static_cast<std::size_t>(GetWindowTextLengthA(window)) + 1);
    GetWindowTextA(window, control.text.data(), static_cast<int>(control.text.size()));
    control.style = static_cast<DWORD>(GetWindowLongA(window, GWL_STYLE));
    control.extendedStyle = static_cast<DWORD>(GetWindowLongA(window, GWL_EXSTYLE));
    GetWindowRect(window, &control.place);
    control.parent = parent;
    const bool first = controls_.empty();
    if (!first)
        MapWindowPoints(nullptr, GetParent(window), reinterpret_cast<POINT*>(&control.place), 2);
    const Rows* const kind = kindOf(control.className);
    if (kind != nullptr)
        control.rows = rowsIn(window, *kind);
    else if (control.className == WC_TABCONTROLA)
        control.rows = tabsIn(window);
    const std::size_t self = controls_.size();
    controls_.push_back(control);
    // What stands in a drop-down list or beside the tabs comes by itself.
    if (kind != nullptr)
        return;
    for (HWND child = GetWindow(window, GW_CHILD); child != nullptr; child = GetWindow(child, GW_HWNDNEXT))
        if (classOf(child) != UPDOWN_CLASSA)
            read(child, self);
}

/// Rows are painted once, when all are there.
void BareDialog::addRows(HWND window, const Control& control) {
    const Rows* const kind = kindOf(control.className);
    if (kind == nullptr) {
        for (std::size_t tab = 0; tab < control.rows.size(); ++tab)
            addTab(window, tab, control.rows[tab]);
        return;
    }
    SendMessageA(window, WM_SETREDRAW, FALSE, 0);
    for (const std::string& row : control.rows)
        SendMessageA(window, kind->add, 0, reinterpret_cast<LPARAM>(row.c_str()));
    SendMessageA(window, WM_SETREDRAW, TRUE, 0);
    InvalidateRect(window, nullptr, TRUE);
}

HWND BareDialog::open() const {
    std::vector<HWND> made;
    for (const Control& control : controls_) {
        const bool first = made.empty();
        const RECT& place = control.place;
        const HWND window = CreateWindowExA(
            control.extendedStyle, control.className.c_str(), control.text.c_str(),
            first ? control.style & ~DWORD{WS_VISIBLE} : control.style, place.left, place.top,
            place.right - place.left, place.bottom - place.top, first ? nullptr : made[control.parent],
            nullptr, GetModuleHandleA(nullptr), nullptr);
        made.push_back(window);
        SendMessageA(window, WM_SETFONT, reinterpret_cast<WPARAM>(font_), 0);
        addRows(window, control);
    }
    ShowWindow(made.front(), SW_SHOW);
    return made.front();
}

void BareDialog::openAndClose() const {
    const HWND window = open();
    win32::servePending();
    DestroyWindow(window);
}

} // namespace bench
