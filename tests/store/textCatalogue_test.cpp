#include "codePages.h"
#include "store/textCatalogue.h"

#include "runtime/runtimeError.h"

#include <doctest/doctest.h>

#include <cstdint>
#include <optional>
#include <set>
#include <string>

using store::LoadResString;

namespace {

std::optional<std::string> textOf(std::int32_t id) {
    try {
        return LoadResString(id);
    } catch (const runtime::RuntimeError&) {
        return std::nullopt;
    }
}

/// Of the German bank.
std::set<std::int32_t> ids() {
    std::set<std::int32_t> found;
    for (std::int32_t id = 1; id < store::englishBank; ++id)
        if (textOf(id))
            found.insert(id);
    return found;
}

} // namespace

TEST_SUITE_BEGIN("store/textCatalogue");

TEST_CASE("each id has a text in both banks") {
    for (std::int32_t id = 1; id < store::englishBank; ++id) {
        CAPTURE(id);
        const std::optional<std::string> german = textOf(id);
        const std::optional<std::string> english = textOf(id + store::englishBank);
        REQUIRE(german.has_value() == english.has_value());
        CHECK(german != "");
        CHECK(english != "");
    }
    CHECK(ids().size() == 51);
}

TEST_CASE("every character of both banks is as it has been proof-read") {
    if (!codePageHas(u'\u00E4'))
        return;
    // FNV-1a over all rows: who changes a text on purpose takes over the number that the failure shows.
    std::uint64_t sum = 0xCBF29CE484222325;
    for (const std::int32_t id : ids())
        for (const char16_t character :
             platform::toUtf16(std::to_string(id) + "\t" + LoadResString(id) + "\t" +
                               LoadResString(id + store::englishBank) + "\n"))
            sum = (sum ^ character) * 0x100000001B3;
    CHECK(sum == 0xCB6910574F73BBCC);
}

TEST_CASE("the groups of ids are complete, and 1013 is not used") {
    const std::set<std::int32_t> known = ids();
    for (std::int32_t id = 1000; id <= 1017; ++id)
        CHECK(known.contains(id) == (id != 1013));
    for (std::int32_t id = 1050; id <= 1075; ++id)
        CHECK(known.contains(id));
    for (std::int32_t id = 1100; id <= 1104; ++id)
        CHECK(known.contains(id));
    CHECK(known.contains(3100));
    CHECK(known.contains(3101));
    CHECK(known.contains(3930));
}

TEST_CASE("texts keep their trailing blank and their umlauts of the code page") {
    CHECK(LoadResString(1017) == "Konfiguration ");
    CHECK(LoadResString(11017) == "Configuration ");
    CHECK(LoadResString(1005) == western("Sym&bol \xE4ndern"));
    CHECK(LoadResString(1009) == western("ext. Befehl &hinzuf\xFCgen"));
    CHECK(LoadResString(1060) == western("\xD6"
                                         "ffne EAGLE mit dem letzten Board/Schematic/Library Fenster"));
    CHECK(LoadResString(13100) == "An Error occurs while opening of the Help File");
    CHECK(LoadResString(13930) == "Information");
}

TEST_CASE("a missing id is the runtime's error with the id that was asked for") {
    for (const std::int32_t id :
         {0, -1, 999, 1013, 1018, 1105, 10000, 11013, 11105, 21000, 2147483647, -2147483647}) {
        CAPTURE(id);
        try {
            (void)LoadResString(id);
            FAIL("no error");
        } catch (const runtime::RuntimeError& error) {
            CHECK(error.number == runtime::ErrorNumber::resourceNotFound);
            CHECK(std::string(error.what()) ==
                  "Resource with identifier '" + std::to_string(id) + "' not found");
        }
    }
}

TEST_CASE("an id that is off by one gives the neighbouring text") {
    CHECK(LoadResString(1100 + 1) == "&Hilfe");
    CHECK_THROWS_AS((void)LoadResString(1104 + 1), runtime::RuntimeError);
}

TEST_SUITE_END();
