#include "platform/programs.h"

#include "platform/user32.h"
#include "runtime/runtimeError.h"
#include "runtime/text.h"
#include "win32/common/native.h"

#include <windows.h>

#include <sddl.h>

#include <array>
#include <string>

namespace {

using runtime::ErrorNumber;
using runtime::RuntimeError;

/// The logged-on user's identifier as text; empty if it cannot be had.
std::string userSid() {
    HANDLE token = nullptr;
    if (OpenProcessToken(GetCurrentProcess(), TOKEN_QUERY, &token) == FALSE)
        return {};
    alignas(TOKEN_USER) std::array<char, sizeof(TOKEN_USER) + SECURITY_MAX_SID_SIZE> user{};
    DWORD length = 0;
    std::string sid;
    char* text = nullptr;
    if (GetTokenInformation(token, TokenUser, user.data(), static_cast<DWORD>(user.size()), &length) !=
            FALSE &&
        ConvertSidToStringSidA(reinterpret_cast<TOKEN_USER*>(user.data())->User.Sid, &text) != FALSE) {
        sid = text;
        LocalFree(text);
    }
    CloseHandle(token);
    return sid;
}

/// A search for a window by its title: the whole of it, or how it begins.
struct TitleSearch {
    std::string wanted; ///< lower case
    HWND exact = nullptr;
    HWND beginning = nullptr;
};

BOOL CALLBACK compareTitle(HWND window, LPARAM parameter) {
    auto& search = *reinterpret_cast<TitleSearch*>(parameter);
    std::array<char, 512> title{};
    const int length = GetWindowTextA(window, title.data(), static_cast<int>(title.size()));
    const std::string seen = runtime::lowerCase({title.data(), static_cast<std::size_t>(length)});
    if (seen == search.wanted) {
        search.exact = window;
        return FALSE;
    }
    if (search.beginning == nullptr && seen.starts_with(search.wanted))
        search.beginning = window;
    return TRUE;
}

} // namespace

namespace platform {

void shell(std::string_view commandLine, int windowStyle) {
    std::string line(commandLine); // the call may write into it
    STARTUPINFOA start{};
    start.cb = sizeof start;
    start.dwFlags = STARTF_USESHOWWINDOW;
    start.wShowWindow = static_cast<WORD>(windowStyle);
    PROCESS_INFORMATION started{};
    if (CreateProcessA(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start,
                       &started) == FALSE)
        throw RuntimeError(ErrorNumber::fileNotFound);
    CloseHandle(started.hThread);
    CloseHandle(started.hProcess);
}

void appActivate(std::string_view title) {
    TitleSearch search{runtime::lowerCase(title)};
    ::EnumWindows(compareTitle, reinterpret_cast<LPARAM>(&search));
    const ::HWND found = search.exact != nullptr ? search.exact : search.beginning;
    if (found == nullptr)
        throw RuntimeError(ErrorNumber::invalidCall);
    BringWindowToTop(win32::neutral(found));
}

bool previousInstance() {
    // The handle is the program's to the end: it is what the next instance sees.
    const std::string name = "Local\\Kestrel-" + userSid();
    const ::HANDLE mutex = CreateMutexA(nullptr, FALSE, name.c_str());
    return mutex == nullptr || GetLastError() == ERROR_ALREADY_EXISTS;
}

void endProgram() {
    ExitProcess(0);
}

} // namespace platform
