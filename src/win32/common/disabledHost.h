// The host that a dialog of the system has disabled for us.
//
// A dialog that a toolbar owns disables the top window of the toolbar's host and enables it when it closes. A
// program that ends under the dialog would leave the user's EAGLE dead to the mouse, with unsaved work in it.
#pragma once

#include <windows.h>

namespace win32 {

/// For as long as a dialog is up that has this owner.
class DisabledHost {
  public:
    explicit DisabledHost(HWND owner);
    ~DisabledHost();
    DisabledHost(const DisabledHost&) = delete;
    DisabledHost& operator=(const DisabledHost&) = delete;
};

/// The program ends: what dialogs have disabled in other programs is enabled again. A host that hangs is not
/// waited for.
void enableHosts();

} // namespace win32
