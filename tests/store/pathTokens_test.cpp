#include "store/pathTokens.h"

#include "codePages.h"
#include "desktop/desktop.h"
#include "store/settings.h"

#include <doctest/doctest.h>

using desktop::world;

TEST_SUITE_BEGIN("store/pathTokens");

TEST_CASE("{kestrelpath} is the program's folder, {eaglepath} drops out") {
    const desktop::Session session;
    world().programFolder = "C:\\p";
    CHECK(store::expandTokens("{kestrelpath}\\x.exe") == "C:\\p\\x.exe");
    CHECK(store::expandTokens("{eaglepath}\\bin\\x.exe") == "\\bin\\x.exe");
    CHECK(store::expandTokens("C:\\x.exe") == "C:\\x.exe");
    CHECK(store::expandTokens("") == "");
}

TEST_CASE("every occurrence of a token is replaced, anywhere in the text") {
    const desktop::Session session;
    world().programFolder = "C:\\p";
    CHECK(store::expandTokens("{kestrelpath};{kestrelpath}{eaglepath}x{eaglepath}") == "C:\\p;C:\\px");
}

TEST_CASE("a token that is not all lower case stays") {
    const desktop::Session session;
    CHECK(store::expandTokens("{EAGLEPATH}\\x.exe") == "{EAGLEPATH}\\x.exe");
    CHECK(store::expandTokens("{KestrelPath}\\x.exe") == "{KestrelPath}\\x.exe");
    world().programFolder = "C:\\p";
    CHECK(store::expandTokens("{KESTRELPATH}{kestrelpath}") == "{KESTRELPATH}C:\\p");
}

TEST_CASE("a program folder that is a drive root keeps its backslash") {
    const desktop::Session session;
    world().programFolder = "C:\\";
    CHECK(store::expandTokens("{kestrelpath}\\x.exe") == "C:\\\\x.exe");
}

TEST_CASE("the second token is looked for in what the first has become") {
    const desktop::Session session;
    world().programFolder = "C:\\{eaglepath}";
    CHECK(store::expandTokens("{kestrelpath}\\x") == "C:\\\\x");
}

TEST_CASE("a folder that has no text but the token is found by it") {
    const desktop::Session session;
    world().programFolder = "{kestrelpath}";
    CHECK(store::expandTokens("{kestrelpath}\\x;{kestrelpath}") == "{kestrelpath}\\x;{kestrelpath}");
    CHECK(store::setini("s", "k", "v") != 0);
    CHECK(store::getini("s", "k") == "v");
    CHECK(world().fileText("{kestrelpath}\\kestrel.ini") == "[s]\r\nk=v\r\n");
}

TEST_CASE("a token is found by its characters, not by bytes of others") {
    const desktop::Session session;
    world().programFolder = "C:\\" + treacherous();
    const std::string path = treacherous() + "{kestrelpath}\\" + treacherous();
    CHECK(store::expandTokens(path) == treacherous() + world().programFolder + "\\" + treacherous());
    if (platform::GetACP() == 932)
        CHECK(store::expandTokens("\x83{kestrelpath}") == "\x83{kestrelpath}");
}

TEST_CASE("braces without a token are text") {
    const desktop::Session session;
    CHECK(store::expandTokens("{ENTER}{kestrelpath") == "{ENTER}{kestrelpath");
}

TEST_SUITE_END();
