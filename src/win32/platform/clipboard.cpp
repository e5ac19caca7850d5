#include "platform/clipboard.h"

#include "runtime/runtimeError.h"
#include "win32/common/wide.h"

#include <windows.h>

#include <cstring>

namespace {

[[noreturn]] void fail() {
    throw runtime::RuntimeError(runtime::ErrorNumber::clipboardNotOpened);
}

/// What is put into the clipboard belongs to a window, or it is not taken. Lives until the process ends; one
/// that could not be made is asked for again.
HWND clipboardOwner() {
    static HWND window = nullptr;
    if (IsWindow(window) == FALSE)
        window = CreateWindowExA(0, "STATIC", "", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr,
                                 GetModuleHandleA(nullptr), nullptr);
    return window;
}

/// Open from its making to its end.
class Clipboard {
  public:
    enum class For { reading, writing };
    explicit Clipboard(For what) {
        const HWND owner = clipboardOwner();
        // Nobody's it could be emptied, and nothing be put there instead.
        if (owner == nullptr && what == For::writing)
            fail();
        constexpr DWORD pause = 10; // milliseconds
        const ULONGLONG begin = GetTickCount64();
        while (OpenClipboard(owner) == FALSE) {
            if (GetTickCount64() - begin >= platform::clipboardPatience)
                fail();
            Sleep(pause);
        }
    }
    ~Clipboard() { CloseClipboard(); }
    Clipboard(const Clipboard&) = delete;
    Clipboard& operator=(const Clipboard&) = delete;
};

/// The clipboard keeps the block once it has taken it.
void put(UINT format, const void* bytes, std::size_t size) {
    const HGLOBAL block = GlobalAlloc(GMEM_MOVEABLE, size);
    void* const room = block == nullptr ? nullptr : GlobalLock(block);
    if (room == nullptr)
        fail();
    std::memcpy(room, bytes, size);
    GlobalUnlock(block);
    if (SetClipboardData(format, block) == nullptr) {
        GlobalFree(block);
        fail();
    }
}

} // namespace

namespace platform {

void clearClipboard() {
    const Clipboard open(Clipboard::For::writing);
    if (EmptyClipboard() == FALSE)
        fail();
}

std::string clipboardText() {
    const Clipboard open(Clipboard::For::reading);
    // The system makes Unicode of a text in any code page.
    const HANDLE block = GetClipboardData(CF_UNICODETEXT);
    const auto* const begin = block == nullptr ? nullptr : static_cast<const wchar_t*>(GlobalLock(block));
    if (begin == nullptr)
        return {};
    // Another program has made it, perhaps without a NUL at its end.
    const std::wstring_view room(begin, GlobalSize(block) / sizeof(wchar_t));
    std::string text = win32::toText(room.substr(0, room.find(L'\0')));
    GlobalUnlock(block);
    return text;
}

void setClipboardText(std::string_view text) {
    const std::string ended(text.substr(0, text.find('\0')));
    const Clipboard open(Clipboard::For::writing);
    put(CF_TEXT, ended.c_str(), ended.size() + 1);
    // Programs that ask for Unicode get it by this code page; otherwise by that of the keyboard in use.
    const LCID language = GetSystemDefaultLCID();
    put(CF_LOCALE, &language, sizeof language);
}

} // namespace platform
