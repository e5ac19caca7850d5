// The shell's icon chooser: what it is called with, and what comes back. It takes its file in a buffer of 260
// characters of UTF-16.
#include "codePages.h"
#include "contract/world.h"
#include "platform/shell32.h"

#include <doctest/doctest.h>

namespace {

using contract::ChooserAnswer;
using contract::ChooserCall;
using contract::World;

const ChooserAnswer cancelled{0, u"C:\\x.exe", 9};

/// The file that the chooser is called with.
std::u16string startOf(std::string file) {
    std::int32_t index = 0;
    ChooserCall call{};
    World::pickIcon(cancelled, file, index, call);
    return call.file;
}

/// The file that comes back when this stands in the chooser's buffer.
std::string given(const std::u16string& buffer) {
    std::string file = std::string(200, 'x');
    std::int32_t index = 0;
    ChooserCall call{};
    CHECK(World::pickIcon({platform::iconPicked, buffer, 0}, file, index, call) == platform::iconPicked);
    return file;
}

} // namespace

TEST_SUITE_BEGIN("contract/iconChooser");

TEST_CASE("the icon chooser gets file, size of its buffer and index, and both come back") {
    const World world;
    std::string file = "C:\\old.exe";
    std::int32_t index = 3;
    ChooserCall call{};
    const std::u16string chosen{u"C:\\t\\x.dll\0", 11};
    CHECK(World::pickIcon({platform::iconPicked, chosen, -12}, file, index, call) == 1);
    CHECK(call.file == u"C:\\old.exe");
    CHECK(call.size == 260);
    CHECK(call.index == 3);
    CHECK(file == "C:\\t\\x.dll");
    CHECK(index == -12);
}

TEST_CASE("with any result but one the icon stays as it was") {
    const World world;
    for (const int result : {0, 2, -1}) {
        std::string file = "C:\\old.exe";
        std::int32_t index = 3;
        ChooserCall call{};
        CHECK(World::pickIcon({result, u"C:\\x.exe", 9}, file, index, call) == result);
        CHECK(file == "C:\\old.exe");
        CHECK(index == 3);
    }
}

TEST_CASE("the icon chooser's file goes through UTF-16 and back") {
    const World world;
    CHECK(startOf(western("C:\\\xA7\xB1.exe")) == u"C:\\\u00A7\u00B1.exe");
    CHECK(startOf("").empty());
    CHECK(given(std::u16string{u"C:\\\u00A7\u00B1.dll\0", 10}) == western("C:\\\xA7\xB1.dll"));
    if (!codePageHas(u'\u0E07'))
        CHECK(given(std::u16string{u"C:\\\u0E07\u0E08.ico\0", 10}) == "C:\\??.ico");
}

TEST_CASE("a file that is too long for the icon chooser is cut to what fits with its NUL") {
    const World world;
    CHECK(startOf(std::string(259, 'a')) == std::u16string(259, u'a'));
    CHECK(startOf(std::string(260, 'b')) == std::u16string(259, u'b'));
    CHECK(startOf(std::string(5000, 'c')) == std::u16string(259, u'c'));
}

TEST_CASE(
    "contract: what the icon chooser leaves behind the NUL does not count, and the NUL may be missing") {
    const World world;
    CHECK(given(std::u16string{u"C:\\t.ico\0ver.dll", 16}) == "C:\\t.ico");
    CHECK(given(std::u16string(1, u'\0')).empty());
    CHECK(given(std::u16string(259, u'a') + u'\0') == std::string(259, 'a'));
    CHECK(given(std::u16string(260, u'a')) == std::string(260, 'a'));
}

TEST_CASE("a shell without an icon chooser says so and leaves the icon") {
    const World world;
    if (contract::worldKind() == contract::WorldKind::windows)
        return; // it has one, which waits for its user
    std::string file = "C:\\old.exe";
    std::int32_t index = 3;
    CHECK(platform::PickIconDlg(platform::HWND::none, file, index) == platform::noIconChooser);
    CHECK(file == "C:\\old.exe");
    CHECK(index == 3);
}

TEST_SUITE_END();
