#include "store/pathTokens.h"

#include "desktop/desktop.h"

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

TEST_CASE("braces without a token are text") {
    const desktop::Session session;
    CHECK(store::expandTokens("{ENTER}{kestrelpath") == "{ENTER}{kestrelpath");
}

TEST_SUITE_END();
