// What the tracker's own logic costs for each window title, on the simulated desktop: a whole search that
// finds nothing, less a walk that makes the same platform calls and does nothing with the titles.
#include "core/windoInf.h"
#include "desktop/desktop.h"
#include "platform/user32.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdio>
#include <ctime>
#include <span>
#include <string>
#include <vector>

namespace {

volatile int sink = 0;

int bareCallback(platform::HWND window, std::intptr_t /*extra*/) {
    std::array<char, 256> buffer;
    sink = platform::GetWindowTextA(window, buffer.data(), static_cast<int>(buffer.size()));
    return 1;
}

/// Nanoseconds of this thread's CPU time.
template <typename Pass>
double timed(Pass pass) {
    timespec before{};
    timespec after{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &before);
    pass();
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &after);
    return static_cast<double>(after.tv_sec - before.tv_sec) * 1e9 +
           static_cast<double>(after.tv_nsec - before.tv_nsec);
}

} // namespace

int main() {
    const std::vector<std::string> titles = {
        "Inbox - mail",
        "C:\\Users\\me\\Documents\\project\\readme.txt - Editor",
        "Data sheet of a regulator, page 12 of 40 - reader",
        "Control Panel - EAGLE 5.11.0 Light",
        "Default IME",
        "MSCTFIME UI",
        "A question about footprints and their solder mask - web browser",
        "",
    };
    constexpr int windows = 2000;
    desktop::Session session;
    for (int count = 0; count < windows; ++count)
        desktop::world().openWindow(titles[static_cast<std::size_t>(count) % titles.size()]);
    for (const char* text : {"Board -", "Schematic -", "Schaltplan -", "Library -", "Bibliothek -"}) {
        // In turn, so that both meet the same machine; the best of many passes.
        double whole = 1e18;
        double bare = 1e18;
        for (int round = 0; round < 6000; ++round) {
            whole = std::min(whole, timed([text] { core::findWindowByTitle(text); }));
            bare = std::min(bare, timed([] { platform::EnumWindows(bareCallback, -1); }));
        }
        std::printf("%-14s %6.1f ns a title, of these %6.1f ns the bare calls: own logic %5.1f ns\n", text,
                    whole / windows, bare / windows, (whole - bare) / windows);
    }
    return 0;
}
