#include "contract/windows/otherProgram.h"

#include "contract/windows/orders.h"
#include "platform/messages.h"

#include <stdexcept>
#include <utility>

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

OrderedProcess start() {
    OrderedProcess started;
    SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
    HANDLE itsInput = nullptr;
    HANDLE itsOutput = nullptr;
    CreatePipe(&itsInput, &started.orders, &inherited, 0);
    CreatePipe(&started.answers, &itsOutput, &inherited, 0);
    // The process must not hold our ends open, or it would never see the end of its input.
    SetHandleInformation(started.orders, HANDLE_FLAG_INHERIT, 0);
    SetHandleInformation(started.answers, HANDLE_FLAG_INHERIT, 0);

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
    const BOOL done = CreateProcessA(nullptr, commandLine.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr,
                                     &start, &made);
    CloseHandle(itsInput);
    CloseHandle(itsOutput);
    if (done == FALSE)
        throw std::runtime_error("the other program does not start");
    CloseHandle(made.hThread);
    started.process = made.hProcess;
    return started;
}

/// The next one. It comes up beside the test that runs, since that takes longer than most of them; without an
/// order it has no window, and it ends with us.
OrderedProcess& next() {
    static OrderedProcess process = start();
    return process;
}

std::string answerOf(const OrderedProcess& asked) {
    std::string line;
    const ULONGLONG begin = GetTickCount64();
    while (GetTickCount64() - begin < longestAnswer) {
        DWORD waiting = 0;
        if (PeekNamedPipe(asked.answers, nullptr, 0, nullptr, &waiting, nullptr) == FALSE)
            break;
        if (waiting == 0) {
            serve(nullptr, 2);
            continue;
        }
        char character = 0;
        DWORD got = 0;
        if (ReadFile(asked.answers, &character, 1, &got, nullptr) == FALSE || got == 0)
            break;
        if (character == '\n')
            return line;
        if (character != '\r')
            line += character;
    }
    throw std::runtime_error("the other program does not answer");
}

std::string ask(const OrderedProcess& asked, const std::string& line) {
    const std::string sent = line + "\n";
    DWORD written = 0;
    WriteFile(asked.orders, sent.data(), static_cast<DWORD>(sent.size()), &written, nullptr);
    return answerOf(asked);
}

} // namespace

OtherProgram::OtherProgram() {
    next();
}

OtherProgram::~OtherProgram() {
    end();
}

std::string OtherProgram::order(const std::string& line) {
    if (own_.process == nullptr) {
        own_ = std::exchange(next(), start());
        AllowSetForegroundWindow(GetProcessId(own_.process));
    }
    return ask(own_, line);
}

void OtherProgram::awaitNext() {
    ask(next(), "nothing");
}

void OtherProgram::end() {
    if (own_.process != nullptr) {
        TerminateProcess(own_.process, 1);
        while (WaitForSingleObject(own_.process, 0) == WAIT_TIMEOUT)
            serve(own_.process, INFINITE);
    }
    closeHandle(own_.process);
    closeHandle(own_.orders);
    closeHandle(own_.answers);
}

} // namespace contract
