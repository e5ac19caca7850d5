#include "win32/platform/titles.h"

#include "win32/common/wide.h"

namespace win32 {

namespace {

/// However long it is.
std::string longTitle(HWND window) {
    for (std::wstring title(1024, L'\0');; title.resize(title.size() * 2)) {
        const int length = InternalGetWindowText(window, title.data(), static_cast<int>(title.size()));
        if (length < static_cast<int>(title.size()) - 1)
            return toText({title.data(), static_cast<std::size_t>(length)});
    }
}

} // namespace

Title::Title(HWND window) {
    std::array<wchar_t, usual> title; // filled by the call
    const int length = InternalGetWindowText(window, title.data(), usual);
    if (length >= usual - 1) {
        longer_ = longTitle(window);
        text_ = longer_;
        return;
    }
    const int bytes = WideCharToMultiByte(CP_ACP, 0, title.data(), length, buffer_.data(),
                                          static_cast<int>(buffer_.size()), nullptr, nullptr);
    text_ = {buffer_.data(), static_cast<std::size_t>(bytes)};
}

} // namespace win32
