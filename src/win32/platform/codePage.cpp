#include "platform/codePage.h"

#include <windows.h>

namespace platform {

unsigned GetACP() {
    static const unsigned page = ::GetACP();
    return page;
}

bool IsDBCSLeadByte(char byte) {
    return ::IsDBCSLeadByte(static_cast<BYTE>(byte)) != FALSE;
}

std::u16string toUtf16(std::string_view text) {
    const int length = static_cast<int>(text.size());
    const int needed = MultiByteToWideChar(CP_ACP, 0, text.data(), length, nullptr, 0);
    std::u16string wide(static_cast<std::size_t>(needed), u'\0');
    MultiByteToWideChar(CP_ACP, 0, text.data(), length, reinterpret_cast<wchar_t*>(wide.data()), needed);
    return wide;
}

std::string toAnsi(std::u16string_view text) {
    // No default character of our own: the call fails with one where the code page is UTF-8. That of all
    // others is the question mark.
    const auto* const wide = reinterpret_cast<const wchar_t*>(text.data());
    const int length = static_cast<int>(text.size());
    const int needed = WideCharToMultiByte(CP_ACP, 0, wide, length, nullptr, 0, nullptr, nullptr);
    std::string ansi(static_cast<std::size_t>(needed), '\0');
    WideCharToMultiByte(CP_ACP, 0, wide, length, ansi.data(), needed, nullptr, nullptr);
    return ansi;
}

} // namespace platform
