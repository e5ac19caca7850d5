// contract-tests.exe: the tests; with an argument that says so the other program of the tests; under another
// name a program that only tells that it was started.
#define DOCTEST_CONFIG_IMPLEMENT
#include <doctest/doctest.h>

#include "contract/windows/endedProcess.h"
#include "contract/windows/faultingTimer.h"
#include "contract/windows/files.h"
#include "contract/windows/orders.h"
#include "contract/windows/otherProgramMain.h"
#include "contract/windows/refusedOnce.h"
#include "contract/windows/withoutLibraries.h"
#include "contract/windows/withoutViews.h"
#include "contract/world.h"
#include "win32/platform/hosts.h"
#include "win32/platform/paths.h"

#include <windows.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <thread>

namespace {

constexpr const char* ownName = "contract-tests.exe";

/// How long a test may take, in milliseconds, on a machine with much else to do. Some take longer on demand.
ULONGLONG longestTest() {
    constexpr ULONGLONG usual = 300'000;
    constexpr ULONGLONG onDemand = 3'600'000;
    return std::getenv("KESTREL_GROWTH") == nullptr ? usual : onDemand;
}

/// Leaves the command line beside the program, the file appears whole or not at all, and before it whether
/// the system asks for a medium that is missing.
int report() {
    contract::writeWholeFile(contract::ownPath() + ".mode",
                             std::to_string(GetErrorMode() & SEM_FAILCRITICALERRORS));
    // Wide: the folder may have no text in the code page.
    const std::wstring file = win32::ownPath() + L".started";
    const std::wstring begun = file + L".new";
    const HANDLE written =
        CreateFileW(begun.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    const char* const line = GetCommandLineA();
    DWORD count = 0;
    const BOOL done = WriteFile(written, line, static_cast<DWORD>(std::strlen(line)), &count, nullptr);
    CloseHandle(written);
    return done != FALSE && MoveFileExW(begun.c_str(), file.c_str(), MOVEFILE_REPLACE_EXISTING) != FALSE ? 0
                                                                                                         : 1;
}

/// The test that runs; null outside the run, where the framework has no state to ask.
const doctest::TestCaseData* runningTest() {
    const doctest::ContextOptions* const options = doctest::getContextOptions();
    return options == nullptr ? nullptr : options->currentTest;
}

/// Ends the program when one test goes on for ever, in a message box for instance.
void watch() {
    const doctest::TestCaseData* seen = nullptr;
    ULONGLONG since = GetTickCount64();
    for (;; Sleep(500)) {
        const doctest::TestCaseData* running = runningTest();
        if (running != seen) {
            seen = running;
            since = GetTickCount64();
        } else if (seen != nullptr && GetTickCount64() - since > longestTest()) {
            std::fprintf(stderr, "this test does not end: %s\n", seen->m_name);
            std::fflush(stderr);
            ExitProcess(3);
        }
    }
}

/// Whether windows can be made: under Wine that takes a display.
bool windowsCanBeMade() {
    const HWND window =
        CreateWindowExA(0, "STATIC", "", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr, nullptr, nullptr);
    return window != nullptr && DestroyWindow(window) != FALSE;
}

/// Ends the program at a fault with what is known of it; the system would ask a debugger first.
LONG WINAPI fault(EXCEPTION_POINTERS* what) {
    const doctest::TestCaseData* running = runningTest();
    std::fprintf(stderr, "fault 0x%08lX at %p in this test: %s\n", what->ExceptionRecord->ExceptionCode,
                 what->ExceptionRecord->ExceptionAddress, running == nullptr ? "none" : running->m_name);
    ExitProcess(4);
}

/// A settings file that stood beside the program before is there again afterwards.
class KeptSettings {
  public:
    KeptSettings() : kept_(contract::readWholeFile(contract::World::settingsPath())) {}
    ~KeptSettings() {
        if (kept_)
            contract::writeWholeFile(contract::World::settingsPath(), *kept_);
    }
    KeptSettings(const KeptSettings&) = delete;
    KeptSettings& operator=(const KeptSettings&) = delete;

  private:
    std::optional<std::string> kept_;
};

} // namespace

int main(int count, char** arguments) {
    const std::string own = contract::ownPath();
    if (_stricmp(own.c_str() + own.find_last_of('\\') + 1, ownName) != 0)
        return report();
    if (count > 1 && std::strcmp(arguments[1], contract::otherProgramArgument) == 0)
        return contract::otherProgramMain();
    if (count > 1 && std::strcmp(arguments[1], contract::faultingTimerArgument) == 0)
        return contract::faultingTimerMain();
    if (count > 1 && std::strcmp(arguments[1], contract::endedProcessArgument) == 0)
        return contract::endedProcessMain();
    if (count > 1 && std::strcmp(arguments[1], contract::withoutViewsArgument) == 0)
        return contract::withoutViewsMain();
    if (count > 1 && std::strcmp(arguments[1], contract::withoutLibrariesArgument) == 0)
        return contract::withoutLibrariesMain();
    if (count > 1 && std::strcmp(arguments[1], contract::refusedOnceArgument) == 0)
        return contract::refusedOnceMain();
    if (!windowsCanBeMade()) {
        std::fputs("no window can be made: there is no display\n", stderr);
        return 5;
    }
    win32::askForNoMedium();
    SetUnhandledExceptionFilter(fault);
    std::setvbuf(stdout, nullptr, _IONBF, 0);
    const KeptSettings settings;
    doctest::Context context(count, arguments);
    std::thread(watch).detach();
    return context.run();
}
