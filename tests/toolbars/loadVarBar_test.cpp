// From a button list to the buttons of a toolbar.
#include "codePages.h"
#include "desktop/program.h"
#include "forms/defaultInstance.h"
#include "toolbars/frmPullDown.h"
#include "toolbars/pictures.h"

#include <doctest/doctest.h>

#include <string>

using desktop::Program;
using desktop::world;
using store::EditorKind;
using store::ToolButton;

namespace {

ToolButton row(const std::string& name, std::int16_t type = 1) {
    ToolButton button;
    button.name = name;
    button.path = name + " path";
    button.tooltip = name + " tip";
    button.type = type;
    button.live = 1;
    return button;
}

void fill(store::ButtonList& list, const std::vector<ToolButton>& rows) {
    list.redim(static_cast<std::int32_t>(rows.size()));
    for (std::size_t index = 0; index < rows.size(); ++index)
        list[static_cast<std::int32_t>(index) + 1] = rows[index];
}

/// A toolbar form of one kind over a list in memory; the settings file has none.
struct Bar : Program {
    explicit Bar(EditorKind kind = EditorKind::board) : form(kind), list(*store::listOf(kind).buttons) {}

    void build(const std::vector<ToolButton>& rows) {
        fill(list, rows);
        form.loadVarBar();
    }
    const forms::ToolbarButton& button(std::size_t index) { return form.toolbar.buttons().at(index); }
    const forms::Picture& rowPicture(int number) { return form.ImageList1.picture(number); }

    toolbars::frmToolbar form;
    store::ButtonList& list;
};

forms::Picture iconOf(const std::string& path, int index) {
    return desktop::World::iconPicture(path, index);
}

} // namespace

TEST_SUITE_BEGIN("toolbars/loadVarBar");

TEST_CASE("an unallocated list gives the Config button alone, with two pictures") {
    Bar bar;
    bar.form.loadVarBar();
    REQUIRE(bar.form.toolbar.buttons().size() == 1);
    CHECK(bar.button(0).key == "Config");
    CHECK(bar.button(0).image == 1);
    REQUIRE(bar.form.ImageList1.count() == 2);
    CHECK(bar.form.ImageList1.indexOf("Config") == 1);
    CHECK(bar.form.ImageList1.indexOf("Over") == 2);
}

TEST_CASE("a toolbar's pictures are 16 by 16, whatever size those before it had") {
    Bar bar;
    bar.form.load();
    bar.form.ImageList1.imageWidth = 24;
    bar.form.ImageList1.imageHeight = 20;
    bar.build({row("a")});
    REQUIRE(bar.form.ImageList1.count() == 3);
    for (int number = 1; number <= 3; ++number) {
        CHECK(bar.rowPicture(number).width() == 16);
        CHECK(bar.rowPicture(number).height() == 16);
    }
}

TEST_CASE("an allocated list without a live row gives the same toolbar as an unallocated one") {
    Bar bar;
    ToolButton dead = row("gone");
    dead.live = 0;
    bar.build({dead});
    REQUIRE(bar.form.toolbar.buttons().size() == 1);
    CHECK(bar.button(0).key == "Config");
    CHECK(bar.form.ImageList1.indexOf("Config") == 1);
    CHECK(bar.form.ImageList1.indexOf("Over") == 2);
}

TEST_CASE("the Config button has its fixed texts, also in German") {
    Bar bar;
    bar.form.loadVarBar();
    CHECK(bar.button(0).toolTipText == "Configuration");
    CHECK(bar.button(0).description == "Configuration");
    CHECK(bar.button(0).tag == "Config");
    CHECK(bar.button(0).caption.empty());
}

TEST_CASE("a row becomes a button with key, picture number, tip, description and tag") {
    Bar bar;
    ToolButton ulp = row("ULP");
    ulp.path = "run ulp";
    ulp.dialog = 1;
    ulp.param = "Name?";
    bar.build({row("Fit"), ulp});
    REQUIRE(bar.form.toolbar.buttons().size() == 3);
    CHECK(bar.button(0).key == "Fit1");
    CHECK(bar.button(1).key == "ULP2");
    CHECK(bar.button(1).image == 2);
    CHECK(bar.button(1).caption.empty());
    CHECK(bar.button(1).toolTipText == "ULP tip");
    CHECK(bar.button(1).description == "ULP");
    CHECK(bar.button(1).tag == western("run ulp\xA7"
                                       "1\xA7Name?\xA7"
                                       "1"));
    CHECK(bar.button(2).key == "Config");
    CHECK(bar.button(2).image == 3);
}

TEST_CASE("tokens stay unexpanded in the tag") {
    Bar bar;
    ToolButton tool = row("tool", 0);
    tool.path = "{kestrelpath}\\x.exe";
    bar.build({tool});
    CHECK(bar.button(0).tag.starts_with(western("{kestrelpath}\\x.exe\xA7")));
}

TEST_CASE("a path with the section sign makes a tag with more than four fields") {
    Bar bar;
    ToolButton odd = row("odd");
    odd.path = western("a\xA7z");
    bar.build({odd});
    CHECK(bar.button(0).tag == western("a\xA7z\xA7"
                                       "0\xA7\xA7"
                                       "1"));
}

TEST_CASE("a separator has only its style and takes a picture number that is never shown") {
    Bar bar;
    ToolButton line = row("----------------------------------", 2);
    bar.build({row("a"), line, row("b")});
    REQUIRE(bar.form.toolbar.buttons().size() == 4);
    const forms::ToolbarButton& separator = bar.button(1);
    CHECK(separator.style == forms::ButtonStyle::separator);
    CHECK(separator.key.empty());
    CHECK(separator.tag.empty());
    CHECK(separator.toolTipText.empty());
    CHECK(separator.image == 0);
    CHECK(bar.button(2).image == 3);
    CHECK(bar.form.ImageList1.count() == 5);
}

TEST_CASE("a list of only separators gives separators and the Config button") {
    Bar bar;
    bar.build({row("-", 2), row("-", 2)});
    REQUIRE(bar.form.toolbar.buttons().size() == 3);
    CHECK(bar.button(0).style == forms::ButtonStyle::separator);
    CHECK(bar.button(1).style == forms::ButtonStyle::separator);
    CHECK(bar.button(2).key == "Config");
    CHECK(bar.button(2).image == 3);
}

TEST_CASE("with row 1 dead and row 2 live the key has 2 and the picture is number 1") {
    Bar bar;
    ToolButton dead = row("dead");
    dead.live = 0;
    bar.build({dead, row("Fit")});
    REQUIRE(bar.form.toolbar.buttons().size() == 2);
    CHECK(bar.button(0).key == "Fit2");
    CHECK(bar.button(0).image == 1);
}

TEST_CASE("a row whose live is neither 0 nor 1 is skipped") {
    Bar bar;
    ToolButton odd = row("odd");
    odd.live = 2;
    bar.build({odd});
    CHECK(bar.form.toolbar.buttons().size() == 1);
}

TEST_CASE("a type other than 0, 1 and 2 makes an ordinary button") {
    Bar bar;
    bar.build({row("three", 3), row("minus", -1)});
    CHECK(bar.button(0).style == forms::ButtonStyle::standard);
    CHECK(bar.button(0).tag.ends_with(western("\xA7"
                                              "3")));
    CHECK(bar.button(1).tag.ends_with(western("\xA7-1")));
}

TEST_CASE("an empty icon gives the picture of the kind") {
    for (const auto& [kind, key] :
         {std::pair{EditorKind::board, "BRD"}, std::pair{EditorKind::schematic, "SCH"},
          std::pair{EditorKind::library, "LBR"}}) {
        Bar bar(kind);
        bar.build({row("a")});
        CHECK(bar.rowPicture(1) == toolbars::fixedPictures().picture(key));
    }
}

TEST_CASE("an icon reference gives the small icon of the file, sharp") {
    Bar bar;
    world().addIcons("C:\\tools\\x.dll", 3);
    ToolButton tool = row("tool");
    tool.icon = "C:\\tools\\x.dll,2";
    bar.build({tool});
    CHECK(bar.rowPicture(1) == iconOf("C:\\tools\\x.dll", 2));
}

TEST_CASE("an icon reference may hold a token") {
    Bar bar;
    world().addIcons("C:\\kestrel\\brd.ico", 1);
    ToolButton tool = row("tool");
    tool.icon = "{kestrelpath}\\brd.ico,0";
    bar.build({tool});
    CHECK(bar.rowPicture(1) == iconOf("C:\\kestrel\\brd.ico", 0));
}

TEST_CASE("a row whose icon cannot be had gets the last good icon, or the blank surface if there was none") {
    Bar bar;
    world().addIcons("C:\\x.exe", 1);
    ToolButton missing = row("missing");
    missing.icon = "C:\\none.exe,0";
    ToolButton good = row("good");
    good.icon = "C:\\x.exe,0";
    ToolButton beyond = row("beyond");
    beyond.icon = "C:\\x.exe,9";
    bar.build({missing, good, row("plain"), beyond});
    CHECK(bar.rowPicture(1) == forms::Picture(16, 16, std::vector<std::uint32_t>(256, 0xFFC0C0C0U)));
    CHECK(bar.rowPicture(2) == iconOf("C:\\x.exe", 0));
    CHECK(bar.rowPicture(3) == toolbars::fixedPictures().picture("BRD"));
    CHECK(bar.rowPicture(4) == iconOf("C:\\x.exe", 0));
}

TEST_CASE("the icon of a separator is extracted all the same") {
    Bar bar;
    world().addIcons("C:\\x.exe", 1);
    ToolButton line = row("-", 2);
    line.icon = "C:\\x.exe,0";
    bar.build({line});
    CHECK(bar.rowPicture(1) == iconOf("C:\\x.exe", 0));
}

TEST_CASE("an icon reference without a comma is a subscript failure") {
    Bar bar;
    ToolButton bad = row("bad");
    bad.icon = "C:\\x.exe";
    CHECK_THROWS_WITH_AS(bar.build({bad}), "Subscript out of range", runtime::RuntimeError);
}

TEST_CASE("an icon index that is no number is a type mismatch") {
    Bar bar;
    ToolButton bad = row("bad");
    bad.icon = "C:\\x.exe,first";
    CHECK_THROWS_WITH_AS(bar.build({bad}), "Type mismatch", runtime::RuntimeError);
}

TEST_CASE("an icon file with a comma in its path gives the wrong file and index") {
    Bar bar;
    ToolButton bad = row("bad");
    bad.icon = "C:\\a,b.exe,0";
    CHECK_THROWS_WITH_AS(bar.build({bad}), "Type mismatch", runtime::RuntimeError);
}

TEST_CASE("two buttons whose name and index read the same collide") {
    Bar bar;
    std::vector<ToolButton> rows;
    rows.push_back(row("a1"));
    for (int index = 2; index <= 10; ++index)
        rows.push_back(row("x"));
    rows.push_back(row("a"));
    CHECK_THROWS_WITH_AS(bar.build(rows), "Key is not unique in collection", runtime::RuntimeError);
}

TEST_CASE("the first loadVarBar loads the form, which takes the list fresh from the settings file") {
    Bar bar;
    world().writeSettings("[board]\r\n1name=Fit\r\n1dialog=0\r\n1type=1\r\n");
    fill(bar.list, {row("old")});
    bar.form.loadVarBar();
    CHECK(bar.button(0).key == "Fit1");
    world().writeSettings("[board]\r\n1name=New\r\n1dialog=0\r\n1type=1\r\n");
    bar.form.loadVarBar();
    CHECK(bar.button(0).key == "Fit1");
}

TEST_CASE("building again replaces pictures and buttons whole") {
    Bar bar;
    bar.build({row("a"), row("b"), row("c")});
    bar.list = {};
    bar.build({row("d")});
    REQUIRE(bar.form.toolbar.buttons().size() == 2);
    CHECK(bar.button(0).key == "d1");
    CHECK(bar.form.ImageList1.count() == 3);
}

TEST_CASE("no icon handle but the large ones stays open") {
    Bar bar;
    world().addIcons("C:\\x.exe", 1);
    ToolButton good = row("good");
    good.icon = "C:\\x.exe,0";
    bar.build({good, good, good});
    CHECK(world().icons.size() == 3);
}

TEST_CASE("the schematic and library forms make the hidden pull-down form, the board form does not") {
    {
        Bar bar(EditorKind::board);
        bar.form.loadVarBar();
    }
    for (const EditorKind kind : {EditorKind::schematic, EditorKind::library}) {
        Bar bar(kind);
        bar.form.loadVarBar();
        REQUIRE(forms::defaultSlot<toolbars::frmPullDown>() != nullptr);
        CHECK_FALSE(toolbars::pullDown().visible());
        CHECK(toolbars::pullDown().Toolbar1.imageList() == nullptr);
        CHECK(toolbars::pullDown().Toolbar1.buttons().empty());
    }
}

TEST_CASE("the fixed list holds six pictures of 16 by 16") {
    const forms::ImageList& list = toolbars::fixedPictures();
    REQUIRE(list.count() == 6);
    for (const char* key : {"Separator", "BRD", "SCH", "LBR", "Config", "Over"}) {
        CHECK(list.picture(key).width() == 16);
        CHECK(list.picture(key).height() == 16);
    }
}

TEST_SUITE_END();
