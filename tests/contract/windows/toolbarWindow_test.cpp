// The system's toolbar control, which wraps its buttons by itself, against the layout of the model, which is
// to be the same.
#include "contract/windows/nativeBar.h"
#include "contract/world.h"
#include "forms/toolbarLayout.h"
#include "fuzz/random.h"

#include <doctest/doctest.h>

#include <cstdint>
#include <sstream>
#include <string>
#include <utility>

namespace {

using contract::ask;
using contract::BarForm;
using contract::World;

/// The places of all buttons as they are compared. Those of separators too, but under Wine alone: which
/// rectangle Windows tells for one that ends a row is not known, and nobody sees it.
template <typename Place>
std::string allPlaces(const BarForm& form, Place place) {
    std::ostringstream all;
    for (std::size_t index = 0; index < form.bar.buttons().size(); ++index) {
        const bool separator = form.bar.buttons()[index].style == forms::ButtonStyle::separator;
        if (separator && contract::worldKind() != contract::WorldKind::wine)
            continue;
        const RECT rect = place(index, separator);
        all << rect.left << ',' << rect.top << '-' << rect.right << ',' << rect.bottom << ' ';
    }
    return all.str();
}

std::string inModel(const BarForm& form, const forms::ToolbarLayout& layout) {
    const forms::ToolbarMetrics sizes(form.resolution());
    return allPlaces(form, [&](std::size_t index, bool separator) {
        const auto [left, top] = layout.places[index];
        return RECT{left, top, left + (separator ? sizes.separatorWidth : sizes.buttonWidth),
                    top + sizes.buttonHeight};
    });
}

std::string inControl(BarForm& form) {
    return allPlaces(
        form, [&](std::size_t index, bool /*separator*/) { return contract::placeOf(form.bar, index); });
}

/// The control's buttons stand where the model says, and the toolbar is as high as that.
void checkAgree(BarForm& form) {
    const forms::ToolbarLayout layout = forms::layoutToolbar(
        form.bar.buttons(), form.resolution().toPixels(form.bar.width()), form.resolution());
    REQUIRE(form.bar.height() == form.resolution().toTwips(layout.height));
    REQUIRE(ask(form.bar, TB_BUTTONCOUNT) == static_cast<LRESULT>(layout.places.size()));
    REQUIRE(inControl(form) == inModel(form, layout));
    RECT client{};
    GetClientRect(contract::controlOf(form.bar), &client);
    REQUIRE(client.bottom == layout.height);
}

constexpr const char* patterns[] = {
    "",
    "b",
    "bbbbb",
    "bbbbbb",
    "bbbbbbbbbbb",
    "bbbb|b",
    "bbb|b",
    "bbb|bb",
    "bbbb|bbb",
    "bbbb||bbbb",
    "|b",
    "b|",
    "bbb||||b",
    "bbbbbbbbbbbbbbbbbbbbbbbbbbbbbb",
    "b|b|b|b|b|b|b|b",
    "||||||||||||||||||b",
    "bbbbb|bbbbb|bbbbb|",
    "bbbbbbbb||bbbbb",
    "bbbbbbbb|||bbbbbbb||b",
};

void checkRandomToolbars(int count, std::uint32_t seed) {
    World world;
    BarForm form;
    form.load();
    MESSAGE("seed ", seed);
    fuzz::Random random(seed);
    for (int number = 1; number <= count; ++number) {
        // From few separators to hardly anything else.
        const std::string pattern =
            random.text(random.oneOf({"bbbbbbbbb|", "bbbbb|", "bb|", "b|", "b||"}), 24);
        const int width = 40 + static_cast<int>(random.below(361));
        INFO("number ", number, ", pattern ", pattern, ", width ", width);
        form.setClientWidth(width);
        form.fill(pattern);
        checkAgree(form);
    }
}

} // namespace

TEST_SUITE_BEGIN("contract/windows/toolbarWindow");

TEST_CASE("the system's toolbar has the rows and places of the model") {
    World world;
    BarForm form;
    form.show();
    for (const char* pattern : patterns) {
        INFO("pattern ", std::string(pattern));
        form.fill(pattern);
        checkAgree(form);
    }
}

TEST_CASE("the system's toolbar has them with pictures too") {
    World world;
    BarForm form;
    form.images.add(0, "one", forms::Picture(16, 16, std::vector<std::uint32_t>(256, 0xFF0000FFU)));
    form.bar.setImageList(&form.images);
    form.show();
    for (const char* pattern : patterns) {
        INFO("pattern ", std::string(pattern));
        form.fill(pattern);
        checkAgree(form);
    }
}

TEST_CASE("the system's toolbar wraps anew with the form's width, whatever it was before") {
    World world;
    BarForm form;
    form.show();
    for (const char* pattern : {"bbb|bbbb|bbbbbbbb|bb", "bbbbbbb||b||bbbbb|||bbb||||b"}) {
        form.fill(pattern);
        for (const int width : {120, 134, 135, 139, 145, 60, 146, 147, 200, 263, 421, 440, 600, 160, 120}) {
            INFO("width ", width);
            form.setClientWidth(width);
            checkAgree(form);
        }
    }
}

// In parts, since a busy machine needs its time for them all.
TEST_CASE("model and control agree on 500 of 2,000 random toolbars of 40 to 400 pixels") {
    checkRandomToolbars(500, 11);
}

TEST_CASE("model and control agree on the next 500 random toolbars") {
    checkRandomToolbars(500, 12);
}

TEST_CASE("model and control agree on the third 500 random toolbars") {
    checkRandomToolbars(500, 13);
}

TEST_CASE("model and control agree on the last 500 random toolbars") {
    checkRandomToolbars(500, 14);
}

TEST_CASE("model and control agree at every resolution, with pictures and names or without") {
    World world;
    constexpr std::uint32_t seed = 12;
    fuzz::Random random(seed);
    for (const int dpi : {96, 120, 144, 168, 192, 240, 480})
        for (const auto& [withPicture, tip] : {std::pair(false, ""), std::pair(true, ""),
                                               std::pair(true, "A name that is longer than any button")}) {
            INFO("dpi ", dpi, ", with a picture ", withPicture, ", name ", std::string(tip));
            BarForm form;
            form.setResolution(forms::Resolution(dpi));
            form.images.setResolution(form.resolution());
            if (withPicture)
                form.images.add(0, "one",
                                forms::Picture(16, 16, std::vector<std::uint32_t>(256, 0xFF0000FFU)));
            form.bar.setImageList(&form.images);
            form.tip = tip;
            form.load();
            for (int number = 1; number <= 20; ++number) {
                const std::string pattern = random.text(random.oneOf({"bbbbbbbbb|", "bbbbb|", "bb|"}), 24);
                const int width = (40 + static_cast<int>(random.below(361))) * dpi / 96;
                INFO("pattern ", pattern, ", width ", width);
                form.setClientWidth(width);
                form.fill(pattern);
                checkAgree(form);
            }
        }
}

TEST_CASE("a button of the system's toolbar that is clicked raises its click") {
    World world;
    BarForm form;
    form.show();
    std::string clicked;
    form.bar.onButtonClick = [&](forms::ToolbarButton& button) { clicked += button.tag; };
    form.bar.addButton("first", "", forms::ButtonStyle::standard, 0).tag = "1";
    form.bar.addButton("gap", "", forms::ButtonStyle::separator, 0);
    form.bar.addButton("second", "", forms::ButtonStyle::standard, 0).tag = "2";
    checkAgree(form);
    const RECT place = contract::placeOf(form.bar, 2);
    const LPARAM middle = MAKELPARAM((place.left + place.right) / 2, (place.top + place.bottom) / 2);
    ask(form.bar, WM_LBUTTONDOWN, MK_LBUTTON, middle);
    ask(form.bar, WM_LBUTTONUP, 0, middle);
    CHECK(World::until([&] { return clicked == "2"; }));
}

TEST_SUITE_END();
