#include "win32/forms/themes.h"

#include "win32/common/systemLibrary.h"

namespace win32 {

namespace {

struct Themes {
    HMODULE library = systemLibrary(L"uxtheme.dll");
    decltype(&OpenThemeData) open = routineOf<decltype(open)>(library, "OpenThemeData");
    decltype(&CloseThemeData) close = routineOf<decltype(close)>(library, "CloseThemeData");
    decltype(&DrawThemeBackground) draw = routineOf<decltype(draw)>(library, "DrawThemeBackground");
    decltype(&SetWindowTheme) set = routineOf<decltype(set)>(library, "SetWindowTheme");
};

/// One that could not be loaded is asked for again.
const Themes& themes() {
    static Themes bound;
    if (bound.library == nullptr)
        bound = Themes();
    return bound;
}

} // namespace

HTHEME openTheme(HWND window, const wchar_t* className) {
    return themes().open == nullptr ? nullptr : themes().open(window, className);
}

void closeTheme(HTHEME theme) {
    if (themes().close != nullptr)
        themes().close(theme);
}

bool drawThemed(HTHEME theme, HDC dc, int part, int state, const RECT& area) {
    return themes().draw != nullptr && SUCCEEDED(themes().draw(theme, dc, part, state, &area, nullptr));
}

void setTheme(HWND window, const wchar_t* program) {
    if (themes().set != nullptr)
        themes().set(window, program, nullptr);
}

} // namespace win32
