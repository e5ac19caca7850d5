// What the window of a toolbar shows: its pictures, and how often it is painted on the way to its rows.
#include "contract/windows/files.h"
#include "contract/windows/nativeBar.h"
#include "contract/world.h"
#include "platform/user32.h"
#include "toolbars/frmToolbar.h"

#include <doctest/doctest.h>

#include <vector>

namespace {

using contract::BarForm;
using contract::World;

constexpr std::uint32_t red = 0xFFFF0000U;
constexpr std::uint32_t clear = 0x00FF0000U;

forms::Picture plain(std::uint32_t pixel) {
    constexpr int side = 16;
    return {side, side, std::vector<std::uint32_t>(std::size_t{side} * side, pixel)};
}

COLORREF painted(forms::Toolbar& bar, LONG x, LONG y) {
    const HDC dc = GetDC(contract::controlOf(bar));
    const COLORREF colour = GetPixel(dc, x, y);
    ReleaseDC(contract::controlOf(bar), dc);
    return colour;
}

COLORREF middleOf(forms::Toolbar& bar, std::size_t index) {
    const RECT place = contract::placeOf(bar, index);
    return painted(bar, (place.left + place.right) / 2, (place.top + place.bottom) / 2);
}

/// Writes down how high the rows of a toolbar are and where its last button stands whenever it is painted.
class Paints {
  public:
    explicit Paints(forms::Toolbar& bar) : window_(contract::controlOf(bar)) {
        SetWindowSubclass(window_, hear, 1, reinterpret_cast<DWORD_PTR>(this));
    }
    ~Paints() { RemoveWindowSubclass(window_, hear, 1); }
    Paints(const Paints&) = delete;
    Paints& operator=(const Paints&) = delete;

    struct Seen {
        LONG height;
        LONG left;
        LONG top;
        bool operator==(const Seen&) const = default;
    };
    std::vector<Seen> seen;

    Seen now() const {
        RECT client{};
        GetClientRect(window_, &client);
        RECT last{};
        const LRESULT count = SendMessageA(window_, TB_BUTTONCOUNT, 0, 0);
        SendMessageA(window_, TB_GETITEMRECT, static_cast<WPARAM>(count - 1),
                     reinterpret_cast<LPARAM>(&last));
        return {client.bottom, last.left, last.top};
    }

  private:
    static LRESULT CALLBACK hear(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR /*id*/,
                                 DWORD_PTR paints) {
        auto* const self = reinterpret_cast<Paints*>(paints);
        const LRESULT result = DefSubclassProc(window, message, wParam, lParam);
        if (message == WM_PAINT)
            self->seen.push_back(self->now());
        return result;
    }

    HWND window_;
};

} // namespace

TEST_SUITE_BEGIN("contract/windows/toolbarPaint");

TEST_CASE("a picture that is clear all over shows nothing") {
    World world;
    BarForm form;
    // As the surface is on which no icon has been drawn yet, and as a picture may be by itself.
    form.images.add(1, "", plain(forms::opaque | forms::maskGrey));
    form.images.add(2, "", plain(clear));
    form.images.add(3, "", plain(red));
    for (const int image : {1, 2, 3})
        form.bar.addButton("", "", forms::ButtonStyle::standard, image);
    form.show();
    REQUIRE(World::until([&] { return middleOf(form.bar, 2) == RGB(0xFF, 0, 0); }));
    const COLORREF behind = painted(form.bar, contract::placeOf(form.bar, 2).right + 10, 11);
    CHECK(behind != RGB(0, 0, 0));
    CHECK(middleOf(form.bar, 0) == behind);
    CHECK(middleOf(form.bar, 1) == behind);
}

TEST_CASE("a hosted toolbar is never seen with other rows than those it ends with") {
    World world;
    std::string settings = "[schem]\r\n";
    for (int row = 1; row <= 11; ++row) {
        const std::string number = std::to_string(row);
        settings += number + "name=b\r\n" + number + "path=p\r\n" + number + "dialog=0\r\n" + number +
                    (row == 7 ? "type=2\r\n" : "type=1\r\n");
    }
    contract::writeWholeFile(World::settingsPath(), settings);
    toolbars::frmToolbarSCH form;
    form.loadVarBar();
    form.eagHND = world.openWindow("host", {100, 120, 900, 720});
    form.show();
    platform::SetParent(form.window(), form.eagHND);
    platform::MoveWindow(form.window(), 20, 20, 128, 300, true);
    Paints paints(form.toolbar);
    form.Form_Resize();
    World::until([&] { return !paints.seen.empty(); });
    for (const int width : {100, 60, 300, 128}) {
        paints.seen.clear();
        RECT place{};
        GetWindowRect(reinterpret_cast<HWND>(form.window()), &place);
        // The size alone, as the user's mouse on the frame changes it.
        SetWindowPos(reinterpret_cast<HWND>(form.window()), nullptr, 0, 0, width, place.bottom - place.top,
                     SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
        REQUIRE(World::until([&] { return !paints.seen.empty(); }));
        const Paints::Seen final = paints.now();
        INFO("width ", width);
        CHECK(final.height == forms::Resolution().toPixels(form.scaleHeight()));
        for (const Paints::Seen& seen : paints.seen)
            CHECK(seen == final);
    }
}

TEST_SUITE_END();
