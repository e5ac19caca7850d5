#include "platform/keySender.h"

#include "desktop/desktop.h"
#include "desktop/faults.h"

#include <utility>

namespace platform {

void sendKeys(std::span<const KeyStroke> strokes, bool wait) {
    const desktop::Call call("sendKeys");
    if (call.fails())
        return;
    desktop::World& desk = desktop::world();
    // A window that is busy is waited for; one that hangs comes in front all the same, and takes what is
    // typed when it wakes.
    if (const HWND owed = std::exchange(desk.owedKeyboard, HWND::none); desk.find(owed) != nullptr) {
        constexpr std::int64_t longest = 2'000;
        desk.serveUntil([&] { return !desk.hangs(owed); }, longest);
        if (desk.find(owed) != nullptr)
            desk.foreground = owed;
    }
    desk.typed.push_back({desk.foreground, {strokes.begin(), strokes.end()}, wait});
}

} // namespace platform
