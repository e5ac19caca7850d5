// The rows of a toolbar: where they end, what stands between them, how high they are.
#include "forms/toolbar.h"
#include "forms/toolbarLayout.h"

#include <doctest/doctest.h>

#include <string>
#include <utility>

using forms::ButtonStyle;

namespace {

/// Buttons by a picture of them: `b` a button, `|` a separator.
std::deque<forms::ToolbarButton> buttonsOf(const std::string& drawing) {
    std::deque<forms::ToolbarButton> buttons;
    for (const char sign : drawing)
        buttons.emplace_back().style = sign == '|' ? ButtonStyle::separator : ButtonStyle::standard;
    return buttons;
}

/// The rows as they are drawn. Each button stands where the ones before it in its row end, and each row where
/// the one above it and the gap end.
std::string drawn(const std::string& drawing, int width) {
    const forms::ToolbarLayout layout = forms::layoutToolbar(buttonsOf(drawing), width);
    REQUIRE(layout.places.size() == drawing.size());
    std::string result;
    int left = 0;
    int top = 0;
    for (std::size_t index = 0; index < drawing.size(); ++index) {
        const forms::ButtonPlace& place = layout.places[index];
        if (place.top != top) {
            top += drawing[index - 1] == '|' ? 27 : 22;
            left = 0;
            result += '/';
        }
        result += drawing[index];
        CHECK(place.left == left);
        CHECK(place.top == top);
        left += drawing[index] == '|' ? 8 : 23;
    }
    CHECK(layout.height == top + 22);
    return result;
}

/// The rows at a resolution of a toolbar of the design's width, drawn.
std::string rowsAt(const std::string& drawing, int dpi) {
    const forms::Resolution resolution(dpi);
    const forms::ToolbarLayout layout =
        forms::layoutToolbar(buttonsOf(drawing), resolution.scaled(120), resolution);
    std::string result;
    for (std::size_t index = 0; index < drawing.size(); ++index) {
        if (index > 0 && layout.places[index].top > layout.places[index - 1].top)
            result += '/';
        result += drawing[index];
    }
    return result;
}

/// A list with a separator for each bit that is set.
std::string listOf(unsigned bits, int count) {
    std::string drawing;
    for (int place = 0; place < count; ++place)
        drawing += (bits >> static_cast<unsigned>(place) & 1U) != 0 ? '|' : 'b';
    return drawing;
}

} // namespace

TEST_SUITE_BEGIN("forms/toolbarLayout");

TEST_CASE("of a row's last button only the edge may hang over, up to 3 pixels") {
    CHECK(drawn("bbbbb", 115) == "bbbbb");
    CHECK(drawn("bbbbb", 112) == "bbbbb");
    CHECK(drawn("bbbbb", 111) == "bbbb/b");
    CHECK(drawn("bbbbbb", 120) == "bbbbb/b");
    CHECK(drawn("bbbbbbbbbbb", 120) == "bbbbb/bbbbb/b");
    CHECK(drawn("b|b", 51) == "b|b");
    CHECK(drawn("b|b", 50) == "b|/b");
}

TEST_CASE("a row ends at its rightmost separator, and on a button only where it has none") {
    CHECK(drawn("bb|bb|bbbb", 120) == "bb|bb|/bbbb");
    CHECK(drawn("bb|bbbbbbbb", 120) == "bb|/bbbbb/bbb");
    CHECK(drawn("b|bbb|bbb|bb", 120) == "b|bbb|/bbb|bb");
}

TEST_CASE("a separator that a row has no room for ends the row") {
    CHECK(drawn("bbbbb|b", 115) == "bbbbb|/b");
    CHECK(drawn("bbbbb|||bb", 115) == "bbbbb|||/bb");
}

TEST_CASE("at the end of all separators need no room") {
    CHECK(drawn("bbbbb|", 115) == "bbbbb|");
    CHECK(drawn("bbbbb|||", 115) == "bbbbb|||");
    CHECK(drawn("b|bbb|||", 115) == "b|bbb|||");
    CHECK(drawn(std::string(20, '|'), 115) == std::string(20, '|'));
}

TEST_CASE("adjacent separators hold together where a row ends at one of them") {
    CHECK(drawn("bbb||bb", 115) == "bbb||/bb");
    CHECK(drawn("bbb|||b", 115) == "bbb|||b");
    CHECK(drawn("||||||||||||||||||b", 115) == "||||||||||||||||||/b");
}

TEST_CASE("behind a row that ended on a button, adjacent separators are torn apart after the first") {
    CHECK(drawn("bbbbbb||b", 115) == "bbbbb/b|/|b");
    CHECK(drawn("bbbbbb|||b", 115) == "bbbbb/b|/||b");
    CHECK(drawn("bbbbbb|b||b", 115) == "bbbbb/b|b|/|b");
    CHECK(drawn("bbbbbb||", 115) == "bbbbb/b|/|");
    // Only the first time, and not where the row before ended at a separator.
    CHECK(drawn("bbbbbb||b||b", 115) == "bbbbb/b|/|b||b");
    CHECK(drawn("bbbb|bb||b", 115) == "bbbb|/bb||b");
}

TEST_CASE("the second of two that were torn apart takes room that is not counted") {
    CHECK(drawn("bbbbbb||bbbbb", 115) == "bbbbb/b|/|bbbbb");
    CHECK(drawn("bbbbbb||bbbbbb", 115) == "bbbbb/b|/|/bbbbb/b");
}

TEST_CASE("a row holds at least one button, however narrow the toolbar is") {
    CHECK(drawn("bbb", 22) == "b/b/b");
    CHECK(drawn("b|b", 22) == "b/|/b");
    CHECK(drawn("b|b", 0) == "b/|/b");
    CHECK(drawn("bb", -5) == "b/b");
    CHECK(drawn("|b", 27) == "|/b");
    CHECK(drawn("|b", 28) == "|b");
}

TEST_CASE("at other resolutions buttons and pictures are as large as their screen has them") {
    struct Row {
        int dpi;
        int picture;
        int width;
        int height;
        int separator;
    };
    for (const Row& row : {Row{96, 16, 23, 22, 8}, Row{120, 20, 29, 28, 9}, Row{144, 24, 34, 33, 13},
                           Row{168, 28, 40, 39, 15}, Row{192, 32, 46, 44, 16}, Row{240, 40, 57, 55, 21}}) {
        CAPTURE(row.dpi);
        const forms::ToolbarMetrics sizes{forms::Resolution(row.dpi)};
        CHECK(sizes.picture == row.picture);
        CHECK(sizes.buttonWidth == row.width);
        CHECK(sizes.buttonHeight == row.height);
        CHECK(sizes.separatorWidth == row.separator);
    }
}

TEST_CASE("a toolbar of the design's width has the rows that it has at 96 dpi") {
    for (const char* drawing :
         {"bbbbb", "bbbbbb", "bbbbbbbbbbbb", "bbbb|b", "bbb|bb", "bb|bbb|b", "b|b|b|b|b|b|b|b",
          "bbbb|bbbb|bbbb", "bbbbb|bbbbb|bbbbb|", "|bbbb|", "bbb|b|bb|bbbbbbbb"})
        for (const int dpi : {120, 144, 168, 192, 240}) {
            CAPTURE(drawing);
            CAPTURE(dpi);
            CHECK(rowsAt(drawing, dpi) == rowsAt(drawing, 96));
        }
}

TEST_CASE("all lists of up to ten have them, but for some of many separators at 120 dpi") {
    int differing = 0;
    for (int count = 1; count <= 10; ++count)
        for (unsigned bits = 0; bits < 1U << static_cast<unsigned>(count); ++bits) {
            const std::string drawing = listOf(bits, count);
            CAPTURE(drawing);
            const std::string design = rowsAt(drawing, 96);
            for (const int dpi : {144, 168, 192, 240, 288}) {
                CAPTURE(dpi);
                REQUIRE(rowsAt(drawing, dpi) == design);
            }
            if (rowsAt(drawing, 120) == design)
                continue;
            ++differing;
            const bool manySeparators =
                drawing.find("||") != std::string::npos || drawing.starts_with("|b|b|b|b");
            REQUIRE(manySeparators);
        }
    CHECK(differing == 176); // of 2046
}

TEST_CASE("no buttons are one row") {
    CHECK(drawn("", 120).empty());
    CHECK(forms::layoutToolbar({}, 120).height == 22);
}

TEST_SUITE_END();
