#include "win32/platform/titles.h"

#include <algorithm>
#include <array>
#include <vector>

namespace win32 {

namespace {

std::string narrow(const wchar_t* text, int length) {
    const int needed = WideCharToMultiByte(CP_ACP, 0, text, length, nullptr, 0, nullptr, nullptr);
    std::string narrowed(static_cast<std::size_t>(std::max(needed, 0)), '\0');
    WideCharToMultiByte(CP_ACP, 0, text, length, narrowed.data(), needed, nullptr, nullptr);
    return narrowed;
}

} // namespace

std::string titleOf(HWND window) {
    std::array<wchar_t, 512> usual{};
    constexpr auto size = static_cast<int>(usual.size());
    int length = InternalGetWindowText(window, usual.data(), size);
    if (length < size - 1)
        return narrow(usual.data(), length);
    for (std::vector<wchar_t> longer(usual.size() * 2);; longer.resize(longer.size() * 2)) {
        length = InternalGetWindowText(window, longer.data(), static_cast<int>(longer.size()));
        if (length < static_cast<int>(longer.size()) - 1)
            return narrow(longer.data(), length);
    }
}

} // namespace win32
