// The program in a folder whose letters no code page has all of. This program is copied there and plays the
// tests of the suite insideStrangeFolder, which nobody else plays.
#include "contract/windows/strangeFolder.h"

#include "contract/windows/files.h"

#include <doctest/doctest.h>

#include <windows.h>

#include <string>

namespace {

std::wstring ownFolder() {
    std::wstring path(MAX_PATH, L'\0');
    path.resize(GetModuleFileNameW(nullptr, path.data(), MAX_PATH));
    return path.substr(0, path.find_last_of(L'\\'));
}

/// Polish, Japanese and Thai letters: UTF-8 alone has them all.
class StrangeFolder {
  public:
    StrangeFolder() {
        wchar_t temporary[MAX_PATH] = {};
        GetTempPathW(MAX_PATH, temporary);
        path_ = std::wstring(temporary) + L"kestrel \u0141\u00F3d\u017A \u65E5\u672C \u0E07 " +
                std::to_wstring(GetCurrentProcessId());
        CreateDirectoryW(path_.c_str(), nullptr);
        for (const wchar_t* const name : {L"\\contract-tests.exe", L"\\contract-data\\brd.ico"}) {
            const std::wstring to = path_ + std::wstring(name).substr(std::wstring(name).find_last_of(L'\\'));
            REQUIRE(CopyFileW((ownFolder() + name).c_str(), to.c_str(), FALSE) != FALSE);
        }
    }
    ~StrangeFolder() {
        WIN32_FIND_DATAW found{};
        const HANDLE search = FindFirstFileW((path_ + L"\\*").c_str(), &found);
        do
            DeleteFileW((path_ + L'\\' + found.cFileName).c_str());
        while (FindNextFileW(search, &found) != FALSE);
        FindClose(search);
        RemoveDirectoryW(path_.c_str());
    }
    StrangeFolder(const StrangeFolder&) = delete;
    StrangeFolder& operator=(const StrangeFolder&) = delete;

    const std::wstring& path() const { return path_; }

  private:
    std::wstring path_;
};

/// What the program that is called up there has to say; its exit code tells whether its tests have passed.
DWORD play(const StrangeFolder& folder, const std::string& report) {
    std::wstring line = L'"' + folder.path() +
                        L"\\contract-tests.exe\" -ns -ts=contract/windows/insideStrangeFolder -o=" +
                        std::wstring(report.begin(), report.end());
    STARTUPINFOW how{};
    how.cb = sizeof how;
    PROCESS_INFORMATION started{};
    REQUIRE(CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &how,
                           &started) != FALSE);
    constexpr DWORD patience = 60'000; // milliseconds
    DWORD code = STILL_ACTIVE;
    if (WaitForSingleObject(started.hProcess, patience) == WAIT_OBJECT_0)
        GetExitCodeProcess(started.hProcess, &code);
    else
        TerminateProcess(started.hProcess, 1);
    CloseHandle(started.hThread);
    CloseHandle(started.hProcess);
    return code;
}

} // namespace

TEST_SUITE_BEGIN("contract/windows/strangeFolder");

TEST_CASE("a program folder that the code page cannot express works, by its short name or by a stand-in") {
    const std::string report = contract::scratchFolder() + ".strange.txt";
    for (const bool without : {false, true}) {
        const StrangeFolder folder;
        SetEnvironmentVariableA(contract::noShortNames, without ? "1" : nullptr);
        const DWORD code = play(folder, report);
        SetEnvironmentVariableA(contract::noShortNames, nullptr);
        CAPTURE(without);
        CHECK_MESSAGE(code == 0, contract::readWholeFile(report).value_or("no report"));
        contract::removeWholeFile(report);
    }
}

TEST_SUITE_END();
