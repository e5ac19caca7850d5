#include "platform/clipboard.h"

#include "desktop/desktop.h"
#include "desktop/faults.h"

#include <algorithm>
#include <string>

namespace {

using desktop::world;

/// Time goes by while a clipboard is waited for that is given back in time.
void openClipboard(const desktop::Call& call) {
    desktop::World& desk = world();
    if (call.fails() || desk.clipboardHeldUntil > desk.now + platform::clipboardPatience)
        throw runtime::RuntimeError(runtime::ErrorNumber::clipboardNotOpened);
    desk.now = std::max(desk.now, desk.clipboardHeldUntil);
}

} // namespace

namespace platform {

void clearClipboard() {
    const desktop::Call call("clearClipboard");
    openClipboard(call);
    world().clipboard.reset();
    world().note("clearClipboard");
}

void setClipboardText(std::string_view text) {
    const desktop::Call call("setClipboardText");
    openClipboard(call);
    world().clipboard = std::string(text.substr(0, text.find('\0')));
    world().note("setClipboardText");
}

std::string clipboardText() {
    const desktop::Call call("clipboardText");
    openClipboard(call);
    const std::string& text = world().clipboard.value_or("");
    return text.substr(0, text.find('\0'));
}

} // namespace platform
