#include "store/help.h"
#include "platform/dialogs.h"
#include "platform/executable.h"

#include "platform/hhctrl.h"
#include "runtime/runtimeError.h"
#include "store/state.h"
#include "store/textCatalogue.h"

#include <cstdint>
#include <string>

namespace store {

void showHelp() {
    constexpr std::uint32_t helpContext = 15; // HH_HELP_CONTEXT
    constexpr std::int32_t startTopic = 6000;
    const std::string file = platform::programFolder() + "\\EAGLE_Kestrel_Bench.chm";
    for (;;) {
        try {
            platform::HtmlHelpA(platform::HWND::none, file.c_str(), helpContext,
                                static_cast<std::uintptr_t>(startTopic + languageOffset));
            return;
        } catch (const runtime::RuntimeError&) {
            platform::beep();
            platform::msgBox(LoadResString(3100 + languageOffset), platform::criticalStyle,
                             LoadResString(3101 + languageOffset));
        }
    }
}

} // namespace store
