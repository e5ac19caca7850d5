// What a program has to do in its own folder, which the code page may have no text of. Played by
// strangeFolder_test.
#include "contract/windows/strangeFolder.h"

#include "codePages.h"
#include "contract/world.h"
#include "platform/executable.h"
#include "platform/files.h"
#include "platform/programs.h"
#include "platform/shell32.h"
#include "platform/textFile.h"
#include "store/pathTokens.h"
#include "store/settings.h"
#include "win32/platform/helpFile.h"
#include "win32/platform/paths.h"

#include <doctest/doctest.h>

#include <windows.h>

#include <string>

namespace {

using contract::World;

std::wstring beside(const wchar_t* name) {
    return win32::ownPath().substr(0, win32::ownPath().find_last_of(L'\\') + 1) + name;
}

bool stands(const wchar_t* name) {
    return GetFileAttributesW(beside(name).c_str()) != INVALID_FILE_ATTRIBUTES;
}

std::string own(const std::string& name) {
    return store::expandTokens("{kestrelpath}\\" + name);
}

bool withoutShortNames() {
    return GetEnvironmentVariableA(contract::noShortNames, nullptr, 0) != 0;
}

} // namespace

TEST_SUITE_BEGIN("contract/windows/insideStrangeFolder");

TEST_CASE("the folder has a text, and the program its name" * doctest::skip()) {
    const std::string& folder = platform::programFolder();
    CHECK(platform::executableName() == "contract-tests");
    CHECK(folder.find('?') == std::string::npos);
    CHECK((folder == win32::folderStandIn) ==
          (withoutShortNames() && platform::GetACP() != platform::utf8CodePage));
}

TEST_CASE("settings are written, read and removed" * doctest::skip()) {
    const std::string value = "window " + western("\xA7");
    CHECK(store::getini("s", "k") == "");
    CHECK(store::setini("s", "k", value) != 0);
    CHECK(stands(L"kestrel.ini"));
    CHECK(store::getini("s", "k") == value);
    CHECK(store::setini("s", "long", std::string(300, 'x')) != 0);
    CHECK(store::getini("s", "long") == std::string(254, 'x'));
    CHECK(store::delini("s") != 0);
    CHECK(store::getini("s", "k") == "");
}

TEST_CASE("a request is found, read and deleted, a protocol grows" * doctest::skip()) {
    const std::string request = platform::programFolder() + "\\execute.txt";
    platform::writeFile(request, "notepad.exe\r\nx");
    CHECK(stands(L"execute.txt"));
    CHECK(platform::dir(request) == "execute.txt");
    CHECK(platform::readFirstLine(request) == "notepad.exe");
    platform::kill(request);
    CHECK_FALSE(stands(L"execute.txt"));
    CHECK(platform::dir(request).empty());
    platform::appendToFile(platform::programFolder() + "\\x.EPT", "one");
    platform::appendToFile(platform::programFolder() + "\\x.EPT", "two");
    CHECK(platform::readFirstLine(own("x.EPT")) == "onetwo");
}

TEST_CASE("icons of files there are found, and one that is chosen there" * doctest::skip()) {
    CHECK(platform::iconCount(own("brd.ico").c_str()) == 1);
    platform::HICON large{};
    platform::HICON little{};
    CHECK(platform::ExtractIconExA(own("brd.ico").c_str(), 0, large, little) == 1);
    std::string file = own("brd.ico");
    std::int32_t index = 0;
    contract::ChooserCall call{};
    const std::wstring icon = beside(L"brd.ico");
    const int result =
        World::pickIcon({platform::iconPicked, {icon.begin(), icon.end()}, 0}, file, index, call);
    CHECK(result == platform::iconPicked);
    CHECK(platform::iconCount(store::expandTokens(file).c_str()) == 1);
    if (platform::programFolder() == win32::folderStandIn) {
        CHECK(std::wstring(call.file.begin(), call.file.end()) == icon);
        CHECK(file == "{kestrelpath}\\brd.ico");
    }
}

TEST_CASE("programs there are started, by a button and by the shell" * doctest::skip()) {
    for (const wchar_t* const name : {L"tool one.exe", L"tool two.exe"})
        REQUIRE(CopyFileW(win32::ownPath().c_str(), beside(name).c_str(), FALSE) != FALSE);
    REQUIRE_FALSE(platform::dir(own("tool one.exe")).empty());
    platform::shell(own("tool one.exe") + " x", platform::normalWithFocus);
    CHECK(World::until([] { return stands(L"tool one.exe.started"); }));
    CHECK(platform::ShellExecuteA(platform::HWND::none, "Open", own("tool two.exe").c_str(), "", "",
                                  platform::showNormally) > 32);
    CHECK(World::until([] { return stands(L"tool two.exe.started"); }));
}

TEST_CASE("the help viewer gets a file that it can open" * doctest::skip()) {
    platform::writeFile(own("help.chm"), "ITSF");
    const std::string file = win32::helpFileForViewer(own("help.chm").c_str());
    CHECK(file.find(win32::folderStandIn) == std::string::npos);
    CHECK(platform::readFirstLine(file) == "ITSF");
    if (platform::programFolder() == win32::folderStandIn)
        CHECK(DeleteFileA(file.c_str()) != FALSE);
}

TEST_SUITE_END();
