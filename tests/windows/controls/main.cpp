// A program that shows the controls of the form library as the windows that Kestrel makes of them.
#include "controlsForm.h"
#include "journal.h"
#include "runtime/guard.h"

#include <windows.h>

#include <commctrl.h>

int WINAPI WinMain(HINSTANCE /*instance*/, HINSTANCE /*previous*/, LPSTR /*commandLine*/, int /*show*/) {
    INITCOMMONCONTROLSEX classes{sizeof classes, ICC_WIN95_CLASSES | ICC_STANDARD_CLASSES};
    InitCommonControlsEx(&classes);
    runtime::guarded([] {
        controls::ControlsForm form;
        form.load();
        journal::write("ready\t");
        form.showModal();
    });
    return 0;
}
