#include "platform/hhctrl.h"

#include "runtime/runtimeError.h"
#include "win32/common/native.h"
#include "win32/platform/helpFile.h"

#include <windows.h>

#include <cstring>

namespace platform {

HWND HtmlHelpA(HWND owner, const char* file, std::uint32_t command, std::uintptr_t data) {
    using Viewer = ::HWND(WINAPI*)(::HWND, const char*, UINT, DWORD_PTR);
    // Loaded at the first use and kept: it runs the help window.
    static const HMODULE library = LoadLibraryExA("hhctrl.ocx", nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
    const FARPROC found = library == nullptr ? nullptr : GetProcAddress(library, "HtmlHelpA");
    if (found == nullptr)
        throw runtime::RuntimeError(runtime::ErrorNumber::fileNotFound);
    Viewer show = nullptr;
    static_assert(sizeof show == sizeof found);
    std::memcpy(&show, &found, sizeof show);
    return win32::neutral(show(win32::native(owner), win32::helpFileForViewer(file).c_str(), command, data));
}

} // namespace platform
