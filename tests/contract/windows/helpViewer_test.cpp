// The help viewer has a thread of its own in our process, and that may hang.
#include "contract/windows/importHook.h"
#include "contract/windows/silentThread.h"
#include "platform/hhctrl.h"
#include "win32/common/native.h"
#include "win32/platform/help.h"

#include <doctest/doctest.h>

#include <windows.h>

#include <cstdint>
#include <cstring>

namespace {

HWND viewerWindow = nullptr;
int calls = 0;

HWND WINAPI showHelp(HWND /*owner*/, const char* /*file*/, UINT /*command*/, DWORD_PTR /*data*/) {
    ++calls;
    return viewerWindow;
}

/// In place of the system's viewer; the program binds it once, at its first call.
class Viewer {
  public:
    Viewer() { original_ = reinterpret_cast<decltype(original_)>(hook_.original()); }

  private:
    static FARPROC WINAPI find(HMODULE library, const char* name) {
        if (reinterpret_cast<std::uintptr_t>(name) > 0xFFFF && std::strcmp(name, "HtmlHelpA") == 0) {
            FARPROC found = nullptr;
            auto* const shown = &showHelp;
            std::memcpy(&found, &shown, sizeof found);
            return found;
        }
        return original_(library, name);
    }

    static inline decltype(&GetProcAddress) original_ = nullptr;
    contract::ImportHook hook_{"GetProcAddress", reinterpret_cast<void*>(find)};
};

platform::HWND open() {
    return platform::HtmlHelpA(platform::HWND::none, "help.chm", 15, 6000);
}

} // namespace

TEST_SUITE_BEGIN("contract/windows/helpViewer");

TEST_CASE("help that hangs is asked for nothing more, and left out of the end") {
    const Viewer viewer;
    calls = 0;
    {
        const contract::SilentThread hung("STATIC", "help");
        viewerWindow = win32::native(hung.window());
        CHECK(open() == hung.window());
        REQUIRE(calls == 1);
        CHECK(open() == hung.window());
        win32::closeHelp();
        CHECK(calls == 1);
    }
    // It has gone: the viewer opens anew.
    viewerWindow = nullptr;
    CHECK(open() == platform::HWND::none);
    CHECK(calls == 2);
}

TEST_SUITE_END();
