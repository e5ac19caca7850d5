#include "win32/common/systemDialog.h"

#include "runtime/guard.h"
#include "win32/common/joinedHosts.h"
#include "win32/common/native.h"
#include "win32/common/ownerWindow.h"
#include "win32/common/windowChanges.h"

#include <atomic>
#include <new>

namespace win32 {

namespace {

constexpr const char* ownerClass = "KestrelDialogOwner";

SystemDialog* innermost = nullptr;

/// The host that the asking window stands in, if it answers now.
HWND hostOf(HWND asking) {
    const HWND root = GetAncestor(asking, GA_ROOT);
    return root != nullptr && isForeign(root) && windowAnswers(root) ? root : nullptr;
}

} // namespace

struct HeldHost::State {
    explicit State(HWND host) : window(host) {}

    HWND window;
    std::atomic<bool> enabled = true; ///< as it is wanted

    static DWORD WINAPI carryOut(void* parameter) {
        const std::unique_ptr<std::shared_ptr<State>> state(static_cast<std::shared_ptr<State>*>(parameter));
        // Disabling tells the window first and may have to wait for it, until long after it is wanted
        // enabled again.
        bool done = false;
        do {
            done = (*state)->enabled;
            EnableWindow((*state)->window, done ? TRUE : FALSE);
        } while (done != (*state)->enabled);
        return 0;
    }

    /// The thread that carries it out, null if there is none to be had.
    static HANDLE begin(const std::shared_ptr<State>& state) noexcept {
        try {
            auto given = std::make_unique<std::shared_ptr<State>>(state);
            const HANDLE thread = CreateThread(nullptr, 0, carryOut, given.get(), 0, nullptr);
            if (thread != nullptr)
                static_cast<void>(given.release()); // the thread's from here on
            return thread;
        } catch (const std::bad_alloc&) {
            return nullptr;
        }
    }
};

HeldHost::HeldHost(HWND window) : state_(std::make_shared<State>(window)) {}

void HeldHost::enable(bool enabled) noexcept {
    state_->enabled = enabled;
    const HANDLE thread = State::begin(state_);
    if (thread == nullptr) {
        // No memory is left. A host that stays disabled is worse than one that is waited for.
        EnableWindow(state_->window, enabled ? TRUE : FALSE);
        return;
    }
    WaitForSingleObject(thread, hostPatience);
    CloseHandle(thread);
}

SystemDialog::SystemDialog(HWND asking) : host_(hostOf(asking)), hold_(asking), outer_(innermost) {
    innermost = this;
    const HWND root = GetAncestor(asking, GA_ROOT);
    const bool ours = root != nullptr && !isForeign(root);
    // A window of ours that the user sees is owner enough.
    if (ours && IsWindowVisible(root) != FALSE)
        owner_ = asking;
    else
        makeOwner(host_ != nullptr ? host_ : ours ? root : ownerWindow());
}

SystemDialog::~SystemDialog() {
    innermost = outer_;
    if (made_)
        destroyWindow(owner_);
    if (held_)
        held_->enable(true);
}

void SystemDialog::makeOwner(HWND above) {
    // The dialog itself is our own.
    const Seeing seen(viewOf(above));
    WNDCLASSA description{};
    description.lpfnWndProc = hear;
    description.hInstance = GetModuleHandleA(nullptr);
    description.lpszClassName = ownerClass;
    RegisterClassA(&description); // refused where it is known already
    // The dialog chooses its place by that of its owner.
    RECT place{};
    GetClientRect(above, &place);
    MapWindowPoints(above, nullptr, reinterpret_cast<POINT*>(&place), 2);
    owner_ = CreateWindowExA(WS_EX_TOOLWINDOW, ownerClass, "", WS_POPUP, place.left, place.top,
                             place.right - place.left, place.bottom - place.top, above, nullptr,
                             GetModuleHandleA(nullptr), nullptr);
    made_ = owner_ != nullptr;
    if (made_)
        SetWindowLongPtrA(owner_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    else
        owner_ = ownerWindow();
}

LRESULT CALLBACK SystemDialog::hear(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    auto* self = reinterpret_cast<SystemDialog*>(GetWindowLongPtrA(window, GWLP_USERDATA));
    if (message != WM_ENABLE || self == nullptr)
        return DefWindowProcA(window, message, wParam, lParam);
    if (wParam != FALSE)
        self->dialogGoes();
    else if (self->host_ != nullptr && IsWindowEnabled(self->host_) != FALSE)
        runtime::guarded([self] { self->holdHost(); });
    return 0;
}

void SystemDialog::holdHost() {
    held_ = std::make_unique<HeldHost>(host_);
    held_->enable(false);
}

void SystemDialog::dialogGoes() {
    if (held_) {
        held_->enable(true);
        held_.reset();
    }
    // Not if the user has gone elsewhere meanwhile.
    if (GetWindow(GetForegroundWindow(), GW_OWNER) == owner_)
        keeper_.give();
}

void SystemDialog::enableHosts() {
    for (const SystemDialog* dialog = innermost; dialog != nullptr; dialog = dialog->outer_)
        if (dialog->held_)
            dialog->held_->enable(true);
}

} // namespace win32
