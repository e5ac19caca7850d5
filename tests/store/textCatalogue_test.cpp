#include "store/textCatalogue.h"

#include "runtime/runtimeError.h"

#include <doctest/doctest.h>

#include <algorithm>
#include <cstdint>
#include <string>

using store::LoadResString;

TEST_CASE("catalogue: ids rise, and there is a text in both banks for each") {
    std::int32_t former = 0;
    for (const store::CatalogueRow& row : store::catalogue()) {
        CAPTURE(row.id);
        CHECK(row.id > former);
        CHECK(LoadResString(row.id) == row.german);
        CHECK(LoadResString(row.id + store::englishBank) == row.english);
        CHECK_FALSE(std::string(row.german).empty());
        CHECK_FALSE(std::string(row.english).empty());
        former = row.id;
    }
    CHECK(store::catalogue().size() == 51);
}

TEST_CASE("catalogue: every character of both banks is as it has been proof-read") {
    // FNV-1a over all rows: who changes a text on purpose takes over the number that the failure shows.
    std::uint64_t sum = 0xCBF29CE484222325;
    for (const store::CatalogueRow& row : store::catalogue())
        for (const char character : std::to_string(row.id) + "\t" + row.german + "\t" + row.english + "\n")
            sum = (sum ^ static_cast<unsigned char>(character)) * 0x100000001B3;
    CHECK(sum == 0xCB6910574F73BBCC);
}

TEST_CASE("catalogue: the groups of ids are complete, and 1013 is not used") {
    const auto has = [](std::int32_t id) {
        return std::any_of(store::catalogue().begin(), store::catalogue().end(),
                           [id](const store::CatalogueRow& row) { return row.id == id; });
    };
    for (std::int32_t id = 1000; id <= 1017; ++id)
        CHECK(has(id) == (id != 1013));
    for (std::int32_t id = 1050; id <= 1075; ++id)
        CHECK(has(id));
    for (std::int32_t id = 1100; id <= 1104; ++id)
        CHECK(has(id));
    CHECK(has(3100));
    CHECK(has(3101));
    CHECK(has(3930));
}

TEST_CASE("catalogue: texts keep their trailing blank and their umlauts of the code page") {
    CHECK(LoadResString(1017) == "Konfiguration ");
    CHECK(LoadResString(11017) == "Configuration ");
    CHECK(LoadResString(1005) == "Sym&bol \xE4ndern");
    CHECK(LoadResString(1009) == "ext. Befehl &hinzuf\xFCgen");
    CHECK(LoadResString(1060) == "\xD6"
                                 "ffne EAGLE mit dem letzten Board/Schematic/Library Fenster");
    CHECK(LoadResString(13100) == "An Error occurs while opening of the Help File");
    CHECK(LoadResString(13930) == "Information");
}

TEST_CASE("catalogue: a missing id is the runtime's error with the id that was asked for") {
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

TEST_CASE("catalogue: an id that is off by one gives the neighbouring text") {
    CHECK(LoadResString(1100 + 1) == "&Hilfe");
    CHECK_THROWS_AS((void)LoadResString(1104 + 1), runtime::RuntimeError);
}
