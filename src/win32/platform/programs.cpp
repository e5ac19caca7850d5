#include "platform/programs.h"

#include "platform/user32.h"
#include "runtime/runtimeError.h"
#include "runtime/text.h"
#include "win32/common/focusKeeper.h"
#include "win32/common/native.h"
#include "win32/common/processEnd.h"
#include "win32/common/systemDialog.h"
#include "win32/platform/help.h"
#include "win32/platform/hosts.h"
#include "win32/platform/opening.h"
#include "win32/platform/paths.h"
#include "win32/platform/titles.h"

#include <windows.h>

#include <sddl.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <memory>
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

struct Start {
    std::string commandLine;
    int windowStyle = 0;
    DWORD failure = ERROR_SUCCESS;
    /// Set if the program needs more rights than ours.
    std::string program;
    std::string parameters;
};

/// The file that the system starts for the beginning of a command line; empty if there is none.
std::string programFile(const std::string& beginning) {
    std::wstring file(win32::longestPath, L'\0');
    file.resize(SearchPathW(nullptr, win32::widePath(beginning).c_str(), L".exe", win32::longestPath,
                            file.data(), nullptr));
    const DWORD attributes = file.empty() ? INVALID_FILE_ATTRIBUTES : GetFileAttributesW(file.c_str());
    return (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0 ? std::string() : win32::pathText(file);
}

/// Parts a command line as the system does: the program is what stands in quotes, else the shortest
/// beginning up to a blank that is one.
void partProgram(Start& start) {
    const std::string& line = start.commandLine;
    std::size_t end = 0;
    if (line.starts_with('"')) {
        end = std::min(line.find('"', 1), line.size());
        start.program = programFile(line.substr(1, end - 1));
        end = std::min(end + 1, line.size());
    }
    while (start.program.empty() && end < line.size()) {
        end = std::min(line.find(' ', end + 1), line.size());
        start.program = programFile(line.substr(0, end));
    }
    start.parameters = runtime::trim(std::string_view(line).substr(end));
}

/// Tells whether the program's host has answered.
bool begin(Start& start) {
    std::wstring line = win32::widePath(start.commandLine); // the call may write into it
    STARTUPINFOW how{};
    how.cb = sizeof how;
    how.dwFlags = STARTF_USESHOWWINDOW;
    how.wShowWindow = static_cast<WORD>(start.windowStyle);
    PROCESS_INFORMATION started{};
    if (CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, CREATE_DEFAULT_ERROR_MODE, nullptr,
                       nullptr, &how, &started) == FALSE) {
        start.failure = GetLastError();
        if (start.failure == win32::elevationRequired)
            partProgram(start);
        return win32::isAnswer(start.failure);
    }
    CloseHandle(started.hThread);
    CloseHandle(started.hProcess);
    return true;
}

/// The shell asks the user for the rights that a program needs. Nobody waits for the answer, which may be no,
/// and on one server one question is up at a time.
void startWithMoreRights(const Start& start) {
    const auto opening = std::make_shared<win32::Opening>();
    // The system's question comes up over the window that the user works in, and not in the task bar.
    opening->owner = win32::neutral(GetForegroundWindow());
    opening->verb = "Open";
    opening->file = start.program;
    opening->parameters = start.parameters;
    opening->command = start.windowStyle;
    win32::askUserInTurn(start.program, [opening] { return win32::open(*opening); });
}

/// A search for a window by its title: the whole of it, or how it begins.
struct TitleSearch {
    std::string wanted; ///< lower case
    HWND exact = nullptr;
    HWND beginning = nullptr;
};

int compareTitle(platform::HWND seenWindow, std::intptr_t parameter) {
    const HWND window = win32::native(seenWindow);
    auto& search = *reinterpret_cast<TitleSearch*>(parameter);
    const std::string seen = runtime::lowerCase(win32::Title(window).text());
    if (seen == search.wanted) {
        search.exact = window;
        return 0;
    }
    if (search.beginning == nullptr && seen.starts_with(search.wanted))
        search.beginning = window;
    return 1;
}

} // namespace

namespace platform {

void shell(std::string_view commandLine, int windowStyle) {
    const auto start = std::make_shared<Start>();
    start->commandLine = commandLine;
    start->windowStyle = windowStyle;
    const bool asked = win32::askHost(commandLine, [start] { return begin(*start); });
    if (asked && start->failure == win32::elevationRequired)
        startWithMoreRights(*start);
    else if (!asked || start->failure != ERROR_SUCCESS)
        throw RuntimeError(ErrorNumber::fileNotFound);
}

void appActivate(std::string_view title) {
    TitleSearch search{runtime::lowerCase(title)};
    EnumWindows(compareTitle, reinterpret_cast<std::intptr_t>(&search));
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
    win32::SystemDialog::enableHosts();
    win32::FocusKeeper::leaveAll();
    win32::closeHelp();
    win32::endProcess();
}

} // namespace platform
