#include "platform/hhctrl.h"

#include "desktop/desktop.h"
#include "desktop/faults.h"

namespace platform {

HWND HtmlHelpA(HWND owner, const char* file, std::uint32_t command, std::uintptr_t data) {
    const desktop::Call call("HtmlHelpA");
    if (call.fails())
        throw runtime::RuntimeError(runtime::ErrorNumber::fileNotFound);
    desktop::World& desk = desktop::world();
    desk.helpCalls.push_back({owner, file, command, data});
    if (desk.helpFailures > 0) {
        --desk.helpFailures;
        throw runtime::RuntimeError(runtime::ErrorNumber::fileNotFound);
    }
    return HWND::none;
}

} // namespace platform
