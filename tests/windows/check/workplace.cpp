#include "check/workplace.h"
#include "check/waiting.h"
#include "common/text.h"

#include <tlhelp32.h>

namespace workplace {

static std::wstring place; // of the folder, as the system names the programs in it; empty before there is one

static std::wstring temporaryFolder() {
    wchar_t given[MAX_PATH] = {};
    wchar_t full[MAX_PATH] = {};
    GetTempPathW(MAX_PATH, given);
    const DWORD length = GetLongPathNameW(given, full, MAX_PATH);
    std::wstring folder = length > 0 && length < MAX_PATH ? full : given;
    return folder + (folder.ends_with(L'\\') ? L"" : L"\\") + folderName;
}

static std::wstring imageOf(DWORD process) {
    const HANDLE opened = OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION, FALSE, process);
    if (!opened)
        return {};
    wchar_t path[MAX_PATH] = {};
    DWORD size = MAX_PATH;
    const BOOL told = QueryFullProcessImageNameW(opened, 0, path, &size);
    CloseHandle(opened);
    return told ? path : L"";
}

bool isOurs(DWORD process) {
    if (process == GetCurrentProcessId())
        return true;
    const std::wstring image = imageOf(process);
    return !place.empty() && image.size() > place.size() && image[place.size()] == L'\\' &&
           CompareStringOrdinal(image.c_str(), static_cast<int>(place.size()), place.c_str(),
                                static_cast<int>(place.size()), TRUE) == CSTR_EQUAL;
}

bool isOurs(HWND window) {
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    return process != 0 && isOurs(process);
}

Process::~Process() {
    if (handle_)
        CloseHandle(handle_);
}

bool Process::runs() const {
    return WaitForSingleObject(handle_, 0) == WAIT_TIMEOUT;
}

DWORD Process::exitCode() const {
    DWORD code = 0;
    GetExitCodeProcess(handle_, &code);
    return code;
}

void Process::terminate() const {
    TerminateProcess(handle_, 9);
    WaitForSingleObject(handle_, 5000);
}

// What is in a folder; nothing is followed out of it.
template <typename Action>
static void forEachIn(const std::wstring& folder, Action action) {
    WIN32_FIND_DATAW found;
    const HANDLE search = FindFirstFileW((folder + L"\\*").c_str(), &found);
    if (search == INVALID_HANDLE_VALUE)
        return;
    do {
        const std::wstring name = found.cFileName;
        if (name != L"." && name != L"..")
            action(name, found.dwFileAttributes);
    } while (FindNextFileW(search, &found));
    FindClose(search);
}

static void removeAll(const std::wstring& folder) {
    forEachIn(folder, [&](const std::wstring& name, DWORD attributes) {
        const std::wstring path = folder + L"\\" + name;
        SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_NORMAL);
        if ((attributes & FILE_ATTRIBUTE_DIRECTORY) == 0)
            DeleteFileW(path.c_str());
        else if ((attributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0)
            RemoveDirectoryW(path.c_str());
        else
            removeAll(path);
    });
    RemoveDirectoryW(folder.c_str());
}

static void copyAll(const std::wstring& from, const std::wstring& to) {
    CreateDirectoryW(to.c_str(), nullptr);
    forEachIn(from, [&](const std::wstring& name, DWORD attributes) {
        const std::wstring target = to + L"\\" + name;
        if ((attributes & FILE_ATTRIBUTE_DIRECTORY) != 0)
            return copyAll(from + L"\\" + name, target);
        if (!CopyFileW((from + L"\\" + name).c_str(), target.c_str(), FALSE))
            throw waiting::Failure("a file cannot be copied into the temporary folder: " +
                                   text::narrow(name));
        DeleteFileW((target + L":Zone.Identifier").c_str());
    });
}

static void endAllOurs() {
    const HANDLE snapshot = CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0);
    PROCESSENTRY32W entry = {};
    entry.dwSize = sizeof entry;
    for (BOOL more = Process32FirstW(snapshot, &entry); more; more = Process32NextW(snapshot, &entry)) {
        if (entry.th32ProcessID == GetCurrentProcessId() || !isOurs(entry.th32ProcessID))
            continue;
        if (const HANDLE process = OpenProcess(PROCESS_TERMINATE | SYNCHRONIZE, FALSE, entry.th32ProcessID)) {
            TerminateProcess(process, 9);
            WaitForSingleObject(process, 5000);
            CloseHandle(process);
        }
    }
    CloseHandle(snapshot);
}

Workplace::Workplace() : folder_(temporaryFolder()), job_(CreateJobObjectW(nullptr, nullptr)) {
    // Should this program be ended by force, the others end with it.
    JOBOBJECT_EXTENDED_LIMIT_INFORMATION limits = {};
    limits.BasicLimitInformation.LimitFlags = JOB_OBJECT_LIMIT_KILL_ON_JOB_CLOSE;
    SetInformationJobObject(job_, JobObjectExtendedLimitInformation, &limits, sizeof limits);

    place = folder_;
    clear();
    CreateDirectoryW(folder_.c_str(), nullptr);
    CreateDirectoryW(path(L"temp").c_str(), nullptr);
    // Inherited by all that is started: their temporary files are removed with the folder.
    SetEnvironmentVariableW(L"TEMP", path(L"temp").c_str());
    SetEnvironmentVariableW(L"TMP", path(L"temp").c_str());
}

Workplace::~Workplace() {
    clear();
    CloseHandle(job_);
}

void Workplace::copy(const std::wstring& from, const std::wstring& name) const {
    copyAll(from, path(name));
}

Process Workplace::start(const std::wstring& name, const std::wstring& arguments,
                         const std::wstring& output) const {
    std::wstring line = L"\"" + path(name) + L"\"" + (arguments.empty() ? L"" : L" ") + arguments;
    STARTUPINFOW startup = {};
    startup.cb = sizeof startup;
    HANDLE file = nullptr;
    if (!output.empty()) {
        SECURITY_ATTRIBUTES inherited = {sizeof inherited, nullptr, TRUE};
        file = CreateFileW(path(output).c_str(), GENERIC_WRITE, FILE_SHARE_READ, &inherited, CREATE_ALWAYS, 0,
                           nullptr);
        startup.dwFlags = STARTF_USESTDHANDLES;
        startup.hStdOutput = startup.hStdError = file;
    }
    PROCESS_INFORMATION started = {};
    const BOOL done = CreateProcessW(
        nullptr, line.data(), nullptr, nullptr, file != nullptr, CREATE_SUSPENDED | CREATE_DEFAULT_ERROR_MODE,
        nullptr, path(name).substr(0, path(name).rfind(L'\\')).c_str(), &startup, &started);
    const DWORD error = GetLastError();
    if (file)
        CloseHandle(file);
    if (!done)
        throw waiting::Failure(text::narrow(name) + " does not start: error " + std::to_string(error));
    // Before Windows 8 a program that is in a job already, as one from the shell may be, takes no second one.
    AssignProcessToJobObject(job_, started.hProcess);
    ResumeThread(started.hThread);
    CloseHandle(started.hThread);
    return {started.hProcess, started.dwProcessId};
}

bool Workplace::clear() const {
    // A virus scanner may hold a file for a while.
    for (int turn = 0; turn < 50; ++turn) {
        endAllOurs();
        removeAll(folder_);
        if (GetFileAttributesW(folder_.c_str()) == INVALID_FILE_ATTRIBUTES)
            return true;
        Sleep(200);
    }
    return false;
}

} // namespace workplace
