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
        MapWindowPoints(toolbar, nullptr, reinterpret_cast<POINT*>(&place), 2);
        result.push_back({place, head.state, head.style});
    }
    return result;
}

} // namespace remoteToolbar
