#include "win32/common/refusal.h"

#include "win32/common/windowChanges.h"

#include <algorithm>
#include <optional>
#include <vector>

namespace win32 {

namespace {

struct Refused {
    HWND window;
    HWND host;
    bool toBeSeen;
};

std::vector<Refused>& refused() {
    static std::vector<Refused> all;
    return all;
}

std::vector<Refused>::iterator find(HWND window) {
    return std::ranges::find(refused(), window, &Refused::window);
}

/// By the system's clock; none before the first.
std::optional<ULONGLONG> lastRefusal;

bool isOfClass(HWND window, HWND other) {
    return GetClassLongPtrA(window, GCW_ATOM) == GetClassLongPtrA(other, GCW_ATOM);
}

void endOlder(HWND window, HWND host) {
    std::vector<HWND> older;
    for (const Refused& one : refused())
        if (one.host == host && one.window != window && isOfClass(one.window, window))
            older.push_back(GetAncestor(one.window, GA_ROOT));
    for (const HWND root : older)
        destroyWindow(root);
}

} // namespace

void noteRefusal() {
    lastRefusal = GetTickCount64();
}

bool refusedLately() {
    constexpr ULONGLONG pause = 800; // milliseconds
    return lastRefusal && GetTickCount64() - *lastRefusal < pause;
}

void keepFromSight(HWND window, HWND host) {
    noteRefusal();
    // A window that goes is not heard of.
    std::erase_if(refused(), [](const Refused& one) { return IsWindow(one.window) == FALSE; });
    endOlder(window, host);
    if (const auto known = find(window); known != refused().end()) {
        known->host = host;
        return;
    }
    const bool seen = (GetWindowLongA(window, GWL_STYLE) & WS_VISIBLE) != 0;
    showWindow(window, SW_HIDE);
    refused().push_back({window, host, seen});
}

void letBeSeen(HWND window) {
    const auto known = find(window);
    if (known == refused().end())
        return;
    const bool toBeSeen = known->toBeSeen;
    refused().erase(known);
    if (toBeSeen)
        showInPlace(window);
}

bool keptFromSight(HWND window, bool toBeSeen) {
    const auto known = find(window);
    if (known == refused().end())
        return false;
    known->toBeSeen = toBeSeen;
    return true;
}

} // namespace win32
