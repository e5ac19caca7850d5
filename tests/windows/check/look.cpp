#include "check/look.h"
#include "common/text.h"

#include <commctrl.h>

#include <algorithm>
#include <fstream>

using Words = std::vector<std::wstring>;

static HWND handleFrom(const std::wstring& word) {
    return reinterpret_cast<HWND>(static_cast<UINT_PTR>(std::stoull(word)));
}

static RECT rectangleAt(const Words& words, size_t index) {
    return {std::stoi(words[index]), std::stoi(words[index + 1]), std::stoi(words[index + 2]),
            std::stoi(words[index + 3])};
}

static void read(Look& look, const Words& words) {
    if (words[0] == L"window" && words.size() >= 18) {
        look.windows.push_back({handleFrom(words[1]),
                                handleFrom(words[2]),
                                words[5],
                                words[8] == L"1",
                                rectangleAt(words, 10),
                                rectangleAt(words, 14),
                                words.back(),
                                {}});
    } else if (words[0] == L"button" && words.size() >= 9) {
        look.windows.back().buttons.push_back(
            {rectangleAt(words, 3), std::stoi(words[7]), std::stoi(words[8])});
    } else if (words[0] == L"focus" && words.size() >= 3) {
        look.foreground = handleFrom(words[1]);
        look.focus = handleFrom(words[2]);
    }
}

RECT Window::onScreen(const RECT& inside) const {
    RECT real = {};
    GetWindowRect(handle, &real);
    const auto scaled = [](LONG at, LONG from, LONG size, LONG realFrom, LONG realSize) {
        return size == 0 ? realFrom : realFrom + MulDiv(at - from, realSize, size);
    };
    const auto x = [&](LONG at) {
        return scaled(at, place.left, place.right - place.left, real.left, real.right - real.left);
    };
    const auto y = [&](LONG at) {
        return scaled(at, place.top, place.bottom - place.top, real.top, real.bottom - real.top);
    };
    return {x(inside.left), y(inside.top), x(inside.right), y(inside.bottom)};
}

std::vector<Toolbar> Look::toolbars() const {
    std::vector<Toolbar> found;
    for (const Window& form : windows) {
        if (form.parent != windows.front().handle || form.className != L"KestrelForm" || !form.visible ||
            form.text != L"EAGLE Kestrel Bench")
            continue;
        for (const Window& bar : windows) {
            if (bar.className != L"ToolbarWindow32" || bar.parent != form.handle)
                continue;
            Toolbar toolbar{form, bar, bar.buttons};
            std::erase_if(toolbar.buttons,
                          [](const Button& button) { return (button.style & BTNS_SEP) != 0; });
            found.push_back(toolbar);
        }
    }
    return found;
}

HWND Look::field() const {
    const auto found = std::ranges::find_if(windows, [this](const Window& window) {
        return window.parent == windows.front().handle && window.className == L"Edit";
    });
    return found == windows.end() ? nullptr : found->handle;
}

Eyes::Eyes(const workplace::Workplace& place, const std::wstring& folder)
    : witness_(place, folder, L"witness"), dump_(place.path(L"look.txt")) {}

Look Eyes::look(HWND window) {
    Look look;
    witness_.order({L"dump", dump_, std::to_wstring(reinterpret_cast<UINT_PTR>(window))});
    std::ifstream lines(dump_.c_str());
    for (std::string line; std::getline(lines, line);)
        read(look, text::fields(line));
    return look;
}
