// The program's dialogs on screens of other resolutions than 96 dpi.
#include "setup/dialog.h"

#include "core/frmSplash.h"
#include "errors/report.h"
#include "store/iconChooserScene.h"

#include <algorithm>

using desktop::Awareness;
using forms::Resolution;
using platform::RECT;
using setup::Dialog;
using setup::frmSetup;

namespace {

struct OnScreen : Dialog {
    OnScreen(int dpi, int width, int height, int taskBar) {
        desk().awareness = Awareness::perMonitor;
        desk().screens = {{dpi, {}}};
        desk().screenWidth = width;
        desk().screenHeight = height;
        desk().workArea = {0, 0, width, height - taskBar * dpi / 96};
    }
    const desktop::Window& shown() { return desk().window(form().hWnd()); }
    /// Lower edge of the OK button on the screen.
    int okBottom() {
        const desktop::Window& window = shown();
        const Resolution resolution = form().resolution();
        return window.rect.bottom - resolution.scaled(3) -
               resolution.toPixels(form().scaleHeight() - form().btnOk.top() - form().btnOk.height());
    }
};

/// All that stands in a container stands inside it, at whatever depth, but for what the design lets stick
/// out.
void checkInside(const forms::Container& container, float width, float height) {
    for (const forms::Control* control : container.controls()) {
        const Resolution resolution = control->resolution();
        CHECK(resolution.toPixels(control->left() + control->width()) <= resolution.toPixels(width));
        CHECK(resolution.toPixels(control->top() + control->height()) <= resolution.toPixels(height));
        if (const auto* inner = dynamic_cast<const forms::Container*>(control))
            checkInside(*inner, inner->width(), inner->height());
    }
}

} // namespace

TEST_SUITE_BEGIN("setup/screens");

TEST_CASE("on 1366 by 768 pixels at 125 percent the setup shows its OK button, as large as there is room") {
    OnScreen screen(120, 1366, 768, 40);
    screen.open(0);
    CHECK(screen.shown().rect.top >= 0);
    CHECK(screen.shown().rect.bottom <= 718);
    CHECK(screen.okBottom() <= 718);
    // 718 less 36 of the title bar, of 625: 104 and not 105 dpi.
    CHECK(screen.form().resolution().dpi() == 104);
}

TEST_CASE("the setup is never higher than the work area above 96 dpi") {
    struct Row {
        int dpi;
        int width;
        int height;
        bool whole;
    };
    for (const Row& row : {Row{120, 1366, 768, false}, Row{120, 1920, 1080, true}, Row{144, 1920, 1080, true},
                           Row{144, 1600, 900, false}, Row{168, 2560, 1440, true}, Row{192, 2560, 1440, true},
                           Row{192, 1920, 1080, false}, Row{240, 3840, 2160, true},
                           Row{144, 1280, 720, false}, Row{480, 3840, 2160, false}}) {
        CAPTURE(row.dpi);
        CAPTURE(row.height);
        OnScreen screen(row.dpi, row.width, row.height, 40);
        screen.open(0);
        CHECK(screen.shown().rect.bottom <= screen.desk().workArea.bottom);
        CHECK(screen.shown().rect.right <= screen.desk().workArea.right);
        CHECK((screen.form().resolution().dpi() == row.dpi) == row.whole);
    }
}

TEST_CASE("at 96 dpi the setup is what it was, also where there is no room for it") {
    OnScreen screen(96, 800, 600, 40);
    screen.open(0);
    CHECK(screen.form().resolution() == Resolution());
    CHECK(screen.shown().rect.top == 0);
}

TEST_CASE("in every dialog all stands inside at every resolution") {
    for (const int dpi : {96, 104, 120, 144, 168, 192, 240, 480}) {
        CAPTURE(dpi);
        OnScreen screen(dpi, 9000, 7000, 40);
        screen.open(0);
        CHECK(screen.form().resolution().dpi() == dpi);
        checkInside(screen.form(), screen.form().scaleWidth(), screen.form().scaleHeight());
        core::splashForm().load();
        CHECK(core::splashForm().resolution().dpi() == dpi);
        checkInside(core::splashForm(), core::splashForm().scaleWidth(), core::splashForm().scaleHeight());
    }
}

TEST_CASE("the setup is moved to a finer screen and back while it is open") {
    OnScreen screen(96, 1920, 1200, 40);
    screen.desk().screens.push_back({192, {1920, 0, 1920 + 3840, 2080}});
    screen.desk().addIcons("C:\\t\\a.dll", 3);
    screen.open(1);
    screen.form().workList[0] = setup::listOf({setup::entry("a")});
    screen.form().workList[0][screen.form().workList[0].upperBound()].icon = "C:\\t\\a.dll,1";
    screen.form().fillList(0);
    screen.form().lstApps[0].selected(0);
    const forms::Picture small = screen.form().picView[0].picture();
    CHECK(small.width() == 25);
    const RECT before = screen.shown().rect;
    screen.desk().moveToScreen(screen.form().hWnd(), 1, 2000, 100);
    CHECK(screen.shown().rect.right - screen.shown().rect.left == 2 * (before.right - before.left));
    // Two pixels of the margin, then the icon in its size.
    const forms::Picture& large = screen.form().picView[0].picture();
    CHECK(large.width() == 50);
    CHECK(large.pixel(1, 1) == (forms::opaque | forms::white));
    CHECK(large.pixel(33, 33) == desktop::World::iconPicture("C:\\t\\a.dll", 1).pixel(0, 0));
    CHECK(large.pixel(34, 34) == (forms::opaque | forms::white));
    CHECK(screen.form().btnH[0].shown().width() == 40);
    screen.desk().moveToScreen(screen.form().hWnd(), 0, before.left, before.top);
    CHECK(screen.shown().rect == before);
    CHECK(screen.form().picView[0].picture() == small);
    CHECK(screen.form().btnH[0].shown() == screen.form().btnH[0].picture());
}

TEST_CASE("a preview without an icon that can be read goes along all the same") {
    OnScreen screen(96, 1920, 1200, 40);
    screen.desk().screens.push_back({192, {1920, 0, 1920 + 3840, 2080}});
    screen.open(1);
    screen.form().workList[0] = setup::listOf({setup::entry("a")});
    screen.form().fillList(0);
    screen.form().lstApps[0].selected(0);
    CHECK(screen.form().picView[0].picture().width() == 25);
    screen.desk().moveToScreen(screen.form().hWnd(), 1, 2000, 100);
    CHECK(screen.form().picView[0].picture().width() == 50);
    CHECK(screen.form().picView[0].picture().pixel(25, 25) == (forms::opaque | forms::white));
}

TEST_CASE("on a finer screen the previews of all pages show their icons drawn anew, not grown") {
    OnScreen screen(96, 1920, 1200, 40);
    screen.desk().screens.push_back({192, {1920, 0, 1920 + 3840, 2080}});
    // Half as large, its two halves are in one column.
    constexpr int side = 32;
    std::vector<std::uint32_t> pixels(std::size_t{side} * side, forms::opaque);
    for (std::size_t pixel = 0; pixel < pixels.size(); pixel += 2)
        pixels[pixel] |= forms::white;
    screen.desk().iconFiles[desktop::pathKey("C:\\t\\a.dll")].small = {{side, side, pixels}};
    screen.open(1);
    for (std::size_t page = 0; page < setup::listPages; ++page) {
        store::ToolButton entry = setup::entry("a");
        entry.icon = "C:\\t\\a.dll,0";
        screen.form().workList[page] = setup::listOf({entry});
        screen.form().fillList(static_cast<std::int16_t>(page));
        screen.select(page, 0);
    }
    screen.desk().moveToScreen(screen.form().hWnd(), 1, 2000, 100);
    for (std::size_t page = 0; page < setup::listPages; ++page) {
        CAPTURE(page);
        const forms::Picture& view = screen.form().picView[page].picture();
        CHECK(view.width() == 50);
        CHECK(view.pixel(2, 2) == (forms::opaque | forms::white));
        CHECK(view.pixel(3, 2) == forms::opaque);
    }
}

TEST_CASE("an arrow of the buttons keeps its shape in every size") {
    for (const int dpi : {120, 144, 168, 192, 240}) {
        CAPTURE(dpi);
        OnScreen screen(dpi, 9000, 7000, 40);
        screen.open(1);
        const forms::Picture design = screen.form().btnL[0].picture();
        const forms::Picture shown = screen.form().btnL[0].shown();
        REQUIRE(shown.width() == 20 * dpi / 96);
        const auto covered = [](const forms::Picture& picture) {
            double sum = 0;
            for (const std::uint32_t pixel : picture.pixels())
                sum += static_cast<double>(pixel >> 24U);
            return sum / (255.0 * picture.width() * picture.height());
        };
        CHECK(covered(shown) == doctest::Approx(covered(design)).epsilon(0.05));
    }
}

TEST_CASE("the splash has its pictures as large as its screen has them") {
    for (const int dpi : {120, 144, 168, 192, 240}) {
        CAPTURE(dpi);
        OnScreen screen(dpi, 9000, 7000, 40);
        core::frmSplash& splash = core::splashForm();
        splash.show();
        const Resolution resolution(dpi);
        CHECK(splash.Image2.shown().width() == resolution.scaled(93));
        CHECK(splash.Image1.shown().width() == resolution.scaled(361));
        CHECK(splash.Image1.shown().height() == resolution.scaled(76));
    }
}

TEST_CASE("the icon chooser's icons are as large as its screen has them") {
    const chooserScene::Scene scene;
    desktop::world().awareness = Awareness::perMonitor;
    desktop::world().screens = {{144, {}}};
    chooserScene::Scene::look(chooserScene::reference(chooserScene::shellFile, 0), [](auto& form) {
        CHECK(form.resolution().dpi() == 144);
        CHECK(form.grdIcons.picture(1).width() == 48);
    });
}

TEST_CASE("the error dialog opens in its screen's resolution, in the middle") {
    const desktop::Session session;
    desktop::world().awareness = Awareness::perMonitor;
    desktop::world().screens = {{144, {}}};
    errors::ErrPtnr dialog;
    report::ask(dialog, 8, [](errors::ErrPtnr& form) {
        CHECK(form.resolution().dpi() == 144);
        const RECT rect = desktop::world().window(form.hWnd()).rect;
        CHECK(rect.left == (1280 - (rect.right - rect.left) + 1) / 2);
        CHECK(form.scaleWidth() == doctest::Approx(7215).epsilon(0.001));
    });
}

TEST_CASE("the tray's number is times 15 at every resolution") {
    for (const int dpi : {96, 120, 144, 168, 192}) {
        OnScreen screen(dpi, 3000, 2000, 40);
        CHECK(screen.Program::form().resolution().toTwips(517) == 7755);
    }
}

TEST_SUITE_END();
