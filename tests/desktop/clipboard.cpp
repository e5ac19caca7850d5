#include "platform/clipboard.h"

#include "desktop/desktop.h"

#include <algorithm>
#include <string>

namespace {

using desktop::world;

/// Time goes by while a clipboard is waited for that is given back in time.
void openClipboard() {
    desktop::World& desk = world();
    if (desk.clipboardHeldUntil > desk.now + platform::clipboardPatience)
        throw runtime::RuntimeError(runtime::ErrorNumber::clipboardNotOpened);
    desk.now = std::max(desk.now, desk.clipboardHeldUntil);
}

} // namespace

namespace platform {

void clearClipboard() {
    openClipboard();
    world().clipboard.reset();
    world().note("clearClipboard");
}

void setClipboardText(std::string_view text) {
    openClipboard();
    world().clipboard = std::string(text.substr(0, text.find('\0')));
    world().note("setClipboardText");
}

std::string clipboardText() {
    openClipboard();
    const std::string& text = world().clipboard.value_or("");
    return text.substr(0, text.find('\0'));
}

} // namespace platform
