#include "core/help.h"

#include "core/state.h"
#include "platform/hhctrl.h"
#include "platform/system.h"
#include "runtime/runtimeError.h"
#include "store/textCatalogue.h"

#include <cstdint>
#include <string>

namespace core {

void showHelp() {
    constexpr std::uint32_t helpContext = 15; // HH_HELP_CONTEXT
    constexpr std::uintptr_t startTopic = 6000;
    const std::string file = platform::programFolder() + "\\EAGLE_Kestrel_Bench.chm";
    for (;;) {
        try {
            platform::HtmlHelpA(platform::HWND::none, file.c_str(), helpContext,
                                startTopic + static_cast<std::uintptr_t>(languageOffset));
            return;
        } catch (const runtime::RuntimeError&) {
            platform::beep();
            platform::msgBox(store::LoadResString(3100 + languageOffset), platform::criticalStyle,
                             store::LoadResString(3101 + languageOffset));
        }
    }
}

} // namespace core
