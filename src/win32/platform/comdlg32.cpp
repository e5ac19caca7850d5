#include "platform/comdlg32.h"

#include "win32/common/focusKeeper.h"
#include "win32/common/holding.h"
#include "win32/common/native.h"
#include "win32/common/ownerWindow.h"

#include <windows.h>

#include <commdlg.h>

namespace {

/// The owner is disabled while the dialog is up, and with a hosted form that is its host. One that hangs
/// would hold us.
HWND ownerFor(HWND owner) {
    const HWND root = GetAncestor(owner, GA_ROOT);
    return root != nullptr && !win32::answers(root) ? win32::ownerWindow() : owner;
}

int show(BOOL(WINAPI* dialog)(LPOPENFILENAMEA), platform::OPENFILENAMEA& record) {
    ::OPENFILENAMEA made{};
    // The first version of the record, which the logic states at its 32-bit size.
    made.lStructSize = OPENFILENAME_SIZE_VERSION_400A;
    made.hwndOwner = ownerFor(win32::native(record.hwndOwner));
    made.lpstrFilter = record.lpstrFilter;
    made.nFilterIndex = record.nFilterIndex;
    made.lpstrFile = record.lpstrFile;
    made.nMaxFile = record.nMaxFile;
    made.lpstrInitialDir = record.lpstrInitialDir;
    made.lpstrTitle = record.lpstrTitle;
    made.Flags = record.Flags;
    made.lpstrDefExt = record.lpstrDefExt;
    const win32::FocusKeeper keeper;
    const win32::Hold hold(made.hwndOwner);
    return dialog(&made);
}

} // namespace

namespace platform {

int GetOpenFileNameA(OPENFILENAMEA& record) {
    return show(::GetOpenFileNameA, record);
}

int GetSaveFileNameA(OPENFILENAMEA& record) {
    return show(::GetSaveFileNameA, record);
}

} // namespace platform
