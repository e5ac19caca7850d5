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

/// In place of the system's viewer. The program keeps what it has found first, for as long as it runs: its
/// calls are passed on to the system's own from the end of this on.
class Viewer {
  public:
    Viewer() {
        calls = 0;
        stands_ = true;
    }
    ~Viewer() { stands_ = false; }
    Viewer(const Viewer&) = delete;
    Viewer& operator=(const Viewer&) = delete;

    static inline HWND window = nullptr; ///< that it answers with
    static inline int calls = 0;

  private:
    static HWND WINAPI show(HWND owner, const char* file, UINT command, DWORD_PTR data) {
        if (!stands_)
            return systems_(owner, file, command, data);
        ++calls;
        return window;
    }
    static FARPROC WINAPI find(HMODULE library, const char* name) {
        FARPROC found = original_(library, name);
        if (reinterpret_cast<std::uintptr_t>(name) <= 0xFFFF || std::strcmp(name, "HtmlHelpA") != 0)
            return found;
        std::memcpy(&systems_, &found, sizeof found);
        auto* const shown = &show;
        std::memcpy(&found, &shown, sizeof found);
        return found;
    }

    static inline bool stands_ = false;
    static inline decltype(&show) systems_ = nullptr;
    static inline decltype(&GetProcAddress) original_ = nullptr;
    contract::ImportHook hook_{"GetProcAddress", &find, original_};
};

platform::HWND open() {
    return platform::HtmlHelpA(platform::HWND::none, "help.chm", 15, 6000);
}

} // namespace

TEST_SUITE_BEGIN("contract/windows/helpViewer");

TEST_CASE("help that hangs is asked for nothing more, and left out of the end") {
    {
        const Viewer viewer;
        {
            const contract::SilentThread hung("STATIC", "help");
            Viewer::window = win32::native(hung.window());
            CHECK(open() == hung.window());
            REQUIRE(Viewer::calls == 1);
            CHECK(open() == hung.window());
            win32::closeHelp();
            CHECK(Viewer::calls == 1);
        }
        // It has gone: the viewer opens anew.
        Viewer::window = nullptr;
        CHECK(open() == platform::HWND::none);
        CHECK(Viewer::calls == 2);
    }
    // What comes behind this test has the system's viewer, which has nothing to close yet.
    constexpr std::uint32_t closeAll = 0x12;
    platform::HtmlHelpA(platform::HWND::none, "help.chm", closeAll, 0);
    CHECK(Viewer::calls == 2);
}

TEST_SUITE_END();
