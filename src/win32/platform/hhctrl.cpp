#include "platform/hhctrl.h"

#include "runtime/runtimeError.h"
#include "win32/common/components.h"
#include "win32/common/native.h"
#include "win32/common/systemLibrary.h"
#include "win32/platform/help.h"
#include "win32/platform/helpFile.h"

#include <windows.h>

namespace {

using Viewer = HWND(WINAPI*)(HWND, const char*, UINT, DWORD_PTR);

/// Loaded at the first use and kept: it runs the help window, on a thread of its own. A load that has been
/// refused, be it for lack of memory, is tried again when the user asks for help again.
Viewer viewer() {
    static Viewer bound = nullptr;
    if (bound == nullptr)
        bound = win32::routineOf<Viewer>(win32::systemLibrary(L"hhctrl.ocx"), "HtmlHelpA");
    return bound;
}

HWND lastShown = nullptr;

bool isShown() {
    return lastShown != nullptr && IsWindow(lastShown) != FALSE;
}

} // namespace

namespace platform {

HWND HtmlHelpA(HWND owner, const char* file, std::uint32_t command, std::uintptr_t data) {
    if (viewer() == nullptr)
        throw runtime::RuntimeError(runtime::ErrorNumber::fileNotFound);
    // Where it is up already the call is carried out by its thread, and waits for that.
    if (isShown() && !win32::answers(lastShown))
        return win32::neutral(lastShown);
    win32::keepComponents();
    lastShown = viewer()(win32::native(owner), win32::helpFileForViewer(file).c_str(), command, data);
    return win32::neutral(lastShown);
}

} // namespace platform

namespace win32 {

void closeHelp() {
    constexpr UINT closeAll = 0x12;
    if (isShown() && answers(lastShown))
        viewer()(nullptr, nullptr, closeAll, 0);
}

} // namespace win32
