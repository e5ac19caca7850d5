#include "witness/remoteToolbar.h"

#include <commctrl.h>

#include <cstddef>
#include <optional>

namespace remoteToolbar {

// Memory in another process, for messages whose answer is a record.
class RemoteMemory {
  public:
    explicit RemoteMemory(HWND window) {
        DWORD id = 0;
        GetWindowThreadProcessId(window, &id);
        process_ = OpenProcess(PROCESS_VM_OPERATION | PROCESS_VM_READ | PROCESS_VM_WRITE, FALSE, id);
        if (process_)
            address_ = VirtualAllocEx(process_, nullptr, 4096, MEM_COMMIT | MEM_RESERVE, PAGE_READWRITE);
    }
    ~RemoteMemory() {
        if (address_)
            VirtualFreeEx(process_, address_, 0, MEM_RELEASE);
        if (process_)
            CloseHandle(process_);
    }
    RemoteMemory(const RemoteMemory&) = delete;
    RemoteMemory& operator=(const RemoteMemory&) = delete;

    explicit operator bool() const { return address_ != nullptr; }
    LPARAM address() const { return reinterpret_cast<LPARAM>(address_); }
    template <typename Record>
    Record read() const {
        Record record = {};
        ReadProcessMemory(process_, address_, &record, sizeof record, nullptr);
        return record;
    }

  private:
    HANDLE process_ = nullptr;
    void* address_ = nullptr;
};

static std::optional<DWORD_PTR> ask(HWND toolbar, UINT message, WPARAM wParam, LPARAM lParam) {
    DWORD_PTR answer = 0;
    if (!SendMessageTimeoutW(toolbar, message, wParam, lParam, SMTO_ABORTIFHUNG, 300, &answer))
        return std::nullopt;
    return answer;
}

// The client area's size as the toolbar's own program sees it.
static SIZE ownSize(HWND toolbar) {
    const HMODULE user = GetModuleHandleW(L"user32.dll");
    using View = DPI_AWARENESS_CONTEXT;
    static const auto viewOf = reinterpret_cast<View(WINAPI*)(HWND)>(
        reinterpret_cast<void*>(GetProcAddress(user, "GetWindowDpiAwarenessContext")));
    static const auto enter = reinterpret_cast<View(WINAPI*)(View)>(
        reinterpret_cast<void*>(GetProcAddress(user, "SetThreadDpiAwarenessContext")));
    const View former = viewOf && enter ? enter(viewOf(toolbar)) : nullptr;
    RECT client = {};
    GetClientRect(toolbar, &client);
    if (former)
        enter(former);
    return {client.right, client.bottom};
}

// From the toolbar's own pixels to those that we see on the screen.
static void toScreen(HWND toolbar, RECT& place) {
    const SIZE own = ownSize(toolbar);
    RECT client = {};
    GetClientRect(toolbar, &client);
    if (own.cx > 0 && own.cy > 0)
        place = {MulDiv(place.left, client.right, own.cx), MulDiv(place.top, client.bottom, own.cy),
                 MulDiv(place.right, client.right, own.cx), MulDiv(place.bottom, client.bottom, own.cy)};
    MapWindowPoints(toolbar, nullptr, reinterpret_cast<POINT*>(&place), 2);
}

std::vector<Button> buttons(HWND toolbar) {
    // The part of TBBUTTON that is the same in both bitnesses: image, command, state, style.
    struct ButtonHead {
        int image;
        int command;
        BYTE state;
        BYTE style;
    };
    static_assert(offsetof(ButtonHead, state) == offsetof(TBBUTTON, fsState));

    std::vector<Button> result;
    const RemoteMemory memory(toolbar);
    const DWORD_PTR count = ask(toolbar, TB_BUTTONCOUNT, 0, 0).value_or(0);
    for (DWORD_PTR index = 0; memory && index < count; ++index) {
        if (!ask(toolbar, TB_GETBUTTON, index, memory.address()))
            break;
        const auto head = memory.read<ButtonHead>();
        if (!ask(toolbar, TB_GETITEMRECT, index, memory.address()))
            break;
        RECT place = memory.read<RECT>();
        toScreen(toolbar, place);
        result.push_back({place, head.state, head.style});
    }
    return result;
}

} // namespace remoteToolbar
