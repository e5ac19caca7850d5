// What a dialog of the system (message box, file dialog, icon chooser) stands on while it is up.
//
// The system disables a dialog's owner when the dialog comes, tells the owner whenever the dialog has nothing
// to do, and enables it when the dialog goes; it waits for the owner each time. A toolbar's dialog would have
// the top window of the toolbar's host for its owner, and would stand still with that as soon as it hangs:
// the user could not close it, and the program could not end under it.
//
// So such a dialog is owned by a hidden window of ours that the host's window owns: it stands in front of the
// host all the same, and the host is disabled and enabled beside our thread. It is known when the dialog is
// about to go, while it still stands in front: then the keyboard is given back, before the system could
// choose a window that is to come in front.
#pragma once

#include "win32/common/focusKeeper.h"
#include "win32/common/holding.h"

#include <windows.h>

#include <memory>

namespace win32 {

/// A window of another program as a dialog of ours disables and enables it. Neither waits for it longer than
/// `hostPatience`; one that hangs comes to what was last wanted as soon as it answers.
class HeldHost {
  public:
    explicit HeldHost(HWND window);
    void enable(bool enabled) noexcept;

  private:
    struct State;
    std::shared_ptr<State> state_; ///< shared with the threads that carry it out
};

/// From before a dialog's call until after it.
class SystemDialog {
  public:
    /// For a dialog that is asked for by a window of ours, hosted or not, and that it is to stand in front
    /// of. A host that does not answer is left out of it.
    explicit SystemDialog(HWND asking);
    ~SystemDialog();
    SystemDialog(const SystemDialog&) = delete;
    SystemDialog& operator=(const SystemDialog&) = delete;

    /// What the dialog's call is to be given as owner; it is enabled. Null before the start.
    HWND owner() const { return owner_; }

    /// The program ends: what dialogs have disabled in other programs is enabled again.
    static void enableHosts();

  private:
    static LRESULT CALLBACK hear(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    void makeOwner(HWND above);
    void holdHost();
    void dialogGoes();

    FocusKeeper keeper_;
    HWND host_; ///< the top window that the asking one stands in; null if that is ours
    Hold hold_;
    std::unique_ptr<HeldHost> held_; ///< as long as the dialog disables it
    HWND owner_ = nullptr;
    bool made_ = false;   ///< the owner has been made for this dialog
    SystemDialog* outer_; ///< made before this one and still there
};

} // namespace win32
