// Whose a message box of ours is.
#include "contract/windows/beside.h"
#include "contract/windows/hiddenMainForm.h"
#include "contract/world.h"
#include "forms/form.h"
#include "platform/dialogs.h"
#include "platform/keyStroke.h"
#include "win32/common/holding.h"
#include "win32/common/native.h"
#include "win32/common/systemDialog.h"

#include <doctest/doctest.h>

#include <windows.h>

namespace {

using contract::MainForm;
using contract::World;
using platform::Key;

/// The window that a message box stands on; where that is one made for the box alone, what that stands on.
HWND ownerOfBox() {
    HWND owner = nullptr;
    contract::withUser(
        contract::dialogClass, [] { platform::msgBox("Text", 0, "Title"); },
        [&](HWND box) {
            owner = GetWindow(box, GW_OWNER);
            if (contract::isOfClass(owner, "KestrelDialogOwner"))
                owner = GetWindow(owner, GW_OWNER);
            contract::closeBy(box, Key::enter);
        });
    return owner;
}

} // namespace

TEST_SUITE_BEGIN("contract/windows/messageBox");

TEST_CASE("a message box is the innermost modal form's, and not one's that does not hear the user") {
    const World world;
    MainForm main;
    forms::Form dialog;
    dialog.show();
    const win32::Hold modal(dialog);
    const HWND window = win32::native(dialog.hWnd());
    const HWND programs = win32::native(main.hWnd());
    CHECK(ownerOfBox() == window);
    CHECK(IsWindowEnabled(window));
    {
        forms::Form inner;
        inner.show();
        const win32::Hold innermost(inner);
        CHECK(ownerOfBox() == win32::native(inner.hWnd()));
        CHECK_FALSE(IsWindowEnabled(window));
    }
    {
        // A dialog of the system is up over it.
        const win32::SystemDialog other(window);
        EnableWindow(window, FALSE);
        CHECK(ownerOfBox() == programs);
        CHECK_FALSE(IsWindowEnabled(window));
        EnableWindow(window, TRUE);
    }
    EnableWindow(window, FALSE);
    CHECK(ownerOfBox() == programs);
    CHECK_FALSE(IsWindowEnabled(window));
    EnableWindow(window, TRUE);
    dialog.hide();
    CHECK(ownerOfBox() == programs);
}

TEST_SUITE_END();
