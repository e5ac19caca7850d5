#include "codePages.h"
#include "setup/ObjFiledialog.h"

#include "desktop/desktop.h"

#include <doctest/doctest.h>

using desktop::FileDialog;
using desktop::world;
using setup::ObjFiledialog;

namespace setup {

/// What callers cannot reach.
struct ObjFiledialogTest {
    static void checkFlags(ObjFiledialog& dialog, const char* intention) { dialog.CheckFlags(intention); }
    static std::int32_t flags(const ObjFiledialog& dialog) { return dialog.flags_; }
    static std::string buildFilter(ObjFiledialog& dialog) { return dialog.buildFilter(); }
    static const std::string& filter(const ObjFiledialog& dialog) { return dialog.filter_; }
    static const std::string& title(const ObjFiledialog& dialog) { return dialog.dialogTitle_; }
    static const std::string& initDir(const ObjFiledialog& dialog) { return dialog.initDir_; }
    static const std::string& defaultExt(const ObjFiledialog& dialog) { return dialog.defaultExt_; }
};

} // namespace setup

using Inside = setup::ObjFiledialogTest;

namespace {

constexpr platform::HWND owner{0x77};

/// Text of a literal with all its NULs but the last.
template <std::size_t Size>
std::string bytes(const char (&literal)[Size]) {
    return {literal, Size - 1};
}

const FileDialog& shown(std::size_t index = 0) {
    return world().fileDialogs.at(index);
}

/// The flags that `code` leads to in the next dialog.
std::uint32_t flagsOf(std::int32_t set, bool save) {
    ObjFiledialog dialog;
    dialog.setFlags(set);
    save ? dialog.ShowSave(owner) : dialog.ShowOpen(owner);
    return world().fileDialogs.back().flags;
}

std::string built(ObjFiledialog& dialog) {
    return Inside::buildFilter(dialog);
}

} // namespace

TEST_SUITE_BEGIN("setup/ObjFiledialog");

TEST_CASE(
    "a new object has a buffer of 512 NULs, the current folder and an empty extension, each with its NUL") {
    const desktop::Session session;
    const ObjFiledialog dialog;
    CHECK(dialog.Filename() == std::string(512, '\0'));
    CHECK(Inside::initDir(dialog) == bytes("C:\\work\0"));
    CHECK(Inside::defaultExt(dialog) == bytes("\0"));
    CHECK(Inside::title(dialog) == "");
    CHECK(Inside::filter(dialog) == "");
    CHECK(Inside::flags(dialog) == 0);
}

TEST_CASE("texts are stored with a NUL at their end") {
    const desktop::Session session;
    ObjFiledialog dialog;
    dialog.setDefaultExt("ini");
    dialog.setDialogTitle("Pick");
    dialog.setInitDir("C:\\x");
    CHECK(Inside::defaultExt(dialog) == bytes("ini\0"));
    CHECK(Inside::title(dialog) == bytes("Pick\0"));
    CHECK(Inside::initDir(dialog) == bytes("C:\\x\0"));
}

TEST_CASE("a start name is filled with NULs to 513 characters, a longer one stays as it is") {
    const desktop::Session session;
    ObjFiledialog dialog;
    dialog.setFilename("*.*");
    CHECK(dialog.Filename() == "*.*" + std::string(510, '\0'));
    dialog.setFilename("");
    CHECK(dialog.Filename() == std::string(513, '\0'));
    dialog.setFilename(std::string(512, 'x'));
    CHECK(dialog.Filename() == std::string(512, 'x') + '\0');
    dialog.setFilename(std::string(513, 'x'));
    CHECK(dialog.Filename() == std::string(513, 'x'));
    dialog.setFilename(std::string(600, 'x'));
    CHECK(dialog.Filename() == std::string(600, 'x'));
}

TEST_CASE("a filter ends in two NULs once it is set, and keeps them if it has them") {
    const desktop::Session session;
    ObjFiledialog dialog;
    dialog.setFilter("*.exe");
    CHECK(Inside::filter(dialog) == bytes("*.exe\0\0"));
    dialog.setFilter(bytes("All\0*.*\0\0"));
    CHECK(Inside::filter(dialog) == bytes("All\0*.*\0\0"));
    dialog.setFilter(bytes("All\0*.*\0"));
    CHECK(Inside::filter(dialog) == bytes("All\0*.*\0\0\0"));
    dialog.setFilter(bytes("\0"));
    CHECK(Inside::filter(dialog) == bytes("\0\0\0"));
    dialog.setFilter(bytes("\0\0"));
    CHECK(Inside::filter(dialog) == bytes("\0\0"));
    dialog.setFilter("");
    CHECK(Inside::filter(dialog) == bytes("\0\0"));
}

TEST_CASE("without any filter the dialog offers all files") {
    const desktop::Session session;
    ObjFiledialog dialog;
    CHECK(built(dialog) == bytes("All Files\0*.*\0\0"));
    dialog.ShowOpen(owner);
    CHECK(shown().filter == bytes("All Files\0*.*"));
    CHECK(shown().filterIndex == 1);
}

TEST_CASE("a filter of *.exe is a display text with an empty pattern behind it") {
    const desktop::Session session;
    ObjFiledialog dialog;
    dialog.setFilter("*.exe");
    CHECK(built(dialog) == bytes("*.exe\0\0\0"));
}

TEST_CASE("the free filter stands ahead of the numbered pairs") {
    const desktop::Session session;
    ObjFiledialog dialog;
    dialog.setFilter(bytes("Programs\0*.exe"));
    dialog.setFilter1Text("Texts");
    dialog.setFilter1Suffix("*.txt");
    CHECK(built(dialog) == bytes("Programs\0*.exe\0Texts\0*.txt\0\0\0"));
}

TEST_CASE("the five numbered pairs come in their order") {
    const desktop::Session session;
    ObjFiledialog dialog;
    dialog.setFilter5Text("e");
    dialog.setFilter5Suffix("5");
    dialog.setFilter1Text("a");
    dialog.setFilter1Suffix("1");
    dialog.setFilter4Text("d");
    dialog.setFilter4Suffix("4");
    dialog.setFilter2Text("b");
    dialog.setFilter2Suffix("2");
    dialog.setFilter3Text("c");
    dialog.setFilter3Suffix("3");
    CHECK(built(dialog) == bytes("a\0001\0b\0002\0c\0003\0d\0004\0e\0005\0\0\0"));
}

TEST_CASE("a pair with an empty half is skipped whole") {
    const desktop::Session session;
    ObjFiledialog dialog;
    dialog.setFilter1Text("Texts");
    dialog.setFilter2Suffix("*.ini");
    CHECK(built(dialog) == bytes("All Files\0*.*\0\0"));
    dialog.setFilter3Text("Icons");
    dialog.setFilter3Suffix("*.ico");
    CHECK(built(dialog) == bytes("Icons\0*.ico\0\0\0"));
}

TEST_CASE("building the list takes the NULs off the end of the free filter itself") {
    const desktop::Session session;
    ObjFiledialog dialog;
    dialog.setFilter("*.exe");
    built(dialog);
    CHECK(Inside::filter(dialog) == "*.exe");
    CHECK(built(dialog) == bytes("*.exe\0\0\0"));
}

TEST_CASE("a filter of nothing but NULs gives an empty list once, and all files after it") {
    const desktop::Session session;
    ObjFiledialog dialog;
    dialog.setFilter("");
    CHECK(built(dialog) == bytes("\0\0\0"));
    CHECK(built(dialog) == bytes("All Files\0*.*\0\0"));
}

TEST_CASE("flags of 0 become the defaults of the intention, any other value stays") {
    const desktop::Session session;
    CHECK(flagsOf(0, false) == 6145);
    CHECK(flagsOf(0, true) == 2054);
    CHECK(flagsOf(2103308, false) == 2103308);
    CHECK(flagsOf(1, true) == 1);
    CHECK(flagsOf(-1, false) == 0xFFFFFFFFU);
}

TEST_CASE("an unknown intention is shown and leaves the flags") {
    const desktop::Session session;
    ObjFiledialog dialog;
    Inside::checkFlags(dialog, "Print");
    REQUIRE(world().messageBoxes.size() == 1);
    CHECK(world().messageBoxes[0].text == "Unbekannte Intention: Print");
    CHECK(world().messageBoxes[0].style == 16);
    CHECK(world().messageBoxes[0].title == "CheckFlags");
    CHECK(Inside::flags(dialog) == 0);
    dialog.setFlags(4);
    Inside::checkFlags(dialog, "Print");
    CHECK(world().messageBoxes.size() == 1);
}

TEST_CASE("the dialog gets owner, names, folder, title, extension and the record's size") {
    const desktop::Session session;
    ObjFiledialog dialog;
    dialog.setFilename("*.*");
    dialog.setDialogTitle("Pick one");
    dialog.setDefaultExt("ini");
    dialog.setInitDir("C:\\there");
    dialog.ShowOpen(owner);
    CHECK_FALSE(shown().save);
    CHECK(shown().owner == owner);
    CHECK(shown().structSize == 76);
    CHECK(shown().file == "*.*");
    CHECK(shown().maxFile == 513);
    CHECK(shown().title == "Pick one");
    CHECK(shown().defaultExt == "ini");
    CHECK(shown().initialDir == "C:\\there");
    CHECK(shown().filterIndex == 1);
}

TEST_CASE("a new object starts without a name, in the current folder, with room for 512 characters") {
    const desktop::Session session;
    ObjFiledialog dialog;
    dialog.ShowSave(owner);
    CHECK(shown().save);
    CHECK(shown().file == "");
    CHECK(shown().maxFile == 512);
    CHECK(shown().initialDir == "C:\\work");
    CHECK(shown().defaultExt == "");
}

TEST_CASE("without a title each dialog has its own") {
    const desktop::Session session;
    ObjFiledialog open;
    open.ShowOpen(owner);
    CHECK(shown(0).title == western("Datei \xF6"
                                    "ffnen"));
    CHECK(Inside::title(open) == western(bytes("Datei \xF6"
                                               "ffnen\0")));
    ObjFiledialog save;
    save.ShowSave(owner);
    CHECK(shown(1).title == "Datei speichern unter");
    CHECK(Inside::title(save) == bytes("Datei speichern unter\0"));
}

TEST_CASE("each open dialog puts one more NUL behind the title, a save dialog does not") {
    const desktop::Session session;
    ObjFiledialog dialog;
    dialog.setDialogTitle("T");
    dialog.ShowOpen(owner);
    CHECK(Inside::title(dialog) == bytes("T\0\0"));
    dialog.ShowOpen(owner);
    CHECK(Inside::title(dialog) == bytes("T\0\0\0"));
    dialog.ShowSave(owner);
    CHECK(Inside::title(dialog) == bytes("T\0\0\0"));
    CHECK(shown(2).title == "T");
}

TEST_CASE("the title of the first dialog stays for a later one of the other kind") {
    const desktop::Session session;
    ObjFiledialog dialog;
    dialog.ShowSave(owner);
    dialog.ShowOpen(owner);
    CHECK(shown(1).title == "Datei speichern unter");
}

TEST_CASE("the chosen path is the result and the file name, without NULs") {
    const desktop::Session session;
    world().fileAnswers = {"C:\\t\\a b.exe", "C:\\s.ini"};
    ObjFiledialog open;
    open.setFilename("a much longer start name than what is chosen.txt");
    CHECK(open.ShowOpen(owner) == "C:\\t\\a b.exe");
    CHECK(open.Filename() == "C:\\t\\a b.exe");
    ObjFiledialog save;
    CHECK(save.ShowSave(owner) == "C:\\s.ini");
    CHECK(save.Filename() == "C:\\s.ini");
}

TEST_CASE("after a cancel the file name is empty, not the start name") {
    const desktop::Session session;
    world().fileAnswers = {std::nullopt, std::nullopt};
    ObjFiledialog dialog;
    dialog.setFilename("*.*");
    CHECK(dialog.ShowOpen(owner) == "");
    CHECK(dialog.Filename() == "");
    dialog.setFilename("*.*");
    CHECK(dialog.ShowSave(owner) == "");
    CHECK(dialog.Filename() == "");
}

TEST_CASE("a path too long for the buffer is refused and gives the empty string") {
    const desktop::Session session;
    world().fileAnswers = {std::string(511, 'x'), std::string(513, 'x'), std::string(512, 'y')};
    CHECK(ObjFiledialog().ShowOpen(owner).size() == 511);
    CHECK(ObjFiledialog().ShowOpen(owner) == "");
    ObjFiledialog named;
    named.setFilename("");
    CHECK(named.ShowOpen(owner) == std::string(512, 'y'));
}

TEST_CASE("a used object has only the room that its last path took") {
    const desktop::Session session;
    world().fileAnswers = {"C:\\abc", std::nullopt};
    ObjFiledialog dialog;
    dialog.ShowOpen(owner);
    dialog.ShowOpen(owner);
    CHECK(shown(1).maxFile == 6);
    CHECK(shown(1).file == "C:\\abc");
    dialog.ShowOpen(owner);
    CHECK(shown(2).maxFile == 0);
}

TEST_CASE("a failure of a dialog is shown and the dialog tried again, as long as it fails") {
    const desktop::Session session;
    int failures = 3;
    world().onFileDialog = [&failures] {
        if (failures-- > 0)
            throw runtime::RuntimeError(runtime::ErrorNumber::permissionDenied);
    };
    world().fileAnswers = {"C:\\x"};
    ObjFiledialog dialog;
    dialog.setDialogTitle("T");
    CHECK(dialog.ShowOpen(owner) == "C:\\x");
    REQUIRE(world().messageBoxes.size() == 3);
    for (const desktop::MessageBox& box : world().messageBoxes) {
        CHECK(box.text == "Permission denied");
        CHECK(box.style == 0);
        CHECK(box.title == "Error_ShowOpen");
    }
    CHECK(Inside::title(dialog) == bytes("T\0\0")); // only the step that failed is repeated
}

TEST_CASE("the save dialog's failure has its own title") {
    const desktop::Session session;
    world().onFileDialog = [] {
        if (world().messageBoxes.empty())
            throw runtime::RuntimeError(runtime::ErrorNumber::pathNotFound);
    };
    ObjFiledialog().ShowSave(owner);
    REQUIRE(world().messageBoxes.size() == 1);
    CHECK(world().messageBoxes[0].text == "Path not found");
    CHECK(world().messageBoxes[0].title == "Error_ShowSave");
}

TEST_CASE("a lasting failure repeats its message for ever") {
    const desktop::Session session;
    world().onFileDialog = [] { throw runtime::RuntimeError(runtime::ErrorNumber::overflow); };
    CHECK_THROWS_AS(ObjFiledialog().ShowOpen(owner), desktop::Stuck);
}

TEST_CASE("a failure to find the current folder is shown and tried again") {
    const desktop::Session session;
    world().directoryFailures.assign(2, runtime::RuntimeError(runtime::ErrorNumber::pathNotFound));
    const ObjFiledialog dialog;
    REQUIRE(world().messageBoxes.size() == 2);
    CHECK(world().messageBoxes[1].text == "Path not found");
    CHECK(world().messageBoxes[1].style == 0);
    CHECK(world().messageBoxes[1].title == "Error_Class_Initialize");
    CHECK(Inside::initDir(dialog) == bytes("C:\\work\0"));
}

TEST_SUITE_END();
