#include "win32/common/joinedHosts.h"

#include "win32/common/native.h"

#include <algorithm>
#include <map>
#include <utility>
#include <vector>

namespace win32 {

namespace {

/// How long it is from one look at the hosts to the next, in milliseconds: each costs us two wake-ups and the
/// host one, all day long. Close while one of them is waited for.
constexpr UINT calmLooks = 600;
constexpr UINT closeLooks = hostPatience;

struct Host {
    std::vector<HWND> windows; ///< that ours have gone into; any of them will do to ask
    HWND asked = nullptr;      ///< has not answered yet
    bool missed = false;       ///< it was waited for in vain meanwhile
    ULONGLONG askedAt = 0;     ///< milliseconds of the system's clock
    HWND clicked = nullptr;    ///< field of ours in it that the user has clicked on while we were parted
    bool silent = false;       ///< it did not answer in time, and we are parted from it
    int joins = 0;             ///< how often we are to be joined with it again: once for each window in it
};

/// By their threads.
std::map<DWORD, Host>& hosts() {
    static std::map<DWORD, Host> all;
    return all;
}

Host* find(DWORD thread) {
    const auto found = hosts().find(thread);
    return found == hosts().end() ? nullptr : &found->second;
}

void CALLBACK heard(HWND /*window*/, UINT /*message*/, ULONG_PTR thread, LRESULT /*result*/) {
    if (Host* host = find(static_cast<DWORD>(thread))) {
        host->asked = nullptr;
        host->missed = false;
    }
}

/// Whether its answer is still to come. A window that has gone may never give it; its thread has done
/// something since.
bool isAsked(Host& host) {
    if (host.asked != nullptr && IsWindow(host.asked) == FALSE) {
        host.asked = nullptr;
        host.missed = false;
    }
    return host.asked != nullptr;
}

void ask(DWORD thread, Host& host) {
    if (isAsked(host))
        return;
    const HWND window = host.windows.front();
    host.askedAt = GetTickCount64();
    host.asked = SendMessageCallbackA(window, WM_NULL, 0, 0, heard, thread) != FALSE ? window : nullptr;
}

bool belongsTo(DWORD thread, HWND window) {
    return GetWindowThreadProcessId(window, nullptr) == thread;
}

bool isInFront(DWORD thread) {
    return belongsTo(thread, GetForegroundWindow());
}

/// How often we had been joined with it: each window that has gone in there has done so once more, and so has
/// one that is owned there.
int leave(DWORD thread) {
    int joins = 0;
    while (AttachThreadInput(GetCurrentThreadId(), thread, FALSE) != FALSE)
        ++joins;
    return joins;
}

void lookEvery(UINT milliseconds);

void part(DWORD thread, Host& host) {
    host.silent = true;
    const HWND front = GetForegroundWindow();
    host.joins += leave(thread);
    // Under Wine what was joined goes on as the host's, and stays what is in front: no window is then.
    if (belongsTo(GetCurrentThreadId(), front) && GetForegroundWindow() == nullptr)
        SetForegroundWindow(front);
    ask(thread, host);
    lookEvery(closeLooks);
}

void join(DWORD thread, Host& host) {
    while (host.joins > 0 && AttachThreadInput(GetCurrentThreadId(), thread, TRUE) != FALSE)
        --host.joins;
    host.joins = 0;
    host.silent = false;
    if (const HWND clicked = std::exchange(host.clicked, nullptr);
        IsWindow(clicked) != FALSE && isInFront(thread))
        SetFocus(clicked);
}

/// Whether the host is waited for.
bool watchHost(DWORD thread, Host& host) {
    if (isAsked(host)) {
        if (!host.silent && GetTickCount64() - host.askedAt >= stallPatience)
            part(thread, host);
        return true;
    }
    if (!host.silent)
        ask(thread, host);
    else if (!isInFront(GetCurrentThreadId()))
        join(thread, host);
    return host.silent;
}

/// What a click on a window is about to give the focus to; null if that is nothing in it.
HWND fieldUnderMouse(HWND window) {
    POINT mouse{};
    GetCursorPos(&mouse);
    MapWindowPoints(nullptr, window, &mouse, 1);
    const HWND field = ChildWindowFromPointEx(window, mouse, CWP_SKIPINVISIBLE | CWP_SKIPDISABLED);
    return field != nullptr && (GetWindowLongA(field, GWL_STYLE) & WS_TABSTOP) != 0 ? field : nullptr;
}

/// Forgets windows that have gone, up to the first that has not: one is enough to ask, and each look at one
/// is a call of the system's. Whether any is left.
bool lives(Host& host) {
    const auto first =
        std::ranges::find_if(host.windows, [](HWND window) { return IsWindow(window) != FALSE; });
    host.windows.erase(host.windows.begin(), first);
    return !host.windows.empty();
}

void CALLBACK watch(HWND /*window*/, UINT /*message*/, UINT_PTR /*timer*/, DWORD /*time*/) {
    bool waiting = false;
    for (auto& [thread, host] : hosts())
        if (lives(host))
            waiting = watchHost(thread, host) || waiting;
        else
            leave(thread); // windows that went while we were parted have left a join of ours behind
    std::erase_if(hosts(), [](const auto& host) { return host.second.windows.empty(); });
    lookEvery(waiting ? closeLooks : calmLooks);
}

/// With a timer of the thread: it goes on in the loops of the system's dialogs and menus.
void lookEvery(UINT milliseconds) {
    static UINT_PTR timer = 0;
    static UINT period = 0;
    if (period != milliseconds)
        timer = SetTimer(nullptr, timer, milliseconds, watch);
    period = timer != 0 ? milliseconds : 0;
}

} // namespace

void hostJoined(HWND host) {
    const DWORD thread = GetWindowThreadProcessId(host, nullptr);
    if (thread == 0 || thread == GetCurrentThreadId())
        return;
    if (hosts().empty())
        lookEvery(calmLooks);
    Host& joined = hosts()[thread];
    if (!lives(joined))
        joined = {}; // another thread may have had the number
    if (std::ranges::find(joined.windows, host) == joined.windows.end())
        joined.windows.push_back(host);
    if (joined.silent)
        part(thread, joined);
}

void hostLeft(HWND host) {
    Host* left = find(GetWindowThreadProcessId(host, nullptr));
    if (left != nullptr && left->silent && left->joins > 0)
        --left->joins;
}

// Needs no memory: it is called where nothing may fail.
void partFromSilentHosts() {
    for (auto next = hosts().begin(); next != hosts().end();) {
        const DWORD thread = next->first;
        // While another one is waited for it may come or go.
        Host* host = &next->second;
        if (!host->silent && lives(*host) && !windowAnswers(host->windows.front())) {
            host = find(thread);
            if (host != nullptr && lives(*host))
                part(thread, *host);
        }
        next = hosts().upper_bound(thread);
    }
}

bool knownSilent(HWND window) {
    const auto silent = [window] {
        Host* host = find(GetWindowThreadProcessId(window, nullptr));
        return host != nullptr && isAsked(*host) && (host->silent || host->missed);
    };
    if (!silent())
        return false;
    // It may have answered meanwhile, and we have not heard of it: that comes with what others send us.
    MSG none;
    PeekMessageA(&none, nullptr, 0, 0, PM_NOREMOVE | PM_QS_SENDMESSAGE);
    return silent();
}

bool windowAnswers(HWND window) {
    if (knownSilent(window))
        return false;
    if (answers(window))
        return true;
    const DWORD thread = GetWindowThreadProcessId(window, nullptr);
    if (Host* host = find(thread); host != nullptr && lives(*host)) {
        host->missed = true;
        ask(thread, *host);
    }
    return false;
}

bool readyForClick(HWND window) {
    const HWND root = GetAncestor(window, GA_ROOT);
    const DWORD thread = GetWindowThreadProcessId(root, nullptr);
    Host* host = find(thread);
    if (host == nullptr || (!host->silent && answers(root, stallPatience)))
        return true;
    host = find(thread);
    if (host == nullptr)
        return true;
    if (!host->silent)
        part(thread, *host);
    if (!isAsked(*host)) {
        join(thread, *host);
        return true;
    }
    host->clicked = fieldUnderMouse(window);
    return false;
}

void joinAgain(HWND window) {
    const DWORD thread = GetWindowThreadProcessId(GetAncestor(window, GA_ROOT), nullptr);
    Host* host = find(thread);
    if (host != nullptr && host->silent && !isAsked(*host))
        join(thread, *host);
}

} // namespace win32
