#include "contract/windows/otherProgram.h"

#include "contract/windows/orders.h"
#include "platform/messages.h"

#include <stdexcept>

namespace contract {

namespace {

constexpr DWORD longestAnswer = 20'000; // milliseconds

void closeHandle(HANDLE& handle) {
    if (handle != nullptr)
        CloseHandle(handle);
    handle = nullptr;
}

/// Serves messages until an object is signalled or some milliseconds have passed.
void serve(HANDLE object, DWORD milliseconds) {
    const DWORD objects = object == nullptr ? 0 : 1;
    MsgWaitForMultipleObjects(objects, &object, FALSE, milliseconds, QS_ALLINPUT);
    platform::doEvents();
}

} // namespace

OtherProgram::~OtherProgram() {
    end();
}

void OtherProgram::start() {
    SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
    HANDLE itsInput = nullptr;
    HANDLE itsOutput = nullptr;
    CreatePipe(&itsInput, &orders_, &inherited, 0);
    CreatePipe(&answers_, &itsOutput, &inherited, 0);
    // The process must not hold our ends open, or it would never see the end of its input.
    SetHandleInformation(orders_, HANDLE_FLAG_INHERIT, 0);
    SetHandleInformation(answers_, HANDLE_FLAG_INHERIT, 0);

    char program[MAX_PATH] = {};
    GetModuleFileNameA(nullptr, program, MAX_PATH);
    std::string commandLine = std::string("\"") + program + "\" " + otherProgramArgument;
    STARTUPINFOA start{};
    start.cb = sizeof start;
    start.dwFlags = STARTF_USESTDHANDLES;
    start.hStdInput = itsInput;
    start.hStdOutput = itsOutput;
    start.hStdError = GetStdHandle(STD_ERROR_HANDLE);
    PROCESS_INFORMATION made{};
    const BOOL started = CreateProcessA(nullptr, commandLine.data(), nullptr, nullptr, TRUE, 0, nullptr,
                                        nullptr, &start, &made);
    CloseHandle(itsInput);
    CloseHandle(itsOutput);
    if (started == FALSE)
        throw std::runtime_error("the other program does not start");
    CloseHandle(made.hThread);
    process_ = made.hProcess;
    AllowSetForegroundWindow(made.dwProcessId);
}

std::string OtherProgram::order(const std::string& line) {
    if (process_ == nullptr)
        start();
    const std::string sent = line + "\n";
    DWORD written = 0;
    WriteFile(orders_, sent.data(), static_cast<DWORD>(sent.size()), &written, nullptr);
    return answer();
}

std::string OtherProgram::answer() {
    std::string line;
    const ULONGLONG begin = GetTickCount64();
    while (GetTickCount64() - begin < longestAnswer) {
        DWORD waiting = 0;
        if (PeekNamedPipe(answers_, nullptr, 0, nullptr, &waiting, nullptr) == FALSE)
            break;
        if (waiting == 0) {
            serve(nullptr, 2);
            continue;
        }
        char character = 0;
        DWORD got = 0;
        if (ReadFile(answers_, &character, 1, &got, nullptr) == FALSE || got == 0)
            break;
        if (character == '\n')
            return line;
        if (character != '\r')
            line += character;
    }
    throw std::runtime_error("the other program does not answer");
}

void OtherProgram::end() {
    if (process_ != nullptr) {
        TerminateProcess(process_, 1);
        while (WaitForSingleObject(process_, 0) == WAIT_TIMEOUT)
            serve(process_, INFINITE);
    }
    closeHandle(process_);
    closeHandle(orders_);
    closeHandle(answers_);
}

} // namespace contract
