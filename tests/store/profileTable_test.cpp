#include "codePages.h"
#include "contract/profileTable.h"
#include "desktop/iniFile.h"

#include <doctest/doctest.h>

namespace {

const char* orNull(const std::optional<std::string>& text) {
    return text ? text->c_str() : nullptr;
}

contract::ProfileOutcome run(const contract::ProfileCase& row) {
    contract::ProfileOutcome outcome;
    outcome.file = row.fileBefore;
    if (row.write) {
        outcome.result = static_cast<std::uint32_t>(
            desktop::profileWrite(outcome.file, orNull(row.section), orNull(row.key), orNull(row.value)));
        return outcome;
    }
    // Exactly as large as it is said to be, so that the sanitizer sees a write beyond it.
    std::vector<char> buffer(row.size, '#');
    outcome.result = desktop::profileGet(outcome.file ? &*outcome.file : nullptr, orNull(row.section),
                                         orNull(row.key), orNull(row.value), buffer.data(), row.size);
    outcome.text.assign(buffer.data(), outcome.result);
    if (row.size > 0)
        CHECK_MESSAGE(buffer.at(outcome.result) == '\0', row.id);
    return outcome;
}

/// A file's text as the program's writes leave it.
std::string afterWrite(const std::string& before, const char* section, const char* key, const char* value) {
    std::optional<std::string> file = before;
    CHECK(desktop::profileWrite(file, section, key, value) == 1);
    return file.value();
}

std::string listed(const std::string& file, const char* section, std::uint32_t size) {
    std::vector<char> buffer(size, '#');
    const std::uint32_t count = desktop::profileGet(&file, section, nullptr, "d", buffer.data(), size);
    return {buffer.data(), count};
}

} // namespace

TEST_SUITE_BEGIN("store/profileTable");

TEST_CASE("settings-file operations do what the table says") {
    const auto rows = contract::readProfileTable(TEST_DATA "/profile.tsv");
    CHECK(rows.size() == 100);
    for (const contract::ProfileCase& row : rows) {
        const contract::ProfileOutcome outcome = run(row);
        CHECK_MESSAGE(outcome.result == row.expected.result, row.id);
        CHECK_MESSAGE(outcome.text == row.expected.text, row.id);
        CHECK_MESSAGE(outcome.file == row.expected.file, row.id);
    }
}

TEST_CASE("the table marks the rows that differ under Wine, and only those") {
    for (const contract::ProfileCase& row : contract::readProfileTable(TEST_DATA "/profile.tsv")) {
        const bool same = row.wine.result == row.expected.result && row.wine.text == row.expected.text &&
                          row.wine.file == row.expected.file;
        CHECK_MESSAGE(same != row.differsUnderWine, row.id);
    }
}

TEST_CASE("a list of names that does not fit is cut and ended by two NULs") {
    const std::string file = "[s]\r\nab=1\r\ncd=2\r\nnovalue\r\n;e=3\r\n";
    CHECK(listed(file, "s", 260) == std::string("ab\0cd\0", 6));
    CHECK(listed(file, "s", 6) == std::string("ab\0c", 4));
    CHECK(listed(file, "s", 1) == "");
    CHECK(listed(file, "nosuch", 260) == "d");
}

TEST_CASE("a key that is written keeps what its line has ahead of the equals sign") {
    CHECK(afterWrite("[s]\r\n Key = v \r\nx=1\r\n", "S", "key", "new") == "[s]\r\n Key =new\r\nx=1\r\n");
    CHECK(afterWrite("[s]\nk=v\n", "s", "k", "w") == "[s]\nk=w\n");
}

TEST_CASE("a new key goes behind the last key of its section, and behind the header of an empty one") {
    CHECK(afterWrite("[s]\r\na=1\r\n\r\n[t]\r\n", "s", "b", "2") == "[s]\r\na=1\r\nb=2\r\n\r\n[t]\r\n");
    CHECK(afterWrite("[s]\r\na=1\r\nodd\r\n;c\r\n", "s", "b", "2") == "[s]\r\na=1\r\nodd\r\nb=2\r\n;c\r\n");
    CHECK(afterWrite("[s]\r\n;c\r\n", "s", "b", "2") == "[s]\r\nb=2\r\n;c\r\n");
    CHECK(afterWrite("[s]", "s", "b", "2") == "[s]\r\nb=2\r\n");
    CHECK(afterWrite("[s]\r\na=1", "s", "b", "2") == "[s]\r\na=1\r\nb=2\r\n");
}

TEST_CASE("a section is removed with its keys; comments and empty lines stay") {
    CHECK(afterWrite("[s]\r\na=1\r\nodd\r\n;c\r\n\r\n[t]\r\n", "S", nullptr, nullptr) == ";c\r\n\r\n[t]\r\n");
    CHECK(afterWrite("x=1\r\n[s]\r\na=1", "s", nullptr, nullptr) == "x=1\r\n");
}

TEST_CASE("removing a key that is not there changes nothing") {
    CHECK(afterWrite("[s]\r\na=1\r\n", "s", "b", nullptr) == "[s]\r\na=1\r\n");
    CHECK(afterWrite("[s]\r\na=1\r\n", "t", "b", nullptr) == "[s]\r\na=1\r\n");
}

TEST_CASE("names fold umlauts as the ANSI code page does") {
    CHECK(afterWrite(western("[\xC4]\r\n\xD6=1\r\n"), western("\xE4").c_str(), western("\xF6").c_str(),
                     "2") == western("[\xC4]\r\n\xD6=2\r\n"));
}

TEST_SUITE_END();
