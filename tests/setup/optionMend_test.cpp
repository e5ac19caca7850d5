// The option buttons with `mend=1`. Without it they are wired as the tests of optionButtons tell.
#include "setup/dialog.h"
#include "store/mends.h"
#include "store/textCatalogue.h"

#include <array>

using setup::Dialog;
using setup::entry;
using setup::listOf;
using setup::listPages;
using setup::savedList;

namespace {

/// The dialog with the same list on all three pages.
struct Pages : Dialog {
    explicit Pages(const std::vector<store::ToolButton>& entries, bool on = true)
        : Dialog(on ? "[global]\r\nmend=1\r\n" : "[global]\r\n") {
        REQUIRE(store::mendsOn == on);
        for (std::size_t page = 0; page < listPages; ++page)
            savedList(page) = listOf(entries);
        open(1);
    }

    forms::OptionButton& option(std::size_t page, std::size_t kind) { return form().chkAdd[3 * page + kind]; }
    /// Which of a page's option buttons is on; -1 if none is.
    int marked(std::size_t page) {
        int found = -1;
        for (std::size_t kind = 0; kind < 3; ++kind)
            if (option(page, kind).value()) {
                CHECK(found == -1);
                found = static_cast<int>(kind);
            }
        return found;
    }
    bool enabled(std::size_t page) {
        for (std::size_t kind = 1; kind < 3; ++kind)
            CHECK(option(page, kind).enabled() == option(page, 0).enabled());
        return option(page, 0).enabled();
    }
    bool asks(std::size_t page) {
        CHECK(form().labPara[page].enabled() == form().txtPara[page].enabled());
        return form().txtPara[page].enabled();
    }
};

} // namespace

TEST_SUITE_BEGIN("setup/optionMend");

TEST_CASE("on, a row's dialog shows on its own page and on no other, its text enabled for 1 and 2") {
    Pages dialog({entry("a", 0, 0), entry("b", 1, 1), entry("c", 0, 2), entry("d", 1, 0)});
    constexpr std::array<int, 4> dialogs = {0, 1, 2, 0};
    for (std::size_t page = 0; page < listPages; ++page)
        for (const int row : {1, 2, 1, 0, 3, 2, 0, 1}) {
            CAPTURE(page);
            CAPTURE(row);
            std::array<int, listPages> before{};
            for (std::size_t other = 0; other < listPages; ++other)
                before[other] = dialog.marked(other);
            dialog.select(page, row);
            CHECK(dialog.marked(page) == dialogs[static_cast<std::size_t>(row)]);
            CHECK(dialog.enabled(page));
            CHECK(dialog.asks(page) == (dialogs[static_cast<std::size_t>(row)] != 0));
            for (std::size_t other = 0; other < listPages; ++other)
                if (other != page)
                    CHECK(dialog.marked(other) == before[other]);
        }
    for (std::size_t page = 0; page < listPages; ++page)
        CHECK(dialog.form().workList[page] == savedList(page));
}

TEST_CASE("on, a click stores the dialog in the page's selected row and in nothing else") {
    for (std::size_t page = 0; page < listPages; ++page)
        for (std::size_t kind = 0; kind < 3; ++kind) {
            CAPTURE(page);
            CAPTURE(kind);
            Pages dialog({entry("a", 0, 1), entry("b", 1, kind == 1 ? 2 : 1), entry("c", 0, 2)});
            for (std::size_t other = 0; other < listPages; ++other)
                dialog.select(other, other == page ? 1 : 0);
            dialog.choose(dialog.option(page, kind));
            CHECK(dialog.record(page, 2).dialog == static_cast<int>(kind));
            CHECK(dialog.asks(page) == (kind != 0));
            dialog.record(page, 2) = savedList(page)[2];
            for (std::size_t other = 0; other < listPages; ++other)
                CHECK(dialog.form().workList[other] == savedList(other));
        }
}

TEST_CASE("the same clicks: off the file dialog goes into the library list, on into the board's own row") {
    for (const bool on : {false, true}) {
        CAPTURE(on);
        Pages dialog({entry("a"), entry("b")}, on);
        dialog.select(2, 0);
        dialog.select(1, 1);
        dialog.select(0, 0);
        dialog.choose(dialog.form().chkAdd[2]);
        CHECK(dialog.record(0, 1).dialog == (on ? 2 : 0));
        CHECK(dialog.record(2, 1).dialog == (on ? 0 : 2));
        CHECK(dialog.asks(0) == on);
        CHECK(dialog.asks(1) == !on);
    }
}

TEST_CASE("on, a separator's option buttons and text are disabled on each page") {
    Pages dialog({entry("a", 0, 1), entry("-", 2, 0), entry("-", 2, 2), entry("odd", 7, 1)});
    for (std::size_t page = 0; page < listPages; ++page)
        for (const int row : {1, 2, 3}) {
            dialog.select(page, 0);
            CHECK(dialog.enabled(page));
            dialog.select(page, row);
            CHECK_FALSE(dialog.enabled(page));
            CHECK_FALSE(dialog.asks(page));
        }
}

TEST_CASE("a dialog beyond 0 to 2: off an error or another page's button, on none is marked and it stays") {
    for (const int odd : {9, -1, 3, 32767, -32768}) {
        CAPTURE(odd);
        Pages dialog({entry("a", 0, 1), entry("b", 0, odd)});
        for (std::size_t page = 0; page < listPages; ++page) {
            dialog.select(page, 0);
            dialog.select(page, 1);
            CHECK(dialog.marked(page) == -1);
            CHECK(dialog.enabled(page));
            CHECK_FALSE(dialog.asks(page));
            CHECK(dialog.record(page, 2).dialog == odd);
        }
        dialog.ok();
        CHECK(savedList(0)[2].dialog == odd);
        Pages off({entry("a", 0, 1), entry("b", 0, odd)}, false);
        CHECK(off.desk().event([&] { off.form().lstApps[0].selected(1); }) == (odd == 3));
    }
}

TEST_CASE("on, such a dialog is chosen anew by a click") {
    Pages dialog({entry("b", 1, 9)});
    dialog.select(2, 0);
    dialog.choose(dialog.option(2, 1));
    CHECK(dialog.record(2, 1).dialog == 1);
    CHECK(dialog.marked(2) == 1);
    CHECK(dialog.asks(2));
}

TEST_CASE("on, a click without a selected row stores nothing") {
    Pages dialog({entry("a", 0, 1)});
    dialog.select(1, 0);
    dialog.act([&] { dialog.form().btnRemove[1].click(); });
    dialog.act([&] { dialog.option(1, 2).setValue(true); });
    CHECK_FALSE(dialog.asks(1));
    CHECK(dialog.form().workList[0] == savedList(0));
    CHECK(dialog.form().workList[2] == savedList(2));
}

TEST_CASE("on, a new entry of each sort shows none, its option buttons by its type") {
    Pages dialog({entry("a", 0, 2)});
    for (std::size_t page = 0; page < listPages; ++page) {
        dialog.select(page, 0);
        dialog.click(dialog.form().btnAddEAGLE[page]);
        CHECK(dialog.marked(page) == 0);
        CHECK(dialog.enabled(page));
        CHECK_FALSE(dialog.asks(page));
        dialog.choose(dialog.option(page, 1));
        CHECK(dialog.record(page, 2).dialog == 1);
        dialog.click(dialog.form().btnAddSep[page]);
        CHECK(dialog.marked(page) == 0);
        CHECK_FALSE(dialog.enabled(page));
        CHECK(dialog.record(page, 2).dialog == 1);
        CHECK(dialog.record(page, 1).dialog == 2);
    }
}

TEST_CASE("after a cancelled file dialog: on the selected row's dialog shows, off none") {
    for (const bool on : {false, true}) {
        CAPTURE(on);
        Pages dialog({entry("a", 0, 1), entry("-", 2), entry("b", 1, 1)}, on);
        dialog.select(0, 2);
        dialog.desk().fileAnswers = {std::nullopt};
        dialog.click(dialog.form().btnAdd[0]);
        CHECK(dialog.marked(0) == (on ? 1 : 0));
        CHECK(dialog.asks(0) == on);
        CHECK(dialog.record(0, 3).dialog == 1);
        dialog.desk().fileAnswers = {std::nullopt};
        Pages empty({}, on);
        empty.click(empty.form().btnAdd[1]);
        CHECK(empty.rows(1).empty());
        CHECK(empty.marked(1) == 0);
    }
}

TEST_CASE("moving and removing: on the option buttons follow the row") {
    Pages dialog({entry("a", 0, 1), entry("b", 0, 2), entry("c")});
    dialog.select(1, 0);
    dialog.click(dialog.form().btnL[1]);
    CHECK(dialog.marked(1) == 1);
    CHECK(dialog.record(1, 2).dialog == 1);
    dialog.click(dialog.form().btnRemove[1]);
    CHECK(dialog.marked(1) == 0);
    CHECK_FALSE(dialog.asks(1));
    CHECK(dialog.record(1, 1).dialog == 2);
    CHECK(dialog.record(1, 2).dialog == 0);
}

TEST_CASE("the captions: on the catalogue's on all pages in both languages, off on the first alone") {
    for (const bool on : {false, true})
        for (const std::int32_t language : {0, 10000}) {
            CAPTURE(on);
            Pages dialog({entry("a")}, on);
            store::languageOffset = language;
            dialog.act([&] { dialog.form().loadResources(); });
            for (std::size_t page = 0; page < listPages; ++page)
                for (std::size_t kind = 0; kind < 3; ++kind) {
                    const std::string text =
                        store::LoadResString(1006 + static_cast<int>(kind) + store::languageOffset);
                    const bool same = dialog.option(page, kind).caption() == text;
                    // The input dialog's English caption is the one of the design.
                    CHECK(same == (on || page == 0 || (language != 0 && kind == 1)));
                }
        }
}

TEST_SUITE_END();
