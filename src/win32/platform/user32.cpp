#include "platform/user32.h"

#include "platform/codePage.h"
#include "runtime/characters.h"
#include "runtime/runtimeError.h"
#include "win32/common/joinedHosts.h"
#include "win32/common/native.h"
#include "win32/common/refusal.h"
#include "win32/common/windowChanges.h"
#include "win32/platform/ghosts.h"
#include "win32/platform/leftOpen.h"
#include "win32/platform/titles.h"

#include <algorithm>
#include <optional>
#include <string>

using win32::isForeign;
using win32::native;
using win32::neutral;

namespace {

struct Enumeration {
    platform::EnumWindowsCallback callback;
    std::intptr_t extra;
    win32::GhostWalk walk;
    std::optional<runtime::RuntimeError> failure; ///< of the callback: nothing is thrown through the system
};

BOOL CALLBACK passOn(HWND window, LPARAM parameter) {
    auto& enumeration = *reinterpret_cast<Enumeration*>(parameter);
    try {
        // The window that it shows is in the walk too, hidden.
        return enumeration.walk.isGhost(window) || enumeration.callback(neutral(window), enumeration.extra);
    } catch (const runtime::RuntimeError& error) {
        enumeration.failure = error;
        return FALSE;
    }
}

/// One character in place; a letter whose small one has another number of bytes stays.
void lowerCharacter(std::span<char> character) {
    std::u16string wide = platform::toUtf16({character.data(), character.size()});
    ::CharLowerBuffW(reinterpret_cast<wchar_t*>(wide.data()), static_cast<DWORD>(wide.size()));
    const std::string small = platform::toAnsi(wide);
    if (small.size() == character.size() && platform::toUtf16(small) == wide)
        std::ranges::copy(small, character.begin());
}

} // namespace

namespace platform {

bool EnumWindows(EnumWindowsCallback callback, std::intptr_t extra) {
    Enumeration enumeration{callback, extra, {}, std::nullopt};
    const bool complete = ::EnumWindows(passOn, reinterpret_cast<LPARAM>(&enumeration)) != FALSE;
    enumeration.walk.end(complete);
    if (enumeration.failure)
        throw runtime::RuntimeError(*enumeration.failure);
    return complete;
}

int GetWindowTextA(HWND window, char* text, int size) {
    if (size <= 0)
        return 0;
    const win32::Title title(native(window));
    const std::size_t copied = title.text().copy(text, static_cast<std::size_t>(size) - 1);
    text[copied] = '\0';
    return static_cast<int>(copied);
}

int GetWindowTextLengthA(HWND window) {
    return static_cast<int>(win32::Title(native(window)).text().size());
}

bool IsWindow(HWND window) {
    return ::IsWindow(native(window)) != FALSE;
}

bool IsIconic(HWND window) {
    return ::IsIconic(native(window)) != FALSE;
}

bool GetWindowRect(HWND window, RECT& rect) {
    ::RECT found{};
    if (::GetWindowRect(native(window), &found) == FALSE)
        return false;
    rect = {found.left, found.top, found.right, found.bottom};
    return true;
}

bool GetClientRect(HWND window, RECT& rect) {
    ::RECT found{};
    if (::GetClientRect(native(window), &found) == FALSE)
        return false;
    rect = {found.left, found.top, found.right, found.bottom};
    return true;
}

HWND SetParent(HWND child, HWND parent) {
    return neutral(win32::putInto(native(child), native(parent)));
}

bool MoveWindow(HWND window, int x, int y, int width, int height, bool repaint) {
    const ::HWND moved = native(window);
    const UINT more = repaint ? 0U : SWP_NOREDRAW;
    if (!isForeign(moved))
        return win32::moveWindow(moved, {x, y, x + width, y + height}, more);
    return win32::orderWindow(moved, nullptr, {x, y, x + width, y + height},
                              SWP_NOZORDER | SWP_NOACTIVATE | more);
}

bool SetWindowPos(HWND window, std::intptr_t insertAfter, int x, int y, int width, int height,
                  std::uint32_t flags) {
    return win32::orderWindow(native(window), reinterpret_cast<::HWND>(insertAfter),
                              {x, y, x + width, y + height}, flags);
}

bool BringWindowToTop(HWND window) {
    return win32::raiseWindow(native(window));
}

bool ShowWindow(HWND window, int command) {
    return win32::showWindow(native(window), command);
}

std::intptr_t SendMessageA(HWND window, std::uint32_t message, std::uintptr_t wParam, std::intptr_t lParam) {
    const ::HWND receiver = native(window);
    // A window whose drawing is switched on is seen from then on, even if it was hidden.
    if (message == WM_SETREDRAW && win32::keptFromSight(receiver, wParam != 0))
        return 0;
    if (!isForeign(receiver))
        return ::SendMessageA(receiver, message, wParam, lParam);
    DWORD_PTR result = 0;
    const bool done = !win32::knownSilent(receiver) &&
                      SendMessageTimeoutA(receiver, message, wParam, lParam, SMTO_ABORTIFHUNG,
                                          win32::hostPatience, &result) != 0;
    if (!done && message == WM_SETREDRAW)
        // Not waited for, but not lost either: the host would stay without drawing.
        SendNotifyMessageA(receiver, message, wParam, lParam);
    return static_cast<std::intptr_t>(result);
}

bool RedrawWindow(HWND window, const RECT& rect, std::uint32_t flags) {
    // Without a window the platform would redraw the whole desktop.
    if (window == HWND::none)
        return false;
    const ::RECT area{rect.left, rect.top, rect.right, rect.bottom};
    // Drawing at once would wait for the other program; it draws when it comes to it. A window of our own
    // whose drawing was switched off has lost its frame as well.
    flags =
        isForeign(native(window)) ? flags & ~std::uint32_t{RDW_UPDATENOW | RDW_ERASENOW} : flags | RDW_FRAME;
    const bool whole = (flags & RDW_FRAME) != 0;
    return ::RedrawWindow(native(window), whole ? nullptr : &area, nullptr, flags) != FALSE;
}

bool DrawIconEx(HDC dc, int x, int y, HICON icon, int width, int height, std::uint32_t step,
                std::uint32_t flags) {
    return ::DrawIconEx(reinterpret_cast<::HDC>(dc), x, y, reinterpret_cast<::HICON>(icon), width, height,
                        step, nullptr, flags) != FALSE;
}

bool DestroyIcon(HICON icon) {
    const auto given = reinterpret_cast<::HICON>(icon);
    win32::forgetIcon(given);
    return ::DestroyIcon(given) != FALSE;
}

void CharLowerBuffA(std::span<char> text) {
    if (runtime::oneByteEach()) {
        ::CharLowerBuffA(text.data(), static_cast<DWORD>(text.size()));
        return;
    }
    // Not by the platform's own call: where a small letter has another number of bytes it cuts the text.
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t size = runtime::characterSize({text.data() + at, text.size() - at});
        lowerCharacter(text.subspan(at, size));
        at += size;
    }
}

} // namespace platform
