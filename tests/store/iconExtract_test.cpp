#include "codePages.h"
#include "store/iconExtract.h"

#include "desktop/desktop.h"
#include "desktop/faults.h"
#include "forms/units.h"
#include "platform/shell32.h"
#include "platform/user32.h"
#include "runtime/runtimeError.h"

#include <doctest/doctest.h>

using desktop::world;
using desktop::World;

namespace {

constexpr platform::HWND setupWindow{0x42};
const World::ChosenIcon cancelled{0, u"", 0};

/// A box of 18 by 18 pixels, as the toolbars draw their icons on.
struct Surface18 {
    Surface18() { box.setPosition({0, 0, forms::Resolution().toTwips(18), forms::Resolution().toTwips(18)}); }
    forms::PictureBox box;
};

/// The icon stands at (1, 1), the rest is the box's own colour.
bool shows(const forms::PictureBox& box, const forms::Picture& icon) {
    const forms::Picture image = box.image();
    if (image.width() != 18 || image.height() != 18)
        return false;
    for (int y = 0; y < 18; ++y)
        for (int x = 0; x < 18; ++x) {
            const bool inside = x >= 1 && y >= 1 && x <= 16 && y <= 16;
            const std::uint32_t expected =
                inside ? icon.pixel(x - 1, y - 1) : forms::opaque | forms::maskGrey;
            if (image.pixel(x, y) != expected)
                return false;
        }
    return true;
}

int chooseError(const std::string& reference) {
    try {
        store::chooseIconFile(reference, setupWindow);
    } catch (const runtime::RuntimeError& error) {
        return static_cast<int>(error.number);
    }
    return 0;
}

} // namespace

TEST_SUITE_BEGIN("store/iconExtract");

TEST_CASE("an error while an icon is fetched stays silent, and there is none") {
    const desktop::Session session;
    Surface18 surface;
    world().addIcons("C:\\kestrel\\brd.ico", 1);
    desktop::faults().onCall = [](const std::string&) {
        throw runtime::RuntimeError(runtime::ErrorNumber::invalidCall);
    };
    const bool fetched = store::extractIconToPicture("C:\\kestrel\\brd.ico", 0, surface.box);
    desktop::faults().onCall = nullptr;
    CHECK_FALSE(fetched);
}

TEST_CASE("an icon that cannot be drawn is given back") {
    const desktop::Session session;
    Surface18 surface;
    world().addIcons("C:\\kestrel\\brd.ico", 1);
    desktop::faults().onCall = [](const std::string& call) {
        if (call == "DrawIconEx")
            throw runtime::RuntimeError(runtime::ErrorNumber::outOfMemory);
    };
    const bool drawn = store::extractIconToPicture("C:\\kestrel\\brd.ico", 0, surface.box);
    desktop::faults().onCall = nullptr;
    CHECK_FALSE(drawn);
    CHECK(world().icons.size() == 1); // the large one
}

TEST_CASE("the small icon of a file is drawn with a margin of one pixel at the left and top") {
    const desktop::Session session;
    Surface18 surface;
    world().addIcons("C:\\kestrel\\brd.ico", 1);
    store::extractIconToPicture("C:\\kestrel\\brd.ico", 0, surface.box);
    CHECK(shows(surface.box, World::iconPicture("C:\\kestrel\\brd.ico", 0)));
    CHECK(surface.box.hDC() == platform::HDC::none);
}

TEST_CASE("on a form of any resolution the icon stands in the middle of the box, as large as it is there") {
    const desktop::Session session;
    world().addIcons("C:\\kestrel\\brd.ico", 1);
    const std::uint32_t colour = World::iconPicture("C:\\kestrel\\brd.ico", 0).pixel(0, 0);
    for (const int dpi : {96, 120, 144, 168, 192, 240}) {
        CAPTURE(dpi);
        forms::Form form;
        form.setResolution(forms::Resolution(dpi));
        forms::PictureBox box;
        box.place(form, {0, 0, 270, 270});
        store::extractIconToPicture("C:\\kestrel\\brd.ico", 0, box);
        // What a list of 16 design pixels takes of it is the whole icon and nothing else.
        const int side = form.resolution().scaled(16);
        const forms::Picture taken = box.image().fitted(side, side);
        CHECK(taken ==
              forms::Picture(side, side,
                             std::vector<std::uint32_t>(static_cast<std::size_t>(side * side), colour)));
    }
}

TEST_CASE("the index chooses among the icons of a file, and each drawing clears the one before") {
    const desktop::Session session;
    Surface18 surface;
    world().addIcons("C:\\t\\x.exe", 3);
    store::extractIconToPicture("C:\\t\\x.exe", 0, surface.box);
    store::extractIconToPicture("C:\\t\\x.exe", 2, surface.box);
    CHECK(shows(surface.box, World::iconPicture("C:\\t\\x.exe", 2)));
}

TEST_CASE("what was drawn outside the icon before is cleared") {
    const desktop::Session session;
    Surface18 surface;
    world().addIcons("C:\\t\\x.exe", 1);
    platform::HICON large{};
    platform::HICON small{};
    REQUIRE(platform::ExtractIconExA("C:\\t\\x.exe", 0, large, small) == 1);
    surface.box.setAutoRedraw(true);
    REQUIRE(platform::DrawIconEx(surface.box.hDC(), 2, 2, small, 0, 0, 0, platform::drawNormally));
    store::extractIconToPicture("C:\\t\\x.exe", 0, surface.box);
    CHECK(shows(surface.box, World::iconPicture("C:\\t\\x.exe", 0)));
}

TEST_CASE("the file may hold tokens") {
    const desktop::Session session;
    Surface18 surface;
    world().addIcons("C:\\kestrel\\sch.ico", 1);
    store::extractIconToPicture("{kestrelpath}\\sch.ico", 0, surface.box);
    CHECK(shows(surface.box, World::iconPicture("C:\\kestrel\\sch.ico", 0)));
}

TEST_CASE("a missing file, one without icons, an index beyond them and an empty name leave the picture") {
    const desktop::Session session;
    Surface18 surface;
    world().addIcons("C:\\t\\x.exe", 1);
    world().writeFile("C:\\t\\none.txt", "text");
    store::extractIconToPicture("C:\\t\\x.exe", 0, surface.box);
    const forms::Picture before = surface.box.image();
    for (const char* file : {"C:\\t\\gone.exe", "C:\\t\\none.txt", ""})
        store::extractIconToPicture(file, 0, surface.box);
    for (const int index : {1, -1, 2147483647, -2147483647})
        store::extractIconToPicture("C:\\t\\x.exe", index, surface.box);
    CHECK(surface.box.image() == before);
    CHECK(world().messageBoxes.empty());
}

TEST_CASE("the small icon is given back, the large one is not") {
    const desktop::Session session;
    Surface18 surface;
    world().addIcons("C:\\t\\x.exe", 1);
    store::extractIconToPicture("C:\\t\\x.exe", 0, surface.box);
    CHECK(world().icons.size() == 1);
}

TEST_CASE("a chosen icon comes back as file, comma and index") {
    const desktop::Session session;
    world().chooserAnswers = {{1, u"C:\\t\\\u00E4\u20AC.dll", 12}};
    CHECK(store::chooseIconFile("C:\\old.exe,3", setupWindow) == western("C:\\t\\\xE4\x80.dll,12"));
    REQUIRE(world().chooserCalls.size() == 1);
    const auto& call = world().chooserCalls[0];
    CHECK(call.owner == setupWindow);
    CHECK(call.file == u"C:\\old.exe");
    CHECK(call.length == 260);
    CHECK(call.index == 3);
}

TEST_CASE("the start file goes to the chooser in UTF-16") {
    const desktop::Session session;
    world().chooserAnswers = {cancelled};
    store::chooseIconFile(western("C:\\\xA7\xB1.exe,0"), setupWindow);
    CHECK(world().chooserCalls.at(0).file == u"C:\\\u00A7\u00B1.exe");
}

TEST_CASE("an empty reference opens the chooser with no file, and Cancel gives the empty text") {
    const desktop::Session session;
    world().chooserAnswers = {{0, u"C:\\x.exe", 1}};
    CHECK(store::chooseIconFile("", setupWindow) == "");
    CHECK(world().chooserCalls.at(0).file.empty());
    CHECK(world().chooserCalls.at(0).index == 0);
}

TEST_CASE("only the result 1 of the chooser is a confirmation") {
    const desktop::Session session;
    world().chooserAnswers = {{2, u"C:\\x.exe", 1}, {1, u"C:\\x.exe", 1}};
    CHECK(store::chooseIconFile("a,0", setupWindow) == "");
    CHECK(store::chooseIconFile("a,0", setupWindow) == "C:\\x.exe,1");
}

TEST_CASE("a reference without a comma is a subscript error, before any chooser") {
    const desktop::Session session;
    CHECK(chooseError("C:\\x.exe") == 9);
    CHECK(world().chooserCalls.empty());
}

TEST_CASE("an index that is no number is a type mismatch, one out of range an overflow") {
    const desktop::Session session;
    CHECK(chooseError("C:\\x.exe,") == 13);
    CHECK(chooseError("C:\\x.exe,one") == 13);
    CHECK(chooseError("C:\\a,b\\x.exe,0") == 13);
    CHECK(chooseError("C:\\x.exe,2147483648") == 6);
    CHECK(world().chooserCalls.empty());
}

TEST_CASE("only the first two parts of a reference count") {
    const desktop::Session session;
    world().chooserAnswers = {cancelled};
    store::chooseIconFile("C:\\x.exe,4,9", setupWindow);
    CHECK(world().chooserCalls.at(0).file == u"C:\\x.exe");
    CHECK(world().chooserCalls.at(0).index == 4);
}

TEST_CASE("a start file that does not fit the chooser's buffer is cut") {
    const desktop::Session session;
    world().chooserAnswers = {cancelled, cancelled};
    store::chooseIconFile(std::string(259, 'a') + ",0", setupWindow);
    store::chooseIconFile(std::string(300, 'b') + ",0", setupWindow);
    CHECK(world().chooserCalls.at(0).file == std::u16string(259, u'a'));
    CHECK(world().chooserCalls.at(1).file == std::u16string(259, u'b'));
}

TEST_CASE("a reference of the chooser's own making is accepted by it again") {
    const desktop::Session session;
    world().chooserAnswers = {{1, u"C:\\x.exe", 7}, cancelled};
    store::chooseIconFile(store::chooseIconFile("", setupWindow), setupWindow);
    CHECK(world().chooserCalls.at(1).file == u"C:\\x.exe");
    CHECK(world().chooserCalls.at(1).index == 7);
}

TEST_SUITE_END();
