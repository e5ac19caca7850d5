#include "codePages.h"
#include "store/settings.h"

#include "desktop/desktop.h"
#include "platform/kernel32.h"
#include "runtime/runtimeError.h"

#include <doctest/doctest.h>

using desktop::Session;
using desktop::world;
namespace key = store::key;
namespace section = store::section;

TEST_SUITE_BEGIN("store/settings");

TEST_CASE("without a file every key reads as absent, and the first write makes the file") {
    const Session session;
    CHECK(store::getini("global", "language") == "");
    CHECK(store::getNumber(section::global, key::language) == 0);
    CHECK_FALSE(store::getFlag(section::unit, key::visible));
    CHECK(store::getText(section::unit, key::leftUnit, "mil") == "mil");
    CHECK_FALSE(world().fileText("C:\\kestrel\\kestrel.ini"));
    CHECK(store::setini("global", "language", "10000") != 0);
    CHECK(world().fileText("C:\\kestrel\\kestrel.ini") == "[global]\r\nlanguage=10000\r\n");
}

TEST_CASE("a key with an empty value is like an absent one, also for a default") {
    const Session session;
    world().writeSettings("[Unit]\r\nLeftUnit=\r\nVisible=\r\n[global]\r\nlanguage=\r\n");
    CHECK(store::getini("Unit", "LeftUnit") == "");
    CHECK(store::getText("Unit", "LeftUnit", "mil") == "mil");
    CHECK_FALSE(store::getFlag("Unit", "Visible"));
    CHECK(store::getNumber("global", "language") == 0);
}

TEST_CASE("any number but 0 is on; 0 and what begins with no number is off") {
    const Session session;
    const auto flag = [](const std::string& value) {
        world().writeSettings("[toolbar]\r\nautoEAGLE=" + value + "\r\n");
        return store::getFlag(section::toolbar, key::autoEAGLE);
    };
    for (const char* value : {"1", "2", "-1", "0.5", "1abc", "+3", "-0.001"})
        CHECK_MESSAGE(flag(value), value);
    for (const char* value : {"0", "abc", "", "-", "0.0", "yes", "x1", "&HFF"})
        CHECK_FALSE_MESSAGE(flag(value), value);
}

TEST_CASE("winEAGLE of 5 selects board and library and not schematic") {
    const Session session;
    world().writeSettings("[toolbar]\r\nwinEAGLE=5\r\n");
    CHECK(store::getNumber(section::toolbar, key::winEAGLE) == (1 | 4));
}

TEST_CASE("a number is rounded to 32 bits, halves to even, and overflows beyond them") {
    const Session session;
    const auto number = [](const std::string& value) {
        world().writeSettings("[global]\r\nlanguage=" + value + "\r\n");
        return store::getNumber(section::global, key::language);
    };
    CHECK(number("10000") == 10000);
    CHECK(number("2.5") == 2);
    CHECK(number("-3.7x") == -4);
    CHECK(number("abc") == 0);
    CHECK_THROWS_AS(number("2147483648"), runtime::RuntimeError);
    CHECK_THROWS_AS(number("1e999"), runtime::RuntimeError);
}

TEST_CASE("what is written as lastLbr in Toolbar is found as lastLBR in toolbar") {
    const Session session;
    store::setini(section::toolbarWritten, key::lastLbrWritten, "C:\\l.lbr");
    CHECK(world().settings() == "[Toolbar]\r\nlastLbr=C:\\l.lbr\r\n");
    CHECK(store::getini(section::toolbar, key::lastLBR) == "C:\\l.lbr");
}

TEST_CASE("a value of 300 characters comes back as its first 254") {
    const Session session;
    const std::string value = std::string(250, 'a') + std::string(50, 'b');
    store::setini("s", "k", value);
    CHECK(world().settings() == "[s]\r\nk=" + value + "\r\n");
    CHECK(store::getini("s", "k") == value.substr(0, 254));
    store::setini("s", "k", value.substr(0, 254));
    CHECK(store::getini("s", "k") == value.substr(0, 254));
}

TEST_CASE("a value keeps its inner blanks and loses one pair of quotes") {
    const Session session;
    store::setini("s", "k", "a  b ");
    CHECK(store::getini("s", "k") == "a  b");
    store::setini("s", "k", "\"C:\\a b.exe\"");
    CHECK(store::getini("s", "k") == "C:\\a b.exe");
}

TEST_CASE("removing a section that is not there changes nothing and says nothing") {
    const Session session;
    world().writeSettings("[board]\r\n1name=Fit\r\n");
    CHECK(store::delini("schem") != 0);
    CHECK(world().settings() == "[board]\r\n1name=Fit\r\n");
    CHECK(world().messageBoxes.empty());
}

TEST_CASE("removing a section takes its keys and leaves the others, whatever the case of its name") {
    const Session session;
    world().writeSettings("[board]\r\n1name=Fit\r\n[Unit]\r\nVisible=1\r\n");
    CHECK(store::delini("BOARD") != 0);
    CHECK(world().settings() == "[Unit]\r\nVisible=1\r\n");
}

TEST_CASE("a file that cannot be written is left as it is, without a message") {
    const Session session;
    world().writeSettings("[s]\r\nk=1\r\n");
    world().file("C:\\kestrel\\kestrel.ini")->readOnly = true;
    CHECK(store::setini("s", "k", "2") == 0);
    CHECK(store::delini("s") == 0);
    CHECK(world().settings() == "[s]\r\nk=1\r\n");
    CHECK(world().messageBoxes.empty());
}

TEST_CASE("a hand edit takes effect at the next read") {
    const Session session;
    world().writeSettings("[s]\r\nk=1\r\n");
    CHECK(store::getini("s", "k") == "1");
    world().writeSettings("[s]\r\nk=2\r\n");
    CHECK(store::getini("s", "k") == "2");
    CHECK(world().settingsReads == 2);
}

TEST_CASE("reading and writing record themselves, removing does not") {
    const Session session;
    store::currentRoutine = "before";
    store::delini("s");
    CHECK(store::currentRoutine == "before");
    store::setini("s", "k", "v");
    CHECK(store::currentRoutine == "setini");
    store::getini("s", "k");
    CHECK(store::currentRoutine == "getini");
}

TEST_CASE("all three routines reach the one file of a folder with capitals and umlauts") {
    const Session session;
    world().programFolder = western("D:\\Programme\\\xDC"
                                    "bung");
    CHECK(store::setini("s", "k", "v") != 0);
    CHECK(world().fileText(western("d:\\programme\\\xFC"
                                   "bung\\kestrel.ini")) == "[s]\r\nk=v\r\n");
    CHECK(store::getini("s", "k") == "v");
    CHECK(store::delini("s") != 0);
    CHECK(store::getini("s", "k") == "");
    CHECK(world().files.size() == 1);
}

TEST_CASE("readers and the removal name the folder in lower case, the writer names it as it stands") {
    const Session session;
    world().programFolder = "D:\\Programme\\Kestrel";
    store::setini("s", "k", "v");
    store::getini("s", "k");
    store::delini("s");
    CHECK(world().settingsPaths == std::vector<std::string>{"D:\\Programme\\Kestrel\\kestrel.ini",
                                                            "d:\\programme\\kestrel\\kestrel.ini",
                                                            "d:\\programme\\kestrel\\kestrel.ini"});
}

TEST_CASE("a program folder that is a drive root has its settings there") {
    const Session session;
    world().programFolder = "C:\\";
    store::setini("s", "k", "v");
    CHECK(store::getini("s", "k") == "v");
    CHECK(world().fileText("C:\\kestrel.ini") == "[s]\r\nk=v\r\n");
}

TEST_CASE("what a killed run has kept stays, though the folder does not show it") {
    const Session session;
    world().programFolder = "\\\\server\\kestrel";
    const std::string kept = world().programFolder + "\\kestrel.sav";
    world().writeFile(kept, "whole");
    world().writeSettings("[Too");
    SUBCASE("it is hidden") {
        world().file(kept)->hidden = true;
    }
    SUBCASE("its server comes back a moment later") {
        world().cutOff("server");
    }
    store::keepSettings();
    CHECK(world().fileText(kept) == "whole");
}

TEST_CASE("a value with binary bytes is read as it stands") {
    const Session session;
    world().writeSettings(western("[s]\r\nk=\x01\xFFz\x7F\r\n"));
    CHECK(store::getini("s", "k") == western("\xFFz\x7F")); // control characters around a value do not count
}

TEST_CASE("a value that is too long ends with a whole character") {
    const Session session;
    const std::string sign = western("\xA7");
    const std::string beginning(253, 'x');
    world().writeSettings("[s]\r\nk=" + beginning + sign + sign + "\r\n");
    CHECK(store::getini("s", "k") == (sign.size() == 1 ? beginning + sign : beginning));
}

TEST_CASE(
    "what a save has left half written is not kept in place of the whole, by another of that run either") {
    const Session session;
    const auto kept = [] { return world().fileText("C:\\kestrel\\kestrel.sav"); };
    world().writeSettings("[global]\r\nlanguage=0\r\n");
    store::keepSettings();
    world().writeSettings("[global]\r\nlanguage=1");
    store::keepSettings();
    CHECK(kept() == "[global]\r\nlanguage=0\r\n");
    store::settingsWritten();
    CHECK_FALSE(kept());
    // One that could not get its last name is made anew, once.
    world().writeFile("C:\\kestrel\\kestrel.sav", "old");
    store::keepSettings();
    CHECK(kept() == "[global]\r\nlanguage=1");
    world().writeSettings("[global]");
    store::keepSettings();
    CHECK(kept() == "[global]\r\nlanguage=1");
}

TEST_SUITE_END();
