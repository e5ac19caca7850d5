// The start of the program and its message loop.
#include "core/hauptform.h"
#include "runtime/guard.h"
#include "runtime/outOfMemory.h"
#include "win32/common/messages.h"
#include "win32/common/processEnd.h"
#include "win32/common/processSettings.h"
#include "win32/platform/hosts.h"

#include <windows.h>

#include <commctrl.h>

namespace {

void run() {
    win32::settleProcess();
    win32::askForNoMedium();
    INITCOMMONCONTROLSEX controls{sizeof controls, ICC_WIN95_CLASSES | ICC_STANDARD_CLASSES};
    InitCommonControlsEx(&controls);
    // Lives until the process ends, like all that it owns.
    auto* const form = new core::Hauptform;
    form->load();
    MSG message;
    while (form->loaded() && GetMessageW(&message, nullptr, 0, 0) > 0)
        win32::serve(message);
}

} // namespace

int WINAPI WinMain(HINSTANCE /*instance*/, HINSTANCE /*previous*/, LPSTR /*commandLine*/, int /*show*/) {
    runtime::raiseOutOfMemory();
    runtime::guarded(run);
    win32::endProcess();
}
