#include "codePages.h"
#include "store/iconReference.h"

#include "runtime/errorOf.h"

#include <doctest/doctest.h>

using runtime::errorOf;
using store::IconReference;

TEST_SUITE_BEGIN("store/iconReference");

TEST_CASE("a reference is a file and an index") {
    CHECK(IconReference::parse("C:\\t\\x.exe,12") == IconReference{"C:\\t\\x.exe", 12});
    CHECK(IconReference::parse("{kestrelpath}\\brd.ico,0") == IconReference{"{kestrelpath}\\brd.ico", 0});
    CHECK(IconReference::parse(",3") == IconReference{"", 3});
    CHECK(IconReference::parse("x.exe,-1") == IconReference{"x.exe", -1});
}

TEST_CASE("it is written as it is read") {
    for (const std::string& text : {std::string("C:\\t\\x.exe,12"), western("C:\\\xFC\x80.ico,0"),
                                    std::string(",0"), std::string("a b.dll,-2147483648")})
        CHECK(IconReference::parse(text).text() == text);
    CHECK(IconReference{}.text() == ",0");
    CHECK(IconReference{"x.exe"}.text() == "x.exe,0");
}

TEST_CASE("only what stands before and behind the first comma counts") {
    CHECK(IconReference::parse("C:\\x.exe,4,9") == IconReference{"C:\\x.exe", 4});
    CHECK(IconReference::parse("C:\\x.exe,4,") == IconReference{"C:\\x.exe", 4});
    CHECK(IconReference::parse("C:\\a,7,b\\x.exe,0") == IconReference{"C:\\a", 7});
}

TEST_CASE("without a comma there is no second part") {
    for (const char* text : {"", "C:\\x.exe", "7"})
        CHECK(errorOf([text] { IconReference::parse(text); }) == 9);
}

TEST_CASE("an index that is no number, and one that is too large") {
    for (const char* text : {"x.exe,", "x.exe,one", "C:\\a,b\\x.exe,0", "x.exe, ,1"})
        CHECK(errorOf([text] { IconReference::parse(text); }) == 13);
    for (const char* text : {"x.exe,2147483648", "x.exe,-2147483649"})
        CHECK(errorOf([text] { IconReference::parse(text); }) == 6);
}

TEST_SUITE_END();
