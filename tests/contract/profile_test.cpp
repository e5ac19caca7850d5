// The settings-file operations of the platform, and the program's own routines over them, on files.
#include "codePages.h"
#include "contract/profileTable.h"
#include "contract/world.h"
#include "platform/codePage.h"
#include "platform/kernel32.h"
#include "store/settings.h"

#include <doctest/doctest.h>

#include <algorithm>
#include <vector>

namespace {

const char* orNull(const std::optional<std::string>& text) {
    return text ? text->c_str() : nullptr;
}

/// Plays one row of the table on a file that no row had before: the platform may remember what was in a file.
contract::ProfileOutcome play(contract::World& world, const contract::ProfileCase& row) {
    const std::string file = world.path(row.id + ".ini");
    if (row.fileBefore)
        world.writeFile(file, *row.fileBefore);
    contract::ProfileOutcome outcome;
    if (row.write) {
        outcome.result = static_cast<std::uint32_t>(platform::WritePrivateProfileStringA(
            orNull(row.section), orNull(row.key), orNull(row.value), file.c_str()));
    } else {
        std::vector<char> buffer(row.size, '#');
        outcome.result = platform::GetPrivateProfileStringA(
            orNull(row.section), orNull(row.key), orNull(row.value), buffer.data(), row.size, file.c_str());
        outcome.text.assign(buffer.data(), std::min<std::size_t>(outcome.result, buffer.size()));
        if (row.size > 0)
            CHECK_MESSAGE(buffer.at(outcome.result) == '\0', row.id);
    }
    outcome.file = world.readFile(file);
    return outcome;
}

/// A file in UTF-16LE with its mark.
std::string unicodeFile(std::u16string_view text) {
    std::string bytes = "\xFF\xFE";
    for (const char16_t unit : text) {
        bytes += static_cast<char>(unit & 0xFFU);
        bytes += static_cast<char>(unit >> 8U);
    }
    return bytes;
}

} // namespace

TEST_SUITE_BEGIN("contract/profile");

TEST_CASE("the settings-file operations do what the table says") {
    contract::World world;
    const auto rows = contract::readProfileTable(world.dataFile("profile.tsv"));
    CHECK(rows.size() == 100);
    for (const contract::ProfileCase& row : rows) {
        // Texts of another code page are none here.
        if (platform::toAnsi(platform::toUtf16(row.expected.text)) != row.expected.text)
            continue;
        // A row that Wine has learnt fails here, and its mark in the table has had its day.
        const contract::ProfileOutcome& expected =
            contract::worldKind() == contract::WorldKind::wine ? row.wine : row.expected;
        const contract::ProfileOutcome outcome = play(world, row);
        CHECK_MESSAGE(outcome.result == expected.result, row.id);
        CHECK_MESSAGE(outcome.text == expected.text, row.id);
        CHECK_MESSAGE(outcome.file == expected.file, row.id);
    }
}

TEST_CASE("a setting that is written is read back, without regard to case") {
    contract::World world;
    CHECK(store::setini("Toolbar", "autoToolbar", "1") != 0);
    CHECK(store::getini("toolbar", "AUTOTOOLBAR") == "1");
    CHECK(store::getini("toolbar", "nosuch").empty());
    CHECK(store::getini("nosuch", "autoToolbar").empty());
    CHECK(world.readFile(contract::World::settingsPath()) == "[Toolbar]\r\nautoToolbar=1\r\n");
}

TEST_CASE("a second write of a key replaces its value, a new key goes behind the last") {
    contract::World world;
    store::setini("board", "1name", "Fit");
    store::setini("libr", "1name", "Open");
    store::setini("board", "1path", "window fit");
    store::setini("BOARD", "1NAME", western("Gr\xFC\xDF\x65"));
    CHECK(world.readFile(contract::World::settingsPath()) ==
          western("[board]\r\n1name=Gr\xFC\xDF\x65\r\n1path=window fit\r\n[libr]\r\n1name=Open\r\n"));
}

TEST_CASE("a removed section is gone, the others stay") {
    contract::World world;
    store::setini("board", "1name", "Fit");
    store::setini("schem", "1name", "Net");
    CHECK(store::delini("board") != 0);
    CHECK(store::getini("board", "1name").empty());
    CHECK(store::getini("schem", "1name") == "Net");
    CHECK(world.readFile(contract::World::settingsPath()) == "[schem]\r\n1name=Net\r\n");
}

TEST_CASE("a value of 300 characters comes back as 254") {
    contract::World world;
    const std::string value(300, 'v');
    store::setini("board", "1path", value);
    CHECK(store::getini("board", "1path") == value.substr(0, 254));
    store::setini("board", "1path", value.substr(0, 254));
    CHECK(store::getini("board", "1path") == value.substr(0, 254));
}

TEST_CASE("a value in quotes loses them on reading, and blanks at its ends do not last") {
    contract::World world;
    store::setini("board", "1name", "\"quoted\"");
    CHECK(store::getini("board", "1name") == "quoted");
    store::setini("board", "1name", "  inner blank  ");
    CHECK(store::getini("board", "1name") == "inner blank");
    store::setini("board", "1name", "");
    CHECK(store::getini("board", "1name").empty());
}

TEST_CASE("a settings file that another program holds takes no write") {
    contract::World world;
    world.writeFile(contract::World::settingsPath(), "[board]\r\n1name=Fit\r\n");
    world.lockFile(contract::World::settingsPath());
    CHECK(store::setini("board", "1name", "other") == 0);
    CHECK(store::delini("board") == 0);
}

TEST_CASE("a settings file in UTF-16LE is read as text and stays in UTF-16LE when it is written") {
    contract::World world;
    const std::string file = contract::World::settingsPath();
    world.writeFile(file, unicodeFile(u"; \u4E2D\r\n[board]\r\n1name=Fl\u00E4che\r\n1path=window fit\r\n"
                                      u"[libr]\r\n1name=\u4E2D\r\n"));
    CHECK(store::getini("board", "1path") == "window fit");
    CHECK(store::getini("board", "1name") == western("Fl\xE4"
                                                     "che"));
    const std::string large = western("Gr\xFC\xDF\x65");
    CHECK(store::setini("board", "1name", large) != 0);
    CHECK(store::setini("board", "1tooltip", "all of it") != 0);
    CHECK(world.readFile(file) ==
          unicodeFile(u"; \u4E2D\r\n[board]\r\n1name=" + platform::toUtf16(large) +
                      u"\r\n1path=window fit\r\n1tooltip=all of it\r\n[libr]\r\n1name=\u4E2D\r\n"));
    CHECK(store::delini("board") != 0);
    CHECK(world.readFile(file) == unicodeFile(u"; \u4E2D\r\n[libr]\r\n1name=\u4E2D\r\n"));
}

TEST_CASE("a settings file that is nothing but the mark of UTF-16LE is written in UTF-16LE") {
    contract::World world;
    const std::string file = contract::World::settingsPath();
    world.writeFile(file, unicodeFile(u""));
    CHECK(store::getini("global", "language").empty());
    CHECK(store::setini("global", "language", "10000") != 0);
    CHECK(store::getini("global", "language") == "10000");
    CHECK(world.readFile(file) == unicodeFile(u"[global]\r\nlanguage=10000\r\n"));
}

TEST_SUITE_END();
