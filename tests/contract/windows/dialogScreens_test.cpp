// The dialogs at the resolutions of finer screens: no text is cut, in neither language, and a form goes along
// with the message that its screen is another one.
#include "calculator/frmMil.h"
#include "contract/windows/beside.h"
#include "contract/world.h"
#include "core/frmSplash.h"
#include "errors/ErrPtnr.h"
#include "platform/dialogs.h"
#include "setup/frmSetup.h"
#include "store/frmIconChooser.h"
#include "store/state.h"
#include "store/textCatalogue.h"
#include "win32/common/native.h"

#include <doctest/doctest.h>

#include <windows.h>

#include <commctrl.h>

#include <cstddef>
#include <string>

namespace {

using contract::World;
using forms::ControlKind;
using forms::Resolution;

constexpr UINT askForSizeMessage = 0x02E4; // WM_GETDPISCALEDSIZE

constexpr std::int32_t german = 0;
constexpr std::int32_t english = 10000;

HWND windowOf(forms::Control& control) {
    return win32::native(control.hWnd());
}

SIZE sizeOf(HWND window) {
    RECT client{};
    GetClientRect(window, &client);
    return {client.right, client.bottom};
}

/// What the text of a window takes, in its font: in one line, or as many as it needs within a width.
SIZE textSize(HWND window, const std::string& text, LONG width) {
    const HDC dc = GetDC(window);
    const HGDIOBJ former =
        SelectObject(dc, reinterpret_cast<HGDIOBJ>(SendMessageA(window, WM_GETFONT, 0, 0)));
    RECT area{0, 0, width, 0};
    DrawTextA(dc, text.c_str(), -1, &area, DT_CALCRECT | (width > 0 ? DT_WORDBREAK : DT_SINGLELINE));
    SelectObject(dc, former);
    ReleaseDC(window, dc);
    return {area.right, area.bottom};
}

/// The window's place in its parent.
RECT placeOf(HWND window) {
    RECT place{};
    GetWindowRect(window, &place);
    MapWindowPoints(nullptr, GetParent(window), reinterpret_cast<POINT*>(&place), 2);
    return place;
}

/// Tells of each text that has no room.
class Measuring {
  public:
    std::string found;

    void look(const forms::Container& container) {
        for (forms::Control* control : container.controls()) {
            lookAt(*control);
            if (control->kind() == ControlKind::label)
                lookAround(static_cast<forms::Label&>(*control));
            if (const auto* inner = dynamic_cast<const forms::Container*>(control))
                look(*inner);
        }
    }

  private:
    void tell(const std::string& text, LONG needs, LONG has) {
        found += "'" + text + "' needs " + std::to_string(needs) + " of " + std::to_string(has) + "; ";
    }
    void needs(const std::string& text, LONG wanted, LONG has) {
        if (wanted > has)
            tell(text, wanted, has);
    }

    /// A label comes before what it names, and would cover it. Boxes in a column may share an edge.
    void lookAround(forms::Label& label) {
        const RECT place = placeOf(windowOf(label));
        for (forms::Control* other : label.container()->controls()) {
            RECT common{};
            const RECT others = placeOf(windowOf(*other));
            if (other != &label && !label.border && label.visible() && other->visible() &&
                IntersectRect(&common, &place, &others) != FALSE)
                tell(label.caption() + " (beside it)", common.right - common.left, 0);
        }
    }

    /// However many rows they need, they leave the pages their place.
    void lookAtTabs(HWND window, const forms::TabStrip& tabs) {
        for (int tab = 0; tab < tabs.tabs(); ++tab) {
            RECT place{};
            SendMessageA(window, TCM_GETITEMRECT, static_cast<WPARAM>(tab), reinterpret_cast<LPARAM>(&place));
            needs(tabs.tabCaption(tab), textSize(window, tabs.tabCaption(tab), 0).cx,
                  place.right - place.left);
            const forms::Control& page = *tabs.controls().front();
            needs(tabs.tabCaption(tab) + " (rows)", place.bottom, page.resolution().toPixels(page.top()));
        }
    }

    void lookAt(forms::Control& control) {
        const HWND window = windowOf(control);
        const Resolution resolution = control.resolution();
        const LONG width = resolution.toPixels(control.width());
        const LONG height = resolution.toPixels(control.height());
        switch (control.kind()) {
        case ControlKind::label: {
            const auto& label = static_cast<forms::Label&>(control);
            if (label.autoSize) {
                const LONG room = resolution.toPixels(control.container()->width() - control.left());
                needs(label.caption(), sizeOf(window).cx, room);
                break;
            }
            // Its window may reach out of the label's room, to the edge of what it stands in.
            const SIZE seen = sizeOf(window);
            const SIZE text = textSize(window, label.caption(), seen.cx);
            needs(label.caption(), text.cx, seen.cx);
            needs(label.caption() + " (height)", text.cy, seen.cy);
            const RECT place = placeOf(window);
            needs(label.caption() + " (left edge)", 1, place.left);
            needs(label.caption() + " (right edge)", place.right, sizeOf(GetParent(window)).cx);
            break;
        }
        case ControlKind::checkBox:
        case ControlKind::optionButton: {
            SIZE ideal{};
            SendMessageA(window, BCM_GETIDEALSIZE, 0, reinterpret_cast<LPARAM>(&ideal));
            const std::string& text = control.kind() == ControlKind::checkBox
                                          ? static_cast<forms::CheckBox&>(control).caption()
                                          : static_cast<forms::OptionButton&>(control).caption();
            needs(text, ideal.cx, width);
            break;
        }
        case ControlKind::commandButton: {
            const auto& button = static_cast<forms::CommandButton&>(control);
            if (!button.picture().empty())
                break;
            const LONG edge = resolution.scaled(3); // of the button's frame
            const bool wraps = (GetWindowLongA(window, GWL_STYLE) & BS_MULTILINE) != 0;
            const SIZE text = textSize(window, button.caption(), wraps ? width - 2 * edge : 0);
            needs(button.caption(), text.cx, width - 2 * edge);
            needs(button.caption() + " (height)", text.cy, height - 2 * edge);
            break;
        }
        case ControlKind::frame: {
            const auto& frame = static_cast<forms::Frame&>(control);
            if (frame.border)
                needs(frame.caption(), textSize(window, frame.caption(), 0).cx,
                      width - 2 * resolution.scaled(9));
            break;
        }
        case ControlKind::tabStrip:
            lookAtTabs(window, static_cast<forms::TabStrip&>(control));
            break;
        default:
            break;
        }
    }
};

std::string cut(forms::Form& form) {
    Measuring measuring;
    measuring.look(form);
    return measuring.found;
}

/// The same for labels and buttons of a form that only its window is known of.
std::string cutInside(HWND form, int dpi) {
    std::string found;
    for (HWND window = GetWindow(form, GW_CHILD); window != nullptr;
         window = GetWindow(window, GW_HWNDNEXT)) {
        const bool label = contract::isOfClass(window, "Static");
        if (!label && !contract::isOfClass(window, "Button"))
            continue;
        std::string text(200, '\0');
        const LRESULT length =
            contract::ask(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()));
        text.resize(length > 0 ? static_cast<std::size_t>(length) : 0);
        const LONG edge = label ? 0 : Resolution(dpi).scaled(3);
        const SIZE seen = sizeOf(window);
        const SIZE wanted = textSize(window, text, label ? seen.cx : 0);
        if (text.empty() || wanted.cx > seen.cx - 2 * edge || wanted.cy > seen.cy - 2 * edge)
            found += "'" + text + "' at " + std::to_string(dpi) + "; ";
        for (HWND other = GetWindow(window, GW_HWNDNEXT); other != nullptr;
             other = GetWindow(other, GW_HWNDNEXT)) {
            RECT common{};
            const RECT place = placeOf(window);
            const RECT others = placeOf(other);
            if (IntersectRect(&common, &place, &others) != FALSE)
                found += "'" + text + "' meets another at " + std::to_string(dpi) + "; ";
        }
    }
    return found;
}

/// Whether texts can be measured: under Wine only the fonts for western languages have the widths of Windows'
/// own. For others it takes fonts that are wider.
bool hasWesternFonts() {
    constexpr UINT western = 1252;
    return GetACP() == western;
}

constexpr int resolutions[] = {96, 104, 120, 144, 168, 192, 240};

} // namespace

TEST_SUITE_BEGIN("contract/windows/dialogScreens");

TEST_CASE("no text of the setup is cut at any resolution, in neither language" *
          doctest::skip(!hasWesternFonts())) {
    const World world;
    for (const std::int32_t language : {german, english}) {
        store::languageOffset = language;
        setup::frmSetup form;
        form.loadResources();
        for (const int dpi : resolutions) {
            CAPTURE(language);
            CAPTURE(dpi);
            form.setResolution(Resolution(dpi));
            // The name of the first field follows the kind of the entry.
            for (const std::int32_t name : {1002, 1052}) {
                form.labPath[0].setCaption(store::LoadResString(name + language));
                CHECK(cut(form) == "");
            }
        }
    }
}

TEST_CASE("no text of the icon chooser is cut at any resolution, in neither language" *
          doctest::skip(!hasWesternFonts())) {
    const World world;
    for (const std::int32_t language : {german, english}) {
        store::languageOffset = language;
        store::frmIconChooser form(platform::HWND::none, {});
        form.load();
        for (const int dpi : resolutions) {
            CAPTURE(language);
            CAPTURE(dpi);
            form.setResolution(Resolution(dpi));
            CHECK(cut(form) == "");
        }
    }
}

TEST_CASE("no text of the splash and of the error dialog is cut at any resolution" *
          doctest::skip(!hasWesternFonts())) {
    const World world;
    core::frmSplash splash;
    splash.load();
    errors::ErrPtnr error;
    error.load();
    for (const int dpi : resolutions) {
        CAPTURE(dpi);
        splash.setResolution(Resolution(dpi));
        CHECK(cut(splash) == "");
        error.setResolution(Resolution(dpi));
        CHECK(cut(error) == "");
    }
    splash.unload();
}

TEST_CASE("no text of the calculator is cut at any resolution, whatever its units" *
          doctest::skip(!hasWesternFonts())) {
    const World world;
    calculator::frmMil form;
    form.load();
    for (const int dpi : resolutions)
        for (const char* unit : {"mil", "Inch", "mm", "cm", "um"}) {
            CAPTURE(dpi);
            CAPTURE(std::string(unit));
            form.setResolution(Resolution(dpi));
            for (std::size_t side = 0; side < form.labUnit.size(); ++side) {
                form.labUnit[side].setCaption(unit);
                const RECT label = placeOf(windowOf(form.labUnit[side]));
                const RECT field = placeOf(windowOf(form.txtSize[side]));
                CHECK(label.right <= field.left);
                const LONG high = form.resolution().toPixels(270);
                CHECK(label.bottom <= high);
                CHECK(field.bottom <= high);
                const HWND window = windowOf(form.txtSize[side]);
                CHECK(textSize(window, "0.123", 0).cy <= sizeOf(window).cy);
            }
            CHECK(cut(form) == "");
        }
}

TEST_CASE("no text of the input box is cut at any resolution" * doctest::skip(!hasWesternFonts())) {
    const World world;
    std::string found;
    contract::withUser(
        "KestrelForm",
        [] {
            platform::inputBox(
                "Signals to rip up, a semicolon behind the last; or the parts to be shown; or the "
                "layers that are to be seen from now on, by number or name:",
                "Input Parameter");
        },
        [&found](HWND box) {
            for (const int dpi : resolutions) {
                RECT place{};
                GetWindowRect(box, &place);
                contract::ask(box, WM_DPICHANGED, static_cast<WPARAM>(MAKELONG(dpi, dpi)),
                              reinterpret_cast<LPARAM>(&place));
                if (sizeOf(box).cx != Resolution(dpi).toPixels(5400))
                    found += "it has not followed; ";
                found += cutInside(box, dpi);
            }
            PostMessageA(box, WM_CLOSE, 0, 0);
        });
    CHECK(found == "");
}

TEST_CASE("a form goes along with the message that its screen is another one, once") {
    const World world;
    setup::frmSetup form;
    form.loadResources();
    form.setVisible(true);
    const HWND window = windowOf(form);
    const HWND field = windowOf(form.txtTitle[0]);
    const SIZE before = sizeOf(window);
    const SIZE fieldBefore = sizeOf(field);
    const auto change = [&](int dpi, LONG left, LONG top) {
        SIZE size{};
        CHECK(SendMessageA(window, askForSizeMessage, static_cast<WPARAM>(dpi),
                           reinterpret_cast<LPARAM>(&size)) != 0);
        RECT suggested{left, top, left + size.cx, top + size.cy};
        SendMessageA(window, WM_DPICHANGED, static_cast<WPARAM>(MAKELONG(dpi, dpi)),
                     reinterpret_cast<LPARAM>(&suggested));
        RECT now{};
        GetWindowRect(window, &now);
        CHECK(now.left == left);
        CHECK(now.top == top);
        CHECK(sizeOf(window).cx == form.resolution().toPixels(6780));
        CHECK(sizeOf(window).cy == form.resolution().toPixels(9375));
        CHECK(size.cx >= sizeOf(window).cx);
        CHECK(size.cy >= sizeOf(window).cy);
    };
    change(120, 20, 10);
    // As large as there is room for.
    const int dpi = form.resolution().dpi();
    CHECK(dpi > 96);
    CHECK(sizeOf(window).cx == form.resolution().toPixels(6780));
    CHECK(sizeOf(field).cx > fieldBefore.cx);
    LOGFONTA font{};
    GetObjectA(reinterpret_cast<HGDIOBJ>(SendMessageA(field, WM_GETFONT, 0, 0)), sizeof font, &font);
    CHECK(font.lfHeight == -MulDiv(825, dpi, 7200));
    change(120, 30, 20);
    CHECK(form.resolution().dpi() == dpi);
    change(96, 40, 0);
    CHECK(sizeOf(window).cx == before.cx);
    CHECK(sizeOf(window).cy == before.cy);
    CHECK(sizeOf(field).cx == fieldBefore.cx);
    for (const int bad : {0, 1, 95})
        change(bad, 40, 0);
    CHECK(sizeOf(window).cx == before.cx);
    form.setVisible(false);
    form.unload();
}

TEST_SUITE_END();
