#include "check/console.h"
#include "common/text.h"

#include <windows.h>

namespace console {

static void write(const std::wstring& line) {
    const HANDLE out = GetStdHandle(STD_OUTPUT_HANDLE);
    DWORD written = 0;
    // The console has a code page of its own; only so every letter arrives.
    if (WriteConsoleW(out, line.c_str(), static_cast<DWORD>(line.size()), &written, nullptr))
        return;
    const std::string bytes = text::narrow(line); // it has been sent elsewhere
    WriteFile(out, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
}

void say(const std::wstring& english, const std::wstring& german) {
    write(english + L"\r\n" + german + L"\r\n");
}

} // namespace console
